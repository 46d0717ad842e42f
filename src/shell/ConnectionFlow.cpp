#include "ConnectionFlow.h"

#include "AppState.h"
#include "BidiText.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "UpdateFlow.h"
#include "WindowController.h"

namespace {

// The daemon answers a connect as soon as the tunnel is being set up; 30 s covers a slow start.
constexpr int kConnectTimeoutMs = 30000;
constexpr int kDisconnectTimeoutMs = 15000;
// While the tunnel is between states the views should not wait for the tray's slow poll.
constexpr int kTransitionPollMs = 1000;
constexpr int kTransitionPollBudget = 30;
constexpr int kStatusTimeoutMs = 1500;

bool inTransition(const QString &tunnelState)
{
    const QString state = tunnelState.trimmed().toLower();
    return state == QLatin1String("connecting") || state == QLatin1String("disconnecting");
}

} // namespace

ConnectionFlow::ConnectionFlow(const ShellContext &context, UpdateFlow *update,
                               std::function<bool()> shellBusy, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_update(update)
    , m_shellBusy(std::move(shellBusy))
{
    m_transitionTimer.setSingleShot(true);
    connect(&m_transitionTimer, &QTimer::timeout, this, &ConnectionFlow::pollTransition);
}

void ConnectionFlow::followTransition(const RuntimeInfo &info)
{
    if (!inTransition(info.tunnelState)) {
        m_transitionTimer.stop();
        m_transitionBudget = 0;
        return;
    }
    if (m_transitionBudget <= 0)
        m_transitionBudget = kTransitionPollBudget;
    m_transitionTimer.start(kTransitionPollMs);
}

void ConnectionFlow::pollTransition()
{
    if (m_transitionBudget <= 0)
        return;
    --m_transitionBudget;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::TransitionStatus);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchStatus", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kStatusTimeoutMs));
}

bool ConnectionFlow::handleStatus(quint64 requestId, const RuntimeInfo &info,
                                  const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::TransitionStatus, requestId))
        return false;
    if (!errorMessage.isEmpty()) {
        m_transitionBudget = 0;
        return true;
    }
    m_context.state->setRuntime(info);
    followTransition(info);
    return true;
}

bool ConnectionFlow::connectRuntime()
{
    return start(PlainConnect, QString(), QString());
}

bool ConnectionFlow::connectNode(const QString &nodeID, const QString &label)
{
    const QString id = nodeID.trimmed();
    if (id.isEmpty())
        return false;
    const QString given = label.trimmed();
    return start(NodeConnect, id, given.isEmpty() ? m_context.tray->connectTargetLabel(id) : given);
}

bool ConnectionFlow::connectSmart(const QString &selector, const QString &label)
{
    const QString target = selector.trimmed();
    if (target.isEmpty())
        return false;
    // A page names the group it connects to ("Germany") before asking; else the selector.
    const QString announced = label.trimmed().isEmpty()
                                  ? m_context.window->announcedTargetLabel(target)
                                  : label.trimmed();
    return start(SmartConnect, target, announced.isEmpty() ? target : announced);
}

bool ConnectionFlow::canStart() const
{
    return !(m_shellBusy && m_shellBusy()) && !m_connectInProgress && !m_disconnectInProgress &&
           !m_context.tray->isBusy();
}

bool ConnectionFlow::start(ConnectKind kind, const QString &target, const QString &label)
{
    if (m_shellBusy && m_shellBusy())
        return false;
    if (m_update->blocksConnect())
        return false;
    if (m_connectInProgress || m_disconnectInProgress || m_context.tray->isBusy())
        return false;

    m_connectInProgress = true;
    m_connectKind = kind;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::Connection);
    // Only now, with every check passed: the tray and the window name the same target.
    m_context.tray->recordConnectTarget(kind == NodeConnect ? target : QString(), label);
    m_context.window->setConnectInProgress(true, target, label);
    const QString status =
        label.isEmpty() ? QCoreApplication::translate("TrayMenuText", "Tovra: connecting...")
                        : QCoreApplication::translate("TrayMenuText", "Tovra: connecting %1...")
                              .arg(isolated(label));
    m_context.tray->beginConnect(id, status, true);
    Q_EMIT pendingTargetChanged(target, label);

    ControlWorker *worker = m_context.workers->control();
    switch (kind) {
    case NodeConnect:
        QMetaObject::invokeMethod(worker, "connectNode", Qt::QueuedConnection, Q_ARG(quint64, id),
                                  Q_ARG(QString, target), Q_ARG(int, kConnectTimeoutMs));
        break;
    case SmartConnect:
        QMetaObject::invokeMethod(worker, "connectSmart", Qt::QueuedConnection, Q_ARG(quint64, id),
                                  Q_ARG(QString, target), Q_ARG(int, kConnectTimeoutMs));
        break;
    default:
        QMetaObject::invokeMethod(worker, "connectRuntime", Qt::QueuedConnection,
                                  Q_ARG(quint64, id), Q_ARG(int, kConnectTimeoutMs));
        break;
    }
    return true;
}

void ConnectionFlow::cancelConnect()
{
    if (!m_connectInProgress)
        return;
    m_context.workers->control()->cancelConnect(
        m_context.ledger->latest(RequestLedger::Kind::Connection));
}

void ConnectionFlow::disconnectRuntime()
{
    if (m_disconnectInProgress)
        return;
    // A running connect is cut short first; its answer is superseded by the disconnect's id.
    if (m_connectInProgress) {
        m_context.workers->control()->cancelConnect(
            m_context.ledger->latest(RequestLedger::Kind::Connection));
        finishConnect();
    }
    m_disconnectInProgress = true;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::Connection);
    m_context.tray->beginDisconnect(id);
    QMetaObject::invokeMethod(m_context.workers->control(), "disconnectRuntime",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kDisconnectTimeoutMs));
}

void ConnectionFlow::finishConnect()
{
    m_connectInProgress = false;
    m_connectKind = NoConnect;
    m_context.window->setConnectInProgress(false);
    Q_EMIT pendingTargetChanged(QString(), QString());
}

void ConnectionFlow::handleConnectFinished(quint64 requestId, const RuntimeInfo &info,
                                           const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::Connection, requestId))
        return;
    const ConnectKind kind = m_connectKind;
    Q_EMIT requestAnswered(requestId, errorMessage);
    if (errorMessage.isEmpty()) {
        // The new status first: between "connecting" and the daemon's state no view may show
        // the state from before the connect.
        m_context.state->setRuntime(info);
        finishConnect();
        followTransition(info);
        Q_EMIT runtimeAnswered(info);
        return;
    }
    finishConnect();
    if (kind == NodeConnect || kind == SmartConnect)
        m_context.window->showOperationError(
            failureText(errorMessage,
                        QT_TRANSLATE_NOOP("TovraAppShell", "Could not connect to this location")));
    else
        m_context.notifier->error(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not connect")));
}

void ConnectionFlow::handleDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                              const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::Connection, requestId))
        return;
    m_disconnectInProgress = false;
    Q_EMIT requestAnswered(requestId, errorMessage);
    if (!errorMessage.isEmpty()) {
        m_context.notifier->error(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not disconnect")));
        return;
    }
    m_context.state->setRuntime(info);
    followTransition(info);
    Q_EMIT runtimeAnswered(info);
}
