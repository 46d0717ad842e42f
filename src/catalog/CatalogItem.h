#pragma once

#include "NodeEntry.h"

#include <QString>

#include <memory>
#include <vector>

// One row of the catalogue tree, a group or a node, with the texts and state it shows. The
// record fields it was made from are kept, so that an update can tell whether its texts change.
struct CatalogItem
{
    CatalogItem *parent = nullptr;
    int row = 0;
    bool group = false;
    QString id;
    NodeEntry node;    // nodes: the entry the texts were made from
    QString groupName; // groups: the daemon's name and code the texts were made from
    QString groupCode;
    QString label;
    QString searchText; // made when first asked for: most rows are never searched
    bool textsMade = false;
    QString region;
    QString tier;
    bool country = false;
    int pingMs = -1;
    int signalLevel = -1;
    int nodeCount = 0;
    qsizetype nodeIndex = -1; // nodes: the entry's position in the nodes record
    bool pingChanged = false; // groups: the fastest ping below changed, not yet announced
    bool favorite = false;
    bool connected = false; // nodes: the tunnel's node; groups: holding it
    bool selected = false;
    bool locked = false;
    bool stale = false;
    std::vector<std::unique_ptr<CatalogItem>> children;

    // Groups and nodes may share an id; the key tells them apart.
    static QString keyOf(bool group, const QString &id);
    QString key() const { return keyOf(group, id); }
    // What a connect to this row names: the node id, or the group's selector (our own region
    // groups are reached by their country code).
    QString selector() const;
    // Groups: whether a row right below holds the connection.
    bool childConnected() const;
    // The tier of the first node at or below this row.
    QString firstTier() const;
};
