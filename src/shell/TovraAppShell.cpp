#include "TovraAppShell.h"

#include "AccountFlow.h"
#include "AppState.h"
#include "CatalogFlow.h"
#include "CompatibilityFlow.h"
#include "ConnectionFlow.h"
#include "ControlWorker.h"
#include "DesktopCommandFlow.h"
#include "GuiPreferences.h"
#include "LanguageFlow.h"
#include "RecentLocationRecorder.h"
#include "RequestLedger.h"
#include "RoutingFlow.h"
#include "SettingsFlow.h"
#include "ShellNotifier.h"
#include "ShellWiring.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "TrayIcon.h"
#include "UpdateFlow.h"
#include "WindowController.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

constexpr int kFirstUpdateCheckDelayMs = 30000;
// The tray waits for the window's first picture at most this long (a window that is never
// exposed, such as one on a hidden workspace, must not keep the tray away).
constexpr int kTrayAfterWindowMaxMs = 1000;

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
    // Wired before the tray exists, so that the shell stores a connect's new status before the
    // tray ends its own "connecting" and redraws: slots run in the order they were connected.
    ShellWiring::connectConnectionAnswers(this, m_context);
    m_context.tray = new TovraTrayApp(m_context.state, m_context.workers->control(),
                                      m_context.preferences, this);
    m_context.window = new WindowController(m_context.state, m_context.preferences, this);
    m_context.notifier = new ShellNotifier(m_context.window, m_context.tray, this);

    m_update = new UpdateFlow(m_context, QCoreApplication::applicationVersion(), this);
    m_connection = new ConnectionFlow(
        m_context, m_update, [this] { return busy(); }, this);
    m_catalog = new CatalogFlow(m_context, this);
    m_routing = new RoutingFlow(m_context, this);
    m_settings = new SettingsFlow(m_context, this);
    m_account = new AccountFlow(m_context, this);
    m_language = new LanguageFlow(m_context, this);
    m_compatibility = new CompatibilityFlow(m_context, this);
    m_commands = new DesktopCommandFlow(m_context, m_connection, m_compatibility, m_catalog, this);
    new RecentLocationRecorder(m_context.state, m_context.preferences, this);

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
    const bool showOnLaunch = m_context.preferences->showOnLaunch();
    // Whether the window shows hangs on the tray only when the user asked for no window;
    // otherwise the hosts are looked for when the tray starts, after the window's first picture
    // (even the bus's match rules for the watcher's signals are blocking round trips).
    if (!showOnLaunch)
        icon->watchHosts(TrayIcon::HostLook::Settled);
    const bool trayAvailable = m_trayAvailable >= 0 ? m_trayAvailable == 1 : icon->hostPresent();
    if (m_launchedByAutostart && !trayAvailable && !showOnLaunch) {
        // Nothing to show and no tray to live in: leave quietly.
        QTimer::singleShot(0, this, &TovraAppShell::exitRequested);
        return;
    }
    m_started = true;
    m_compatibility->start();

    m_context.window->setSystemTrayAvailable(trayAvailable);
    // A tray host that comes or goes later decides whether closing the window hides it.
    if (m_trayAvailable < 0)
        connect(icon, &TrayIcon::hostPresentChanged, m_context.window,
                &WindowController::setSystemTrayAvailable);
    if (!trayAvailable || showOnLaunch) {
        // The window's first picture first: the tray's icon, menu and first requests follow it.
        connect(m_context.window, &WindowController::windowPainted, m_context.tray,
                &TovraTrayApp::start, Qt::SingleShotConnection);
        QTimer::singleShot(kTrayAfterWindowMaxMs, m_context.tray, &TovraTrayApp::start);
        m_context.window->showOrRaise();
    } else {
        m_context.tray->start();
    }
    m_update->scheduleAtStart(kFirstUpdateCheckDelayMs);
}

void TovraAppShell::runDesktopCommand(const DesktopRequest &request,
                                      std::function<void(const DesktopAnswer &)> reply)
{
    m_commands->run(request, std::move(reply));
}

bool TovraAppShell::busy() const
{
    return m_connection->connectInProgress() || m_connection->disconnectInProgress() ||
           m_routing->busy() || m_account->busy();
}

void TovraAppShell::handleRuntimeChanged(const RuntimeInfo &runtime)
{
    if (!runtime.valid)
        return;
    if (m_started)
        m_compatibility->followRuntime();
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
    m_routing->setMode(mode);
}

void TovraAppShell::setLocalNetworkPreference(QString mode)
{
    m_routing->setLocalNetwork(mode);
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
    m_routing->refreshSplitRules();
}

void TovraAppShell::importModeSplitRules(QString kind, QString content)
{
    m_routing->importSplitRules(kind, content);
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
    m_routing->setKillSwitchEnabled(enabled);
}

void TovraAppShell::setSettingsKillSwitchMode(QString mode)
{
    m_routing->setKillSwitchMode(mode);
}

void TovraAppShell::switchToAutoAndEnableKillSwitch()
{
    m_routing->switchToAutoAndEnableKillSwitch();
}

void TovraAppShell::chooseModeForKillSwitch()
{
    m_routing->chooseModeForKillSwitch();
}

void TovraAppShell::cancelPendingKillSwitchEnable()
{
    m_routing->cancelPendingKillSwitchEnable();
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
    m_routing->setSystemProxy(mode);
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
