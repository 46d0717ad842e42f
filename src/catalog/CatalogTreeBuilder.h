#pragma once

#include "NodeGroupsInfo.h"
#include "NodesInfo.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

// How the rows of each level are ordered.
enum class CatalogSort {
    Daemon,  // as the daemon sends them
    Name,    // by display name
    Latency, // fastest first (a group by its fastest node), unmeasured last
};

// One row of the tree the catalogue should show, before it reaches the model. Nodes point into
// the records they came from, so a blueprint lives no longer than those records.
struct CatalogBlueprint
{
    bool group = false;
    QString id;                            // node id, or group id ("region:xx" for our own)
    const NodeEntry *node = nullptr;       // nodes only
    const NodeGroupEntry *entry = nullptr; // the daemon's group; null for our own groups
    QString label;
    QString region;       // lower case: the node's, or the one every node below a group shares
    bool country = false; // a group that stands for its region's country
    int bestPingMs = -1;  // a node's ping, a group's fastest one below
    int nodeCount = 0;    // node rows below a group
    int lockedCount = 0;  // of those, the ones the account may not use
    std::vector<CatalogBlueprint> children;

    friend bool operator==(const CatalogBlueprint &a, const CatalogBlueprint &b)
    {
        return a.group == b.group && a.id == b.id;
    }
};

// Turns the two catalogue records into the tree to show: the daemon's groups in its nesting,
// nodes as leaves, nodes no group lists under the group of their country (or one of our own),
// narrowed to a tab and ordered within each level. Unknown ids, duplicates and empty names
// are tolerated: what can be shown is shown.
class CatalogTreeBuilder
{
public:
    struct Options
    {
        QString tab;       // a tab word; empty or "all" for everything
        QStringList tiers; // tiers the account may use; empty: every tier
        CatalogSort sort = CatalogSort::Daemon;
    };

    CatalogTreeBuilder(const NodeGroupsInfo &groups, const NodesInfo &nodes,
                       const Options &options);

    std::vector<CatalogBlueprint> build();

    // "FREE", "SVIP" (from the tags, else the type), or empty.
    static QString tierOf(const NodeEntry &node);
    static bool isFavorite(const NodeEntry &node);
    static bool isLocked(const QString &tier, const QStringList &tiers);
    // The label of a node: its name, or a stand-in when the daemon sent none.
    static QString nodeLabel(const NodeEntry &node);

private:
    bool inTab(int nodeIndex) const;
    void addGroup(std::vector<CatalogBlueprint> &siblings, const NodeGroupEntry &group);
    CatalogBlueprint makeNode(int nodeIndex) const;
    void placeUnlisted(std::vector<CatalogBlueprint> &top);
    static void summarize(CatalogBlueprint &group);
    void sortLevel(std::vector<CatalogBlueprint> &rows) const;
    QString groupLabel(const CatalogBlueprint &group) const;

    const NodeGroupsInfo &m_groups;
    const NodesInfo &m_nodes;
    Options m_options;
    QHash<QString, int> m_nodeIndex; // id -> first entry of that id
    std::vector<bool> m_listed;      // per entry: listed by some group
    std::vector<int> m_seenIn;       // per entry: serial of the last group that took it
    int m_groupSerial = 0;
    QSet<QString> m_tabIds; // the chosen tab's node ids, when the daemon sent that tab
    bool m_tabById = false;
};
