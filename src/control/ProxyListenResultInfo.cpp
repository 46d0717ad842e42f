#include "ProxyListenResultInfo.h"

#include "JsonRead.h"

ProxyListenResultInfo ProxyListenResultInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid proxy listen JSON");
        return ProxyListenResultInfo();
    }
    ProxyListenResultInfo info;
    info.valid = true;
    info.appliesOnReconnect = JsonRead::boolean(*object, QLatin1String("applies_on_reconnect"));
    info.proxyListeners =
        ProxyListenerInfo::listFromJson(object->value(QLatin1String("proxy_listeners")));
    return info;
}
