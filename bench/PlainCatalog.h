#pragma once

#include "NodeGroupsInfo.h"
#include "NodesInfo.h"

#include <QHash>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QWidget>

class QLineEdit;
class QStandardItem;
class QTreeView;

// The floor of the catalogue figures: the same catalogue shown as a competent Qt developer would
// without models of their own. A QStandardItemModel (name with flag, ping) in a QTreeView, and a
// search field driving a QSortFilterProxyModel with recursive filtering and one regular
// expression tried on every row. Each row's search text holds its groups' words, so that a
// search for a country or city finds its nodes, as in the client.
class PlainCatalog : public QWidget
{
public:
    explicit PlainCatalog(QWidget *parent = nullptr);

    void setCatalog(const NodeGroupsInfo &groups, const NodesInfo &nodes);
    void updatePings(const NodesInfo &nodes);

    QLineEdit *search() const { return m_search; }
    QTreeView *tree() const { return m_tree; }
    // Node rows the search leaves visible, for checking that both views find the same.
    int matchingNodes() const;

private:
    void addGroup(QStandardItem *parent, const NodeGroupEntry &group, const QString &pathText,
                  const QHash<QString, const NodeEntry *> &byId);
    void searchChanged(const QString &text);

    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
    QLineEdit *m_search;
    QTreeView *m_tree;
    QHash<QString, QStandardItem *> m_pingItems;
};
