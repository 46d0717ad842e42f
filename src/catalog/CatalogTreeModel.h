#pragma once

#include "NodeGroupsInfo.h"
#include "NodesInfo.h"

#include <QAbstractItemModel>

// The catalogue as a tree: the daemon's groups (continent > country > city in practice) with
// the nodes as leaves; nodes no group lists still appear. Updates are incremental: new pings,
// signal levels or favourites change rows in place, so views keep selection and expansion.
class CatalogTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CatalogTreeModel(QObject *parent = nullptr);
    ~CatalogTreeModel() override;

    // Applies both records; the tree is rebuilt only when the groups change shape.
    void setCatalog(const NodeGroupsInfo &groups, const NodesInfo &nodes);
    // "all", "free", "svip", "favorite" (the daemon's tab words), or empty for everything.
    void setTab(const QString &tab);
    QString tab() const { return m_tab; }
    // Tiers the account may use ("FREE", "SVIP"); rows of other tiers read as locked.
    void setAvailableTiers(const QStringList &tiers);

    QModelIndex indexForNode(const QString &nodeId) const;
    QModelIndex indexForSelector(const QString &selector) const;
    int nodeCount() const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Item;
    QString m_tab;
    Item *m_root = nullptr;
};
