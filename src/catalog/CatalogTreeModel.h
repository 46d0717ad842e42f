#pragma once

#include "CatalogItemWriter.h"
#include "CatalogLookup.h"
#include "CatalogSearchText.h"
#include "CatalogTreeBuilder.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <memory>
#include <vector>

// The catalogue as a tree: the daemon's groups (continent > country > city in practice) with
// the nodes as leaves; nodes no group lists still appear. Updates are incremental: new pings,
// signal levels or favourites change rows in place, so views keep selection and expansion.
// CatalogItemWriter fills the rows; this class keeps them in place and tells views what moved.
class CatalogTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CatalogTreeModel(QObject *parent = nullptr);
    ~CatalogTreeModel() override;

    // Applies both records; the tree is rebuilt only when the groups change shape.
    void setCatalog(const NodeGroupsInfo &groups, const NodesInfo &nodes);
    // "all", "free", "svip", "favorite" (the daemon's tab words), or empty for everything;
    // "all" reads back as empty.
    void setTab(const QString &tab);
    QString tab() const { return m_tab; }
    // Tiers the account may use ("FREE", "SVIP"); rows of other tiers read as locked.
    void setAvailableTiers(const QStringList &tiers);
    QStringList availableTiers() const { return m_tiers; }
    // The order of the rows within each level.
    void setSortOrder(CatalogSort sort);
    CatalogSort sortOrder() const { return m_sort; }
    // The picture of groups that stand for no single country (continents, mixed groups).
    void setRegionlessIcon(const QIcon &icon);

    QModelIndex indexForNode(const QString &nodeId) const;
    // A group's selector or code, or a node id.
    QModelIndex indexForSelector(const QString &selector) const;
    // Distinct nodes in the tree (after the tab).
    int nodeCount() const;
    const NodesInfo &nodes() const { return m_nodes; }
    const NodeGroupsInfo &nodeGroups() const { return m_groups; }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;

private:
    using Item = CatalogItem;

    void rebuild();
    bool sameNodes(const NodesInfo &nodes) const;
    void updateStates(Item *parent);
    void sync(Item *parent, std::vector<CatalogBlueprint> &rows);
    bool keepsTopRow(const std::vector<CatalogBlueprint> &rows) const;
    bool sameKeys(const Item *parent, const std::vector<CatalogBlueprint> &rows) const;
    void removeMissing(Item *parent, const std::vector<CatalogBlueprint> &rows);
    void reorder(Item *parent, const std::vector<CatalogBlueprint> &rows);
    void insertNew(Item *parent, std::vector<CatalogBlueprint> &rows);
    void updateRows(Item *parent, std::vector<CatalogBlueprint> &rows);
    QModelIndex indexOf(const Item *item) const;
    Item *itemAt(const QModelIndex &index) const;
    // A group that is no country and lies in none.
    bool isContinent(const Item *item) const;
    QString accessibleText(const Item *item) const;
    // Why a locked row is locked and which plan opens it.
    static QString lockedText(const Item *item);
    const QString &searchTextOf(const Item *item) const;

    NodeGroupsInfo m_groups;
    NodesInfo m_nodes;
    QString m_tab;
    QStringList m_tiers;
    CatalogSort m_sort = CatalogSort::Daemon;
    QIcon m_regionlessIcon;
    std::unique_ptr<Item> m_root;
    CatalogItemWriter m_writer{m_groups, m_nodes};
    mutable CatalogLookup m_lookup;
    mutable CatalogSearchText m_searchTexts;
};
