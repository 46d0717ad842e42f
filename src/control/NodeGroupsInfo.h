#pragma once

#include "NodeGroupEntry.h"
#include "NodeGroupTab.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// Tabs and the top-level node groups.
struct NodeGroupsInfo
{
    bool valid = false;
    bool stale = false;
    QList<NodeGroupTab> tabs;
    QList<NodeGroupEntry> groups;

    static NodeGroupsInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const NodeGroupsInfo &, const NodeGroupsInfo &) = default;
};

Q_DECLARE_METATYPE(NodeGroupsInfo)
