#include "TovraTrayApp.h"

#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "KillSwitchConfirm.h"
#include "RoutingMode.h"
#include "TrayMenuBuilder.h"
#include "TrayMenuCloseWatcher.h"
#include "TrayModeActions.h"
#include "TrayNodeMenuModel.h"
#include "TrayNotifier.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QLoggingCategory>
#include <QMenu>
#include <QOperatingSystemVersion>
#include <QSet>
#include <QTimer>

namespace {

Q_LOGGING_CATEGORY(lcTray, "tovra.tray")

constexpr int kFetchMs = 1500;
constexpr int kNodesRefreshMs = 30000;
// Operations change the daemon's state and may take a moment; the tray stays busy meanwhile.
constexpr int kOperationMs = 15000;
constexpr int kNodesCooldownSeconds = 60;
constexpr int kPrewarmMajorVersion = 26;
const QPoint kOffScreen(-32000, -32000);

using Kind = TrayRequestIds::Kind;

QString text(const char *source)
{
    return QCoreApplication::translate("TrayMenuText", source);
}

} // namespace

TovraTrayApp::TovraTrayApp(AppState *state, ControlWorker *controlWorker,
                           GuiPreferences *preferences, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_worker(controlWorker)
    , m_preferences(preferences)
    , m_menu(TrayMenuBuilder::build())
    , m_menuOwner(m_menu.menu)
    , m_icon(new QSystemTrayIcon(this))
    ,
    // Loaded once; the icon flips between them on every status change.
    m_iconOn(QStringLiteral(":/icons/tray-on.png"))
    , m_iconOff(QStringLiteral(":/icons/tray-off.png"))
    , m_modeActions(new TrayModeActions(m_menu, this))
    , m_nodeModel(new TrayNodeMenuModel(this))
    , m_notifier(std::make_unique<TrayNotifier>(m_icon, m_menu.daemonLine))
    , m_closeWatcher(new TrayMenuCloseWatcher(m_menu.menu,
                                              {m_menu.modeMenu, m_menu.tunnelSplitMenu,
                                               m_menu.proxySplitMenu, m_menu.tunnelRegionsMenu,
                                               m_menu.proxyRegionsMenu, m_menu.nodeMenu},
                                              this))
    , m_refreshTimer(new QTimer(this))
    , m_killSwitchConfirm([] { return confirmKillSwitchNeedsVpnMode(nullptr); })
    , m_urlOpener([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{
    registerControlMetaTypes();
    m_refreshTimer->setSingleShot(true);
    connect(m_refreshTimer, &QTimer::timeout, this, &TovraTrayApp::refreshStatus);
    connectWorker();
    connectState();
    connectMenu();
}

TovraTrayApp::~TovraTrayApp()
{
    // The icon must let go of the menu before the menu goes.
    m_icon->setContextMenu(nullptr);
}

void TovraTrayApp::connectWorker()
{
    connect(m_worker, &ControlWorker::statusFinished, this, &TovraTrayApp::handleStatusFinished);
    connect(m_worker, &ControlWorker::userFinished, this, &TovraTrayApp::handleUserFinished);
    connect(m_worker, &ControlWorker::nodesFinished, this, &TovraTrayApp::handleNodesFinished);
    connect(m_worker, &ControlWorker::nodeGroupsFinished, this,
            &TovraTrayApp::handleNodeGroupsFinished);
    connect(m_worker, &ControlWorker::configPathsFinished, this,
            &TovraTrayApp::handleConfigPathsFinished);
    connect(m_worker, &ControlWorker::killSwitchFinished, this,
            &TovraTrayApp::handleKillSwitchFinished);
    connect(m_worker, &ControlWorker::connectFinished, this, &TovraTrayApp::handleConnectFinished);
    connect(m_worker, &ControlWorker::disconnectFinished, this,
            &TovraTrayApp::handleDisconnectFinished);
    connect(m_worker, &ControlWorker::logoutFinished, this, &TovraTrayApp::handleLogoutFinished);
    connect(m_worker, &ControlWorker::modeFinished, this, &TovraTrayApp::handleModeFinished);
}

void TovraTrayApp::connectState()
{
    connect(m_state, &AppState::runtimeChanged, this, &TovraTrayApp::handleRuntimeStateChanged);
    connect(m_state, &AppState::userChanged, this, &TovraTrayApp::handleUserStateChanged);
    connect(m_state, &AppState::nodesChanged, this, &TovraTrayApp::handleNodesStateChanged);
    connect(m_state, &AppState::nodeGroupsChanged, this,
            &TovraTrayApp::handleNodeGroupsStateChanged);
    connect(m_state, &AppState::killSwitchChanged, this,
            &TovraTrayApp::handleKillSwitchStateChanged);
    connect(m_state, &AppState::nodesRefreshCooldownChanged, this,
            &TovraTrayApp::handleNodesRefreshCooldownChanged);
}

void TovraTrayApp::connectMenu()
{
    connect(m_icon, &QSystemTrayIcon::activated, this, &TovraTrayApp::handleTrayActivated);
    connect(m_menu.openTovra, &QAction::triggered, this, &TovraTrayApp::openTovraRequested);
    connect(m_menu.connect, &QAction::triggered, this, [this] {
        if (!m_connectInFlight)
            connectRuntime();
        else if (m_connectCancellable)
            Q_EMIT cancelConnectRequested();
    });
    connect(m_menu.disconnect, &QAction::triggered, this, &TovraTrayApp::disconnectRuntime);
    connect(m_menu.refreshNodes, &QAction::triggered, this, &TovraTrayApp::refreshNodes);
    connect(m_menu.locations, &QAction::triggered, this, &TovraTrayApp::openLocationsRequested);
    for (QAction *entry : std::as_const(m_menu.nodeEntries)) {
        connect(entry, &QAction::triggered, this, [this, entry] {
            const QString nodeId = entry->data().toString();
            if (isBusy() || nodeId.isEmpty())
                return;
            Q_EMIT connectNodeRequested(nodeId, connectTargetLabel(nodeId));
        });
    }
    connect(m_menu.killSwitch, &QAction::triggered, this, &TovraTrayApp::setKillSwitchEnabled);
    connect(m_menu.refreshStatus, &QAction::triggered, this, &TovraTrayApp::refreshStatus);
    connect(m_menu.openLogs, &QAction::triggered, this, &TovraTrayApp::openLogs);
    connect(m_menu.account, &QAction::triggered, this, &TovraTrayApp::accountRequested);
    connect(m_menu.logout, &QAction::triggered, this, &TovraTrayApp::logoutAccount);
    // exit(), not quit(): quit() first asks every window to close, and a window that hides to
    // the tray refuses, which would cancel the user's Quit.
    connect(
        m_menu.quit, &QAction::triggered, this, [] { QCoreApplication::exit(0); },
        Qt::QueuedConnection);

    connect(m_modeActions, &TrayModeActions::modeRequested, this, &TovraTrayApp::setMode);
    connect(m_modeActions, &TrayModeActions::tovraSplitDefaultRouteRequested, this,
            &TovraTrayApp::setTovraSplitDefaultRoute);
    connect(m_modeActions, &TrayModeActions::tovraSplitRegionRequested, this,
            &TovraTrayApp::setTovraSplitRegion);
    connect(m_modeActions, &TrayModeActions::tovraSplitGFWListRequested, this,
            &TovraTrayApp::setTovraSplitGFWList);
    connect(m_modeActions, &TrayModeActions::tovraSplitCustomRulesRequested, this,
            &TovraTrayApp::setTovraSplitCustomRules);
    connect(m_modeActions, &TrayModeActions::proxyRoutingDefaultRequested, this,
            &TovraTrayApp::setProxyRoutingDefault);
    connect(m_modeActions, &TrayModeActions::proxyRoutingRegionRequested, this,
            &TovraTrayApp::setProxyRoutingRegion);
    connect(m_modeActions, &TrayModeActions::proxyRoutingGFWListRequested, this,
            &TovraTrayApp::setProxyRoutingGFWList);
    connect(m_modeActions, &TrayModeActions::systemProxyRequested, this,
            &TovraTrayApp::setSystemProxyPreference);
    connect(m_modeActions, &TrayModeActions::localNetworkRequested, this,
            &TovraTrayApp::setLocalNetworkPreference);

    connect(m_closeWatcher, &TrayMenuCloseWatcher::menuOpened, this,
            &TovraTrayApp::handleMenuOpened);
    connect(m_closeWatcher, &TrayMenuCloseWatcher::menuClosed, this,
            &TovraTrayApp::handleMenuClosed);
    QMenu *nodeHolder = m_menu.nodeMenu ? m_menu.nodeMenu : m_menu.menu;
    connect(nodeHolder, &QMenu::aboutToShow, this, [this] {
        m_nodesExpanded = true;
        fillNodeActions();
    });
    connect(m_menu.tunnelRegionsMenu, &QMenu::aboutToShow, this, [this] {
        m_modeActions->fillRegions(SplitFamily::Tunnel, currentMode(), catalogRegions());
    });
    connect(m_menu.proxyRegionsMenu, &QMenu::aboutToShow, this, [this] {
        m_modeActions->fillRegions(SplitFamily::Proxy, currentMode(), catalogRegions());
    });
}

void TovraTrayApp::start()
{
    m_started = true;
    m_icon->setContextMenu(m_menu.menu);
    m_icon->setToolTip(QStringLiteral("Tovra"));
    m_icon->setIcon(m_iconOff);
    m_icon->show();
    redraw();
    if (m_daemonAvailable)
        m_refreshTimer->start(kFirstPollMs);
    prewarmMenu();
}

void TovraTrayApp::prewarmMenu()
{
    // Some desktops lay a submenu out wrongly the first time it opens; open it once unseen.
    if (QOperatingSystemVersion::current().majorVersion() < kPrewarmMajorVersion)
        return;
    QMenu *menu = m_menu.tunnelSplitMenu;
    menu->popup(kOffScreen);
    QTimer::singleShot(0, menu, &QMenu::hide);
}

void TovraTrayApp::setControlAvailable(bool available, const QString &reason)
{
    if (available == m_daemonAvailable && reason.isEmpty())
        return;
    m_daemonAvailable = available;
    m_unavailableReason = reason;
    if (!reason.isEmpty())
        m_menu.daemonLine->setText(reason);
    if (!available) {
        m_refreshTimer->stop();
        redraw();
        return;
    }
    redraw();
    if (m_started && !m_statusInFlight && !operationInFlight())
        m_refreshTimer->start(kFirstPollMs);
}

bool TovraTrayApp::operationInFlight() const
{
    return m_connectInFlight || m_disconnectInFlight || m_modeInFlight || m_killSwitchInFlight ||
           m_logoutInFlight;
}

bool TovraTrayApp::isBusy() const
{
    return !m_daemonAvailable || operationInFlight();
}

void TovraTrayApp::setKillSwitchConfirm(std::function<int()> confirm)
{
    m_killSwitchConfirm = std::move(confirm);
}

void TovraTrayApp::setUrlOpener(std::function<bool(const QUrl &)> opener)
{
    m_urlOpener = std::move(opener);
}

// ---- operations the shell carries out ----

void TovraTrayApp::beginConnect(quint64 requestId, const QString &statusText, bool cancellable)
{
    if (m_connectInFlight) {
        m_pendingStatusText = statusText;
        m_menu.statusLine->setText(statusText);
        return;
    }
    m_ids.adopt(Kind::Connect, requestId);
    m_connectInFlight = true;
    m_connectCancellable = cancellable;
    m_refreshTimer->stop();
    m_pendingStatusText = statusText;
    m_menu.statusLine->setText(statusText);
    updateEnabledStates();
}

void TovraTrayApp::beginDisconnect(quint64 requestId)
{
    m_ids.adopt(Kind::Disconnect, requestId);
    m_disconnectInFlight = true;
    m_refreshTimer->stop();
    m_pendingStatusText = text("Tovra: disconnecting...");
    m_menu.statusLine->setText(m_pendingStatusText);
    updateEnabledStates();
}

void TovraTrayApp::beginLogout(quint64 requestId)
{
    m_ids.adopt(Kind::Logout, requestId);
    m_logoutInFlight = true;
    m_refreshTimer->stop();
    m_pendingStatusText = text("Tovra: logging out...");
    m_menu.statusLine->setText(m_pendingStatusText);
    updateEnabledStates();
}

QString TovraTrayApp::connectTargetLabel(const QString &nodeId)
{
    m_connectTargetId = nodeId.trimmed();
    m_connectTargetLabel = m_nodeModel->labelFor(m_connectTargetId);
    return m_connectTargetLabel;
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

void TovraTrayApp::handleTrayActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::DoubleClick || reason == QSystemTrayIcon::Trigger)
        Q_EMIT openTovraRequested();
}

void TovraTrayApp::finishOperation()
{
    m_pendingStatusText.clear();
    if (m_daemonAvailable)
        m_refreshTimer->start(kAfterOperationMs);
    redraw();
}

void TovraTrayApp::handleConnectFinished(quint64 requestId, const RuntimeInfo &,
                                         const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Connect, requestId) || !m_connectInFlight)
        return;
    m_connectInFlight = false;
    m_connectCancellable = false;
    m_connectTargetLabel.clear();
    m_connectTargetId.clear();
    if (!errorMessage.isEmpty())
        m_notifier->notifyFailure(errorMessage, text("Tovra: connect failed"));
    finishOperation();
}

void TovraTrayApp::handleDisconnectFinished(quint64 requestId, const RuntimeInfo &,
                                            const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Disconnect, requestId) || !m_disconnectInFlight)
        return;
    m_disconnectInFlight = false;
    if (!errorMessage.isEmpty())
        m_notifier->notifyFailure(errorMessage, text("Tovra: disconnect failed"));
    finishOperation();
}

void TovraTrayApp::handleLogoutFinished(quint64 requestId, const RuntimeInfo &,
                                        const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Logout, requestId) || !m_logoutInFlight)
        return;
    m_logoutInFlight = false;
    if (errorMessage.isEmpty())
        m_notifier->notify(text("Logged out"));
    else
        m_notifier->notifyFailure(errorMessage, text("account operation failed"));
    finishOperation();
}

// ---- mode, split options, system proxy, local network ----

void TovraTrayApp::startModeOperation(ModeOperation operation, const QString &statusText)
{
    m_pendingStatusText.clear();
    m_modeInFlight = true;
    m_modeOperation = operation;
    m_refreshTimer->stop();
    m_pendingStatusText = statusText;
    m_menu.statusLine->setText(statusText);
    updateEnabledStates();
}

void TovraTrayApp::sendModeChange(const ModeInfo &mode, const QString &statusText,
                                  ModeOperation operation)
{
    if (isBusy())
        return;
    startModeOperation(operation, statusText);
    const quint64 id = m_ids.take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setMode", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(ModeInfo, mode), Q_ARG(int, kOperationMs));
}

void TovraTrayApp::setMode(const ModeInfo &mode, const QString &statusText)
{
    sendModeChange(mode, statusText, ModeOperation::Mode);
}

void TovraTrayApp::setTovraSplitDefaultRoute(const QString &route)
{
    // The tunnel family names its own route with the proxy family's word.
    const QString word = route == u"direct" ? route : QStringLiteral("proxy");
    sendModeChange(splitModeWithDefaultRoute(currentMode(), SplitFamily::Tunnel, word),
                   text("Tovra: updating TovraVPN split..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setTovraSplitRegion(const QString &region)
{
    sendModeChange(TrayModeActions::withRegionToggled(currentMode(), SplitFamily::Tunnel, region),
                   text("Tovra: updating TovraVPN regions..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setTovraSplitGFWList(bool enabled)
{
    sendModeChange(splitModeWithGfwList(currentMode(), SplitFamily::Tunnel, enabled),
                   text("Tovra: updating TovraVPN GFWList..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setTovraSplitCustomRules(bool enabled)
{
    sendModeChange(splitModeWithCustomRules(currentMode(), SplitFamily::Tunnel, enabled),
                   text("Tovra: updating TovraVPN custom rules..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setProxyRoutingDefault(const QString &route)
{
    const QString word = route == u"direct" ? route : QStringLiteral("proxy");
    sendModeChange(splitModeWithDefaultRoute(currentMode(), SplitFamily::Proxy, word),
                   text("Tovra: updating Tovra Proxy Split..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setProxyRoutingRegion(const QString &region)
{
    sendModeChange(TrayModeActions::withRegionToggled(currentMode(), SplitFamily::Proxy, region),
                   text("Tovra: updating Tovra Proxy regions..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setProxyRoutingGFWList(bool enabled)
{
    sendModeChange(splitModeWithGfwList(currentMode(), SplitFamily::Proxy, enabled),
                   text("Tovra: updating Tovra Proxy GFWList..."), ModeOperation::SplitOption);
}

void TovraTrayApp::setSystemProxyPreference(const QString &value)
{
    if (isBusy())
        return;
    startModeOperation(ModeOperation::SystemProxy, text("Tovra: updating system proxy..."));
    m_pendingSystemProxy = value;
    const quint64 id = m_ids.take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setSystemProxyPreference", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, value), Q_ARG(int, kOperationMs));
}

void TovraTrayApp::setLocalNetworkPreference(const QString &value)
{
    if (isBusy())
        return;
    startModeOperation(ModeOperation::LocalNetwork,
                       text("Tovra: updating local network routing..."));
    const quint64 id = m_ids.take(Kind::Mode);
    QMetaObject::invokeMethod(m_worker, "setLocalNetworkPreference", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, value), Q_ARG(int, kOperationMs));
}

void TovraTrayApp::handleModeFinished(quint64 requestId, const ModeInfo &mode,
                                      const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Mode, requestId) || !m_modeInFlight)
        return;
    m_modeInFlight = false;
    if (!errorMessage.isEmpty()) {
        m_notifier->notifyFailure(errorMessage, text("mode operation failed"));
    } else {
        if (mode.valid) {
            RuntimeInfo runtime = m_state->runtime();
            runtime.mode = mode;
            m_state->setRuntime(runtime);
        }
        switch (m_modeOperation) {
        case ModeOperation::Mode:
            m_notifier->notify(text("Mode updated"));
            break;
        case ModeOperation::SystemProxy:
            m_notifier->notify(text("System proxy set to %1").arg(m_pendingSystemProxy));
            break;
        case ModeOperation::SplitOption:
        case ModeOperation::LocalNetwork:
            m_notifier->notify(text("Updated"));
            break;
        }
    }
    finishOperation();
}

// ---- kill switch ----

const KillSwitchInfo &TovraTrayApp::killSwitchRecord() const
{
    return m_state->killSwitch().valid ? m_state->killSwitch() : m_state->runtime().killSwitch;
}

void TovraTrayApp::setKillSwitchEnabled(bool enabled)
{
    const KillSwitchInfo &record = killSwitchRecord();
    // The entry shows the record, never the click.
    updateKillSwitchEntry();
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
    m_killSwitchInFlight = true;
    m_refreshTimer->stop();
    m_pendingStatusText =
        enabled ? text("Tovra: enabling kill switch...") : text("Tovra: disabling kill switch...");
    m_menu.statusLine->setText(m_pendingStatusText);
    updateEnabledStates();
    const quint64 id = m_ids.take(Kind::KillSwitch);
    QMetaObject::invokeMethod(m_worker, "setKillSwitchEnabled", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(bool, enabled), Q_ARG(int, kOperationMs));
}

void TovraTrayApp::handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                            const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::KillSwitch, requestId))
        return;
    if (!m_killSwitchInFlight) {
        if (errorMessage.isEmpty())
            m_state->setKillSwitch(info);
        return;
    }
    m_killSwitchInFlight = false;
    if (errorMessage.isEmpty()) {
        m_state->setKillSwitch(info);
        m_notifier->notify(info.enabled ? text("Kill switch enabled")
                                        : text("Kill switch disabled"));
    } else {
        m_notifier->notifyFailure(errorMessage, text("kill-switch operation failed"));
    }
    finishOperation();
}

// ---- status ----

void TovraTrayApp::refreshStatus()
{
    if (!m_daemonAvailable || m_statusInFlight)
        return;
    m_statusInFlight = true;
    const quint64 id = m_ids.take(Kind::Status);
    QMetaObject::invokeMethod(m_worker, "fetchStatus", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kFetchMs));
}

void TovraTrayApp::handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                                        const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Status, requestId))
        return;
    m_statusInFlight = false;
    // The operation's own completion fetches a fresh status.
    if (operationInFlight())
        return;
    if (m_menuOpen) {
        m_statusPendingWhileMenuOpen = true;
        m_heldStatus = info;
        m_heldStatusError = errorMessage;
    } else {
        applyStatus(info, errorMessage);
    }
    if (m_daemonAvailable)
        m_refreshTimer->start(kPollMs);
}

void TovraTrayApp::applyStatus(const RuntimeInfo &info, const QString &errorMessage)
{
    if (!errorMessage.isEmpty() || !info.valid) {
        showDaemonUnavailable(errorMessage);
        return;
    }
    const bool recovered = m_daemonUnreachable || !m_statusApplied;
    m_daemonUnreachable = false;
    m_statusApplied = true;
    if (recovered)
        m_menu.daemonLine->setText(TrayStatusFormatter::daemonLine(info));
    m_state->setRuntime(info);
    if (info.killSwitch.valid)
        m_state->setKillSwitch(info.killSwitch);

    if (TrayStatusFormatter::isSignedIn(info)) {
        if (!m_state->user().valid && !m_userInFlight)
            fetchUser();
    } else if (m_state->user().valid) {
        m_state->clearUser();
    }
    if (!m_state->nodes().valid)
        loadNodes(false);
    redraw();
}

void TovraTrayApp::showDaemonUnavailable(const QString &errorMessage)
{
    if (!m_daemonAvailable) {
        m_menu.refreshStatus->setEnabled(false);
        return;
    }
    m_daemonUnreachable = true;
    m_menu.statusLine->setText(text("Tovra: daemon unavailable"));
    m_menu.daemonLine->setText(errorMessage.trimmed().isEmpty() ? text("daemon unavailable")
                                                                : errorMessage);
    m_menu.account->setText(text("Account: unavailable"));
    m_icon->setIcon(m_iconOff);
    m_icon->setToolTip(text("Tovra - daemon unavailable"));
    updateEnabledStates();
}

// ---- account, nodes, config paths ----

void TovraTrayApp::fetchUser()
{
    m_userInFlight = true;
    m_userLookup = TrayStatusFormatter::UserLookup::Pending;
    const quint64 id = m_ids.take(Kind::User);
    QMetaObject::invokeMethod(m_worker, "fetchUser", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kFetchMs));
}

void TovraTrayApp::handleUserFinished(quint64 requestId, const UserInfo &user,
                                      const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::User, requestId))
        return;
    m_userInFlight = false;
    if (errorMessage.isEmpty()) {
        m_userLookup = TrayStatusFormatter::UserLookup::Loaded;
        m_state->setUser(user);
    } else {
        m_userLookup = TrayStatusFormatter::UserLookup::Failed;
    }
    redrawOrDefer();
}

void TovraTrayApp::loadNodes(bool refresh)
{
    if (m_nodesLoadInFlight || m_nodesRefreshInFlight)
        return;
    (refresh ? m_nodesRefreshInFlight : m_nodesLoadInFlight) = true;
    const quint64 id = m_ids.take(Kind::Nodes);
    QMetaObject::invokeMethod(m_worker, "fetchNodes", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(bool, refresh),
                              Q_ARG(int, refresh ? kNodesRefreshMs : kFetchMs));
    updateNodeEntries();
    updateRefreshNodesEntry();
}

void TovraTrayApp::refreshNodes()
{
    if (m_nodesLoadInFlight || m_nodesRefreshInFlight || isBusy() ||
        m_state->nodesRefreshCooldown() > 0)
        return;
    m_state->startNodesRefreshCooldown(kNodesCooldownSeconds);
    loadNodes(true);
}

void TovraTrayApp::handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                                       const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::Nodes, requestId))
        return;
    const bool refresh = m_nodesRefreshInFlight;
    m_nodesLoadInFlight = false;
    m_nodesRefreshInFlight = false;
    if (errorMessage.isEmpty()) {
        m_nodesError.clear();
        m_state->setNodes(nodes);
        if (refresh || !m_state->nodeGroups().valid) {
            m_nodeGroupsRefresh = refresh;
            loadNodeGroups();
        }
    } else {
        m_nodesError = refresh ? text("Could not refresh nodes") : text("Could not load nodes");
        if (refresh)
            m_notifier->notify(m_nodesError);
    }
    redrawOrDefer();
}

void TovraTrayApp::loadNodeGroups()
{
    if (m_nodeGroupsInFlight)
        return;
    m_nodeGroupsInFlight = true;
    const quint64 id = m_ids.take(Kind::NodeGroups);
    QMetaObject::invokeMethod(m_worker, "fetchNodeGroups", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kFetchMs));
}

void TovraTrayApp::handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                            const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::NodeGroups, requestId))
        return;
    m_nodeGroupsInFlight = false;
    if (errorMessage.isEmpty()) {
        m_state->setNodeGroups(groups);
    } else if (m_nodeGroupsRefresh) {
        m_notifier->notify(text("Could not refresh node groups"));
    } else {
        qCWarning(lcTray).noquote() << "Could not load node groups:" << errorMessage;
    }
    m_nodeGroupsRefresh = false;
}

void TovraTrayApp::openLogs()
{
    if (!m_daemonAvailable)
        return;
    const quint64 id = m_ids.take(Kind::ConfigPaths);
    QMetaObject::invokeMethod(m_worker, "fetchConfigPaths", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kFetchMs));
}

void TovraTrayApp::handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                             const QString &errorMessage)
{
    if (!m_ids.isLatest(Kind::ConfigPaths, requestId))
        return;
    if (!errorMessage.isEmpty()) {
        m_notifier->notifyFailure(errorMessage, text("operation failed"));
        return;
    }
    m_state->setConfigPaths(paths);
    const QString what = text("log directory");
    const QString dir = paths.logDir.trimmed();
    if (dir.isEmpty()) {
        m_notifier->notifyFailure({}, text("missing %1").arg(what));
        return;
    }
    if (!QDir(dir).exists()) {
        m_notifier->notifyFailure({}, text("%1 does not exist: %2").arg(what, dir));
        return;
    }
    if (!m_urlOpener || !m_urlOpener(QUrl::fromLocalFile(dir)))
        m_notifier->notifyFailure({}, text("could not open %1: %2").arg(what, dir));
}

// ---- store notifications ----

void TovraTrayApp::handleRuntimeStateChanged()
{
    redrawOrDefer();
}

void TovraTrayApp::handleUserStateChanged()
{
    redrawOrDefer();
}

void TovraTrayApp::handleNodesStateChanged()
{
    redrawOrDefer();
}

void TovraTrayApp::handleNodeGroupsStateChanged()
{
    redrawOrDefer();
}

void TovraTrayApp::handleKillSwitchStateChanged()
{
    redrawOrDefer();
}

void TovraTrayApp::handleNodesRefreshCooldownChanged(int)
{
    updateRefreshNodesEntry();
}

// ---- drawing ----

ModeInfo TovraTrayApp::currentMode() const
{
    return m_state->runtime().mode;
}

QStringList TovraTrayApp::catalogRegions() const
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

void TovraTrayApp::redrawOrDefer()
{
    if (m_menuOpen) {
        m_redrawPending = true;
        return;
    }
    redraw();
}

void TovraTrayApp::redraw()
{
    m_redrawPending = false;
    updateNodeEntries();
    if (m_daemonAvailable && m_daemonUnreachable) {
        showDaemonUnavailable(m_menu.daemonLine->text());
        return;
    }
    const RuntimeInfo &runtime = m_state->runtime();
    updateStatusLine();
    m_modeActions->apply(runtime.mode);
    updateKillSwitchEntry();
    updateAccountLine();
    const bool connected = TrayStatusFormatter::isConnected(runtime);
    m_icon->setIcon(connected ? m_iconOn : m_iconOff);
    m_icon->setToolTip(QStringLiteral("Tovra"));
    updateEnabledStates();
}

void TovraTrayApp::updateStatusLine()
{
    if (operationInFlight() && !m_pendingStatusText.isEmpty()) {
        m_menu.statusLine->setText(m_pendingStatusText);
        return;
    }
    const RuntimeInfo &runtime = m_state->runtime();
    if (!runtime.valid)
        return;
    QString label = m_connectTargetLabel;
    const NodesInfo &nodes = m_state->nodes();
    if (label.isEmpty() && nodes.selected.valid)
        label = m_nodeModel->labelFor(nodes.selected.id);
    m_menu.statusLine->setText(TrayStatusFormatter::statusLine(runtime, label));
}

void TovraTrayApp::updateAccountLine()
{
    m_menu.account->setText(
        TrayStatusFormatter::accountLine(m_state->runtime(), m_state->user(), m_userLookup));
}

void TovraTrayApp::updateKillSwitchEntry()
{
    const KillSwitchInfo &record = killSwitchRecord();
    m_menu.killSwitch->setText(TrayStatusFormatter::killSwitchText(record));
    m_menu.killSwitch->setChecked(record.valid && record.enabled);
}

void TovraTrayApp::updateNodeEntries()
{
    const NodesInfo &nodes = m_state->nodes();
    const RuntimeInfo &runtime = m_state->runtime();
    QStringList recentIds;
    if (m_preferences) {
        const QList<RecentLocation> recent =
            m_preferences->recentNodes(TrayNodeMenuModel::kEntryCount);
        for (const RecentLocation &location : recent)
            recentIds.append(location.id);
    }
    m_nodeModel->setCatalog(nodes, m_state->nodeGroups(), recentIds);
    m_nodeModel->setConnection(TrayStatusFormatter::isConnected(runtime), runtime.connectedSince,
                               QDateTime::currentDateTimeUtc());

    QString placeholder;
    if (m_nodesRefreshInFlight)
        placeholder = text("Refreshing nodes...");
    else if (m_nodesLoadInFlight)
        placeholder = text("Loading nodes...");
    else if (!nodes.valid)
        placeholder = m_nodesError.isEmpty() ? text("Nodes not loaded") : m_nodesError;
    else if (nodes.nodes.isEmpty())
        placeholder = nodes.stale ? text("No cached nodes") : text("No nodes");
    m_menu.nodePlaceholder->setText(placeholder);
    m_menu.nodePlaceholder->setVisible(!placeholder.isEmpty() || m_nodeModel->rowCount() == 0);

    if (nodes.valid) {
        m_menu.currentLine->setText(m_nodeModel->currentLine());
    } else if (m_nodesLoadInFlight || m_nodesRefreshInFlight) {
        m_menu.currentLine->setText(text("Current: loading..."));
    } else {
        // Without the catalogue the status record's own reference to the node still tells.
        QString reference = runtime.connectedNode.trimmed();
        if (reference.isEmpty())
            reference = runtime.selectedNode.trimmed();
        m_menu.currentLine->setText(
            text("Current: %1").arg(reference.isEmpty() ? text("none") : reference));
    }
}

void TovraTrayApp::fillNodeActions()
{
    const int rows = m_nodeModel->rowCount();
    for (int i = 0; i < m_menu.nodeEntries.size(); ++i) {
        QAction *entry = m_menu.nodeEntries.at(i);
        if (i < rows) {
            const QModelIndex index = m_nodeModel->index(i);
            entry->setText(index.data(Qt::DisplayRole).toString());
            entry->setData(index.data(TrayNodeMenuModel::NodeIdRole));
            entry->setVisible(true);
        } else {
            entry->setVisible(false);
        }
    }
    m_menu.nodeFootSeparator->setVisible(rows > 0);
    m_menu.nodePlaceholder->setVisible(rows == 0 || !m_menu.nodePlaceholder->text().isEmpty());
}

void TovraTrayApp::updateRefreshNodesEntry()
{
    const int cooldown = m_state->nodesRefreshCooldown();
    m_menu.refreshNodes->setText(cooldown > 0 ? text("Refresh Nodes (%1s)").arg(cooldown)
                                              : text("Refresh Nodes"));
    m_menu.refreshNodes->setEnabled(m_daemonAvailable && !m_daemonUnreachable &&
                                    m_state->runtime().valid && !isBusy() && !m_nodesLoadInFlight &&
                                    !m_nodesRefreshInFlight && cooldown == 0);
}

void TovraTrayApp::updateConnectEntry()
{
    if (m_connectInFlight) {
        m_menu.connect->setText(QCoreApplication::translate("SettingsPage", "Cancel"));
        m_menu.connect->setEnabled(m_connectCancellable);
        return;
    }
    const RuntimeInfo &runtime = m_state->runtime();
    m_menu.connect->setText(text("Connect"));
    m_menu.connect->setEnabled(m_daemonAvailable && !m_daemonUnreachable && runtime.valid &&
                               !isBusy() && !TrayStatusFormatter::isConnected(runtime) &&
                               !TrayStatusFormatter::isConnecting(runtime));
}

void TovraTrayApp::updateEnabledStates()
{
    const RuntimeInfo &runtime = m_state->runtime();
    const bool reachable = m_daemonAvailable && !m_daemonUnreachable;
    const bool usable = reachable && runtime.valid && !isBusy();
    const bool tunnelUp =
        TrayStatusFormatter::isConnected(runtime) || TrayStatusFormatter::isConnecting(runtime);

    updateConnectEntry();
    m_menu.disconnect->setEnabled(usable && tunnelUp);
    if (m_menu.nodeMenu) {
        m_menu.nodeMenu->menuAction()->setEnabled(usable);
    } else {
        for (QAction *entry : std::as_const(m_menu.nodeEntries))
            entry->setEnabled(usable);
    }
    m_modeActions->setEnabled(usable);

    const KillSwitchInfo &record = killSwitchRecord();
    m_menu.killSwitch->setEnabled(reachable && !isBusy() && record.valid &&
                                  record.mode != u"lockdown");
    m_menu.account->setEnabled(usable);
    m_menu.logout->setEnabled(usable && TrayStatusFormatter::isSignedIn(runtime));
    m_menu.refreshStatus->setEnabled(m_daemonAvailable);
    m_menu.openLogs->setEnabled(m_daemonAvailable);
    updateRefreshNodesEntry();
}

// ---- menu open and close ----

void TovraTrayApp::handleMenuOpened()
{
    m_menuOpen = true;
}

void TovraTrayApp::releaseMenuEntries()
{
    int nodesBefore = 0;
    for (QAction *entry : std::as_const(m_menu.nodeEntries)) {
        if (entry->isVisible())
            ++nodesBefore;
        entry->setVisible(false);
        entry->setText(QString());
        entry->setData(QVariant());
    }
    m_menu.nodeFootSeparator->setVisible(false);
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

void TovraTrayApp::handleMenuClosed()
{
    m_menuOpen = false;
    releaseMenuEntries();
    if (m_statusPendingWhileMenuOpen) {
        m_statusPendingWhileMenuOpen = false;
        const RuntimeInfo held = m_heldStatus;
        const QString error = m_heldStatusError;
        m_heldStatus = RuntimeInfo();
        m_heldStatusError.clear();
        if (!operationInFlight()) {
            applyStatus(held, error);
            return;
        }
    }
    if (m_redrawPending)
        redraw();
}
