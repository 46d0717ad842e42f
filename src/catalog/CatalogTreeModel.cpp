#include "CatalogTreeModel.h"

#include "Countries.h"
#include "LocationRoles.h"

#include <QSet>

#include <algorithm>

namespace {

// Roles that change when only pings, favourites or the connection move.
const QList<int> kStateRoles = {
    LocationPingMsRole,    LocationSignalLevelRole, LocationFavoriteRole,
    LocationConnectedRole, LocationSelectedRole,    LocationStaleRole,
    LocationLockedRole,    Qt::AccessibleTextRole,  Qt::AccessibleDescriptionRole,
    Qt::ToolTipRole};

} // namespace

CatalogTreeModel::CatalogTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Item>())
{
    m_root->group = true;
}

CatalogTreeModel::~CatalogTreeModel() = default;

void CatalogTreeModel::setCatalog(const NodeGroupsInfo &groups, const NodesInfo &nodes)
{
    // Cheap when the records share their data, as copies of the same answer do.
    if (groups == m_groups && nodes == m_nodes)
        return;
    const bool sameShape = !m_root->children.empty() && groups == m_groups &&
                           m_sort != CatalogSort::Latency && sameNodes(nodes);
    m_groups = groups;
    m_nodes = nodes;
    if (sameShape)
        updateStates(m_root.get()); // the ping poll: no tree to build again
    else
        rebuild();
}

bool CatalogTreeModel::sameNodes(const NodesInfo &nodes) const
{
    // Same nodes in the same order with the same names, regions and tags (favourites are tags):
    // only measurements and the connection can differ, and they change no row's place.
    if (nodes.nodes.size() != m_nodes.nodes.size())
        return false;
    for (qsizetype i = 0; i < nodes.nodes.size(); ++i) {
        const NodeEntry &a = nodes.nodes.at(i);
        const NodeEntry &b = m_nodes.nodes.at(i);
        if (a.valid != b.valid || a.id != b.id || a.name != b.name || a.region != b.region ||
            a.type != b.type || a.tags != b.tags)
            return false;
    }
    return true;
}

void CatalogTreeModel::updateStates(Item *parent)
{
    const bool stale = m_nodes.stale || m_groups.stale;
    int runStart = -1;
    const auto flush = [&](int end) {
        if (runStart < 0)
            return;
        Q_EMIT dataChanged(createIndex(runStart, 0, parent->children[size_t(runStart)].get()),
                           createIndex(end, 0, parent->children[size_t(end)].get()), kStateRoles);
        runStart = -1;
    };
    int best = -1;
    for (size_t i = 0; i < parent->children.size(); ++i) {
        Item *item = parent->children[i].get();
        bool changed = false;
        if (item->group) {
            updateStates(item);
            // A group marks where the connection is, even folded.
            if (item->connected != item->childConnected()) {
                item->connected = !item->connected;
                changed = true;
            }
        } else {
            const NodeEntry &node = m_nodes.nodes.at(item->nodeIndex);
            item->node = node;
            changed = m_writer.applyNodeState(item, node);
        }
        if (item->stale != stale) {
            item->stale = stale;
            changed = true;
        }
        if (item->group)
            changed = changed || item->pingChanged;
        item->pingChanged = false;
        if (item->pingMs >= 0 && (best < 0 || item->pingMs < best))
            best = item->pingMs;
        if (!changed) {
            flush(int(i) - 1);
        } else if (runStart < 0) {
            runStart = int(i);
        }
    }
    flush(int(parent->children.size()) - 1);
    // A group's ping is its fastest node's; the group's own row is flushed by its parent.
    if (parent != m_root.get() && parent->pingMs != best) {
        parent->pingMs = best;
        parent->pingChanged = true;
    }
}

void CatalogTreeModel::setTab(const QString &tab)
{
    QString next = tab.trimmed().toLower();
    if (next == QLatin1String("all"))
        next.clear(); // the same rows, so no rebuild
    if (next == m_tab)
        return;
    m_tab = next;
    rebuild();
}

void CatalogTreeModel::setAvailableTiers(const QStringList &tiers)
{
    if (tiers == m_tiers)
        return;
    m_tiers = tiers;
    rebuild();
}

void CatalogTreeModel::setSortOrder(CatalogSort sort)
{
    if (sort == m_sort)
        return;
    m_sort = sort;
    rebuild();
}

void CatalogTreeModel::setRegionlessIcon(const QIcon &icon)
{
    m_regionlessIcon = icon;
    // Such groups stand at the top in practice; deeper ones repaint with their branch.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DecorationRole});
}

void CatalogTreeModel::rebuild()
{
    CatalogTreeBuilder builder(m_groups, m_nodes, {m_tab, m_tiers, m_sort});
    std::vector<CatalogBlueprint> rows = builder.build();
    if (!keepsTopRow(rows)) {
        // Filling an empty tree, emptying a full one or replacing every top row (the groups
        // arriving after the nodes): nothing to keep, so one reset is cheaper, and views never
        // see the tree empty halfway.
        if (m_root->children.empty() && rows.empty())
            return;
        beginResetModel();
        m_root->children.clear();
        m_root->children.reserve(rows.size());
        for (size_t i = 0; i < rows.size(); ++i)
            m_root->children.push_back(m_writer.make(m_root.get(), int(i), rows[i]));
        m_lookup.invalidate();
        endResetModel();
        return;
    }
    sync(m_root.get(), rows);
}

bool CatalogTreeModel::keepsTopRow(const std::vector<CatalogBlueprint> &rows) const
{
    QSet<QString> current;
    current.reserve(qsizetype(m_root->children.size()));
    for (const auto &child : m_root->children)
        current.insert(child->key());
    return std::any_of(rows.begin(), rows.end(), [&current](const CatalogBlueprint &row) {
        return current.contains(Item::keyOf(row.group, row.id));
    });
}

bool CatalogTreeModel::sameKeys(const Item *parent, const std::vector<CatalogBlueprint> &rows) const
{
    if (parent->children.size() != rows.size())
        return false;
    for (size_t i = 0; i < rows.size(); ++i) {
        const Item *item = parent->children[i].get();
        if (item->group != rows[i].group || item->id != rows[i].id)
            return false;
    }
    return true;
}

void CatalogTreeModel::sync(Item *parent, std::vector<CatalogBlueprint> &rows)
{
    if (!sameKeys(parent, rows)) {
        removeMissing(parent, rows);
        reorder(parent, rows);
        insertNew(parent, rows);
        m_lookup.invalidate();
    }
    updateRows(parent, rows);
}

void CatalogTreeModel::removeMissing(Item *parent, const std::vector<CatalogBlueprint> &rows)
{
    QSet<QString> wanted;
    wanted.reserve(qsizetype(rows.size()));
    for (const CatalogBlueprint &row : rows)
        wanted.insert(Item::keyOf(row.group, row.id));
    auto &children = parent->children;
    const QModelIndex parentIndex = indexOf(parent);
    // From the end, one signal per run of neighbours that go.
    int last = int(children.size()) - 1;
    while (last >= 0) {
        if (wanted.contains(children[size_t(last)]->key())) {
            --last;
            continue;
        }
        int first = last;
        while (first > 0 && !wanted.contains(children[size_t(first - 1)]->key()))
            --first;
        beginRemoveRows(parentIndex, first, last);
        children.erase(children.begin() + first, children.begin() + last + 1);
        for (size_t i = size_t(first); i < children.size(); ++i)
            children[i]->row = int(i);
        endRemoveRows();
        last = first - 1;
    }
}

void CatalogTreeModel::reorder(Item *parent, const std::vector<CatalogBlueprint> &rows)
{
    QHash<QString, int> position;
    position.reserve(qsizetype(rows.size()));
    for (size_t i = 0; i < rows.size(); ++i)
        position.insert(Item::keyOf(rows[i].group, rows[i].id), int(i));
    auto &children = parent->children;
    const auto before = [&position](const std::unique_ptr<Item> &a,
                                    const std::unique_ptr<Item> &b) {
        return position.value(a->key()) < position.value(b->key());
    };
    if (std::is_sorted(children.begin(), children.end(), before))
        return;
    const QModelIndex parentIndex = indexOf(parent);
    Q_EMIT layoutAboutToBeChanged({QPersistentModelIndex(parentIndex)},
                                  QAbstractItemModel::VerticalSortHint);
    QModelIndexList from;
    from.reserve(qsizetype(children.size()));
    for (const auto &child : children)
        from.append(createIndex(child->row, 0, child.get()));
    std::stable_sort(children.begin(), children.end(), before);
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &old : from) {
        const auto *item = static_cast<const Item *>(old.internalPointer());
        const auto found = std::find_if(
            children.begin(), children.end(),
            [item](const std::unique_ptr<Item> &child) { return child.get() == item; });
        to.append(createIndex(int(found - children.begin()), 0, old.internalPointer()));
    }
    for (size_t i = 0; i < children.size(); ++i)
        children[i]->row = int(i);
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({QPersistentModelIndex(parentIndex)},
                         QAbstractItemModel::VerticalSortHint);
}

void CatalogTreeModel::insertNew(Item *parent, std::vector<CatalogBlueprint> &rows)
{
    // The survivors already stand in the blueprint's order; what is missing goes in between.
    auto &children = parent->children;
    const QModelIndex parentIndex = indexOf(parent);
    size_t i = 0;
    while (i < rows.size()) {
        if (i < children.size() && children[i]->group == rows[i].group &&
            children[i]->id == rows[i].id) {
            ++i;
            continue;
        }
        size_t end = i + 1;
        const Item *next = i < children.size() ? children[i].get() : nullptr;
        while (end < rows.size() &&
               !(next && next->group == rows[end].group && next->id == rows[end].id))
            ++end;
        beginInsertRows(parentIndex, int(i), int(end - 1));
        std::vector<std::unique_ptr<Item>> fresh;
        fresh.reserve(end - i);
        for (size_t k = i; k < end; ++k)
            fresh.push_back(m_writer.make(parent, int(k), rows[k]));
        children.insert(children.begin() + qptrdiff(i), std::make_move_iterator(fresh.begin()),
                        std::make_move_iterator(fresh.end()));
        for (size_t k = end; k < children.size(); ++k)
            children[k]->row = int(k);
        endInsertRows();
        i = end;
    }
}

void CatalogTreeModel::updateRows(Item *parent, std::vector<CatalogBlueprint> &rows)
{
    auto &children = parent->children;
    int runStart = -1;
    int runChange = CatalogItemWriter::NoChange;
    const auto flush = [&](int end) {
        if (runStart < 0)
            return;
        const QModelIndex first = createIndex(runStart, 0, children[size_t(runStart)].get());
        const QModelIndex last = createIndex(end, 0, children[size_t(end)].get());
        Q_EMIT dataChanged(first, last,
                           runChange & CatalogItemWriter::TextChange ? QList<int>() : kStateRoles);
        runStart = -1;
        runChange = CatalogItemWriter::NoChange;
    };
    for (size_t i = 0; i < rows.size(); ++i) {
        Item *item = children[i].get();
        if (item->group)
            sync(item, rows[i].children);
        const int change = m_writer.apply(item, rows[i]);
        if (change == CatalogItemWriter::NoChange) {
            flush(int(i) - 1);
            continue;
        }
        if (runStart < 0)
            runStart = int(i);
        runChange |= change;
    }
    flush(int(rows.size()) - 1);
}

QModelIndex CatalogTreeModel::indexOf(const Item *item) const
{
    if (!item || item == m_root.get())
        return {};
    return createIndex(item->row, 0, const_cast<Item *>(item));
}

CatalogTreeModel::Item *CatalogTreeModel::itemAt(const QModelIndex &index) const
{
    if (!index.isValid())
        return m_root.get();
    return static_cast<Item *>(index.internalPointer());
}

QModelIndex CatalogTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (column != 0 || row < 0 || (parent.isValid() && parent.column() != 0))
        return {};
    const Item *owner = itemAt(parent);
    if (size_t(row) >= owner->children.size())
        return {};
    return createIndex(row, 0, owner->children[size_t(row)].get());
}

QModelIndex CatalogTreeModel::parent(const QModelIndex &child) const
{
    if (!child.isValid())
        return {};
    return indexOf(itemAt(child)->parent);
}

int CatalogTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() && parent.column() != 0)
        return 0;
    return int(itemAt(parent)->children.size());
}

int CatalogTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool CatalogTreeModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

Qt::ItemFlags CatalogTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!itemAt(index)->group)
        result |= Qt::ItemNeverHasChildren;
    return result;
}

bool CatalogTreeModel::isContinent(const Item *item) const
{
    for (const Item *level = item; level && level != m_root.get(); level = level->parent) {
        if (!level->group || level->country)
            return false;
    }
    return true;
}

QString CatalogTreeModel::lockedText(const Item *item)
{
    // A group is locked only when every node below is, all of them in practice of one tier.
    const QString tier = item->firstTier();
    if (tier.isEmpty())
        return tr("Your plan does not include this location. Upgrade to use it.");
    return tr("Locked: needs the %1 plan. Upgrade to use it.").arg(tier);
}

QString CatalogTreeModel::accessibleText(const Item *item) const
{
    QStringList parts{item->label};
    if (item->group) {
        parts << tr("locations: %1").arg(item->nodeCount);
    } else {
        if (!item->region.isEmpty())
            parts << countryName(item->region);
        parts << (item->pingMs >= 0 ? tr("%1 ms").arg(item->pingMs) : tr("latency not measured"));
        if (!item->tier.isEmpty())
            parts << item->tier;
        if (item->favorite)
            parts << tr("favourite");
    }
    if (item->connected)
        //: Said of a location in the list: it is the one the VPN is connected to now (not
        //: connecting)
        parts << tr("connected");
    if (item->locked)
        parts << tr("not in your plan");
    return parts.join(QLatin1String(", "));
}

const QString &CatalogTreeModel::searchTextOf(const Item *item) const
{
    auto *row = const_cast<Item *>(item);
    if (row->searchText.isNull()) {
        row->searchText =
            m_searchTexts.text({row->label, row->group ? row->groupName : row->node.name,
                                row->groupCode, row->group ? QStringList() : row->node.tags,
                                row->tier, row->region, !row->group || row->country});
    }
    return row->searchText;
}

QVariant CatalogTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.column() != 0)
        return {};
    const Item *item = itemAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return item->label;
    case Qt::DecorationRole:
        if (!item->region.isEmpty())
            return countryFlag(item->region);
        return item->group && !m_regionlessIcon.isNull() ? QVariant(m_regionlessIcon) : QVariant();
    case Qt::AccessibleTextRole:
        return accessibleText(item);
    case Qt::AccessibleDescriptionRole:
        return item->locked ? lockedText(item) : QVariant();
    case Qt::ToolTipRole:
        if (item->locked)
            return lockedText(item);
        return item->stale ? tr("This list may be out of date.") : QVariant();
    case LocationSearchTextRole:
        return searchTextOf(item);
    case LocationNodeIdRole:
        return item->group ? QString() : item->id;
    case LocationPingMsRole:
        return item->pingMs;
    case LocationSignalLevelRole:
        return item->group ? -1 : item->signalLevel;
    case LocationFavoriteRole:
        return item->favorite;
    case LocationTierRole:
        return item->tier;
    case LocationIsGroupRole:
        return item->group;
    case LocationConnectedRole:
        return item->connected;
    case LocationSelectorRole:
        return item->selector();
    case LocationRegionRole:
        return item->region;
    case LocationSelectedRole:
        return item->selected;
    case LocationStaleRole:
        return item->stale;
    case LocationLockedRole:
        return item->locked;
    case LocationContinentRole:
        return isContinent(item);
    default:
        return {};
    }
}

QModelIndex CatalogTreeModel::indexForNode(const QString &nodeId) const
{
    return indexOf(m_lookup.node(*m_root, nodeId));
}

QModelIndex CatalogTreeModel::indexForSelector(const QString &selector) const
{
    return indexOf(m_lookup.selector(*m_root, selector));
}

int CatalogTreeModel::nodeCount() const
{
    return m_lookup.nodeCount(*m_root);
}
