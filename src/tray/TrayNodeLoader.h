#pragma once

#include "TrayMenu.h"

#include <QObject>
#include <QString>

class AppState;
class ControlWorker;
class GuiPreferences;
class TrayNodeMenuModel;
class TrayNotifier;
class TrayRequestIds;
struct NodeGroupsInfo;
struct NodesInfo;

// The node catalogue and its groups as the tray sees them: loads them once the status is
// known, refreshes them on request (then not again within the cooldown), and fills the node
// entries, their placeholder, the "Current" line and the refresh entry from the records.
class TrayNodeLoader : public QObject
{
    Q_OBJECT

public:
    static constexpr int kCooldownSeconds = 60;
    // Set on a node entry the plan does not include: it stays disabled and never connects.
    static constexpr char kLockedProperty[] = "tovraLocked";

    TrayNodeLoader(AppState *state, ControlWorker *worker, GuiPreferences *preferences,
                   TrayRequestIds *ids, const TrayMenu &menu, TrayNodeMenuModel *model,
                   TrayNotifier *notifier, QObject *parent = nullptr);

    bool isLoading() const { return m_loadInFlight || m_refreshInFlight; }

    // Asks for the catalogue unless a load or refresh is under way; refresh asks the daemon
    // to fetch a fresh one.
    void load(bool refresh);
    // Fetches the node groups alone, when nodes are known but their groups never arrived.
    void loadMissingGroups();
    // A refresh, unless one is under way or the cooldown still runs; starts the cooldown.
    void refresh();

    void handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                             const QString &errorMessage);
    void handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                  const QString &errorMessage);

    // The model, the placeholder and the "Current" line.
    void updateEntries();
    // Copies the model's rows into the node entries; done as the node menu opens.
    void fillActions();
    // Empties and hides the node entries; returns how many were visible.
    int releaseActions();
    // usable: the daemon reachable, its status known and nothing in flight.
    void updateRefreshEntry(bool usable);

Q_SIGNALS:
    // A load or refresh went out; the refresh entry follows.
    void loadStarted();
    // An answer to a catalogue request was taken in.
    void nodesAnswered();

private:
    void loadGroups();

    AppState *m_state;
    ControlWorker *m_worker;
    GuiPreferences *m_preferences;
    TrayRequestIds *m_ids;
    TrayMenu m_menu;
    TrayNodeMenuModel *m_model;
    TrayNotifier *m_notifier;

    bool m_loadInFlight = false;
    bool m_refreshInFlight = false;
    bool m_groupsInFlight = false;
    bool m_groupsRefresh = false;
    QString m_error;
};
