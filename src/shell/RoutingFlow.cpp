#include "RoutingFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "SettingsNotes.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "WindowBusyState.h"
#include "WindowController.h"

using Kind = RequestLedger::Kind;

namespace {

// Routing changes reconfigure the tunnel; give the daemon time before calling it lost.
constexpr int kModeTimeoutMs = 20000;
constexpr int kSettingsTimeoutMs = 10000;

} // namespace

RoutingFlow::RoutingFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{}

bool RoutingFlow::busy() const
{
    const RequestLedger *ledger = m_context.ledger;
    return ledger->inFlight(Kind::Mode) || ledger->inFlight(Kind::LocalNetwork) ||
           ledger->inFlight(Kind::SystemProxy) || ledger->inFlight(Kind::KillSwitch);
}

void RoutingFlow::setMode(const ModeInfo &mode)
{
    // Choosing a proxy mode leaves a pending kill-switch enable nothing to wait for.
    if (mode.transport == QLatin1String("proxy"))
        m_pendingKillSwitchEnable = false;
    const quint64 id = m_context.ledger->issue(Kind::Mode);
    QMetaObject::invokeMethod(m_context.workers->control(), "setMode", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(ModeInfo, mode),
                              Q_ARG(int, kModeTimeoutMs));
    WindowBusyState::showModeBusy(m_context);
}

void RoutingFlow::setLocalNetwork(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::LocalNetwork);
    QMetaObject::invokeMethod(m_context.workers->control(), "setLocalNetworkPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kModeTimeoutMs));
    WindowBusyState::showModeBusy(m_context);
}

void RoutingFlow::setSystemProxy(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::SystemProxy);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSystemProxyPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kModeTimeoutMs));
    WindowBusyState::showModeBusy(m_context);
}

void RoutingFlow::applyMode(const ModeInfo &mode)
{
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.mode = mode;
    runtime.modeSummary = mode.summary();
    m_context.state->setRuntime(runtime);
}

void RoutingFlow::handleMode(quint64 requestId, const ModeInfo &info, const QString &errorMessage)
{
    // Mode, local network and system proxy all answer with the mode record.
    Kind kind = Kind::Mode;
    const char *failure = QT_TRANSLATE_NOOP("TovraAppShell", "Could not switch mode");
    if (m_context.ledger->isLatest(Kind::LocalNetwork, requestId)) {
        kind = Kind::LocalNetwork;
        failure = QT_TRANSLATE_NOOP("TovraAppShell", "Could not update local network");
    } else if (m_context.ledger->isLatest(Kind::SystemProxy, requestId)) {
        kind = Kind::SystemProxy;
        failure = QT_TRANSLATE_NOOP("TovraAppShell", "Could not update system proxy");
    }
    if (!m_context.ledger->accept(kind, requestId))
        return;
    WindowBusyState::showModeBusy(m_context);
    if (!errorMessage.isEmpty()) {
        if (kind == Kind::Mode)
            m_pendingKillSwitchEnable = false;
        m_context.window->showModeOperationError(failureText(errorMessage, failure));
        return;
    }
    applyMode(info);
    m_context.tray->refreshStatus();
    // The kill switch waited for a VPN transport; now it has one.
    if (kind == Kind::Mode && m_pendingKillSwitchEnable &&
        info.transport != QLatin1String("proxy")) {
        m_pendingKillSwitchEnable = false;
        sendKillSwitchEnabled(true);
    }
}

void RoutingFlow::setKillSwitchEnabled(bool enabled)
{
    if (busy()) {
        m_context.notifier->info(ShellText::tr("Please wait for the current operation to finish"));
        return;
    }
    const KillSwitchInfo &killSwitch = m_context.state->killSwitch();
    // The daemon holds a lockdown; switching it off is refused without a word.
    if (!enabled && killSwitch.mode == QLatin1String("lockdown"))
        return;
    if (enabled && m_context.state->runtime().mode.transport == QLatin1String("proxy")) {
        m_context.notifier->info(ShellText::tr("Pick a VPN mode to turn on Kill Switch"));
        return;
    }
    sendKillSwitchEnabled(enabled);
}

void RoutingFlow::sendKillSwitchEnabled(bool enabled)
{
    m_killSwitchModeChange = false;
    const quint64 id = m_context.ledger->issue(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_context.workers->control(), "setKillSwitchEnabled",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(bool, enabled),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void RoutingFlow::setKillSwitchMode(const QString &mode)
{
    if (busy()) {
        m_context.notifier->info(ShellText::tr("Please wait for the current operation to finish"));
        return;
    }
    m_killSwitchModeChange = true;
    const quint64 id = m_context.ledger->issue(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_context.workers->control(), "setKillSwitchMode",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, mode),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void RoutingFlow::switchToAutoAndEnableKillSwitch()
{
    if (busy()) {
        m_context.notifier->info(ShellText::tr("Please wait for the current operation to finish"));
        return;
    }
    // The kill switch is asked for only once the daemon reports the new transport.
    ModeInfo mode;
    mode.transport = QStringLiteral("auto");
    setMode(mode);
    m_pendingKillSwitchEnable = true;
}

void RoutingFlow::chooseModeForKillSwitch()
{
    m_pendingKillSwitchEnable = true;
    m_context.window->showModePageForKillSwitch();
    m_context.notifier->info(ShellText::tr("Pick a VPN mode to turn on Kill Switch"));
}

void RoutingFlow::cancelPendingKillSwitchEnable()
{
    m_pendingKillSwitchEnable = false;
}

void RoutingFlow::handleKillSwitch(quint64 requestId, const KillSwitchInfo &info,
                                   const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::KillSwitch, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    const bool modeChange = m_killSwitchModeChange;
    m_killSwitchModeChange = false;
    if (!errorMessage.isEmpty()) {
        const QString text = failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update kill switch"));
        // A refused mode (an old daemon has none) is told where the modes are.
        if (modeChange)
            m_context.window->setSettingsNote(SettingsNotes::KillSwitchMode, text);
        m_context.window->showSettingsOperationError(text);
        return;
    }
    m_context.window->setSettingsNote(SettingsNotes::KillSwitchMode, QString());
    m_context.state->setKillSwitch(info);
    m_context.tray->refreshStatus();
}

void RoutingFlow::refreshSplitRules()
{
    if (m_context.ledger->inFlight(Kind::SplitRules))
        return;
    const quint64 id = m_context.ledger->issue(Kind::SplitRules);
    m_context.window->setSplitRulesFetchInProgress(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchSplitRules", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, QString()),
                              Q_ARG(int, kSettingsTimeoutMs));
}

void RoutingFlow::handleSplitRules(quint64 requestId, const SplitRulesInfo &info,
                                   const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::SplitRules, requestId))
        return;
    m_context.window->setSplitRulesFetchInProgress(false);
    const bool afterImport = m_importRefreshPending;
    m_importRefreshPending = false;
    if (!errorMessage.isEmpty()) {
        m_context.window->showModeOperationError(
            afterImport
                ? ShellText::tr("Custom split rules updated, but rules could not be refreshed")
                : failureText(errorMessage,
                              QT_TRANSLATE_NOOP("TovraAppShell", "Could not load split rules")));
        return;
    }
    m_context.state->setSplitRules(info);
}

void RoutingFlow::importSplitRules(const QString &kind, const QString &content)
{
    if (m_context.ledger->inFlight(Kind::SplitRuleImport))
        return;
    const quint64 id = m_context.ledger->issue(Kind::SplitRuleImport);
    m_context.window->setSplitRulesImportInProgress(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "importSplitRules",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, kind),
                              Q_ARG(QString, content), Q_ARG(int, kSettingsTimeoutMs));
}

void RoutingFlow::handleSplitRuleImport(quint64 requestId, const SplitRuleMutationInfo &info,
                                        const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::SplitRuleImport, requestId))
        return;
    m_context.window->setSplitRulesImportInProgress(false);
    if (!errorMessage.isEmpty()) {
        m_context.window->showModeOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not import split rules")));
        return;
    }
    const QString result =
        info.changed ? QCoreApplication::translate("TovraAppShell",
                                                   "Custom split rules updated (%n rule(s))",
                                                   nullptr, info.count)
                     : ShellText::tr("Custom split rules unchanged");
    // Both outcomes are successes: the daemon took the rules, whether or not they differed.
    const QString kind = QStringLiteral("success");
    // The rule editor shows it too: it is where the user is looking.
    m_context.window->showSplitRulesResult(result, kind);
    m_context.notifier->post(result, kind);
    m_importRefreshPending = true;
    refreshSplitRules();
}
