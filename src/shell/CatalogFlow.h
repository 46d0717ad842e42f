#pragma once

#include "ShellContext.h"

#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"

#include <QObject>
#include <QTimer>

// The location catalogue: node and node-group fetches that never overlap, the node ping poll
// while pings are still arriving, and the status poll that waits out a daemon-side refresh.
class CatalogFlow : public QObject
{
    Q_OBJECT

public:
    static constexpr int kNodePingIntervalMs = 5000;
    static constexpr int kNodePingBudget = 36; // three minutes
    static constexpr int kCatalogPollIntervalMs = 1000;
    static constexpr int kQuickTimeoutMs = 1500;
    static constexpr int kRefreshTimeoutMs = 30000;

    explicit CatalogFlow(const ShellContext &context, QObject *parent = nullptr);

    // False when another nodes or node-groups fetch is running; the fetch is then deferred.
    bool fetchNodes(bool refresh = false);
    void fetchNodeGroups(bool userVisible);
    void refreshLocations();
    void setFavorite(const QString &nodeID, bool favorite);

    void armNodePingPoll();
    void pollNodePing();
    void startCatalogRefreshPoll(int budget);
    void pollCatalogRefresh();

    void handleNodes(quint64 requestId, const NodesInfo &nodes, const QString &errorMessage);
    void handleNodeGroups(quint64 requestId, const NodeGroupsInfo &groups,
                          const QString &errorMessage);
    // The catalogue poll's status answers; returns false when the answer was not its own.
    bool handleStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);

    bool nodesFetchInFlight() const;
    bool nodeGroupsFetchInFlight() const;
    bool deferredNodesFetch() const { return m_deferredNodesFetch; }
    bool refreshInProgress() const { return m_refreshInProgress; }
    int nodePingBudget() const { return m_nodePingBudget; }
    int catalogPollBudget() const { return m_catalogPollBudget; }
    bool nodePingPollActive() const { return m_nodePingTimer.isActive(); }

private:
    void startDeferredFetch();
    bool pingsStillArriving() const;

    ShellContext m_context;
    QTimer m_nodePingTimer;
    QTimer m_catalogPollTimer;
    int m_nodePingBudget = 0;
    int m_catalogPollBudget = 0;
    bool m_deferredNodesFetch = false;
    bool m_deferredRefresh = false;
    bool m_refreshInProgress = false;
    bool m_refreshRequested = false; // the nodes fetch in flight is a forced refresh
    bool m_groupsUserVisible = false;
    bool m_favoriteRequest = false;
};
