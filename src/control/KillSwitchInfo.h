#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QStringList>

// The kill switch as the daemon reports it.
struct KillSwitchInfo
{
    bool valid = false;
    bool enabled = false;
    QString mode;
    QString guard;
    QString platform;
    QString blockMode;
    bool allowLan = false;
    QString lanPolicy;
    QStringList lanDiscovery;
    QString lastError;

    static KillSwitchInfo fromJson(const QJsonObject &object);
    static KillSwitchInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const KillSwitchInfo &, const KillSwitchInfo &) = default;
};

Q_DECLARE_METATYPE(KillSwitchInfo)
