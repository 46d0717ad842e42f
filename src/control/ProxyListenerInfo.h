#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QMetaType>
#include <QString>

// One local proxy listener of the daemon.
struct ProxyListenerInfo
{
    QString name;
    QString scheme;
    QString address;

    static ProxyListenerInfo fromJson(const QJsonObject &object);
    static QList<ProxyListenerInfo> listFromJson(const QJsonValue &value);

    friend bool operator==(const ProxyListenerInfo &, const ProxyListenerInfo &) = default;
};

Q_DECLARE_METATYPE(ProxyListenerInfo)
