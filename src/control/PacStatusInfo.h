#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>

// State of the daemon's proxy auto-config file.
struct PacStatusInfo
{
    bool valid = false;
    QString state;
    QString path;
    QString proxyAddress;
    int proxyPort = 0;
    QString activeListenerAddress;
    int activeListenerPort = 0;
    QString message;

    static PacStatusInfo fromJson(const QJsonObject &object);

    friend bool operator==(const PacStatusInfo &, const PacStatusInfo &) = default;
};

Q_DECLARE_METATYPE(PacStatusInfo)
