#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QStringList>

// One node of the catalogue.
struct NodeEntry
{
    bool valid = false;
    QString id;
    QString name;
    QStringList tags;
    QString region;
    QString type;
    int signalLevel = -1;
    int pingMs = -1;

    static NodeEntry fromJson(const QJsonObject &object);

    friend bool operator==(const NodeEntry &, const NodeEntry &) = default;
};

Q_DECLARE_METATYPE(NodeEntry)
