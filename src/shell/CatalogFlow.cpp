#include "CatalogFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"

using Kind = RequestLedger::Kind;

namespace {

constexpr int kRefreshCooldownS = 60;
constexpr int kFavoriteTimeoutMs = 5000;

} // namespace

CatalogFlow::CatalogFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{
    m_nodePingTimer.setSingleShot(true);
    m_catalogPollTimer.setSingleShot(true);
    connect(&m_nodePingTimer, &QTimer::timeout, this, &CatalogFlow::pollNodePing);
    connect(&m_catalogPollTimer, &QTimer::timeout, this, &CatalogFlow::pollCatalogRefresh);
}

bool CatalogFlow::nodesFetchInFlight() const
{
    return m_context.ledger->inFlight(Kind::Nodes);
}

bool CatalogFlow::nodeGroupsFetchInFlight() const
{
    return m_context.ledger->inFlight(Kind::NodeGroups);
}

bool CatalogFlow::fetchNodes(bool refresh)
{
    // A fetch runs again (now or after the one in flight): the views wait for it.
    m_context.state->setNodesFetchError(QString());
    if (nodesFetchInFlight() || nodeGroupsFetchInFlight()) {
        m_deferredNodesFetch = true;
        m_deferredRefresh = m_deferredRefresh || refresh;
        return false;
    }
    m_deferredNodesFetch = false;
    m_deferredRefresh = false;
    m_refreshRequested = refresh;
    m_favoriteRequest = false;
    if (refresh) // a forced refresh measures every ping itself
        m_nodePingTimer.stop();
    const quint64 id = m_context.ledger->issue(Kind::Nodes);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchNodes", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(bool, refresh),
                              Q_ARG(int, refresh ? kRefreshTimeoutMs : kQuickTimeoutMs));
    return true;
}

void CatalogFlow::fetchNodeGroups(bool userVisible)
{
    m_groupsUserVisible = m_groupsUserVisible || userVisible;
    if (nodeGroupsFetchInFlight())
        return;
    const quint64 id = m_context.ledger->issue(Kind::NodeGroups);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchNodeGroups", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kQuickTimeoutMs));
}

void CatalogFlow::refreshLocations()
{
    if (m_refreshInProgress)
        return;
    m_context.state->startNodesRefreshCooldown(kRefreshCooldownS);
    m_context.notifier->info(ShellText::tr("Refreshing locations..."));
    m_refreshInProgress = true;
    // When another fetch is running, the refresh follows it as a forced one.
    fetchNodes(true);
}

void CatalogFlow::setFavorite(const QString &nodeID, bool favorite)
{
    if (m_refreshInProgress) {
        m_context.notifier->info(ShellText::tr("A locations update is already in progress"));
        return;
    }
    const QString id = nodeID.trimmed();
    if (id.isEmpty())
        return;
    m_favoriteRequest = true;
    const quint64 requestId = m_context.ledger->issue(Kind::Nodes);
    QMetaObject::invokeMethod(m_context.workers->control(), "setNodeFavorite", Qt::QueuedConnection,
                              Q_ARG(quint64, requestId), Q_ARG(QString, id), Q_ARG(bool, favorite),
                              Q_ARG(int, kFavoriteTimeoutMs));
}

void CatalogFlow::handleNodes(quint64 requestId, const NodesInfo &nodes,
                              const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Nodes, requestId))
        return;
    const bool favorite = m_favoriteRequest;
    const bool refresh = m_refreshRequested;
    m_favoriteRequest = false;
    m_refreshRequested = false;
    if (!errorMessage.isEmpty()) {
        if (favorite) {
            m_context.notifier->error(failureText(
                errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update favorite")));
        } else if (refresh) {
            m_refreshInProgress = false;
            m_context.notifier->error(failureText(
                errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not refresh locations")));
        }
        if (!m_context.state->nodes().valid) {
            // Nothing to show and nothing refreshed: the user may try again at once.
            m_context.state->setNodesFetchError(errorMessage);
            m_context.state->startNodesRefreshCooldown(0);
        }
        startDeferredFetch();
        return;
    }
    m_context.state->setNodes(nodes);
    if (refresh) // the list changed under the groups: reload them as the user asked
        fetchNodeGroups(true);
    else
        startDeferredFetch();
    if (m_nodePingBudget > 0 && !pingsStillArriving())
        m_nodePingBudget = 0;
}

void CatalogFlow::handleNodeGroups(quint64 requestId, const NodeGroupsInfo &groups,
                                   const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::NodeGroups, requestId))
        return;
    const bool userVisible = m_groupsUserVisible;
    m_groupsUserVisible = false;
    if (userVisible) {
        m_refreshInProgress = false;
    }
    if (!errorMessage.isEmpty()) {
        if (userVisible)
            m_context.notifier->error(
                failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell",
                                                            "Could not refresh location groups")));
        startDeferredFetch();
        return;
    }
    m_context.state->setNodeGroups(groups);
    if (userVisible) {
        if (pingsStillArriving())
            armNodePingPoll();
        m_context.notifier->success(ShellText::tr("Locations updated"), 5000);
    }
    startDeferredFetch();
}

void CatalogFlow::startDeferredFetch()
{
    if (m_deferredNodesFetch && !nodesFetchInFlight() && !nodeGroupsFetchInFlight())
        fetchNodes(m_deferredRefresh);
}

// Pings arrive progressively after a refresh; polling is only worth it while some are missing.
bool CatalogFlow::pingsStillArriving() const
{
    const NodesInfo &nodes = m_context.state->nodes();
    if (nodes.pingRunning)
        return true;
    for (const NodeEntry &node : nodes.nodes) {
        if (node.pingMs < 0)
            return true;
    }
    return false;
}

void CatalogFlow::armNodePingPoll()
{
    m_nodePingBudget = kNodePingBudget;
    m_nodePingTimer.start(kNodePingIntervalMs);
}

void CatalogFlow::pollNodePing()
{
    if (m_nodePingBudget <= 0)
        return;
    if (nodesFetchInFlight() || nodeGroupsFetchInFlight()) {
        m_nodePingTimer.start(kNodePingIntervalMs);
        return;
    }
    --m_nodePingBudget;
    fetchNodes(false);
    if (m_nodePingBudget > 0)
        m_nodePingTimer.start(kNodePingIntervalMs);
}

void CatalogFlow::startCatalogRefreshPoll(int budget)
{
    m_catalogPollBudget = budget;
    pollCatalogRefresh();
}

void CatalogFlow::pollCatalogRefresh()
{
    if (m_catalogPollBudget < 1) {
        m_catalogPollTimer.stop();
        fetchNodes(false);
        return;
    }
    if (m_context.ledger->inFlight(Kind::Status)) {
        m_catalogPollTimer.start(kCatalogPollIntervalMs);
        return;
    }
    --m_catalogPollBudget;
    const quint64 id = m_context.ledger->issue(Kind::Status);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchStatus", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kQuickTimeoutMs));
}

bool CatalogFlow::handleStatus(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Status, requestId))
        return false;
    if (errorMessage.isEmpty())
        m_context.state->setRuntime(info);
    if (errorMessage.isEmpty() && info.catalogRefresh == QLatin1String("refreshing") &&
        m_catalogPollBudget > 0) {
        m_catalogPollTimer.start(kCatalogPollIntervalMs);
        return true;
    }
    m_catalogPollTimer.stop();
    m_catalogPollBudget = 0;
    fetchNodes(false);
    return true;
}
