#include "TrayOperations.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "TrayLog.h"
#include "TrayMenuText.h"
#include "TrayNotifier.h"
#include "TrayRequestIds.h"

#include <QCoreApplication>

namespace {

// Operations change the daemon's state and may take a moment; the tray stays busy meanwhile.
constexpr int kOperationMs = 15000;

using Kind = TrayRequestIds::Kind;

// The notice names the value as sent; each language words it in its own way.
QString sentProxyValue(const QString &value)
{
    if (value == u"off")
        return TrayMenuText::tr("off", "system proxy value");
    if (value == u"on")
        return TrayMenuText::tr("on", "system proxy value");
    if (value == u"lock")
        return TrayMenuText::tr("lock", "system proxy value");
    return value;
}

} // namespace

TrayOperations::TrayOperations(AppState *state, ControlWorker *worker, TrayRequestIds *ids,
                               TrayNotifier *notifier, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_worker(worker)
    , m_ids(ids)
    , m_notifier(notifier)
{}

bool TrayOperations::inFlight() const
{
    return m_connectInFlight || m_disconnectInFlight || m_modeInFlight || m_killSwitchInFlight ||
           m_logoutInFlight;
}

void TrayOperations::setConnectTarget(const QString &nodeId, const QString &label)
{
    m_connectTargetId = nodeId;
    m_connectTargetLabel = label;
}

void TrayOperations::beginConnect(quint64 requestId, const QString &statusText, bool cancellable)
{
    if (m_connectInFlight) {
        m_statusText = statusText;
        Q_EMIT statusTextChanged(statusText);
        return;
    }
    m_ids->adopt(Kind::Connect, requestId);
    m_connectInFlight = true;
    m_connectCancellable = cancellable;
    m_statusText = statusText;
    Q_EMIT started(m_statusText);
}

void TrayOperations::beginDisconnect(quint64 requestId)
{
    m_ids->adopt(Kind::Disconnect, requestId);
    m_disconnectInFlight = true;
    m_statusText = TrayMenuText::tr("Tovra: disconnecting...");
    Q_EMIT started(m_statusText);
}

void TrayOperations::beginLogout(quint64 requestId)
{
    m_ids->adopt(Kind::Logout, requestId);
    m_logoutInFlight = true;
    m_statusText = TrayMenuText::tr("Tovra: logging out...");
    Q_EMIT started(m_statusText);
}

void TrayOperations::startModeChange(ModeChange change, const QString &statusText)
{
    m_modeInFlight = true;
    m_modeChange = change;
    m_statusText = statusText;
    Q_EMIT started(m_statusText);
}

void TrayOperations::sendMode(const ModeInfo &mode, const QString &statusText, ModeChange change)
{
    startModeChange(change, statusText);
    const quint64 id = m_ids->take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setMode", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(ModeInfo, mode), Q_ARG(int, kOperationMs));
}

void TrayOperations::sendSystemProxy(const QString &value)
{
    startModeChange(ModeChange::SystemProxy, TrayMenuText::tr("Tovra: updating system proxy..."));
    m_pendingSystemProxy = value;
    const quint64 id = m_ids->take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setSystemProxyPreference", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, value), Q_ARG(int, kOperationMs));
}

void TrayOperations::sendLocalNetwork(const QString &value)
{
    startModeChange(ModeChange::LocalNetwork,
                    TrayMenuText::tr("Tovra: updating local network routing..."));
    const quint64 id = m_ids->take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setLocalNetworkPreference", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, value), Q_ARG(int, kOperationMs));
}

void TrayOperations::sendKillSwitch(bool enabled)
{
    m_killSwitchInFlight = true;
    m_statusText = enabled ? TrayMenuText::tr("Tovra: enabling kill switch...")
                           : TrayMenuText::tr("Tovra: disabling kill switch...");
    Q_EMIT started(m_statusText);
    const quint64 id = m_ids->take(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_worker, "setKillSwitchEnabled", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(bool, enabled), Q_ARG(int, kOperationMs));
}

void TrayOperations::fetchKillSwitch()
{
    if (m_killSwitchInFlight)
        return;
    const quint64 id = m_ids->take(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_worker, "fetchKillSwitch", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kTrayFetchTimeoutMs));
}

void TrayOperations::finish()
{
    m_statusText.clear();
    Q_EMIT finished();
}

void TrayOperations::handleConnectFinished(quint64 requestId, const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Connect, requestId) || !m_connectInFlight)
        return;
    m_connectInFlight = false;
    m_connectCancellable = false;
    m_connectTargetLabel.clear();
    m_connectTargetId.clear();
    if (!errorMessage.isEmpty())
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("Tovra: connect failed"));
    finish();
}

void TrayOperations::handleDisconnectFinished(quint64 requestId, const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Disconnect, requestId) || !m_disconnectInFlight)
        return;
    m_disconnectInFlight = false;
    if (!errorMessage.isEmpty())
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("Tovra: disconnect failed"));
    finish();
}

void TrayOperations::handleLogoutFinished(quint64 requestId, const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Logout, requestId) || !m_logoutInFlight)
        return;
    m_logoutInFlight = false;
    if (errorMessage.isEmpty())
        m_notifier->notify(TrayMenuText::tr("Logged out"));
    else
        //: Follows "Error: " when signing out failed and the service gave no reason. Word it as a
        //: user would understand it: "could not complete the account action"
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("account operation failed"));
    finish();
}

void TrayOperations::handleModeFinished(quint64 requestId, const ModeInfo &mode,
                                        const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Mode, requestId) || !m_modeInFlight)
        return;
    m_modeInFlight = false;
    if (!errorMessage.isEmpty()) {
        //: Follows "Error: " when changing the mode failed and the service gave no reason. Word it
        //: as a user would understand it: "could not change the mode"
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("mode operation failed"));
    } else {
        if (mode.valid) {
            RuntimeInfo runtime = m_state->runtime();
            runtime.mode = mode;
            m_state->setRuntime(runtime);
        }
        switch (m_modeChange) {
        case ModeChange::Mode:
            m_notifier->notify(TrayMenuText::tr("Mode updated"));
            break;
        case ModeChange::SystemProxy:
            m_notifier->notify(TrayMenuText::tr("System proxy set to %1")
                                   .arg(sentProxyValue(m_pendingSystemProxy)));
            break;
        case ModeChange::SplitOption:
        case ModeChange::LocalNetwork:
            m_notifier->notify(TrayMenuText::tr("Updated"));
            break;
        }
    }
    finish();
}

void TrayOperations::handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                              const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::KillSwitch, requestId))
        return;
    if (!m_killSwitchInFlight) {
        if (errorMessage.isEmpty())
            m_state->setKillSwitch(info);
        return;
    }
    m_killSwitchInFlight = false;
    if (errorMessage.isEmpty()) {
        m_state->setKillSwitch(info);
        m_notifier->notify(info.enabled ? TrayMenuText::tr("Kill switch enabled")
                                        : TrayMenuText::tr("Kill switch disabled"));
    } else {
        //: Follows "Error: " when turning the kill switch on or off failed and the service gave no
        //: reason. Word it as a user would understand it: "could not change the kill switch"
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("kill-switch operation failed"));
    }
    finish();
    // A failed change says nothing of the daemon's state, and a daemon without a kill switch in
    // its status would otherwise never show one.
    fetchKillSwitch();
}
