// What the tray does when asked: the menu's and the shell's actions, each refused while the
// tray is busy, and the worker's answers handed to the collaborator that asked. Construction,
// status and drawing are in TovraTrayApp.cpp.
#include "TovraTrayApp.h"

#include "AppState.h"
#include "RoutingMode.h"
#include "TrayAccountLookup.h"
#include "TrayLogOpener.h"
#include "TrayMenuText.h"
#include "TrayModeActions.h"
#include "TrayNodeLoader.h"
#include "TrayNodeMenuModel.h"

#include <QAction>

namespace {

using ModeChange = TrayOperations::ModeChange;

} // namespace

// ---- connect, disconnect and sign-out, carried out by the shell ----

void TovraTrayApp::beginConnect(quint64 requestId, const QString &statusText, bool cancellable)
{
    m_operations->beginConnect(requestId, statusText, cancellable);
}

void TovraTrayApp::beginDisconnect(quint64 requestId)
{
    m_operations->beginDisconnect(requestId);
}

void TovraTrayApp::beginLogout(quint64 requestId)
{
    m_operations->beginLogout(requestId);
}

QString TovraTrayApp::connectTargetLabel(const QString &nodeId) const
{
    return m_nodeModel->labelFor(nodeId.trimmed());
}

void TovraTrayApp::recordConnectTarget(const QString &nodeId, const QString &label)
{
    m_operations->setConnectTarget(nodeId.trimmed(), label);
}

void TovraTrayApp::connectRuntime()
{
    if (isBusy())
        return;
    Q_EMIT connectRuntimeRequested();
}

void TovraTrayApp::disconnectRuntime()
{
    if (isBusy())
        return;
    Q_EMIT disconnectRuntimeRequested();
}

void TovraTrayApp::logoutAccount()
{
    if (isBusy())
        return;
    Q_EMIT logoutRequested();
}

void TovraTrayApp::handleConnectFinished(quint64 requestId, const RuntimeInfo &,
                                         const QString &errorMessage)
{
    m_operations->handleConnectFinished(requestId, errorMessage);
}

void TovraTrayApp::handleDisconnectFinished(quint64 requestId, const RuntimeInfo &,
                                            const QString &errorMessage)
{
    m_operations->handleDisconnectFinished(requestId, errorMessage);
}

void TovraTrayApp::handleLogoutFinished(quint64 requestId, const RuntimeInfo &,
                                        const QString &errorMessage)
{
    m_operations->handleLogoutFinished(requestId, errorMessage);
}

// ---- mode, split options, system proxy, local network ----

ModeInfo TovraTrayApp::currentMode() const
{
    return m_state->runtime().mode;
}

void TovraTrayApp::sendModeChange(const ModeInfo &mode, const QString &statusText,
                                  ModeChange change)
{
    if (isBusy())
        return;
    m_operations->sendMode(mode, statusText, change);
}

void TovraTrayApp::setMode(const ModeInfo &mode, const QString &statusText)
{
    sendModeChange(mode, statusText, ModeChange::Mode);
}

void TovraTrayApp::setTovraSplitDefaultRoute(const QString &route)
{
    // The tunnel family names its own route with the proxy family's word.
    const QString word = route == u"direct" ? route : QStringLiteral("proxy");
    sendModeChange(splitModeWithDefaultRoute(currentMode(), SplitFamily::Tunnel, word),
                   //: Changing the default route of the TovraVPN Split mode; name the mode as the
                   //: Mode page does
                   TrayMenuText::tr("Tovra: updating TovraVPN split..."), ModeChange::SplitOption);
}

void TovraTrayApp::setTovraSplitRegion(const QString &region)
{
    sendModeChange(TrayModeActions::withRegionToggled(currentMode(), SplitFamily::Tunnel, region),
                   TrayMenuText::tr("Tovra: updating TovraVPN regions..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setTovraSplitGFWList(bool enabled)
{
    sendModeChange(splitModeWithGfwList(currentMode(), SplitFamily::Tunnel, enabled),
                   TrayMenuText::tr("Tovra: updating TovraVPN GFWList..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setTovraSplitCustomRules(bool enabled)
{
    sendModeChange(splitModeWithCustomRules(currentMode(), SplitFamily::Tunnel, enabled),
                   TrayMenuText::tr("Tovra: updating TovraVPN custom rules..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setProxyRoutingDefault(const QString &route)
{
    const QString word = route == u"direct" ? route : QStringLiteral("proxy");
    sendModeChange(splitModeWithDefaultRoute(currentMode(), SplitFamily::Proxy, word),
                   TrayMenuText::tr("Tovra: updating Tovra Proxy Split..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setProxyRoutingRegion(const QString &region)
{
    sendModeChange(TrayModeActions::withRegionToggled(currentMode(), SplitFamily::Proxy, region),
                   TrayMenuText::tr("Tovra: updating Tovra Proxy regions..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setProxyRoutingGFWList(bool enabled)
{
    sendModeChange(splitModeWithGfwList(currentMode(), SplitFamily::Proxy, enabled),
                   TrayMenuText::tr("Tovra: updating Tovra Proxy GFWList..."),
                   ModeChange::SplitOption);
}

void TovraTrayApp::setSystemProxyPreference(const QString &value)
{
    if (isBusy())
        return;
    m_operations->sendSystemProxy(value);
}

void TovraTrayApp::setLocalNetworkPreference(const QString &value)
{
    if (isBusy())
        return;
    m_operations->sendLocalNetwork(value);
}

void TovraTrayApp::handleModeFinished(quint64 requestId, const ModeInfo &mode,
                                      const QString &errorMessage)
{
    m_operations->handleModeFinished(requestId, mode, errorMessage);
}

// ---- kill switch ----

void TovraTrayApp::setKillSwitchEnabled(bool enabled)
{
    const KillSwitchInfo &record = m_painter->killSwitchRecord();
    // The entry shows the record, never the click.
    m_painter->updateKillSwitchEntry();
    if (!enabled && record.mode == u"lockdown")
        return;
    if (isBusy())
        return;
    if (enabled && currentMode().transport == u"proxy") {
        m_menu.killSwitch->setChecked(false);
        const int answer = m_killSwitchConfirm ? m_killSwitchConfirm() : 0;
        if (answer == 1)
            Q_EMIT switchToAutoAndEnableKillSwitchRequested();
        else if (answer == 2)
            Q_EMIT chooseModeForKillSwitchRequested();
        return;
    }
    m_operations->sendKillSwitch(enabled);
}

void TovraTrayApp::handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                            const QString &errorMessage)
{
    m_operations->handleKillSwitchFinished(requestId, info, errorMessage);
}

// ---- status ----

void TovraTrayApp::refreshStatus()
{
    m_poller->fetch();
}

void TovraTrayApp::handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                                        const QString &errorMessage)
{
    m_poller->handleStatusFinished(requestId, info, errorMessage);
}

// ---- account, nodes, config paths ----

void TovraTrayApp::handleUserFinished(quint64 requestId, const UserInfo &user,
                                      const QString &errorMessage)
{
    if (m_accountLookup->handleUserFinished(requestId, user, errorMessage))
        redrawOrDefer();
}

void TovraTrayApp::refreshNodes()
{
    if (isBusy())
        return;
    m_nodeLoader->refresh();
}

void TovraTrayApp::handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                                       const QString &errorMessage)
{
    m_nodeLoader->handleNodesFinished(requestId, nodes, errorMessage);
}

void TovraTrayApp::handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                            const QString &errorMessage)
{
    m_nodeLoader->handleNodeGroupsFinished(requestId, groups, errorMessage);
}

void TovraTrayApp::openLogs()
{
    if (!m_daemonAvailable)
        return;
    m_logOpener->open();
}

void TovraTrayApp::handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                             const QString &errorMessage)
{
    m_logOpener->handleConfigPathsFinished(requestId, paths, errorMessage);
}
