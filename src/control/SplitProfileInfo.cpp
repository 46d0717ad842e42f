#include "SplitProfileInfo.h"

#include "JsonRead.h"

#include <QJsonArray>

SplitProfileInfo SplitProfileInfo::fromJson(const QJsonObject &object)
{
    SplitProfileInfo info;
    if (object.isEmpty())
        return info;
    info.valid = true;
    info.defaultRoute = JsonRead::text(object, QLatin1String("default_route"));
    info.directRegions = JsonRead::textList(object, QLatin1String("direct_regions"));
    info.proxyRegions = JsonRead::textList(object, QLatin1String("proxy_regions"));
    info.gfwlist = JsonRead::boolean(object, QLatin1String("gfwlist"));
    info.lanRouting = JsonRead::text(object, QLatin1String("lan_routing"));
    info.customRules = JsonRead::boolean(object, QLatin1String("custom_rules"));
    return info;
}

bool SplitProfileInfo::hasAnyField() const
{
    return !defaultRoute.isEmpty() || !lanRouting.isEmpty() || !directRegions.isEmpty() ||
           !proxyRegions.isEmpty() || gfwlist || customRules;
}

QJsonObject SplitProfileInfo::toJson() const
{
    return QJsonObject{
        {QLatin1String("default_route"), defaultRoute},
        {QLatin1String("direct_regions"), QJsonArray::fromStringList(directRegions)},
        {QLatin1String("proxy_regions"), QJsonArray::fromStringList(proxyRegions)},
        {QLatin1String("gfwlist"), gfwlist},
        {QLatin1String("lan_routing"), lanRouting},
        {QLatin1String("custom_rules"), customRules},
    };
}
