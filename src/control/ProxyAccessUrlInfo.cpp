#include "ProxyAccessUrlInfo.h"

#include "JsonRead.h"

ProxyAccessUrlInfo ProxyAccessUrlInfo::fromJson(const QJsonObject &object)
{
    ProxyAccessUrlInfo info;
    info.kind = JsonRead::text(object, QLatin1String("kind"));
    info.scheme = JsonRead::text(object, QLatin1String("scheme"));
    info.url = JsonRead::text(object, QLatin1String("url"));
    return info;
}

QList<ProxyAccessUrlInfo> ProxyAccessUrlInfo::listFromJson(const QJsonValue &value)
{
    QList<ProxyAccessUrlInfo> list;
    const QList<QJsonObject> objects = JsonRead::objects(value);
    for (const QJsonObject &object : objects)
        list.append(fromJson(object));
    return list;
}
