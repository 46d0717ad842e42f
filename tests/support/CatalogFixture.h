#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// A catalogue as the daemon sends it: nodes grouped continent > country > city in list order,
// tabs "all", "free", "svip" and "favorite". Tests change the nodes and send the bodies again.
class CatalogFixture
{
public:
    struct Node
    {
        QString id;
        QString name;
        QString continent; // "EU"
        QString region;    // "DE"
        QString country;   // the daemon's name, "Germany"
        QString city;      // "Frankfurt"
        bool svip = false;
        int pingMs = -1; // -1: not measured, the keys stay absent
        bool favorite = false;
        QStringList features; // "P2P", "STREAMING"
    };

    QList<Node> nodes;
    bool stale = false;
    QString connectedId;

    Node *find(const QString &id);
    void setPings(int offset);
    QByteArray nodesJson() const;
    QByteArray groupsJson() const;

    // 22 nodes in 3 continents, 6 countries, 9 cities.
    static CatalogFixture small();
};
