#include "TovraTrayApp.h"

#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "GuiTextLog.h"
#include "KillSwitchConfirm.h"
#include "TrayAccountLookup.h"
#include "TrayIcon.h"
#include "TrayLogOpener.h"
#include "TrayMenuBuilder.h"
#include "TrayMenuPainter.h"
#include "TrayMenuSession.h"
#include "TrayModeActions.h"
#include "TrayNodeLoader.h"
#include "TrayNodeMenuModel.h"
#include "TrayNotifier.h"
#include "TrayStatusFormatter.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

TovraTrayApp::TovraTrayApp(AppState *state, ControlWorker *controlWorker,
                           GuiPreferences *preferences, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_worker(controlWorker)
    , m_preferences(preferences)
    , m_menu(TrayMenuBuilder::build())
    , m_menuOwner(m_menu.menu)
    , m_icon(new TrayIcon(this))
    , m_modeActions(new TrayModeActions(m_menu, this))
    , m_nodeModel(new TrayNodeMenuModel(this))
    , m_notifier(std::make_unique<TrayNotifier>(m_icon, m_menu.daemonLine))
    , m_operations(new TrayOperations(m_state, m_worker, &m_ids, m_notifier.get(), this))
    , m_poller(new TrayStatusPoller(m_worker, &m_ids, m_operations, this))
    , m_nodeLoader(new TrayNodeLoader(m_state, m_worker, m_preferences, &m_ids, m_menu, m_nodeModel,
                                      m_notifier.get(), this))
    , m_menuSession(
          new TrayMenuSession(m_state, m_menu, m_modeActions, m_nodeLoader, m_nodeModel, this))
    , m_painter(std::make_unique<TrayMenuPainter>(m_state, m_menu, m_icon, m_modeActions,
                                                  m_nodeModel, m_nodeLoader, m_operations))
    , m_logOpener(std::make_unique<TrayLogOpener>(m_state, m_worker, &m_ids, m_notifier.get()))
    , m_accountLookup(std::make_unique<TrayAccountLookup>(m_state, m_worker, &m_ids))
    , m_killSwitchConfirm([] { return confirmKillSwitchNeedsVpnMode(nullptr); })
{
    registerControlMetaTypes();
    connectWorker();
    connectState();
    connectMenu();
    connectCollaborators();
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
    connect(m_icon, &TrayIcon::activated, this, &TovraTrayApp::handleTrayActivated);
    connect(m_menu.openTovra, &QAction::triggered, this, &TovraTrayApp::openTovraRequested);
    connect(m_menu.connect, &QAction::triggered, this, [this] {
        if (!m_operations->connectInFlight())
            connectRuntime();
        else if (m_operations->connectCancellable())
            Q_EMIT cancelConnectRequested();
    });
    connect(m_menu.disconnect, &QAction::triggered, this, &TovraTrayApp::disconnectRuntime);
    connect(m_menu.refreshNodes, &QAction::triggered, this, &TovraTrayApp::refreshNodes);
    connect(m_menu.locations, &QAction::triggered, this, &TovraTrayApp::openLocationsRequested);
    for (QAction *entry : std::as_const(m_menu.nodeEntries)) {
        connect(entry, &QAction::triggered, this, [this, entry] {
            const QString nodeId = entry->data().toString();
            // A locked node is never asked for, however the entry was reached.
            if (isBusy() || nodeId.isEmpty() ||
                entry->property(TrayNodeLoader::kLockedProperty).toBool())
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

    connect(m_menuSession, &TrayMenuSession::opened, this, &TovraTrayApp::handleMenuOpened);
    connect(m_menuSession, &TrayMenuSession::closed, this, &TovraTrayApp::handleMenuClosed);
}

void TovraTrayApp::connectCollaborators()
{
    connect(m_operations, &TrayOperations::started, this, &TovraTrayApp::handleOperationStarted);
    connect(m_operations, &TrayOperations::statusTextChanged, m_menu.statusLine, &QAction::setText);
    connect(m_operations, &TrayOperations::finished, this, &TovraTrayApp::finishOperation);
    connect(m_poller, &TrayStatusPoller::statusAnswered, this, &TovraTrayApp::applyStatus);
    connect(m_nodeLoader, &TrayNodeLoader::loadStarted, this,
            &TovraTrayApp::updateRefreshNodesEntry);
    connect(m_nodeLoader, &TrayNodeLoader::nodesAnswered, this, &TovraTrayApp::redrawOrDefer);
}

void TovraTrayApp::start()
{
    if (m_started)
        return;
    m_started = true;
    m_icon->setContextMenu(m_menu.menu);
    const auto logLines = [this] {
        guiTextLog("tray", m_menu.statusLine->text() + QStringLiteral(" | ") +
                               m_menu.daemonLine->text() + QStringLiteral(" | ") +
                               m_menu.account->text());
    };
    if (guiTextLogEnabled()) {
        for (QAction *line : {m_menu.statusLine, m_menu.daemonLine, m_menu.account})
            connect(line, &QAction::changed, this, logLines);
    }
    m_painter->drawIdleIcon();
    // Shown as soon as a host answers: a watcher slow to answer must not stall a window that is
    // already on screen.
    m_icon->watchHosts(TrayIcon::HostLook::Background);
    m_icon->show();
    redraw();
    // Answers may have come before the tray started (the window's first paint goes first):
    // what the menu says now is written once, changed or not.
    if (guiTextLogEnabled())
        logLines();
    m_poller->schedule(kFirstPollMs);
    m_operations->fetchKillSwitch();
    m_menuSession->prewarm();
}

void TovraTrayApp::setControlAvailable(bool available, const QString &reason)
{
    if (available == m_daemonAvailable && reason.isEmpty())
        return;
    m_daemonAvailable = available;
    m_unavailableReason = reason;
    m_poller->setAvailable(available);
    if (!reason.isEmpty())
        m_menu.daemonLine->setText(reason);
    // An unreachable daemon stays so until a poll answers; that poll tells the window.
    if (!available || !m_daemonUnreachable)
        Q_EMIT daemonReachabilityChanged(available ? QString() : reason);
    if (!available) {
        redraw();
        return;
    }
    redraw();
    if (m_started && !m_poller->isFetching() && !operationInFlight())
        m_poller->schedule(kFirstPollMs);
}

bool TovraTrayApp::operationInFlight() const
{
    return m_operations->inFlight();
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
    m_logOpener->setUrlOpener(std::move(opener));
}

void TovraTrayApp::handleTrayActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::DoubleClick || reason == QSystemTrayIcon::Trigger)
        Q_EMIT openTovraRequested();
}

void TovraTrayApp::handleOperationStarted(const QString &statusText)
{
    m_poller->stop();
    m_menu.statusLine->setText(statusText);
    updateEnabledStates();
}

void TovraTrayApp::finishOperation()
{
    m_poller->schedule(kAfterOperationMs);
    redraw();
}

// ---- status ----

void TovraTrayApp::applyStatus(const RuntimeInfo &info, const QString &errorMessage)
{
    if (!errorMessage.isEmpty() || !info.valid) {
        showDaemonUnavailable(errorMessage);
        return;
    }
    const bool recovered = m_daemonUnreachable || !m_statusApplied;
    m_daemonUnreachable = false;
    m_statusApplied = true;
    if (recovered) {
        m_menu.daemonLine->setText(TrayStatusFormatter::daemonLine(info));
        Q_EMIT daemonReachabilityChanged(QString());
    }
    m_state->setRuntime(info);
    if (info.killSwitch.valid)
        m_state->setKillSwitch(info.killSwitch);
    m_accountLookup->follow(info);
    if (!m_state->nodes().valid)
        m_nodeLoader->load(false);
    else // a groups answer lost to a daemon fault is asked for again with each poll
        m_nodeLoader->loadMissingGroups();
    redraw();
}

void TovraTrayApp::showDaemonUnavailable(const QString &errorMessage)
{
    if (!m_daemonAvailable) {
        m_menu.refreshStatus->setEnabled(false);
        return;
    }
    m_daemonUnreachable = true;
    m_painter->drawUnavailable(errorMessage, situation());
    Q_EMIT daemonReachabilityChanged(m_menu.daemonLine->text());
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
    if (!m_started) // start() draws what the state is by then
        return;
    m_nodeLoader->updateEntries();
    if (m_daemonAvailable && m_daemonUnreachable) {
        showDaemonUnavailable(m_menu.daemonLine->text());
        return;
    }
    m_painter->draw(situation());
}

TrayMenuPainter::Situation TovraTrayApp::situation() const
{
    return {m_daemonAvailable, m_daemonUnreachable, m_accountLookup->state()};
}

void TovraTrayApp::updateEnabledStates()
{
    m_painter->updateEnabledStates(situation());
}

void TovraTrayApp::updateRefreshNodesEntry()
{
    m_painter->updateRefreshNodesEntry(situation());
}

// ---- menu open and close ----

void TovraTrayApp::handleMenuOpened()
{
    m_menuOpen = true;
    m_poller->holdAnswers();
}

void TovraTrayApp::handleMenuClosed()
{
    m_menuOpen = false;
    if (m_poller->releaseHeld())
        return;
    if (m_redrawPending)
        redraw();
}
