#include "CompatibilityFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "WindowController.h"

#include <QTimer>

namespace {

constexpr int kVersionTimeoutMs = 3000;
constexpr int kIncompatibleRecheckMs = 10000;

} // namespace

CompatibilityFlow::CompatibilityFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{}

void CompatibilityFlow::start()
{
    setState(CompatibilityChecking);
    requestVersion();
}

void CompatibilityFlow::followRuntime()
{
    // The daemon was away when we asked; now that it answers, ask again.
    if (m_state == CompatibilityUnknown)
        requestVersion();
}

void CompatibilityFlow::setState(State state, const QString &text)
{
    m_state = state;
    QString reason = text;
    if (reason.isEmpty() && state == CompatibilityChecking)
        reason = ShellText::tr("Checking Tovra service compatibility...");
    else if (reason.isEmpty() && state == Incompatible)
        reason =
            ShellText::tr("Tovra GUI and daemon are incompatible. Update Tovra before continuing.");
    m_context.tray->setControlAvailable(state == CompatibilityUnknown || state == Compatible,
                                        reason);
}

void CompatibilityFlow::requestVersion()
{
    if (m_context.ledger->inFlight(RequestLedger::Kind::Version))
        return;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::Version);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchVersion", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kVersionTimeoutMs));
}

void CompatibilityFlow::handleVersion(quint64 requestId, const VersionInfo &info,
                                      const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::Version, requestId))
        return;
    if (!errorMessage.isEmpty() && !(info.valid && !info.compatible)) {
        setState(CompatibilityUnknown, errorMessage);
        m_context.notifier->error(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not load version")));
        return;
    }
    m_context.state->setVersion(info);
    if (info.compatible) {
        setState(Compatible);
        return;
    }
    const bool wasIncompatible = m_state == Incompatible;
    setState(Incompatible);
    // The daemon may be updated under a running client: ask again until it speaks our version.
    QTimer::singleShot(kIncompatibleRecheckMs, this, [this] {
        if (m_state == Incompatible)
            requestVersion();
    });
    if (wasIncompatible)
        return;
    m_context.window->showOrRaise();
    m_context.notifier->error(
        ShellText::tr("Tovra GUI and daemon are incompatible. Update Tovra before continuing."));
}
