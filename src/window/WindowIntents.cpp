#include "WindowIntents.h"

#include "MainWindow.h"
#include "WindowController.h"

void WindowIntents::forward(MainWindow *window, WindowController *controller)
{
    QObject::connect(window, &MainWindow::connectRuntimeRequested, controller,
                     &WindowController::connectRuntimeRequested);
    QObject::connect(window, &MainWindow::cancelConnectRequested, controller,
                     &WindowController::cancelConnectRequested);
    QObject::connect(window, &MainWindow::disconnectRuntimeRequested, controller,
                     &WindowController::disconnectRuntimeRequested);
    QObject::connect(window, &MainWindow::setModeRequested, controller,
                     &WindowController::setModeRequested);
    QObject::connect(window, &MainWindow::splitRulesRequested, controller,
                     &WindowController::splitRulesRequested);
    QObject::connect(window, &MainWindow::importSplitRulesRequested, controller,
                     &WindowController::importSplitRulesRequested);
    QObject::connect(window, &MainWindow::setLocalNetworkRequested, controller,
                     &WindowController::setLocalNetworkRequested);
    QObject::connect(window, &MainWindow::refreshLocationsRequested, controller,
                     &WindowController::refreshLocationsRequested);
    QObject::connect(window, &MainWindow::connectNodeRequested, controller,
                     &WindowController::connectNodeRequested);
    QObject::connect(window, &MainWindow::recentConnectionsCleared, controller,
                     &WindowController::recentConnectionsCleared);
    QObject::connect(window, &MainWindow::connectSmartRequested, controller,
                     &WindowController::connectSmartRequested);
    QObject::connect(window, &MainWindow::setNodeFavoriteRequested, controller,
                     &WindowController::setNodeFavoriteRequested);
    QObject::connect(window, &MainWindow::openLogsRequested, controller,
                     &WindowController::openLogsRequested);
    QObject::connect(window, &MainWindow::settingsVisibleRequested, controller,
                     &WindowController::settingsVisibleRequested);
    QObject::connect(window, &MainWindow::setKillSwitchEnabledRequested, controller,
                     &WindowController::setKillSwitchEnabledRequested);
    QObject::connect(window, &MainWindow::setKillSwitchModeRequested, controller,
                     &WindowController::setKillSwitchModeRequested);
    QObject::connect(window, &MainWindow::switchToAutoAndEnableKillSwitchRequested, controller,
                     &WindowController::switchToAutoAndEnableKillSwitchRequested);
    QObject::connect(window, &MainWindow::chooseModeForKillSwitchRequested, controller,
                     &WindowController::chooseModeForKillSwitchRequested);
    QObject::connect(window, &MainWindow::modePageLeft, controller,
                     &WindowController::modePageLeft);
    QObject::connect(window, &MainWindow::setSystemProxyRequested, controller,
                     &WindowController::setSystemProxyRequested);
    QObject::connect(window, &MainWindow::setAPIURLRequested, controller,
                     &WindowController::setAPIURLRequested);
    QObject::connect(window, &MainWindow::resetAPIURLRequested, controller,
                     &WindowController::resetAPIURLRequested);
    QObject::connect(window, &MainWindow::setAutoConnectRequested, controller,
                     &WindowController::setAutoConnectRequested);
    QObject::connect(window, &MainWindow::setLanguageRequested, controller,
                     &WindowController::setLanguageRequested);
    QObject::connect(window, &MainWindow::checkUpdateRequested, controller,
                     &WindowController::checkUpdateRequested);
    QObject::connect(window, &MainWindow::setProxyListenersRequested, controller,
                     &WindowController::setProxyListenersRequested);
    QObject::connect(window, &MainWindow::setSplitDNSLocalRequested, controller,
                     &WindowController::setSplitDNSLocalRequested);
    QObject::connect(window, &MainWindow::setSplitDNSPolicyRequested, controller,
                     &WindowController::setSplitDNSPolicyRequested);
    QObject::connect(window, &MainWindow::clearSplitDNSLocalRequested, controller,
                     &WindowController::clearSplitDNSLocalRequested);
    QObject::connect(window, &MainWindow::resetSplitDNSRequested, controller,
                     &WindowController::resetSplitDNSRequested);
    QObject::connect(window, &MainWindow::repairDiagnosticsRequested, controller,
                     &WindowController::repairDiagnosticsRequested);
    QObject::connect(window, &MainWindow::loginRequested, controller,
                     &WindowController::loginRequested);
    QObject::connect(window, &MainWindow::logoutRequested, controller,
                     &WindowController::logoutRequested);
    QObject::connect(window, &MainWindow::purchaseURLRequested, controller,
                     &WindowController::purchaseURLRequested);
}
