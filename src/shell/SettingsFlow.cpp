#include "SettingsFlow.h"

#include "AppState.h"
#include "BidiText.h"
#include "ControlWorker.h"
#include "MainWindow.h"
#include "RequestLedger.h"
#include "SettingsNotes.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "WindowController.h"

using Kind = RequestLedger::Kind;

namespace {

// Routing changes reconfigure the tunnel; give the daemon time before calling it lost.
constexpr int kModeTimeoutMs = 20000;
constexpr int kSettingsTimeoutMs = 10000;
constexpr int kRepairTimeoutMs = 30000;
constexpr int kStatusTimeoutMs = 1500;
constexpr int kStatusRetryMs = 5000;

} // namespace

SettingsFlow::SettingsFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{
    m_statusRetry.setSingleShot(true);
    m_statusRetry.setInterval(kStatusRetryMs);
    connect(&m_statusRetry, &QTimer::timeout, this, [this] {
        const MainWindow *window = m_context.window->window();
        if (window && window->isVisible() && window->currentPage() == MainWindow::SettingsPageIndex)
            load(Kind::SettingsStatus, "fetchStatus");
    });
}

bool SettingsFlow::busy() const
{
    const RequestLedger *ledger = m_context.ledger;
    return ledger->inFlight(Kind::Mode) || ledger->inFlight(Kind::LocalNetwork) ||
           ledger->inFlight(Kind::SystemProxy) || ledger->inFlight(Kind::KillSwitch);
}

void SettingsFlow::modeBusyChanged()
{
    const RequestLedger *ledger = m_context.ledger;
    m_context.window->setModeOperationBusy(ledger->inFlight(Kind::Mode) ||
                                           ledger->inFlight(Kind::LocalNetwork) ||
                                           ledger->inFlight(Kind::SystemProxy));
}

void SettingsFlow::settingsBusyChanged()
{
    const RequestLedger *ledger = m_context.ledger;
    m_context.window->setSettingsOperationBusy(
        ledger->inFlight(Kind::KillSwitch) || ledger->inFlight(Kind::APIURL) ||
        ledger->inFlight(Kind::AutoConnect) || ledger->inFlight(Kind::ProxyListen) ||
        ledger->inFlight(Kind::SplitDNS) || ledger->inFlight(Kind::Repair));
}

void SettingsFlow::setMode(const ModeInfo &mode)
{
    // Choosing a proxy mode leaves a pending kill-switch enable nothing to wait for.
    if (mode.transport == QLatin1String("proxy"))
        m_pendingKillSwitchEnable = false;
    const quint64 id = m_context.ledger->issue(Kind::Mode);
    QMetaObject::invokeMethod(m_context.workers->control(), "setMode", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(ModeInfo, mode),
                              Q_ARG(int, kModeTimeoutMs));
    modeBusyChanged();
}

void SettingsFlow::setLocalNetwork(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::LocalNetwork);
    QMetaObject::invokeMethod(m_context.workers->control(), "setLocalNetworkPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kModeTimeoutMs));
    modeBusyChanged();
}

void SettingsFlow::setSystemProxy(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::SystemProxy);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSystemProxyPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kModeTimeoutMs));
    modeBusyChanged();
}

void SettingsFlow::applyMode(const ModeInfo &mode)
{
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.mode = mode;
    runtime.modeSummary = mode.summary();
    m_context.state->setRuntime(runtime);
}

void SettingsFlow::handleMode(quint64 requestId, const ModeInfo &info, const QString &errorMessage)
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
    modeBusyChanged();
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

void SettingsFlow::setKillSwitchEnabled(bool enabled)
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

void SettingsFlow::sendKillSwitchEnabled(bool enabled)
{
    m_killSwitchModeChange = false;
    const quint64 id = m_context.ledger->issue(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_context.workers->control(), "setKillSwitchEnabled",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(bool, enabled),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::setKillSwitchMode(const QString &mode)
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
    settingsBusyChanged();
}

void SettingsFlow::switchToAutoAndEnableKillSwitch()
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

void SettingsFlow::chooseModeForKillSwitch()
{
    m_pendingKillSwitchEnable = true;
    m_context.window->showModePageForKillSwitch();
    m_context.notifier->info(ShellText::tr("Pick a VPN mode to turn on Kill Switch"));
}

void SettingsFlow::cancelPendingKillSwitchEnable()
{
    m_pendingKillSwitchEnable = false;
}

void SettingsFlow::handleKillSwitch(quint64 requestId, const KillSwitchInfo &info,
                                    const QString &errorMessage)
{
    if (m_context.ledger->accept(Kind::KillSwitchLoad, requestId)) {
        noteLoad(SettingsNotes::KillSwitch, errorMessage,
                 QT_TRANSLATE_NOOP("TovraAppShell", "Could not load kill switch"));
        if (errorMessage.isEmpty())
            m_context.state->setKillSwitch(info);
        return;
    }
    if (!m_context.ledger->accept(Kind::KillSwitch, requestId))
        return;
    settingsBusyChanged();
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

void SettingsFlow::refreshSplitRules()
{
    if (m_context.ledger->inFlight(Kind::SplitRules))
        return;
    const quint64 id = m_context.ledger->issue(Kind::SplitRules);
    m_context.window->setSplitRulesFetchInProgress(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchSplitRules", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, QString()),
                              Q_ARG(int, kSettingsTimeoutMs));
}

void SettingsFlow::handleSplitRules(quint64 requestId, const SplitRulesInfo &info,
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

void SettingsFlow::importSplitRules(const QString &kind, const QString &content)
{
    if (m_context.ledger->inFlight(Kind::SplitRuleImport))
        return;
    const quint64 id = m_context.ledger->issue(Kind::SplitRuleImport);
    m_context.window->setSplitRulesImportInProgress(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "importSplitRules",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, kind),
                              Q_ARG(QString, content), Q_ARG(int, kSettingsTimeoutMs));
}

void SettingsFlow::handleSplitRuleImport(quint64 requestId, const SplitRuleMutationInfo &info,
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

void SettingsFlow::refreshConfigPaths(bool openLogs)
{
    m_openLogsPending = m_openLogsPending || openLogs;
    if (m_context.ledger->inFlight(Kind::ConfigPaths))
        return;
    const quint64 id = m_context.ledger->issue(Kind::ConfigPaths);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchConfigPaths",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kSettingsTimeoutMs));
}

void SettingsFlow::handleConfigPaths(quint64 requestId, const ConfigPaths &paths,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::ConfigPaths, requestId))
        return;
    const bool openLogs = m_openLogsPending;
    m_openLogsPending = false;
    const char *failure = QT_TRANSLATE_NOOP("TovraAppShell", "Could not load config paths");
    noteLoad(SettingsNotes::ConfigPaths, errorMessage, failure);
    if (!errorMessage.isEmpty()) {
        // Opening the logs was asked for by hand; a background load only leaves its note.
        if (openLogs)
            m_context.window->showSettingsOperationError(failureText(errorMessage, failure));
        return;
    }
    m_context.state->setConfigPaths(paths);
    if (openLogs)
        m_context.window->openLogDirectory(paths.logDir);
}

void SettingsFlow::setAPIURL(const QString &apiURL)
{
    m_apiURLReset = false;
    const quint64 id = m_context.ledger->issue(Kind::APIURL);
    QMetaObject::invokeMethod(m_context.workers->control(), "setAPIURL", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, apiURL.trimmed()),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::resetAPIURL()
{
    m_apiURLReset = true;
    const quint64 id = m_context.ledger->issue(Kind::APIURL);
    QMetaObject::invokeMethod(m_context.workers->control(), "resetAPIURL", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::handleAPIURL(quint64 requestId, const APIURLConfigInfo &info,
                                const QString &errorMessage)
{
    if (m_context.ledger->accept(Kind::APIURLLoad, requestId)) {
        noteLoad(SettingsNotes::APIURL, errorMessage,
                 QT_TRANSLATE_NOOP("TovraAppShell", "Could not load API URL"));
        if (errorMessage.isEmpty())
            m_context.state->setAPIURLConfig(info);
        return;
    }
    if (!m_context.ledger->accept(Kind::APIURL, requestId))
        return;
    settingsBusyChanged();
    const bool reset = m_apiURLReset;
    m_apiURLReset = false;
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update API URL")));
        return;
    }
    m_context.state->setAPIURLConfig(info);
    if (reset)
        m_context.notifier->success(ShellText::tr("API URL reset to default"));
    else if (info.validated)
        m_context.notifier->success(ShellText::tr("API URL validated and saved"));
    else // saved all the same: the daemon validates it when it next reaches the service
        m_context.notifier->success(ShellText::tr("API URL saved but not validated"));
}

void SettingsFlow::setAutoConnect(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::AutoConnect);
    QMetaObject::invokeMethod(m_context.workers->control(), "setAutoConnectPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::handleAutoConnect(quint64 requestId, const AutoConnectConfigInfo &info,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::AutoConnect, requestId))
        return;
    settingsBusyChanged();
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update auto connect")));
        return;
    }
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.autoConnect = info.autoConnect;
    m_context.state->setRuntime(runtime);
}

void SettingsFlow::setProxyListeners(const QString &socksAddress, const QString &httpAddress)
{
    const quint64 id = m_context.ledger->issue(Kind::ProxyListen);
    QMetaObject::invokeMethod(
        m_context.workers->control(), "setProxyListeners", Qt::QueuedConnection, Q_ARG(quint64, id),
        Q_ARG(QString, socksAddress), Q_ARG(QString, httpAddress), Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::handleProxyListen(quint64 requestId, const ProxyListenResultInfo &info,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::ProxyListen, requestId))
        return;
    settingsBusyChanged();
    if (!errorMessage.isEmpty()) {
        m_context.window->setSettingsNote(SettingsNotes::ProxyListen, QString());
        m_context.window->showSettingsOperationError(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell",
                                                        "Could not update proxy listen address")));
        return;
    }
    const QString text = info.appliesOnReconnect
                             ? ShellText::tr("Proxy listen address saved for reconnect")
                             : ShellText::tr("Proxy listen address updated");
    m_context.notifier->success(text);
    m_context.window->setSettingsNote(SettingsNotes::ProxyListen, text);
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.proxyListeners = info.proxyListeners;
    m_context.state->setRuntime(runtime);
}

void SettingsFlow::setSplitDNSLocal(const QStringList &servers)
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSplitDNSLocal",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QStringList, servers),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::setSplitDNSPolicy(const QString &policy)
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSplitDNSPolicy",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, policy),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::clearSplitDNSLocal()
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "clearSplitDNSLocal",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::resetSplitDNS()
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "resetSplitDNS", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kSettingsTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::handleSplitDNS(quint64 requestId, const SplitDNSInfo &info,
                                  const QString &errorMessage)
{
    if (m_context.ledger->accept(Kind::SplitDNSLoad, requestId)) {
        noteLoad(SettingsNotes::SplitDNS, errorMessage,
                 QT_TRANSLATE_NOOP("TovraAppShell", "Could not load split DNS"));
        if (errorMessage.isEmpty())
            m_context.state->setSplitDNS(info);
        return;
    }
    if (!m_context.ledger->accept(Kind::SplitDNS, requestId))
        return;
    settingsBusyChanged();
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update split DNS")));
        return;
    }
    m_context.state->setSplitDNS(info);
    m_context.notifier->success(ShellText::tr("Split DNS updated"));
}

void SettingsFlow::repairDiagnostics()
{
    if (m_context.ledger->inFlight(Kind::Repair))
        return;
    const quint64 id = m_context.ledger->issue(Kind::Repair);
    QMetaObject::invokeMethod(m_context.workers->control(), "repairDiagnostics",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kRepairTimeoutMs));
    settingsBusyChanged();
}

void SettingsFlow::handleRepair(quint64 requestId, const RepairResultInfo &info,
                                const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Repair, requestId))
        return;
    settingsBusyChanged();
    m_context.window->setRepairResult(info);
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Repair failed")));
        return;
    }
    m_context.notifier->success(ShellText::tr("Repair completed"));
    m_context.tray->refreshStatus();
}

void SettingsFlow::refreshSettingsPage()
{
    load(Kind::SettingsStatus, "fetchStatus");
    // A change on its way answers with the fresh record anyway.
    if (!m_context.ledger->inFlight(Kind::KillSwitch))
        load(Kind::KillSwitchLoad, "fetchKillSwitch");
    if (!m_context.ledger->inFlight(Kind::APIURL))
        load(Kind::APIURLLoad, "fetchAPIURLConfig");
    if (!m_context.ledger->inFlight(Kind::Language))
        load(Kind::LanguageLoad, "fetchLanguageConfig");
    if (!m_context.ledger->inFlight(Kind::SplitDNS))
        load(Kind::SplitDNSLoad, "fetchSplitDNS");
    refreshConfigPaths(false);
}

void SettingsFlow::load(Kind kind, const char *method)
{
    if (m_context.ledger->inFlight(kind))
        return;
    const int timeoutMs = kind == Kind::SettingsStatus ? kStatusTimeoutMs : kSettingsTimeoutMs;
    const quint64 id = m_context.ledger->issue(kind);
    QMetaObject::invokeMethod(m_context.workers->control(), method, Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, timeoutMs));
}

void SettingsFlow::noteLoad(const QString &key, const QString &errorMessage, const char *fallback)
{
    m_context.window->setSettingsNote(
        key, errorMessage.isEmpty() ? QString() : failureText(errorMessage, fallback));
}

bool SettingsFlow::handleStatus(quint64 requestId, const RuntimeInfo &info,
                                const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::SettingsStatus, requestId))
        return false;
    noteLoad(SettingsNotes::Status, errorMessage,
             QT_TRANSLATE_NOOP("TovraAppShell", "Could not reach the Tovra service"));
    if (!errorMessage.isEmpty()) {
        m_statusFailed = true;
        m_statusRetry.start();
        return true;
    }
    m_context.state->setRuntime(info);
    if (m_statusFailed) {
        // Back again: what failed with it is loaded anew.
        m_statusFailed = false;
        refreshSettingsPage();
    }
    return true;
}

bool SettingsFlow::handleLanguageLoad(quint64 requestId, const LanguageConfigInfo &info,
                                      const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::LanguageLoad, requestId))
        return false;
    noteLoad(SettingsNotes::Language, errorMessage,
             QT_TRANSLATE_NOOP("TovraAppShell", "Could not load languages"));
    if (errorMessage.isEmpty())
        m_context.state->setLanguageConfig(info);
    return true;
}

void SettingsFlow::noteUpdateCheckStarted()
{
    m_context.window->setSettingsNote(SettingsNotes::UpdateCheck,
                                      ShellText::tr("Checking for updates..."));
}

void SettingsFlow::noteUpdateCheckFinished(const UpdateInfo &info, const QString &errorMessage)
{
    QString text;
    if (!errorMessage.isEmpty())
        text = failureText(errorMessage,
                           QT_TRANSLATE_NOOP("TovraAppShell", "Could not check for updates"));
    else if (info.updateAvailable)
        text = QCoreApplication::translate("TovraAppShell", "Tovra %1 is available")
                   .arg(isolated(info.versionCode));
    else
        text = ShellText::tr("Tovra is up to date");
    m_context.window->setSettingsNote(SettingsNotes::UpdateCheck, text);
}
