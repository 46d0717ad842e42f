#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

// The catalogue of nodes and their grouping continent > country > city, favourites, and the
// ping run that measures the nodes a few at a time after a refresh.
class CatalogStore : public QObject
{
    Q_OBJECT

public:
    struct Node
    {
        qint64 id = 0;
        QString name;
        QString region;
        QString continent;
        QString continentName;
        QString country;
        QString city;
        bool svip = true;
        QStringList features;
        int basePingMs = 0;
        int pingMs = -1; // -1 until measured
        bool favorite = false;
    };

    // size 0: the fixed catalogue; else size nodes spread evenly over the same cities.
    explicit CatalogStore(int size = 0, QObject *parent = nullptr);

    const Node *node(qint64 id) const;
    // Accepts the id as a JSON string or number.
    const Node *nodeFromJson(const QJsonValue &id) const;
    bool setFavorite(qint64 id, bool favorite);

    // Starts a new measurement of every node; answers show "pingRunning" until it ends.
    void refresh();
    bool pingRunning() const { return m_pingTimer.isActive(); }

    // Ids of the nodes a selector names: a group id or code, a country or city name, or a tab
    // word ("all", "free", "svip", "favorite"). Empty when nothing matches.
    QList<qint64> nodesMatching(const QString &selector) const;
    // The node with the best measured (else typical) ping among ids, FREE only if !svipAllowed.
    const Node *bestNode(const QList<qint64> &ids, bool svipAllowed) const;
    QList<qint64> allNodeIds() const;

    QJsonObject nodeJson(const Node &node) const;
    // The short reference the status carries: {"id","region","name"}.
    static QJsonObject nodeReference(const Node *node);
    QJsonObject nodesJson(qint64 selectedId, qint64 connectedId) const;
    QJsonObject groupsJson() const;

private:
    void measureSome();
    QJsonArray idArray(const QList<qint64> &ids) const;

    QList<Node> m_nodes;
    QTimer m_pingTimer;
    int m_pingCursor = 0;
};
