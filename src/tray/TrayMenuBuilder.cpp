#include "TrayMenuBuilder.h"

#include "TrayMenuText.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QFont>
#include <QMenu>

#include <atomic>

namespace {

std::atomic_bool g_submenus{true};

constexpr int kNodeEntryCount = 5;

QAction *infoLine(QMenu *menu, const QString &label)
{
    QAction *action = menu->addAction(label);
    action->setEnabled(false);
    return action;
}

QAction *checkable(QMenu *menu, const QString &label)
{
    QAction *action = menu->addAction(label);
    action->setCheckable(true);
    return action;
}

QAction *addSection(QMenu *menu, const QString &title)
{
    menu->addSeparator();
    QAction *header = infoLine(menu, TrayMenuBuilder::sectionText(title));
    QFont font = header->font();
    font.setWeight(QFont::Bold);
    header->setFont(font);
    return header;
}

// A submenu whose own entry carries a check mark: checked while its family's split mode is on.
QMenu *checkableSubmenu(QMenu *parent, const QString &title)
{
    QMenu *submenu = parent->addMenu(title);
    submenu->menuAction()->setCheckable(true);
    return submenu;
}

void addNodeGroup(TrayMenu &m, QMenu *into)
{
    m.currentLine = infoLine(into, TrayMenuText::tr("Current: loading..."));
    m.refreshNodes = into->addAction(TrayMenuText::tr("Refresh Nodes"));
    into->addSeparator();
    m.nodePlaceholder = infoLine(into, TrayMenuText::tr("Loading nodes..."));
    for (int i = 0; i < kNodeEntryCount; ++i) {
        QAction *entry = into->addAction(QString());
        entry->setVisible(false);
        m.nodeEntries.append(entry);
    }
    m.nodeFootSeparator = into->addSeparator();
    m.nodeFootSeparator->setVisible(false);
    m.locations = into->addAction(QCoreApplication::translate("NavigationSidebar", "Locations"));
}

void addModeGroup(TrayMenu &m, QMenu *into)
{
    m.autoMode = checkable(into, TrayMenuText::tr("Auto"));
    m.wireGuard = checkable(into, TrayMenuText::tr("WireGuard"));

    addSection(into, TrayMenuText::tr("Mode: TovraVPN"));
    m.tunnelGlobal = checkable(into, TrayMenuText::tr("Global"));
    m.tunnelSplit = checkable(into, TrayMenuText::tr("Split"));
    m.tunnelSplitMenu = checkableSubmenu(into, TrayMenuText::tr("Split Options"));
    m.tunnelDefaultTunnel = checkable(m.tunnelSplitMenu, TrayMenuText::tr("Default: Tunnel"));
    m.tunnelDefaultDirect = checkable(m.tunnelSplitMenu, TrayMenuText::tr("Default: Direct"));
    m.tunnelRegionsMenu = m.tunnelSplitMenu->addMenu(TrayMenuText::tr("Regions"));
    m.tunnelGfwList = checkable(m.tunnelSplitMenu, TrayMenuText::tr("GFWList -> Tunnel"));
    m.tunnelCustomRules = checkable(m.tunnelSplitMenu, TrayMenuText::tr("Custom Split Rules"));

    addSection(into, TrayMenuText::tr("Mode: Tovra Proxy"));
    m.proxyGlobal = checkable(into, TrayMenuText::tr("Global"));
    m.proxySplit = checkable(into, TrayMenuText::tr("Split"));
    m.proxySplitMenu = checkableSubmenu(into, TrayMenuText::tr("Split Options"));
    m.proxyDefaultProxy = checkable(m.proxySplitMenu, TrayMenuText::tr("Default: Proxy"));
    m.proxyDefaultDirect = checkable(m.proxySplitMenu, TrayMenuText::tr("Default: Direct"));
    m.proxyRegionsMenu = m.proxySplitMenu->addMenu(TrayMenuText::tr("Regions"));
    m.proxyGfwList = checkable(m.proxySplitMenu, TrayMenuText::tr("GFWList -> Proxy"));

    // In submenus they appear only while their family's split mode is the current one.
    if (m.submenus) {
        m.tunnelSplitMenu->menuAction()->setVisible(false);
        m.proxySplitMenu->menuAction()->setVisible(false);
    }
}

QAction *exclusive(QActionGroup *group, QMenu *menu, const QString &label)
{
    QAction *action = checkable(menu, label);
    group->addAction(action);
    return action;
}

} // namespace

bool TrayMenuBuilder::usesSubmenus()
{
    return g_submenus.load();
}

void TrayMenuBuilder::setUsesSubmenus(bool submenus)
{
    g_submenus.store(submenus);
}

QString TrayMenuBuilder::sectionText(const QString &title)
{
    return QCoreApplication::translate("TrayMenuText", "[ %1 ]").arg(title);
}

TrayMenu TrayMenuBuilder::build()
{
    TrayMenu m;
    m.submenus = usesSubmenus();
    m.menu = new QMenu;
    QMenu *menu = m.menu;

    m.statusLine = infoLine(menu, TrayMenuText::tr("Tovra: starting..."));
    m.daemonLine = infoLine(menu, TrayMenuText::tr("Daemon: checking..."));
    menu->addSeparator();
    m.openTovra = menu->addAction(TrayMenuText::tr("Open Tovra..."));
    menu->addSeparator();
    m.connect = menu->addAction(TrayMenuText::tr("Connect"));
    m.disconnect = menu->addAction(TrayMenuText::tr("Disconnect"));

    if (m.submenus) {
        m.nodeMenu = menu->addMenu(TrayMenuText::tr("Node / Location"));
        addNodeGroup(m, m.nodeMenu);
        menu->addSeparator();
        m.modeMenu = menu->addMenu(QCoreApplication::translate("NavigationSidebar", "Mode"));
        m.modeTitle = m.modeMenu->menuAction();
        addModeGroup(m, m.modeMenu);
    } else {
        menu->addSeparator();
        addNodeGroup(m, menu);
        m.modeTitle = addSection(menu, QCoreApplication::translate("NavigationSidebar", "Mode"));
        addModeGroup(m, menu);
    }

    m.systemProxyMenu = menu->addMenu(TrayMenuText::tr("System Proxy"));
    auto *proxyGroup = new QActionGroup(m.systemProxyMenu);
    //: System proxy menu option and value: the desktop proxy settings are left alone
    m.systemProxyOff = exclusive(proxyGroup, m.systemProxyMenu, TrayMenuText::tr("Off"));
    //: System proxy menu option and value: the desktop proxy settings point at Tovra
    m.systemProxyOn = exclusive(proxyGroup, m.systemProxyMenu, TrayMenuText::tr("On"));
    //: System proxy menu option and value, a state rather than an action: the desktop proxy
    //: settings point at Tovra and other programs cannot change them
    m.systemProxyLock = exclusive(proxyGroup, m.systemProxyMenu, TrayMenuText::tr("Lock"));

    QMenu *localInto = menu;
    if (m.submenus) {
        m.localNetworkMenu = menu->addMenu(TrayMenuText::tr("Local Network"));
        m.localNetworkTitle = m.localNetworkMenu->menuAction();
        localInto = m.localNetworkMenu;
    } else {
        m.localNetworkTitle = addSection(menu, TrayMenuText::tr("LAN Access"));
    }
    auto *localGroup = new QActionGroup(localInto);
    //: Local network menu option and value: devices nearby are reached outside the tunnel. Also the
    //: route in "Regions use %1: %2"
    m.localDirect = exclusive(localGroup, localInto, TrayMenuText::tr("Direct"));
    //: Local network menu option and value: local traffic goes through the tunnel like the rest
    m.localProtected = exclusive(localGroup, localInto, TrayMenuText::tr("Protected"));

    menu->addSeparator();
    m.killSwitch = checkable(menu, TrayMenuText::tr("Kill Switch"));
    m.killSwitch->setEnabled(false);

    menu->addSeparator();
    m.refreshStatus = menu->addAction(TrayMenuText::tr("Refresh Status"));
    m.openLogs = menu->addAction(TrayMenuText::tr("Open Logs"));

    menu->addSeparator();
    m.account = menu->addAction(TrayMenuText::tr("Account: checking..."));
    m.account->setEnabled(false);
    m.logout = menu->addAction(TrayMenuText::tr("Logout"));
    m.logout->setEnabled(false);

    menu->addSeparator();
    m.quit = menu->addAction(TrayMenuText::tr("Quit"));
    return m;
}
