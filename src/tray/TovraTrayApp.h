#pragma once

#include "ConfigPaths.h"
#include "KillSwitchInfo.h"
#include "ModeInfo.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"
#include "TrayMenu.h"
#include "TrayMenuPainter.h"
#include "TrayOperations.h"
#include "TrayRequestIds.h"
#include "TrayStatusPoller.h"
#include "UserInfo.h"

#include <QObject>
#include <QString>
#include <QSystemTrayIcon>
#include <QUrl>

#include <functional>
#include <memory>

class AppState;
class ControlWorker;
class GuiPreferences;
class TrayAccountLookup;
class TrayIcon;
class TrayLogOpener;
class TrayMenuSession;
class TrayModeActions;
class TrayNodeLoader;
class TrayNodeMenuModel;
class TrayNotifier;

// The system-tray face of the program: one icon, its menu and a status poll. It asks the
// worker itself for what it can do alone and asks the shell, by signals, for anything that
// needs a window or the shell's connect and sign-out flows.
// Construction, status and drawing are in TovraTrayApp.cpp; the actions it takes and the
// worker's answers in TovraTrayAppActions.cpp.
class TovraTrayApp : public QObject
{
    Q_OBJECT

public:
    static constexpr int kFirstPollMs = 250;
    static constexpr int kPollMs = TrayStatusPoller::kIntervalMs;
    static constexpr int kAfterOperationMs = 250;

    TovraTrayApp(AppState *state, ControlWorker *controlWorker, GuiPreferences *preferences,
                 QObject *parent = nullptr);
    ~TovraTrayApp() override;

    // Menu on the icon, tooltip, icon shown, first poll after 250 ms when the daemon may be used.
    void start();

    // The shell's verdict on whether the daemon may be used at all (compatibility check).
    void setControlAvailable(bool available, const QString &reason);
    bool isControlAvailable() const { return m_daemonAvailable; }
    // Unavailable, or a connect, disconnect, mode, kill-switch or logout operation in flight.
    bool isBusy() const;

    // The shell started these operations with its own request ids; the tray disables its
    // entries, shows the text and watches the worker for the answer with that id.
    void beginConnect(quint64 requestId, const QString &statusText, bool cancellable);
    void beginDisconnect(quint64 requestId);
    void beginLogout(quint64 requestId);

    // The label the menu shows for a node of the current catalogue (the id itself when the
    // catalogue does not hold it).
    QString connectTargetLabel(const QString &nodeId) const;
    // The target named while connecting, until the connect's answer. The shell records it only
    // once the connect has really started, so a refused one never renames a running connect.
    void recordConnectTarget(const QString &nodeId, const QString &label);

    // Seams for the two things a test cannot answer headless: the kill-switch confirmation
    // (1, 2 or 0) and the desktop's opener for the log directory.
    void setKillSwitchConfirm(std::function<int()> confirm);
    void setUrlOpener(std::function<bool(const QUrl &)> opener);

    const TrayMenu &menu() const { return m_menu; }
    TrayNodeMenuModel *nodeMenuModel() const { return m_nodeModel; }
    TrayIcon *trayIcon() const { return m_icon; }
    bool isMenuOpen() const { return m_menuOpen; }

Q_SIGNALS:
    void openTovraRequested();
    void openLocationsRequested();
    void accountRequested();
    void logoutRequested();
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void connectNodeRequested(const QString &nodeID, const QString &label);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    // Empty once the daemon answers again; else why it cannot be used (its own words).
    void daemonReachabilityChanged(const QString &unavailableReason);

public Q_SLOTS:
    void refreshStatus();
    void handleTrayActivated(QSystemTrayIcon::ActivationReason reason);
    void openLogs();
    void logoutAccount();
    void connectRuntime();
    void refreshNodes();
    void disconnectRuntime();
    void setMode(const ModeInfo &mode, const QString &statusText);
    void setKillSwitchEnabled(bool enabled);
    void setProxyRoutingDefault(const QString &route);
    void setProxyRoutingRegion(const QString &region);
    void setProxyRoutingGFWList(bool enabled);
    void setLocalNetworkPreference(const QString &value);
    void setSystemProxyPreference(const QString &value);
    void setTovraSplitDefaultRoute(const QString &route);
    void setTovraSplitRegion(const QString &region);
    void setTovraSplitGFWList(bool enabled);
    void setTovraSplitCustomRules(bool enabled);

    void handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage);
    void handleUserFinished(quint64 requestId, const UserInfo &user, const QString &errorMessage);
    void handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                             const QString &errorMessage);
    void handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                  const QString &errorMessage);
    void handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                   const QString &errorMessage);
    void handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                  const QString &errorMessage);
    void handleConnectFinished(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage);
    void handleDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                  const QString &errorMessage);
    void handleLogoutFinished(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage);
    void handleModeFinished(quint64 requestId, const ModeInfo &mode, const QString &errorMessage);

    void handleRuntimeStateChanged();
    void handleUserStateChanged();
    void handleNodesStateChanged();
    void handleNodeGroupsStateChanged();
    void handleKillSwitchStateChanged();
    void handleNodesRefreshCooldownChanged(int secondsRemaining);

private:
    void connectWorker();
    void connectState();
    void connectMenu();
    void connectCollaborators();

    bool operationInFlight() const;
    void sendModeChange(const ModeInfo &mode, const QString &statusText,
                        TrayOperations::ModeChange change);
    void handleOperationStarted(const QString &statusText);
    void finishOperation();

    // Redraw from the records (nothing here sends a request).
    void redraw();
    // While the menu is open nothing changes under the pointer; the redraw waits for the close.
    void redrawOrDefer();
    void applyStatus(const RuntimeInfo &info, const QString &errorMessage);
    void showDaemonUnavailable(const QString &errorMessage);
    TrayMenuPainter::Situation situation() const;
    void updateEnabledStates();
    void updateRefreshNodesEntry();
    void handleMenuOpened();
    void handleMenuClosed();

    ModeInfo currentMode() const;

    AppState *m_state;
    ControlWorker *m_worker;
    GuiPreferences *m_preferences;

    TrayMenu m_menu;
    std::unique_ptr<QMenu> m_menuOwner;
    TrayIcon *m_icon;
    TrayModeActions *m_modeActions;
    TrayNodeMenuModel *m_nodeModel;
    std::unique_ptr<TrayNotifier> m_notifier;
    TrayRequestIds m_ids;
    TrayOperations *m_operations;
    TrayStatusPoller *m_poller;
    TrayNodeLoader *m_nodeLoader;
    TrayMenuSession *m_menuSession;
    std::unique_ptr<TrayMenuPainter> m_painter;
    std::unique_ptr<TrayLogOpener> m_logOpener;
    std::unique_ptr<TrayAccountLookup> m_accountLookup;

    bool m_started = false;
    bool m_daemonAvailable = true;
    QString m_unavailableReason;
    bool m_daemonUnreachable = false;
    bool m_statusApplied = false;

    bool m_menuOpen = false;
    bool m_redrawPending = false;

    std::function<int()> m_killSwitchConfirm;
};
