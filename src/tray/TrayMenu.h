#pragma once

#include <QList>

class QAction;
class QMenu;

// Every entry of the tray menu that the tray reads or changes. In the flat layout the submenu
// pointers of the node and mode groups are null and their entries sit in the main menu.
struct TrayMenu
{
    bool submenus = true;
    QMenu *menu = nullptr;

    QAction *statusLine = nullptr;
    QAction *daemonLine = nullptr;
    QAction *openTovra = nullptr;
    QAction *connect = nullptr;
    QAction *disconnect = nullptr;

    QMenu *nodeMenu = nullptr;
    QAction *currentLine = nullptr;
    QAction *refreshNodes = nullptr;
    QAction *nodePlaceholder = nullptr;
    QList<QAction *> nodeEntries;
    QAction *nodeFootSeparator = nullptr;
    QAction *locations = nullptr;

    QMenu *modeMenu = nullptr;
    // The "Mode" title: the submenu's own entry, or the section header in the flat layout.
    QAction *modeTitle = nullptr;
    QAction *autoMode = nullptr;
    QAction *wireGuard = nullptr;
    QAction *tunnelGlobal = nullptr;
    QAction *tunnelSplit = nullptr;
    QMenu *tunnelSplitMenu = nullptr;
    QAction *tunnelDefaultTunnel = nullptr;
    QAction *tunnelDefaultDirect = nullptr;
    QMenu *tunnelRegionsMenu = nullptr;
    QAction *tunnelGfwList = nullptr;
    QAction *tunnelCustomRules = nullptr;
    QAction *proxyGlobal = nullptr;
    QAction *proxySplit = nullptr;
    QMenu *proxySplitMenu = nullptr;
    QAction *proxyDefaultProxy = nullptr;
    QAction *proxyDefaultDirect = nullptr;
    QMenu *proxyRegionsMenu = nullptr;
    QAction *proxyGfwList = nullptr;

    QMenu *systemProxyMenu = nullptr;
    QAction *systemProxyOff = nullptr;
    QAction *systemProxyOn = nullptr;
    QAction *systemProxyLock = nullptr;
    // The local network title: the submenu's own entry, or the "LAN Access" header when flat.
    QMenu *localNetworkMenu = nullptr;
    QAction *localNetworkTitle = nullptr;
    QAction *localDirect = nullptr;
    QAction *localProtected = nullptr;

    QAction *killSwitch = nullptr;
    QAction *refreshStatus = nullptr;
    QAction *openLogs = nullptr;
    QAction *account = nullptr;
    QAction *logout = nullptr;
    QAction *quit = nullptr;
};
