#pragma once

#include "NodeEntry.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The node catalogue with the selected and connected node.
struct NodesInfo
{
    bool valid = false;
    bool stale = false;
    bool pingRunning = false;
    QList<NodeEntry> nodes;
    NodeEntry selected;
    NodeEntry connected;

    static NodesInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const NodesInfo &, const NodesInfo &) = default;
};

Q_DECLARE_METATYPE(NodesInfo)
