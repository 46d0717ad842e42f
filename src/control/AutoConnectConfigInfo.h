#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// The daemon's auto-connect preference.
struct AutoConnectConfigInfo
{
    bool valid = false;
    QString autoConnect;
    QString reconnectSource;
    QString reconnectTarget;

    static AutoConnectConfigInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const AutoConnectConfigInfo &, const AutoConnectConfigInfo &) = default;
};

Q_DECLARE_METATYPE(AutoConnectConfigInfo)
