#pragma once

#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

// A group of nodes (continent, country, city...), nested to any depth.
struct NodeGroupEntry
{
    QString id;
    QString name;
    QString code;
    int level = 0;
    int rank = 0;
    QStringList nodeIds;
    QList<NodeGroupEntry> subgroups;

    static NodeGroupEntry fromJson(const QJsonObject &object);

    // Declared here, defaulted in the .cpp: an inline default would recurse through
    // QList<NodeGroupEntry> while the type is still incomplete.
    friend bool operator==(const NodeGroupEntry &, const NodeGroupEntry &);
};

Q_DECLARE_METATYPE(NodeGroupEntry)
