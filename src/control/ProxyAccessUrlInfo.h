#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QMetaType>
#include <QString>

// A URL through which the local proxies can be reached.
struct ProxyAccessUrlInfo
{
    QString kind;
    QString scheme;
    QString url;

    static ProxyAccessUrlInfo fromJson(const QJsonObject &object);
    static QList<ProxyAccessUrlInfo> listFromJson(const QJsonValue &value);

    friend bool operator==(const ProxyAccessUrlInfo &, const ProxyAccessUrlInfo &) = default;
};

Q_DECLARE_METATYPE(ProxyAccessUrlInfo)
