#include "PacStatusInfo.h"

#include "JsonRead.h"

PacStatusInfo PacStatusInfo::fromJson(const QJsonObject &object)
{
    PacStatusInfo info;
    if (object.isEmpty())
        return info;
    info.valid = true;
    info.state = JsonRead::text(object, QLatin1String("state"));
    info.path = JsonRead::text(object, QLatin1String("path"));
    info.proxyAddress = JsonRead::text(object, QLatin1String("proxy_address"));
    info.proxyPort = JsonRead::integer(object, QLatin1String("proxy_port"));
    info.activeListenerAddress = JsonRead::text(object, QLatin1String("active_listener_address"));
    info.activeListenerPort = JsonRead::integer(object, QLatin1String("active_listener_port"));
    info.message = JsonRead::text(object, QLatin1String("message"));
    return info;
}
