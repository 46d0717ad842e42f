#include "TrayNodeLoader.h"

#include "BidiText.h"
#include "TrayLog.h"
#include "TrayMenuText.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "LocationResolver.h"
#include "TrayNodeMenuModel.h"
#include "TrayNotifier.h"
#include "TrayRequestIds.h"
#include "TrayStatusFormatter.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <QLoggingCategory>

namespace {

constexpr int kRefreshMs = 30000;

using Kind = TrayRequestIds::Kind;

} // namespace

TrayNodeLoader::TrayNodeLoader(AppState *state, ControlWorker *worker, GuiPreferences *preferences,
                               TrayRequestIds *ids, const TrayMenu &menu, TrayNodeMenuModel *model,
                               TrayNotifier *notifier, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_worker(worker)
    , m_preferences(preferences)
    , m_ids(ids)
    , m_menu(menu)
    , m_model(model)
    , m_notifier(notifier)
{}

void TrayNodeLoader::load(bool refresh)
{
    if (isLoading())
        return;
    (refresh ? m_refreshInFlight : m_loadInFlight) = true;
    const quint64 id = m_ids->take(Kind::Nodes);
    QMetaObject::invokeMethod(m_worker, "fetchNodes", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(bool, refresh),
                              Q_ARG(int, refresh ? kRefreshMs : kTrayFetchTimeoutMs));
    updateEntries();
    Q_EMIT loadStarted();
}

void TrayNodeLoader::refresh()
{
    if (isLoading() || m_state->nodesRefreshCooldown() > 0)
        return;
    m_state->startNodesRefreshCooldown(kCooldownSeconds);
    load(true);
}

void TrayNodeLoader::handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                                         const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Nodes, requestId))
        return;
    const bool refresh = m_refreshInFlight;
    m_loadInFlight = false;
    m_refreshInFlight = false;
    if (errorMessage.isEmpty()) {
        m_error.clear();
        m_state->setNodes(nodes);
        if (refresh || !m_state->nodeGroups().valid) {
            m_groupsRefresh = refresh;
            loadGroups();
        }
    } else {
        m_error = refresh ? TrayMenuText::tr("Could not refresh nodes")
                          : TrayMenuText::tr("Could not load nodes");
        m_notifier->notify(m_error);
    }
    Q_EMIT nodesAnswered();
}

void TrayNodeLoader::loadMissingGroups()
{
    if (!isLoading() && m_state->nodes().valid && !m_state->nodeGroups().valid)
        loadGroups();
}

void TrayNodeLoader::loadGroups()
{
    if (m_groupsInFlight)
        return;
    m_groupsInFlight = true;
    const quint64 id = m_ids->take(Kind::NodeGroups);
    QMetaObject::invokeMethod(m_worker, "fetchNodeGroups", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kTrayFetchTimeoutMs));
}

void TrayNodeLoader::handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                              const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::NodeGroups, requestId))
        return;
    m_groupsInFlight = false;
    if (errorMessage.isEmpty()) {
        m_state->setNodeGroups(groups);
    } else {
        qCWarning(lcTray).noquote() << "Could not load node groups:" << errorMessage;
        m_notifier->notify(m_groupsRefresh ? TrayMenuText::tr("Could not refresh node groups")
                                           : TrayMenuText::tr("Could not load node groups"));
    }
    m_groupsRefresh = false;
}

void TrayNodeLoader::updateEntries()
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
    // The plan first, so that the catalogue is laid out once for it.
    m_model->setAvailableTiers(LocationResolver::tiersFor(m_state->user()));
    m_model->setCatalog(nodes, m_state->nodeGroups(), recentIds);
    m_model->setConnection(TrayStatusFormatter::isConnected(runtime), runtime.connectedSince,
                           QDateTime::currentDateTimeUtc());

    QString placeholder;
    if (m_refreshInFlight)
        placeholder = TrayMenuText::tr("Refreshing nodes...");
    else if (m_loadInFlight)
        placeholder = TrayMenuText::tr("Loading nodes...");
    else if (!nodes.valid)
        placeholder = m_error.isEmpty() ? TrayMenuText::tr("Nodes not loaded") : m_error;
    else if (nodes.nodes.isEmpty())
        placeholder =
            nodes.stale ? TrayMenuText::tr("No cached nodes") : TrayMenuText::tr("No nodes");
    m_menu.nodePlaceholder->setText(placeholder);
    m_menu.nodePlaceholder->setVisible(!placeholder.isEmpty() || m_model->rowCount() == 0);

    if (nodes.valid) {
        m_menu.currentLine->setText(m_model->currentLine());
    } else if (isLoading()) {
        m_menu.currentLine->setText(TrayMenuText::tr("Current: loading..."));
    } else {
        // Without the catalogue the status record's own reference to the node still tells.
        QString reference = runtime.connectedNode.trimmed();
        if (reference.isEmpty())
            reference = runtime.selectedNode.trimmed();
        m_menu.currentLine->setText(
            TrayMenuText::tr("Current: %1")
                .arg(reference.isEmpty() ? TrayMenuText::tr("none") : isolated(reference)));
    }
}

void TrayNodeLoader::fillActions()
{
    const int rows = m_model->rowCount();
    for (int i = 0; i < m_menu.nodeEntries.size(); ++i) {
        QAction *entry = m_menu.nodeEntries.at(i);
        if (i < rows) {
            const QModelIndex index = m_model->index(i);
            entry->setText(index.data(Qt::DisplayRole).toString());
            entry->setData(index.data(TrayNodeMenuModel::NodeIdRole));
            const bool locked = index.data(TrayNodeMenuModel::LockedRole).toBool();
            entry->setProperty(kLockedProperty, locked);
            entry->setEnabled(!locked);
            entry->setVisible(true);
        } else {
            entry->setVisible(false);
        }
    }
    m_menu.nodeFootSeparator->setVisible(rows > 0);
    m_menu.nodePlaceholder->setVisible(rows == 0 || !m_menu.nodePlaceholder->text().isEmpty());
}

int TrayNodeLoader::releaseActions()
{
    int visible = 0;
    for (QAction *entry : std::as_const(m_menu.nodeEntries)) {
        if (entry->isVisible())
            ++visible;
        entry->setVisible(false);
        entry->setText(QString());
        entry->setData(QVariant());
        entry->setProperty(kLockedProperty, false);
    }
    m_menu.nodeFootSeparator->setVisible(false);
    return visible;
}

void TrayNodeLoader::updateRefreshEntry(bool usable)
{
    const int cooldown = m_state->nodesRefreshCooldown();
    m_menu.refreshNodes->setText(cooldown > 0
                                     ? TrayMenuText::tr("Refresh Nodes (%1s)").arg(cooldown)
                                     : TrayMenuText::tr("Refresh Nodes"));
    m_menu.refreshNodes->setEnabled(usable && !isLoading() && cooldown == 0);
}
