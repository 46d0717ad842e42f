#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QStringList>

// One tab of the node groups: a group type with its node ids.
struct NodeGroupTab
{
    QString groupType;
    QStringList nodeIds;

    static NodeGroupTab fromJson(const QJsonObject &object);

    friend bool operator==(const NodeGroupTab &, const NodeGroupTab &) = default;
};

Q_DECLARE_METATYPE(NodeGroupTab)
