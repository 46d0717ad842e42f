#include "TrayNodeMenuModel.h"

#include "BidiText.h"
#include "CatalogTreeBuilder.h"
#include "Countries.h"
#include "TrayMenuText.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {

const NodeGroupEntry *findByCode(const QList<NodeGroupEntry> &groups, const QString &code)
{
    for (const NodeGroupEntry &group : groups) {
        if (!code.isEmpty() && group.code.compare(code, Qt::CaseInsensitive) == 0)
            return &group;
        if (const NodeGroupEntry *found = findByCode(group.subgroups, code))
            return found;
    }
    return nullptr;
}

// The deepest group that lists the node itself.
const NodeGroupEntry *findHolding(const QList<NodeGroupEntry> &groups, const QString &nodeId)
{
    for (const NodeGroupEntry &group : groups) {
        if (const NodeGroupEntry *deeper = findHolding(group.subgroups, nodeId))
            return deeper;
        if (group.nodeIds.contains(nodeId))
            return &group;
    }
    return nullptr;
}

QDateTime parseSince(const QString &since)
{
    const QString trimmed = since.trimmed();
    if (trimmed.isEmpty())
        return {};
    QDateTime parsed = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    if (!parsed.isValid())
        parsed = QDateTime::fromString(trimmed, Qt::ISODate);
    if (parsed.isValid())
        return parsed;
    bool ok = false;
    const qint64 seconds = trimmed.toLongLong(&ok);
    return ok && seconds > 0 ? QDateTime::fromSecsSinceEpoch(seconds) : QDateTime();
}

} // namespace

TrayNodeMenuModel::TrayNodeMenuModel(QObject *parent)
    : QAbstractListModel(parent)
{}

int TrayNodeMenuModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant TrayNodeMenuModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Entry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole: {
        if (!entry.lockedTier.isEmpty())
            //: A node menu entry the plan does not include: the node, then the plan it needs
            return TrayMenuText::tr("%1 · Locked: needs the %2 plan")
                .arg(isolated(entry.label), entry.lockedTier);
        const QString duration = entry.connected ? durationText() : QString();
        if (duration.isEmpty())
            return entry.label;
        return TrayMenuText::tr("%1 · %2").arg(isolated(entry.label), duration);
    }
    case NodeIdRole:
        return entry.id;
    case LabelRole:
        return entry.label;
    case ConnectedRole:
        return entry.connected;
    case LockedRole:
        return !entry.lockedTier.isEmpty();
    default:
        return {};
    }
}

Qt::ItemFlags TrayNodeMenuModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (index.isValid() && !m_entries.at(index.row()).lockedTier.isEmpty())
        flags &= ~Qt::ItemIsEnabled;
    return flags;
}

void TrayNodeMenuModel::setCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups,
                                   const QStringList &recentIds)
{
    m_nodes = nodes;
    m_groups = groups;
    m_recentIds = recentIds;
    rebuild();
}

void TrayNodeMenuModel::setConnection(bool connected, const QString &connectedSince,
                                      const QDateTime &now)
{
    m_connected = connected;
    m_since = connected ? parseSince(connectedSince) : QDateTime();
    m_now = now;
    rebuild();
}

void TrayNodeMenuModel::setAvailableTiers(const QStringList &tiers)
{
    if (tiers == m_tiers)
        return;
    m_tiers = tiers;
    rebuild();
}

void TrayNodeMenuModel::rebuild()
{
    QList<Entry> entries;
    QSet<QString> taken;
    const auto lockedTier = [this](const NodeEntry &node) {
        const QString tier = CatalogTreeBuilder::tierOf(node);
        return CatalogTreeBuilder::isLocked(tier, m_tiers) ? tier : QString();
    };
    // usableOnly: a place the user did not pick (ping, catalogue order) goes to a node the plan
    // includes first.
    const auto take = [&](const NodeEntry &node, bool connected, bool usableOnly = false) {
        if (entries.size() >= kEntryCount || !node.valid || node.id.isEmpty() ||
            taken.contains(node.id))
            return;
        const QString locked = lockedTier(node);
        if (usableOnly && !locked.isEmpty())
            return;
        taken.insert(node.id);
        entries.append(Entry{node.id, nodeLabel(node, m_groups), connected, locked});
    };
    // Read through a const list: the record is shared with the state store, and a non-const
    // walk would copy every node of it.
    const QList<NodeEntry> &nodes = std::as_const(m_nodes.nodes);
    const auto byId = [&](const QString &id) -> const NodeEntry * {
        for (const NodeEntry &node : nodes) {
            if (node.id == id)
                return &node;
        }
        return nullptr;
    };

    if (const NodeEntry *current = currentNode()) {
        // The catalogue's copy carries the name the daemon may have left out of the short one.
        const NodeEntry *full = byId(current->id);
        take(full ? *full : *current, m_connected && current == &m_nodes.connected);
    }
    for (const NodeEntry &node : nodes) {
        if (node.tags.contains(QStringLiteral("FAVORITE"), Qt::CaseInsensitive))
            take(node, false);
    }
    for (const QString &id : m_recentIds) {
        if (const NodeEntry *node = byId(id))
            take(*node, false);
    }
    QList<const NodeEntry *> measured;
    for (const NodeEntry &node : nodes) {
        if (node.pingMs >= 0 && lockedTier(node).isEmpty())
            measured.append(&node);
    }
    // Fastest usable first, ties in catalogue order. At most kEntryCount rows are taken before,
    // so the fastest twice that many are all that can still be needed.
    const qsizetype fastest = std::min<qsizetype>(measured.size(), 2 * kEntryCount);
    std::partial_sort(measured.begin(), measured.begin() + fastest, measured.end(),
                      [](const NodeEntry *a, const NodeEntry *b) {
                          return a->pingMs != b->pingMs ? a->pingMs < b->pingMs : a < b;
                      });
    for (qsizetype i = 0; i < fastest; ++i)
        take(*measured.at(i), false, true);
    for (const NodeEntry &node : nodes)
        take(node, false, true);
    for (const NodeEntry &node : nodes)
        take(node, false);

    beginResetModel();
    m_entries = entries;
    endResetModel();
}

const NodeEntry *TrayNodeMenuModel::currentNode() const
{
    if (m_connected && m_nodes.connected.valid)
        return &m_nodes.connected;
    if (m_nodes.selected.valid)
        return &m_nodes.selected;
    return nullptr;
}

QString TrayNodeMenuModel::durationText() const
{
    if (!m_connected || !m_since.isValid() || !m_now.isValid())
        return {};
    return formatDuration(std::max<qint64>(0, m_since.secsTo(m_now)));
}

QString TrayNodeMenuModel::currentLine() const
{
    const NodeEntry *node = currentNode();
    if (!node)
        return TrayMenuText::tr("Current: %1").arg(TrayMenuText::tr("none"));
    const QString label = labelFor(node->id.isEmpty() ? node->name : node->id);
    if (m_connected && node == &m_nodes.connected) {
        const QString duration = durationText();
        if (duration.isEmpty())
            return TrayMenuText::tr("Location: %1").arg(isolated(label));
        return TrayMenuText::tr("Location: %1 · %2").arg(isolated(label), duration);
    }
    if (m_nodes.stale)
        return TrayMenuText::tr("Current: %1 (stale)").arg(isolated(label));
    return TrayMenuText::tr("Current: %1").arg(isolated(label));
}

QString TrayNodeMenuModel::labelFor(const QString &nodeId) const
{
    for (const NodeEntry &node : m_nodes.nodes) {
        if (node.id == nodeId)
            return nodeLabel(node, m_groups);
    }
    for (const NodeEntry *node : {&m_nodes.connected, &m_nodes.selected}) {
        if (node->valid && node->id == nodeId)
            return nodeLabel(*node, m_groups);
    }
    return nodeId;
}

QString TrayNodeMenuModel::joinLabel(const QString &first, const QString &second)
{
    const QString a = first.trimmed();
    const QString b = second.trimmed();
    if (a.isEmpty())
        return b;
    if (b.isEmpty())
        return a;
    if (a.compare(b, Qt::CaseInsensitive) == 0 || b.startsWith(a, Qt::CaseInsensitive))
        return b;
    return QStringLiteral("%1 - %2").arg(a, b);
}

QString TrayNodeMenuModel::groupLabel(const QString &name)
{
    const QString trimmed = name.trimmed();
    return trimmed.isEmpty() ? TrayMenuText::tr("Group") : trimmed;
}

QString TrayNodeMenuModel::formatDuration(qint64 seconds)
{
    if (seconds < 60)
        return TrayMenuText::tr("less than 1m");
    if (seconds < 3600)
        return TrayMenuText::tr("%1m").arg(seconds / 60);
    if (seconds < 86400) {
        const qint64 minutes = (seconds % 3600) / 60;
        if (minutes == 0)
            return TrayMenuText::tr("%1h").arg(seconds / 3600);
        return TrayMenuText::tr("%1h %2m").arg(seconds / 3600).arg(minutes);
    }
    const qint64 hours = (seconds % 86400) / 3600;
    if (hours == 0)
        return TrayMenuText::tr("%1d").arg(seconds / 86400);
    return TrayMenuText::tr("%1d %2h").arg(seconds / 86400).arg(hours);
}

QString TrayNodeMenuModel::nodeLabel(const NodeEntry &node, const NodeGroupsInfo &groups)
{
    // The country names the place, in the same words as the Locations page; a node of a code
    // the table lacks is placed by the group of that code or the group that lists it.
    QString place =
        countryEnglishName(node.region).isEmpty() ? QString() : countryName(node.region);
    if (place.isEmpty()) {
        const NodeGroupEntry *group = findByCode(groups.groups, node.region);
        if (!group)
            group = findHolding(groups.groups, node.id);
        place = group ? groupLabel(group->name) : countryName(node.region);
    }
    const QString name = node.name.trimmed().isEmpty() ? node.id : node.name;
    return joinLabel(place, name);
}
