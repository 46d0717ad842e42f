#include "ShellWiring.h"

#include "ControlWorker.h"
#include "SettingsFlow.h"
#include "ShellWorkers.h"
#include "TovraAppShell.h"
#include "TovraTrayApp.h"
#include "WindowController.h"

void ShellWiring::connectWorkers(TovraAppShell *shell, const ShellContext &context)
{
    ControlWorker *control = context.workers->control();
    QObject::connect(control, &ControlWorker::statusFinished, shell,
                     &TovraAppShell::handleWindowStatusFinished);
    QObject::connect(control, &ControlWorker::nodesFinished, shell,
                     &TovraAppShell::handleWindowNodesFinished);
    QObject::connect(control, &ControlWorker::nodeGroupsFinished, shell,
                     &TovraAppShell::handleWindowNodeGroupsFinished);
    QObject::connect(control, &ControlWorker::connectFinished, shell,
                     &TovraAppShell::handleWindowConnectFinished);
    QObject::connect(control, &ControlWorker::disconnectFinished, shell,
                     &TovraAppShell::handleWindowDisconnectFinished);
    QObject::connect(control, &ControlWorker::modeFinished, shell,
                     &TovraAppShell::handleWindowModeFinished);
    QObject::connect(control, &ControlWorker::versionFinished, shell,
                     &TovraAppShell::handleWindowVersionFinished);
    QObject::connect(control, &ControlWorker::apiURLFinished, shell,
                     &TovraAppShell::handleWindowAPIURLFinished);
    QObject::connect(control, &ControlWorker::autoConnectFinished, shell,
                     &TovraAppShell::handleWindowAutoConnectFinished);
    QObject::connect(control, &ControlWorker::languageFinished, shell,
                     &TovraAppShell::handleWindowLanguageFinished);
    QObject::connect(control, &ControlWorker::proxyListenFinished, shell,
                     &TovraAppShell::handleWindowProxyListenFinished);
    QObject::connect(control, &ControlWorker::splitDNSFinished, shell,
                     &TovraAppShell::handleWindowSplitDNSFinished);
    QObject::connect(control, &ControlWorker::splitRulesFinished, shell,
                     &TovraAppShell::handleWindowSplitRulesFinished);
    QObject::connect(control, &ControlWorker::splitRuleImportFinished, shell,
                     &TovraAppShell::handleWindowSplitRuleImportFinished);
    QObject::connect(control, &ControlWorker::repairFinished, shell,
                     &TovraAppShell::handleWindowRepairFinished);
    QObject::connect(control, &ControlWorker::configPathsFinished, shell,
                     &TovraAppShell::handleWindowConfigPathsFinished);
    QObject::connect(control, &ControlWorker::killSwitchFinished, shell,
                     &TovraAppShell::handleWindowKillSwitchFinished);
    QObject::connect(control, &ControlWorker::loginFinished, shell,
                     &TovraAppShell::handleWindowLoginFinished);
    QObject::connect(control, &ControlWorker::logoutFinished, shell,
                     &TovraAppShell::handleWindowLogoutFinished);
    QObject::connect(control, &ControlWorker::userFinished, shell,
                     &TovraAppShell::handleWindowUserFinished);
    QObject::connect(control, &ControlWorker::purchaseURLFinished, shell,
                     &TovraAppShell::handleWindowPurchaseURLFinished);
    QObject::connect(context.workers->updateCheck(), &ControlWorker::updateFinished, shell,
                     &TovraAppShell::handleWindowUpdateFinished);
    QObject::connect(context.workers->download(), &ControlWorker::updateDownloadFinished, shell,
                     &TovraAppShell::handleGUIUpdateDownloadFinished);
}

void ShellWiring::connectTray(TovraAppShell *shell, const ShellContext &context)
{
    TovraTrayApp *tray = context.tray;
    WindowController *window = context.window;
    QObject::connect(tray, &TovraTrayApp::openTovraRequested, shell,
                     &TovraAppShell::activateFromApplication);
    QObject::connect(tray, &TovraTrayApp::openLocationsRequested, window,
                     &WindowController::showLocations);
    QObject::connect(tray, &TovraTrayApp::accountRequested, window, &WindowController::showAccount);
    QObject::connect(tray, &TovraTrayApp::logoutRequested, shell,
                     &TovraAppShell::logoutAccountFromTray);
    QObject::connect(tray, &TovraTrayApp::connectRuntimeRequested, shell,
                     &TovraAppShell::connectRuntimeFromTray);
    QObject::connect(tray, &TovraTrayApp::cancelConnectRequested, shell,
                     &TovraAppShell::cancelConnect);
    QObject::connect(tray, &TovraTrayApp::disconnectRuntimeRequested, shell,
                     &TovraAppShell::disconnectRuntimeFromTray);
    QObject::connect(tray, &TovraTrayApp::connectNodeRequested, shell,
                     &TovraAppShell::connectNodeFromTray);
    QObject::connect(tray, &TovraTrayApp::switchToAutoAndEnableKillSwitchRequested, shell,
                     &TovraAppShell::switchToAutoAndEnableKillSwitch);
    QObject::connect(tray, &TovraTrayApp::chooseModeForKillSwitchRequested, shell,
                     &TovraAppShell::chooseModeForKillSwitch);
    // The tray polls the status; the window shows the same verdict on its pages. The version
    // check at start is no outage: the window goes on as usual meanwhile (signing in stays
    // possible), while the tray holds its actions until the verdict.
    QObject::connect(tray, &TovraTrayApp::daemonReachabilityChanged, window,
                     [shell, window](const QString &reason) {
                         const bool checking =
                             shell->compatibilityState() == TovraAppShell::CompatibilityChecking;
                         window->setDaemonUnavailableReason(checking ? QString() : reason);
                     });
}

void ShellWiring::connectWindow(TovraAppShell *shell, const ShellContext &context,
                                SettingsFlow *settings)
{
    WindowController *w = context.window;
    using W = WindowController;
    using S = TovraAppShell;
    QObject::connect(w, &W::connectRuntimeRequested, shell, &S::connectRuntime);
    QObject::connect(w, &W::cancelConnectRequested, shell, &S::cancelConnect);
    QObject::connect(w, &W::disconnectRuntimeRequested, shell, &S::disconnectRuntime);
    QObject::connect(w, &W::setModeRequested, shell, &S::setModePreference);
    QObject::connect(w, &W::splitRulesRequested, shell, &S::refreshModeSplitRules);
    QObject::connect(w, &W::importSplitRulesRequested, shell, &S::importModeSplitRules);
    QObject::connect(w, &W::setLocalNetworkRequested, shell, &S::setLocalNetworkPreference);
    QObject::connect(w, &W::refreshLocationsRequested, shell, &S::refreshLocations);
    QObject::connect(w, &W::connectNodeRequested, shell, &S::connectNode);
    QObject::connect(w, &W::connectSmartRequested, shell, &S::connectSmart);
    QObject::connect(w, &W::setNodeFavoriteRequested, shell, &S::setLocationFavorite);
    QObject::connect(w, &W::openLogsRequested, shell, &S::openLogs);
    QObject::connect(w, &W::settingsVisibleRequested, settings, &SettingsFlow::refreshSettingsPage);
    QObject::connect(w, &W::setKillSwitchEnabledRequested, shell, &S::setSettingsKillSwitchEnabled);
    QObject::connect(w, &W::setKillSwitchModeRequested, shell, &S::setSettingsKillSwitchMode);
    QObject::connect(w, &W::switchToAutoAndEnableKillSwitchRequested, shell,
                     &S::switchToAutoAndEnableKillSwitch);
    QObject::connect(w, &W::chooseModeForKillSwitchRequested, shell, &S::chooseModeForKillSwitch);
    QObject::connect(w, &W::modePageLeft, shell, &S::cancelPendingKillSwitchEnable);
    QObject::connect(w, &W::setSystemProxyRequested, shell, &S::setSettingsSystemProxyPreference);
    QObject::connect(w, &W::setAPIURLRequested, shell, &S::setSettingsAPIURL);
    QObject::connect(w, &W::resetAPIURLRequested, shell, &S::resetSettingsAPIURL);
    QObject::connect(w, &W::setAutoConnectRequested, shell, &S::setSettingsAutoConnect);
    QObject::connect(w, &W::setLanguageRequested, shell, &S::setSettingsLanguage);
    QObject::connect(w, &W::checkUpdateRequested, shell, &S::checkSettingsUpdate);
    QObject::connect(w, &W::updateDownloadRequested, shell, &S::startGUIUpdateDownload);
    QObject::connect(w, &W::updateDownloadCancelRequested, shell, &S::cancelGUIUpdateDownload);
    QObject::connect(w, &W::setProxyListenersRequested, shell, &S::setSettingsProxyListeners);
    QObject::connect(w, &W::setSplitDNSLocalRequested, shell, &S::setSettingsSplitDNSLocal);
    QObject::connect(w, &W::setSplitDNSPolicyRequested, shell, &S::setSettingsSplitDNSPolicy);
    QObject::connect(w, &W::clearSplitDNSLocalRequested, shell, &S::clearSettingsSplitDNSLocal);
    QObject::connect(w, &W::resetSplitDNSRequested, shell, &S::resetSettingsSplitDNS);
    QObject::connect(w, &W::repairDiagnosticsRequested, shell, &S::repairSettingsDiagnostics);
    QObject::connect(w, &W::loginRequested, shell, &S::loginAccount);
    QObject::connect(w, &W::logoutRequested, shell, &S::logoutAccount);
    QObject::connect(w, &W::purchaseURLRequested, shell, &S::requestPurchaseURL);
    QObject::connect(w, &W::forceUpdateExitRequested, shell, &S::exitRequested);
}
