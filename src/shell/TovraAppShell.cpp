#include "TovraAppShell.h"

#include "AccountFlow.h"
#include "AppState.h"
#include "CatalogFlow.h"
#include "ConnectionFlow.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "LanguageFlow.h"
#include "RequestLedger.h"
#include "SettingsFlow.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWiring.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "TrayIcon.h"
#include "UpdateFlow.h"
#include "WindowController.h"

#include <QTimer>

namespace {

constexpr int kVersionTimeoutMs = 3000;
constexpr int kIncompatibleRecheckMs = 10000;
constexpr int kFirstUpdateCheckDelayMs = 30000;

} // namespace

TovraAppShell::TovraAppShell(QObject *parent, const QString &socketPath,
                             GuiPreferences *preferences)
    : QObject(parent)
{
    m_context.workers = new ShellWorkers(socketPath, this);
    m_context.state = new AppState(this);
    m_ownsPreferences = preferences == nullptr;
    m_context.preferences = preferences ? preferences : new GuiPreferences(this);
    m_context.ledger = new RequestLedger;
    m_context.tray = new TovraTrayApp(m_context.state, m_context.workers->control(),
                                      m_context.preferences, this);
    m_context.window = new WindowController(m_context.state, m_context.preferences, this);
    m_context.notifier = new ShellNotifier(m_context.window, m_context.tray, this);

    m_update = new UpdateFlow(m_context, QCoreApplication::applicationVersion(), this);
    m_connection = new ConnectionFlow(
        m_context, m_update, [this] { return busy(); }, this);
    m_catalog = new CatalogFlow(m_context, this);
    m_settings = new SettingsFlow(m_context, this);
    m_account = new AccountFlow(m_context, this);
    m_language = new LanguageFlow(m_context, this);

    ShellWiring::connectWorkers(this, m_context);
    ShellWiring::connectTray(this, m_context);
    ShellWiring::connectWindow(this, m_context, m_settings);
    connect(m_context.state, &AppState::runtimeChanged, this, &TovraAppShell::handleRuntimeChanged);
    connect(m_language, &LanguageFlow::restartRequested, this, &TovraAppShell::restartRequested);
    connect(m_connection, &ConnectionFlow::runtimeAnswered, this,
            [this] { m_catalog->fetchNodes(false); });
    // Failed connect answers count as well as successful ones.
    connect(m_context.workers->control(), &ControlWorker::connectFinished, this,
            [this] { m_language->checkSystemLanguage(); });
}

TovraAppShell::~TovraAppShell()
{
    shutdown();
    // Views first, while the state they read still exists.
    delete m_context.notifier;
    delete m_context.window;
    delete m_context.tray;
    delete m_context.ledger;
}

void TovraAppShell::shutdown()
{
    if (m_shutDown)
        return;
    m_shutDown = true;
    m_context.workers->shutdown();
}

void TovraAppShell::setCurrentEffectiveLanguage(const QString &tag)
{
    m_language->setCurrentLanguage(tag);
}

void TovraAppShell::setLanguageRestartAllowed(bool allowed)
{
    m_language->setRestartAllowed(allowed);
}

void TovraAppShell::setLaunchedByAutostart(bool autostart)
{
    m_launchedByAutostart = autostart;
}

void TovraAppShell::setSystemTrayAvailable(bool available)
{
    m_trayAvailable = available ? 1 : 0;
}

void TovraAppShell::start()
{
    TrayIcon *icon = m_context.tray->trayIcon();
    const bool trayAvailable = m_trayAvailable >= 0 ? m_trayAvailable == 1 : icon->hostPresent();
    const bool showOnLaunch = m_context.preferences->showOnLaunch();
    if (m_launchedByAutostart && !trayAvailable && !showOnLaunch) {
        // Nothing to show and no tray to live in: leave quietly.
        QTimer::singleShot(0, this, &TovraAppShell::exitRequested);
        return;
    }
    m_started = true;
    setCompatibility(CompatibilityChecking);
    requestVersion();

    m_context.window->setSystemTrayAvailable(trayAvailable);
    // A tray host that comes or goes later decides whether closing the window hides it.
    if (m_trayAvailable < 0)
        connect(icon, &TrayIcon::hostPresentChanged, m_context.window,
                &WindowController::setSystemTrayAvailable);
    m_context.tray->start();
    if (!trayAvailable || showOnLaunch)
        m_context.window->showOrRaise();
    m_update->scheduleAtStart(kFirstUpdateCheckDelayMs);
}

void TovraAppShell::setCompatibility(CompatibilityState state, const QString &text)
{
    m_compatibility = state;
    QString reason = text;
    if (reason.isEmpty() && state == CompatibilityChecking)
        reason = ShellText::tr("Checking Tovra service compatibility...");
    else if (reason.isEmpty() && state == Incompatible)
        reason =
            ShellText::tr("Tovra GUI and daemon are incompatible. Update Tovra before continuing.");
    m_context.tray->setControlAvailable(state == CompatibilityUnknown || state == Compatible,
                                        reason);
}

void TovraAppShell::requestVersion()
{
    if (m_context.ledger->inFlight(RequestLedger::Kind::Version))
        return;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::Version);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchVersion", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kVersionTimeoutMs));
}

bool TovraAppShell::busy() const
{
    return m_connection->connectInProgress() || m_connection->disconnectInProgress() ||
           m_settings->busy() || m_account->busy();
}

void TovraAppShell::handleRuntimeChanged(const RuntimeInfo &runtime)
{
    if (!runtime.valid)
        return;
    // The daemon was away when we asked; now that it answers, ask again.
    if (m_started && m_compatibility == CompatibilityUnknown)
        requestVersion();
    m_language->checkSystemLanguage();
    m_language->followEffectiveLanguage(runtime.effectiveLanguage);
    m_account->followRuntime(runtime);
}

void TovraAppShell::activateFromSecondary()
{
    m_context.window->showOrRaise();
    m_update->onActivation();
}

void TovraAppShell::activateFromApplication()
{
    m_context.window->showOrRaise();
    m_update->onActivation();
}

void TovraAppShell::handleGUIRestartFailed()
{
    m_language->handleRestartFailed();
}

void TovraAppShell::refreshLocationsAfterGUIRestart()
{
    m_catalog->startCatalogRefreshPoll(60);
}

void TovraAppShell::connectRuntime()
{
    m_connection->connectRuntime();
}

void TovraAppShell::connectRuntimeFromTray()
{
    m_connection->connectRuntime();
}

void TovraAppShell::cancelConnect()
{
    m_connection->cancelConnect();
}

void TovraAppShell::disconnectRuntime()
{
    m_connection->disconnectRuntime();
}

void TovraAppShell::disconnectRuntimeFromTray()
{
    m_connection->disconnectRuntime();
}

void TovraAppShell::setModePreference(ModeInfo mode)
{
    m_settings->setMode(mode);
}

void TovraAppShell::setLocalNetworkPreference(QString mode)
{
    m_settings->setLocalNetwork(mode);
}

void TovraAppShell::refreshLocations()
{
    m_catalog->refreshLocations();
}

void TovraAppShell::connectNode(QString nodeID, QString label)
{
    m_connection->connectNode(nodeID, label);
}

void TovraAppShell::connectNodeFromTray(QString nodeID, QString label)
{
    m_connection->connectNode(nodeID, label);
}

void TovraAppShell::connectSmart(QString selector)
{
    m_connection->connectSmart(selector);
}

void TovraAppShell::setLocationFavorite(QString nodeID, bool favorite)
{
    m_catalog->setFavorite(nodeID, favorite);
}

void TovraAppShell::refreshModeSplitRules()
{
    m_settings->refreshSplitRules();
}

void TovraAppShell::importModeSplitRules(QString kind, QString content)
{
    m_settings->importSplitRules(kind, content);
}

void TovraAppShell::openLogs()
{
    m_settings->refreshConfigPaths(true);
}

void TovraAppShell::refreshConfigPaths()
{
    m_settings->refreshConfigPaths(false);
}

void TovraAppShell::setSettingsAPIURL(QString apiURL)
{
    m_settings->setAPIURL(apiURL);
}

void TovraAppShell::resetSettingsAPIURL()
{
    m_settings->resetAPIURL();
}

void TovraAppShell::setSettingsAutoConnect(QString value)
{
    m_settings->setAutoConnect(value);
}

void TovraAppShell::setSettingsLanguage(QString source, QString language)
{
    m_language->setLanguage(source, language);
}

void TovraAppShell::checkSettingsUpdate()
{
    m_update->check(true);
    if (m_update->checkInFlight())
        m_settings->noteUpdateCheckStarted();
}

void TovraAppShell::startGUIUpdateDownload()
{
    m_update->startDownload();
}

void TovraAppShell::cancelGUIUpdateDownload()
{
    m_update->cancelDownload();
}

void TovraAppShell::pollGUIUpdateDownload()
{
    m_update->pollDownload();
}

void TovraAppShell::setSettingsKillSwitchEnabled(bool enabled)
{
    m_settings->setKillSwitchEnabled(enabled);
}

void TovraAppShell::setSettingsKillSwitchMode(QString mode)
{
    m_settings->setKillSwitchMode(mode);
}

void TovraAppShell::switchToAutoAndEnableKillSwitch()
{
    m_settings->switchToAutoAndEnableKillSwitch();
}

void TovraAppShell::chooseModeForKillSwitch()
{
    m_settings->chooseModeForKillSwitch();
}

void TovraAppShell::cancelPendingKillSwitchEnable()
{
    m_settings->cancelPendingKillSwitchEnable();
}

void TovraAppShell::setSettingsProxyListeners(QString socksAddress, QString httpAddress)
{
    m_settings->setProxyListeners(socksAddress, httpAddress);
}

void TovraAppShell::setSettingsSplitDNSLocal(QStringList servers)
{
    m_settings->setSplitDNSLocal(servers);
}

void TovraAppShell::setSettingsSplitDNSPolicy(QString policy)
{
    m_settings->setSplitDNSPolicy(policy);
}

void TovraAppShell::clearSettingsSplitDNSLocal()
{
    m_settings->clearSplitDNSLocal();
}

void TovraAppShell::resetSettingsSplitDNS()
{
    m_settings->resetSplitDNS();
}

void TovraAppShell::repairSettingsDiagnostics()
{
    m_settings->repairDiagnostics();
}

void TovraAppShell::setSettingsSystemProxyPreference(QString mode)
{
    m_settings->setSystemProxy(mode);
}

void TovraAppShell::loginAccount(QString username, QString password, bool rememberMe)
{
    m_account->login(username, password, rememberMe);
}

void TovraAppShell::logoutAccount()
{
    m_account->logout(false);
}

void TovraAppShell::logoutAccountFromTray()
{
    m_account->logout(true);
}

void TovraAppShell::requestPurchaseURL(QString lang)
{
    m_account->requestPurchaseURL(lang);
}

void TovraAppShell::pollWindowNodePing()
{
    m_catalog->pollNodePing();
}

void TovraAppShell::pollWindowCatalogRefresh()
{
    m_catalog->pollCatalogRefresh();
}

void TovraAppShell::handleWindowStatusFinished(quint64 requestId, RuntimeInfo info,
                                               QString errorMessage)
{
    if (!m_connection->handleStatus(requestId, info, errorMessage) &&
        !m_settings->handleStatus(requestId, info, errorMessage))
        m_catalog->handleStatus(requestId, info, errorMessage);
    // Every status answer, the tray's polls included, failed or not: while the daemon is away
    // this keeps the language sync retrying with its back-off.
    m_language->checkSystemLanguage();
}

void TovraAppShell::handleWindowNodesFinished(quint64 requestId, NodesInfo info,
                                              QString errorMessage)
{
    m_catalog->handleNodes(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowNodeGroupsFinished(quint64 requestId, NodeGroupsInfo info,
                                                   QString errorMessage)
{
    m_catalog->handleNodeGroups(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowConnectFinished(quint64 requestId, RuntimeInfo info,
                                                QString errorMessage)
{
    m_connection->handleConnectFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowDisconnectFinished(quint64 requestId, RuntimeInfo info,
                                                   QString errorMessage)
{
    m_connection->handleDisconnectFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowModeFinished(quint64 requestId, ModeInfo info, QString errorMessage)
{
    m_settings->handleMode(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowVersionFinished(quint64 requestId, VersionInfo info,
                                                QString errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::Version, requestId))
        return;
    if (!errorMessage.isEmpty() && !(info.valid && !info.compatible)) {
        setCompatibility(CompatibilityUnknown, errorMessage);
        m_context.notifier->error(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not load version")));
        return;
    }
    m_context.state->setVersion(info);
    if (info.compatible) {
        setCompatibility(Compatible);
        return;
    }
    const bool wasIncompatible = m_compatibility == Incompatible;
    setCompatibility(Incompatible);
    // The daemon may be updated under a running client: ask again until it speaks our version.
    QTimer::singleShot(kIncompatibleRecheckMs, this, [this] {
        if (m_compatibility == Incompatible)
            requestVersion();
    });
    if (wasIncompatible)
        return;
    m_context.window->showOrRaise();
    m_context.notifier->error(
        ShellText::tr("Tovra GUI and daemon are incompatible. Update Tovra before continuing."));
}

void TovraAppShell::handleWindowAPIURLFinished(quint64 requestId, APIURLConfigInfo info,
                                               QString errorMessage)
{
    m_settings->handleAPIURL(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowAutoConnectFinished(quint64 requestId, AutoConnectConfigInfo info,
                                                    QString errorMessage)
{
    m_settings->handleAutoConnect(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLanguageFinished(quint64 requestId, LanguageConfigInfo info,
                                                 QString errorMessage)
{
    if (!m_settings->handleLanguageLoad(requestId, info, errorMessage))
        m_language->handleLanguage(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowUpdateFinished(quint64 requestId, UpdateInfo info,
                                               QString errorMessage)
{
    const bool latest = m_context.ledger->isLatest(RequestLedger::Kind::UpdateCheck, requestId);
    m_update->handleUpdateFinished(requestId, info, errorMessage);
    if (latest)
        m_settings->noteUpdateCheckFinished(info, errorMessage);
}

void TovraAppShell::handleGUIUpdateDownloadFinished(quint64 requestId, GUIUpdateDownloadInfo info,
                                                    QString errorMessage)
{
    m_update->handleDownloadFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowProxyListenFinished(quint64 requestId, ProxyListenResultInfo info,
                                                    QString errorMessage)
{
    m_settings->handleProxyListen(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitDNSFinished(quint64 requestId, SplitDNSInfo info,
                                                 QString errorMessage)
{
    m_settings->handleSplitDNS(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitRulesFinished(quint64 requestId, SplitRulesInfo info,
                                                   QString errorMessage)
{
    m_settings->handleSplitRules(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitRuleImportFinished(quint64 requestId,
                                                        SplitRuleMutationInfo info,
                                                        QString errorMessage)
{
    m_settings->handleSplitRuleImport(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowRepairFinished(quint64 requestId, RepairResultInfo info,
                                               QString errorMessage)
{
    m_settings->handleRepair(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowConfigPathsFinished(quint64 requestId, ConfigPaths paths,
                                                    QString errorMessage)
{
    m_settings->handleConfigPaths(requestId, paths, errorMessage);
}

void TovraAppShell::handleWindowKillSwitchFinished(quint64 requestId, KillSwitchInfo info,
                                                   QString errorMessage)
{
    m_settings->handleKillSwitch(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLoginFinished(quint64 requestId, RuntimeInfo info,
                                              QString errorMessage)
{
    m_account->handleLogin(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLogoutFinished(quint64 requestId, RuntimeInfo info,
                                               QString errorMessage)
{
    m_account->handleLogout(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowUserFinished(quint64 requestId, UserInfo user, QString errorMessage)
{
    m_account->handleUser(requestId, user, errorMessage);
}

void TovraAppShell::handleWindowPurchaseURLFinished(quint64 requestId, PurchaseURLInfo info,
                                                    QString errorMessage)
{
    m_account->handlePurchaseURL(requestId, info, errorMessage);
}
