#pragma once

#include "CatalogItem.h"

#include <QHash>
#include <QString>

// Finds rows of the catalogue tree by node id, and by a group's selector or code. Built on the
// first question after the tree changed shape; where a node is listed twice, its first row in
// the tree's order wins.
class CatalogLookup
{
public:
    void invalidate() { m_valid = false; }

    const CatalogItem *node(const CatalogItem &root, const QString &nodeId);
    // A group by its selector or code (any case), else a node by its id.
    const CatalogItem *selector(const CatalogItem &root, const QString &selector);
    // Distinct nodes in the tree.
    int nodeCount(const CatalogItem &root);

private:
    void build(const CatalogItem &root);

    QHash<QString, const CatalogItem *> m_byNode;
    QHash<QString, const CatalogItem *> m_bySelector; // lower case
    bool m_valid = false;
};
