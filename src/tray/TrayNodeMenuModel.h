#pragma once

#include "NodeGroupsInfo.h"
#include "NodesInfo.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

// The five node entries of the tray's node menu: the connected (else the selected) node first,
// then favourites, then recently used nodes, then the nodes with the lowest ping, then the rest
// in catalogue order, without repeats. Nodes of a tier the plan lacks fill the last places only,
// and read as locked: not enabled, the reason in their text.
class TrayNodeMenuModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NodeIdRole = Qt::UserRole + 1, LabelRole, ConnectedRole, LockedRole };

    static constexpr int kEntryCount = 5;

    explicit TrayNodeMenuModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    void setCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups,
                    const QStringList &recentIds);
    // connectedSince is the daemon's text (ISO 8601, or seconds since the epoch).
    void setConnection(bool connected, const QString &connectedSince, const QDateTime &now);
    // Tiers the account may use ("FREE", ...); empty: every tier.
    void setAvailableTiers(const QStringList &tiers);

    // The menu's first line: "Location: ..." while connected, else "Current: ...".
    QString currentLine() const;
    // The label of a node of the catalogue; the id itself for a node it does not hold.
    QString labelFor(const QString &nodeId) const;
    int catalogSize() const { return int(m_nodes.nodes.size()); }

    // Two texts as one label: the second alone when it repeats or extends the first.
    static QString joinLabel(const QString &first, const QString &second);
    static QString groupLabel(const QString &name);
    static QString formatDuration(qint64 seconds);
    static QString nodeLabel(const NodeEntry &node, const NodeGroupsInfo &groups);

private:
    struct Entry
    {
        QString id;
        QString label;
        bool connected = false;
        QString lockedTier; // the tier the plan lacks; empty when usable
    };

    void rebuild();
    QString durationText() const;
    const NodeEntry *currentNode() const;

    NodesInfo m_nodes;
    NodeGroupsInfo m_groups;
    QStringList m_recentIds;
    QStringList m_tiers;
    bool m_connected = false;
    QDateTime m_since;
    QDateTime m_now;
    QList<Entry> m_entries;
};
