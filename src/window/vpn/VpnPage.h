#pragma once

#include "ConnectionAnnouncements.h"
#include "KillSwitchInfo.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"
#include "VpnStatusSummary.h"
#include "WindowPage.h"

#include <functional>

class AccessibleAnnouncer;
class QTimer;
class CatalogTreeModel;
class GuiPreferences;
class QuickEntryField;
class RecentActivityStore;
class VpnRecentLocations;
class VpnStatusCard;
struct RecentLocation;

// Page 0: whether the user is protected and where they appear to be, the one action that fits,
// a search that connects in a few keys, the recent locations and the kill switch.
class VpnPage : public WindowPage
{
    Q_OBJECT

public:
    // Without preferences there are no recent lists.
    explicit VpnPage(GuiPreferences *preferences, QWidget *parent = nullptr);

    void refresh(const AppState &state) override;
    Records reads() const override;
    void applyTheme(const ThemeColors &colors) override;

    // Stops a pending search and hides the quick-entry popup; called when the page is left.
    void closeQuickEntryPopup();
    // The window's search key: into the quick connect field, its list open.
    void focusSearch();
    bool isQuickEntryPopupOpen() const;

    void setDaemonUnavailableReason(const QString &reason);
    void setConnectInProgress(bool inProgress, const QString &targetId, const QString &label);
    // Seam for tests: the kill switch's VPN-mode question (1, 2 or 0).
    void setKillSwitchConfirm(std::function<int(QWidget *)> confirm);

    const VpnStatusSummary &summary() const { return m_summary; }
    VpnStatusCard *statusCard() const { return m_status; }
    AccessibleAnnouncer *announcer() const { return m_announcer; }
    // A change of state waits a moment before it is spoken, in case it is gone at once.
    bool hasPendingAnnouncement() const;
    QuickEntryField *quickEntry() const { return m_search; }
    VpnRecentLocations *recentLocations() const { return m_recentCard; }

Q_SIGNALS:
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void connectNodeRequested(QString nodeID, QString label);
    void recentConnectionsCleared();
    void connectSmartRequested(QString selector);
    void pendingConnectTargetChanged(QString nodeID, QString label);
    void setKillSwitchEnabledRequested(bool enabled);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    // Signed out, connecting starts with signing in.
    void accountPageRequested();

private:
    void redraw();
    void updatePrimaryAction();
    void updateKillSwitch();
    void triggerPrimaryAction();
    void connectTo(const QString &target, const QString &label, bool group);
    void handleKillSwitchToggle(bool enabled);
    void clearRecentLocations();
    void speakPendingLine();

    RecentActivityStore *m_recent = nullptr;
    CatalogTreeModel *m_catalog;
    VpnStatusCard *m_status;
    QuickEntryField *m_search;
    VpnRecentLocations *m_recentCard;

    RuntimeInfo m_runtime;
    NodesInfo m_nodes;
    NodeGroupsInfo m_groups;
    bool m_catalogLive = false; // m_catalog follows m_groups and m_nodes
    KillSwitchInfo m_killSwitch;
    QString m_unavailableReason;
    VpnStatusSummary::PendingConnect m_pending;
    VpnStatusSummary m_summary;
    ConnectionAnnouncements m_announcements;
    AccessibleAnnouncer *m_announcer;
    QTimer *m_announceDelay;
    ConnectionAnnouncements::Line m_pendingLine;
    QString m_spokenText;
    bool m_refreshed = false;
    std::function<int(QWidget *)> m_confirm;
};
