#include "ProxyListenerInfo.h"

#include "JsonRead.h"

ProxyListenerInfo ProxyListenerInfo::fromJson(const QJsonObject &object)
{
    ProxyListenerInfo info;
    info.name = JsonRead::text(object, QLatin1String("name"));
    info.scheme = JsonRead::text(object, QLatin1String("scheme"));
    info.address = JsonRead::text(object, QLatin1String("address"));
    return info;
}

QList<ProxyListenerInfo> ProxyListenerInfo::listFromJson(const QJsonValue &value)
{
    QList<ProxyListenerInfo> list;
    const QList<QJsonObject> objects = JsonRead::objects(value);
    for (const QJsonObject &object : objects)
        list.append(fromJson(object));
    return list;
}
