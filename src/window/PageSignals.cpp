#include "PageSignals.h"

#include "LocationsPage.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "SettingsPage.h"
#include "VpnPage.h"

void PageSignals::forward(VpnPage *page, MainWindow *window)
{
    QObject::connect(page, &VpnPage::connectRuntimeRequested, window,
                     &MainWindow::connectRuntimeRequested);
    QObject::connect(page, &VpnPage::cancelConnectRequested, window,
                     &MainWindow::cancelConnectRequested);
    QObject::connect(page, &VpnPage::disconnectRuntimeRequested, window,
                     &MainWindow::disconnectRuntimeRequested);
    QObject::connect(page, &VpnPage::connectNodeRequested, window,
                     &MainWindow::connectNodeRequested);
    QObject::connect(page, &VpnPage::recentConnectionsCleared, window,
                     &MainWindow::recentConnectionsCleared);
    QObject::connect(page, &VpnPage::connectSmartRequested, window,
                     &MainWindow::connectSmartRequested);
    QObject::connect(page, &VpnPage::pendingConnectTargetChanged, window,
                     &MainWindow::pendingConnectTargetChanged);
    QObject::connect(page, &VpnPage::setKillSwitchEnabledRequested, window,
                     &MainWindow::setKillSwitchEnabledRequested);
    QObject::connect(page, &VpnPage::switchToAutoAndEnableKillSwitchRequested, window,
                     &MainWindow::switchToAutoAndEnableKillSwitchRequested);
    QObject::connect(page, &VpnPage::chooseModeForKillSwitchRequested, window,
                     &MainWindow::chooseModeForKillSwitchRequested);
    QObject::connect(page, &VpnPage::accountPageRequested, window,
                     [window] { window->showPage(MainWindow::AccountPageIndex); });
}

void PageSignals::forward(LocationsPage *page, MainWindow *window)
{
    QObject::connect(page, &LocationsPage::refreshLocationsRequested, window,
                     &MainWindow::refreshLocationsRequested);
    QObject::connect(page, &LocationsPage::connectNodeRequested, window,
                     &MainWindow::connectNodeRequested);
    QObject::connect(page, &LocationsPage::connectSmartRequested, window,
                     &MainWindow::connectSmartRequested);
    QObject::connect(page, &LocationsPage::setNodeFavoriteRequested, window,
                     &MainWindow::setNodeFavoriteRequested);
    QObject::connect(page, &LocationsPage::pendingConnectTargetChanged, window,
                     &MainWindow::pendingConnectTargetChanged);
}

void PageSignals::forward(ModePage *page, MainWindow *window)
{
    QObject::connect(page, &ModePage::setModeRequested, window, &MainWindow::setModeRequested);
    QObject::connect(page, &ModePage::splitRulesRequested, window,
                     &MainWindow::splitRulesRequested);
    QObject::connect(page, &ModePage::importSplitRulesRequested, window,
                     &MainWindow::importSplitRulesRequested);
    QObject::connect(page, &ModePage::setLocalNetworkRequested, window,
                     &MainWindow::setLocalNetworkRequested);
    QObject::connect(page, &ModePage::setSystemProxyRequested, window,
                     &MainWindow::setSystemProxyRequested);
    QObject::connect(page, &ModePage::settingsPageRequested, window,
                     [window] { window->showPage(MainWindow::SettingsPageIndex); });
}

void PageSignals::forward(SettingsPage *page, MainWindow *window)
{
    QObject::connect(page, &SettingsPage::setSystemProxyRequested, window,
                     &MainWindow::setSystemProxyRequested);
    QObject::connect(page, &SettingsPage::setLocalNetworkRequested, window,
                     &MainWindow::setLocalNetworkRequested);
    QObject::connect(page, &SettingsPage::openLogsRequested, window,
                     &MainWindow::openLogsRequested);
    QObject::connect(page, &SettingsPage::openExternalURLRequested, window,
                     &MainWindow::openExternalURLRequested);
    QObject::connect(page, &SettingsPage::setKillSwitchEnabledRequested, window,
                     &MainWindow::setKillSwitchEnabledRequested);
    QObject::connect(page, &SettingsPage::setKillSwitchModeRequested, window,
                     &MainWindow::setKillSwitchModeRequested);
    QObject::connect(page, &SettingsPage::switchToAutoAndEnableKillSwitchRequested, window,
                     &MainWindow::switchToAutoAndEnableKillSwitchRequested);
    QObject::connect(page, &SettingsPage::chooseModeForKillSwitchRequested, window,
                     &MainWindow::chooseModeForKillSwitchRequested);
    QObject::connect(page, &SettingsPage::setAPIURLRequested, window,
                     &MainWindow::setAPIURLRequested);
    QObject::connect(page, &SettingsPage::resetAPIURLRequested, window,
                     &MainWindow::resetAPIURLRequested);
    QObject::connect(page, &SettingsPage::setAutoConnectRequested, window,
                     &MainWindow::setAutoConnectRequested);
    QObject::connect(page, &SettingsPage::setLanguageRequested, window,
                     &MainWindow::setLanguageRequested);
    QObject::connect(page, &SettingsPage::checkUpdateRequested, window,
                     &MainWindow::checkUpdateRequested);
    QObject::connect(page, &SettingsPage::setProxyListenersRequested, window,
                     &MainWindow::setProxyListenersRequested);
    QObject::connect(page, &SettingsPage::setSplitDNSLocalRequested, window,
                     &MainWindow::setSplitDNSLocalRequested);
    QObject::connect(page, &SettingsPage::setSplitDNSPolicyRequested, window,
                     &MainWindow::setSplitDNSPolicyRequested);
    QObject::connect(page, &SettingsPage::clearSplitDNSLocalRequested, window,
                     &MainWindow::clearSplitDNSLocalRequested);
    QObject::connect(page, &SettingsPage::resetSplitDNSRequested, window,
                     &MainWindow::resetSplitDNSRequested);
    QObject::connect(page, &SettingsPage::repairDiagnosticsRequested, window,
                     &MainWindow::repairDiagnosticsRequested);
    QObject::connect(page, &SettingsPage::appearanceChangeRequested, window,
                     &MainWindow::setAppearancePreference);
}
