#include "CatalogItemWriter.h"

namespace {

// Assigns when the value differs and records the kind of change.
template<typename Field, typename Value>
void update(Field &field, const Value &value, int kind, int &change)
{
    if (field != value) {
        field = value;
        change |= kind;
    }
}

} // namespace

CatalogItemWriter::CatalogItemWriter(const NodeGroupsInfo &groups, const NodesInfo &nodes)
    : m_groups(groups)
    , m_nodes(nodes)
{}

std::unique_ptr<CatalogItem> CatalogItemWriter::make(CatalogItem *parent, int row,
                                                     const CatalogBlueprint &blueprint)
{
    auto item = std::make_unique<CatalogItem>();
    item->parent = parent;
    item->row = row;
    item->group = blueprint.group;
    item->id = blueprint.id;
    apply(item.get(), blueprint);
    item->children.reserve(blueprint.children.size());
    for (size_t i = 0; i < blueprint.children.size(); ++i)
        item->children.push_back(make(item.get(), int(i), blueprint.children[i]));
    if (item->group)
        item->connected = item->childConnected();
    return item;
}

bool CatalogItemWriter::applyNodeState(CatalogItem *item, const NodeEntry &node) const
{
    int change = NoChange;
    update(item->pingMs, node.pingMs >= 0 ? node.pingMs : -1, StateChange, change);
    update(item->signalLevel, node.signalLevel >= 0 ? node.signalLevel : -1, StateChange, change);
    update(item->connected, m_nodes.connected.valid && m_nodes.connected.id == node.id, StateChange,
           change);
    update(item->selected, m_nodes.selected.valid && m_nodes.selected.id == node.id, StateChange,
           change);
    return change != NoChange;
}

int CatalogItemWriter::apply(CatalogItem *item, const CatalogBlueprint &blueprint)
{
    int change = NoChange;
    if (blueprint.node) {
        const NodeEntry &node = *blueprint.node;
        item->nodeIndex = blueprint.node - m_nodes.nodes.constData();
        const bool textsStale = !item->textsMade || item->node.name != node.name ||
                                item->node.region != node.region || item->node.tags != node.tags ||
                                item->node.type != node.type;
        if (textsStale) {
            item->node = node;
            item->tier = CatalogTreeBuilder::tierOf(node);
            item->label = blueprint.label;
            item->region = blueprint.region;
            item->textsMade = true;
            item->searchText.clear();
            change |= TextChange;
        }
        if (applyNodeState(item, node))
            change |= StateChange;
        update(item->favorite, CatalogTreeBuilder::isFavorite(node), StateChange, change);
        update(item->locked, blueprint.lockedCount > 0, StateChange, change);
    } else {
        const QString name = blueprint.entry ? blueprint.entry->name : QString();
        const QString code = blueprint.entry ? blueprint.entry->code : QString();
        if (!item->textsMade || item->label != blueprint.label ||
            item->region != blueprint.region || item->groupName != name ||
            item->groupCode != code || item->country != blueprint.country) {
            item->label = blueprint.label;
            item->region = blueprint.region;
            item->groupName = name;
            item->groupCode = code;
            item->country = blueprint.country;
            item->textsMade = true;
            item->searchText.clear();
            change |= TextChange;
        }
        update(item->pingMs, blueprint.bestPingMs, StateChange, change);
        update(item->nodeCount, blueprint.nodeCount, StateChange, change);
        update(item->locked,
               blueprint.nodeCount > 0 && blueprint.lockedCount == blueprint.nodeCount, StateChange,
               change);
        // The rows below are brought up to date first.
        update(item->connected, item->childConnected(), StateChange, change);
    }
    update(item->stale, m_nodes.stale || m_groups.stale, StateChange, change);
    return change;
}
