#include "CatalogTreeBuilder.h"

#include "Countries.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

const QString kFavoriteTag = QStringLiteral("FAVORITE");

bool isAllTab(const QString &tab)
{
    return tab.isEmpty() || tab == QLatin1String("all");
}

} // namespace

CatalogTreeBuilder::CatalogTreeBuilder(const NodeGroupsInfo &groups, const NodesInfo &nodes,
                                       const Options &options)
    : m_groups(groups)
    , m_nodes(nodes)
    , m_options(options)
{
    m_options.tab = m_options.tab.trimmed().toLower();
    const qsizetype count = m_nodes.nodes.size();
    m_nodeIndex.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        const NodeEntry &node = m_nodes.nodes.at(i);
        // The first entry of an id wins; entries without an id cannot be addressed.
        if (node.valid && !node.id.isEmpty() && !m_nodeIndex.contains(node.id))
            m_nodeIndex.insert(node.id, int(i));
    }
    m_listed.assign(size_t(count), false);
    m_seenIn.assign(size_t(count), -1);
    if (!isAllTab(m_options.tab) && m_options.tab != QLatin1String("favorite")) {
        for (const NodeGroupTab &tab : m_groups.tabs) {
            if (tab.groupType.trimmed().toLower() == m_options.tab) {
                m_tabById = true;
                for (const QString &id : tab.nodeIds)
                    m_tabIds.insert(id);
            }
        }
    }
}

QString CatalogTreeBuilder::tierOf(const NodeEntry &node)
{
    for (const QString &tag : node.tags) {
        if (tag.compare(QLatin1String("SVIP"), Qt::CaseInsensitive) == 0)
            return QStringLiteral("SVIP");
        if (tag.compare(QLatin1String("FREE"), Qt::CaseInsensitive) == 0)
            return QStringLiteral("FREE");
    }
    return node.type.trimmed().toUpper();
}

bool CatalogTreeBuilder::isFavorite(const NodeEntry &node)
{
    return node.tags.contains(kFavoriteTag, Qt::CaseInsensitive);
}

bool CatalogTreeBuilder::isLocked(const QString &tier, const QStringList &tiers)
{
    return !tiers.isEmpty() && !tier.isEmpty() && !tiers.contains(tier, Qt::CaseInsensitive);
}

QString CatalogTreeBuilder::nodeLabel(const NodeEntry &node)
{
    const QString name = node.name.trimmed();
    if (!name.isEmpty())
        return name;
    return QCoreApplication::translate("CatalogTreeModel", "Location %1").arg(node.id);
}

bool CatalogTreeBuilder::inTab(int nodeIndex) const
{
    const NodeEntry &node = m_nodes.nodes.at(nodeIndex);
    if (isAllTab(m_options.tab))
        return true;
    if (m_options.tab == QLatin1String("favorite"))
        return isFavorite(node);
    if (m_tabById)
        return m_tabIds.contains(node.id);
    // A tab the daemon did not send: a tier word still narrows by tier.
    return tierOf(node).compare(m_options.tab, Qt::CaseInsensitive) == 0;
}

CatalogBlueprint CatalogTreeBuilder::makeNode(int nodeIndex) const
{
    const NodeEntry &node = m_nodes.nodes.at(nodeIndex);
    CatalogBlueprint row;
    row.id = node.id;
    row.node = &node;
    row.label = nodeLabel(node);
    row.region = node.region.trimmed().toLower();
    row.bestPingMs = node.pingMs >= 0 ? node.pingMs : -1;
    row.nodeCount = 1;
    row.lockedCount = isLocked(tierOf(node), m_options.tiers) ? 1 : 0;
    return row;
}

void CatalogTreeBuilder::addGroup(std::vector<CatalogBlueprint> &siblings,
                                  const NodeGroupEntry &group)
{
    CatalogBlueprint row;
    row.group = true;
    row.id = group.id.trimmed();
    if (row.id.isEmpty())
        row.id = group.code.trimmed();
    row.entry = &group;
    // A group id twice under one parent: the first one stands.
    for (const CatalogBlueprint &sibling : siblings) {
        if (sibling.group && sibling.id == row.id)
            return;
    }
    for (const NodeGroupEntry &subgroup : group.subgroups)
        addGroup(row.children, subgroup);
    const int serial = ++m_groupSerial;
    for (const QString &id : group.nodeIds) {
        const auto found = m_nodeIndex.constFind(id.trimmed());
        if (found == m_nodeIndex.cend())
            continue; // the groups name a node the list does not have
        const int index = found.value();
        m_listed[size_t(index)] = true;
        if (m_seenIn[size_t(index)] == serial || !inTab(index))
            continue;
        m_seenIn[size_t(index)] = serial;
        row.children.push_back(makeNode(index));
    }
    // Groups with nothing to show in this tab are left out.
    if (!row.children.empty())
        siblings.push_back(std::move(row));
}

void CatalogTreeBuilder::summarize(CatalogBlueprint &group)
{
    group.bestPingMs = -1;
    group.nodeCount = 0;
    group.lockedCount = 0;
    bool first = true;
    QString region;
    for (CatalogBlueprint &child : group.children) {
        if (child.group)
            summarize(child);
        if (child.bestPingMs >= 0 && (group.bestPingMs < 0 || child.bestPingMs < group.bestPingMs))
            group.bestPingMs = child.bestPingMs;
        group.nodeCount += child.nodeCount;
        group.lockedCount += child.lockedCount;
        if (first)
            region = child.region;
        else if (region != child.region)
            region.clear();
        first = false;
    }
    if (group.entry) {
        group.region = region;
        group.country = !region.isEmpty() && group.entry->code.trimmed().toLower() == region;
    } else { // our own groups stand for the region in their id ("region:xx")
        group.region = group.id.mid(7);
        group.country = !group.region.isEmpty();
    }
}

void CatalogTreeBuilder::placeUnlisted(std::vector<CatalogBlueprint> &top)
{
    // The outermost group that stands for a country, by region, in the tree's order.
    QHash<QString, CatalogBlueprint *> countries;
    std::vector<CatalogBlueprint *> queue;
    for (CatalogBlueprint &row : top)
        queue.push_back(&row);
    for (size_t i = 0; i < queue.size(); ++i) {
        CatalogBlueprint *row = queue[i];
        if (row->country && !countries.contains(row->region))
            countries.insert(row->region, row);
        for (CatalogBlueprint &child : row->children) {
            if (child.group)
                queue.push_back(&child);
        }
    }
    // Our own groups gather apart: appending to top now would move the rows pointed at above.
    std::vector<CatalogBlueprint> own;
    QHash<QString, size_t> ownByRegion;
    for (qsizetype i = 0; i < m_nodes.nodes.size(); ++i) {
        const int index = int(i);
        const NodeEntry &node = m_nodes.nodes.at(i);
        if (m_listed[size_t(index)] || !node.valid || m_nodeIndex.value(node.id, -1) != index ||
            !inTab(index))
            continue;
        CatalogBlueprint leaf = makeNode(index);
        if (CatalogBlueprint *country = countries.value(leaf.region)) {
            country->children.push_back(std::move(leaf));
            continue;
        }
        auto found = ownByRegion.constFind(leaf.region);
        if (found == ownByRegion.cend()) {
            CatalogBlueprint group;
            group.group = true;
            group.id = QStringLiteral("region:%1").arg(leaf.region);
            own.push_back(std::move(group));
            found = ownByRegion.insert(leaf.region, own.size() - 1);
        }
        own[found.value()].children.push_back(std::move(leaf));
    }
    for (CatalogBlueprint &group : own)
        top.push_back(std::move(group));
}

QString CatalogTreeBuilder::groupLabel(const CatalogBlueprint &group) const
{
    if (group.country)
        return countryName(group.region);
    if (!group.entry)
        return QCoreApplication::translate("CatalogTreeModel", "Other locations");
    const QString name = continentName(group.entry->name);
    if (!name.isEmpty())
        return name;
    const QString code = group.entry->code.trimmed();
    return code.isEmpty() ? group.id : code;
}

void CatalogTreeBuilder::sortLevel(std::vector<CatalogBlueprint> &rows) const
{
    for (CatalogBlueprint &row : rows) {
        if (row.group) {
            row.label = groupLabel(row);
            sortLevel(row.children);
        }
    }
    if (m_options.sort == CatalogSort::Daemon)
        return;
    // Groups stay ahead of the nodes beside them; each part is ordered on its own.
    const auto firstNode = std::stable_partition(
        rows.begin(), rows.end(), [](const CatalogBlueprint &row) { return row.group; });
    const auto less = [this](const CatalogBlueprint &a, const CatalogBlueprint &b) {
        if (m_options.sort == CatalogSort::Latency) {
            if (a.bestPingMs != b.bestPingMs) {
                if (a.bestPingMs < 0 || b.bestPingMs < 0)
                    return b.bestPingMs < 0;
                return a.bestPingMs < b.bestPingMs;
            }
            return false;
        }
        return QString::localeAwareCompare(a.label, b.label) < 0;
    };
    std::stable_sort(rows.begin(), firstNode, less);
    std::stable_sort(firstNode, rows.end(), less);
}

std::vector<CatalogBlueprint> CatalogTreeBuilder::build()
{
    std::vector<CatalogBlueprint> top;
    for (const NodeGroupEntry &group : m_groups.groups)
        addGroup(top, group);
    for (CatalogBlueprint &row : top)
        summarize(row);
    placeUnlisted(top);
    for (CatalogBlueprint &row : top)
        summarize(row);
    sortLevel(top);
    return top;
}
