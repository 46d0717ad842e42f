#pragma once

#include "CatalogItem.h"
#include "CatalogTreeBuilder.h"

#include <memory>

// Writes what a blueprint says into catalogue items: makes new ones with their children, and
// brings a kept one up to date, telling whether only its state or also its texts changed (a
// view repaints less for state). A changed source only marks the search text to be made again:
// the model makes it when it is first asked for.
class CatalogItemWriter
{
public:
    enum Change : int { NoChange = 0, StateChange = 1, TextChange = 2 };

    // The records the blueprints point into; both outlive the writer.
    CatalogItemWriter(const NodeGroupsInfo &groups, const NodesInfo &nodes);

    std::unique_ptr<CatalogItem> make(CatalogItem *parent, int row,
                                      const CatalogBlueprint &blueprint);
    // A combination of Change flags.
    int apply(CatalogItem *item, const CatalogBlueprint &blueprint);
    // The measurements and the connection of a node row, from the current nodes record; true
    // when any of them changed.
    bool applyNodeState(CatalogItem *item, const NodeEntry &node) const;

private:
    const NodeGroupsInfo &m_groups;
    const NodesInfo &m_nodes;
};
