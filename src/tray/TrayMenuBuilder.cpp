#include "TrayMenuBuilder.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QFont>
#include <QMenu>

#include <atomic>

namespace {

std::atomic_bool g_submenus{true};

constexpr int kNodeEntryCount = 5;

QString text(const char *source)
{
    return QCoreApplication::translate("TrayMenuText", source);
}

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
    m.currentLine = infoLine(into, text("Current: loading..."));
    m.refreshNodes = into->addAction(text("Refresh Nodes"));
    into->addSeparator();
    m.nodePlaceholder = infoLine(into, text("Loading nodes..."));
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
    m.autoMode = checkable(into, text("Auto"));
    m.wireGuard = checkable(into, text("WireGuard"));

    addSection(into, text("Mode: TovraVPN"));
    m.tunnelGlobal = checkable(into, text("Global"));
    m.tunnelSplit = checkable(into, text("Split"));
    m.tunnelSplitMenu = checkableSubmenu(into, text("Split Options"));
    m.tunnelDefaultTunnel = checkable(m.tunnelSplitMenu, text("Default: Tunnel"));
    m.tunnelDefaultDirect = checkable(m.tunnelSplitMenu, text("Default: Direct"));
    m.tunnelRegionsMenu = m.tunnelSplitMenu->addMenu(text("Regions"));
    m.tunnelGfwList = checkable(m.tunnelSplitMenu, text("GFWList -> Tunnel"));
    m.tunnelCustomRules = checkable(m.tunnelSplitMenu, text("Custom Split Rules"));

    addSection(into, text("Mode: Tovra Proxy"));
    m.proxyGlobal = checkable(into, text("Global"));
    m.proxySplit = checkable(into, text("Split"));
    m.proxySplitMenu = checkableSubmenu(into, text("Split Options"));
    m.proxyDefaultProxy = checkable(m.proxySplitMenu, text("Default: Proxy"));
    m.proxyDefaultDirect = checkable(m.proxySplitMenu, text("Default: Direct"));
    m.proxyRegionsMenu = m.proxySplitMenu->addMenu(text("Regions"));
    m.proxyGfwList = checkable(m.proxySplitMenu, text("GFWList -> Proxy"));

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

    m.statusLine = infoLine(menu, text("Tovra: starting..."));
    m.daemonLine = infoLine(menu, text("Daemon: checking..."));
    menu->addSeparator();
    m.openTovra = menu->addAction(text("Open Tovra..."));
    menu->addSeparator();
    m.connect = menu->addAction(text("Connect"));
    m.disconnect = menu->addAction(text("Disconnect"));

    if (m.submenus) {
        m.nodeMenu = menu->addMenu(text("Node / Location"));
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

    m.systemProxyMenu = menu->addMenu(text("System Proxy"));
    auto *proxyGroup = new QActionGroup(m.systemProxyMenu);
    m.systemProxyOff = exclusive(proxyGroup, m.systemProxyMenu, text("Off"));
    m.systemProxyOn = exclusive(proxyGroup, m.systemProxyMenu, text("On"));
    m.systemProxyLock = exclusive(proxyGroup, m.systemProxyMenu, text("Lock"));

    QMenu *localInto = menu;
    if (m.submenus) {
        m.localNetworkMenu = menu->addMenu(text("Local Network"));
        m.localNetworkTitle = m.localNetworkMenu->menuAction();
        localInto = m.localNetworkMenu;
    } else {
        m.localNetworkTitle = addSection(menu, text("LAN Access"));
    }
    auto *localGroup = new QActionGroup(localInto);
    m.localDirect = exclusive(localGroup, localInto, text("Direct"));
    m.localProtected = exclusive(localGroup, localInto, text("Protected"));

    menu->addSeparator();
    m.killSwitch = checkable(menu, text("Kill Switch"));
    m.killSwitch->setEnabled(false);

    menu->addSeparator();
    m.refreshStatus = menu->addAction(text("Refresh Status"));
    m.openLogs = menu->addAction(text("Open Logs"));

    menu->addSeparator();
    m.account = menu->addAction(text("Account: checking..."));
    m.account->setEnabled(false);
    m.logout = menu->addAction(text("Logout"));
    m.logout->setEnabled(false);

    menu->addSeparator();
    m.quit = menu->addAction(text("Quit"));
    return m;
}
