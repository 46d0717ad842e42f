#include "TrayMenuSession.h"

#include "TrayLog.h"

#include "AppState.h"
#include "RoutingMode.h"
#include "TrayMenuCloseWatcher.h"
#include "TrayModeActions.h"
#include "TrayNodeLoader.h"
#include "TrayNodeMenuModel.h"

#include <QAction>
#include <QLoggingCategory>
#include <QMenu>
#include <QOperatingSystemVersion>
#include <QSet>
#include <QTimer>

namespace {

constexpr int kPrewarmMajorVersion = 26;
const QPoint kOffScreen(-32000, -32000);

} // namespace

TrayMenuSession::TrayMenuSession(AppState *state, const TrayMenu &menu,
                                 TrayModeActions *modeActions, TrayNodeLoader *nodeLoader,
                                 TrayNodeMenuModel *nodeModel, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_menu(menu)
    , m_modeActions(modeActions)
    , m_nodeLoader(nodeLoader)
    , m_nodeModel(nodeModel)
    , m_closeWatcher(new TrayMenuCloseWatcher(m_menu.menu,
                                              {m_menu.modeMenu, m_menu.tunnelSplitMenu,
                                               m_menu.proxySplitMenu, m_menu.tunnelRegionsMenu,
                                               m_menu.proxyRegionsMenu, m_menu.nodeMenu},
                                              this))
{
    connect(m_closeWatcher, &TrayMenuCloseWatcher::menuOpened, this, &TrayMenuSession::opened);
    connect(m_closeWatcher, &TrayMenuCloseWatcher::menuClosed, this, [this] {
        release();
        Q_EMIT closed();
    });
    QMenu *nodeHolder = m_menu.nodeMenu ? m_menu.nodeMenu : m_menu.menu;
    connect(nodeHolder, &QMenu::aboutToShow, this, [this] {
        m_nodesExpanded = true;
        m_nodeLoader->fillActions();
    });
    connect(m_menu.tunnelRegionsMenu, &QMenu::aboutToShow, this, [this] {
        m_modeActions->fillRegions(SplitFamily::Tunnel, m_state->runtime().mode, catalogRegions());
    });
    connect(m_menu.proxyRegionsMenu, &QMenu::aboutToShow, this, [this] {
        m_modeActions->fillRegions(SplitFamily::Proxy, m_state->runtime().mode, catalogRegions());
    });
}

void TrayMenuSession::prewarm()
{
    if (QOperatingSystemVersion::current().majorVersion() < kPrewarmMajorVersion)
        return;
    QMenu *menu = m_menu.tunnelSplitMenu;
    menu->popup(kOffScreen);
    QTimer::singleShot(0, menu, &QMenu::hide);
}

QStringList TrayMenuSession::catalogRegions() const
{
    QStringList regions;
    QSet<QString> seen;
    for (const NodeEntry &node : m_state->nodes().nodes) {
        const QString code = node.region.trimmed().toUpper();
        if (!code.isEmpty() && !seen.contains(code)) {
            seen.insert(code);
            regions.append(code);
        }
    }
    return regions;
}

void TrayMenuSession::release()
{
    const int nodesBefore = m_nodeLoader->releaseActions();
    int nodesAfter = 0;
    for (QAction *entry : std::as_const(m_menu.nodeEntries))
        nodesAfter += entry->isVisible() ? 1 : 0;
    const int proxyBefore = m_modeActions->releaseRegions(SplitFamily::Proxy);
    const int tunnelBefore = m_modeActions->releaseRegions(SplitFamily::Tunnel);
    qCInfo(lcTray).noquote()
        << QStringLiteral("tray submenu release: nodes expanded=%1 actions %2->%3 (catalog "
                          "nodes=%4); proxy regions %5->%6; tovravpn regions %7->%8")
               .arg(m_nodesExpanded ? QStringLiteral("true") : QStringLiteral("false"))
               .arg(nodesBefore)
               .arg(nodesAfter)
               .arg(m_nodeModel->catalogSize())
               .arg(proxyBefore)
               .arg(m_modeActions->regionCount(SplitFamily::Proxy))
               .arg(tunnelBefore)
               .arg(m_modeActions->regionCount(SplitFamily::Tunnel));
    m_nodesExpanded = false;
}
