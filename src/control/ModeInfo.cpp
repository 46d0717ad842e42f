#include "ModeInfo.h"

#include "JsonRead.h"

#include <QStringList>

ModeInfo ModeInfo::fromJson(const QJsonObject &object)
{
    ModeInfo info;
    if (object.isEmpty())
        return info;
    info.valid = true;
    info.transport = JsonRead::text(object, QLatin1String("transport"));
    info.policy = JsonRead::text(object, QLatin1String("policy"));
    info.region = JsonRead::text(object, QLatin1String("region"));
    info.systemProxy = JsonRead::text(object, QLatin1String("system_proxy"));
    info.pacPort = JsonRead::integer(object, QLatin1String("pac_port"));
    info.pacVersion = JsonRead::text(object, QLatin1String("pac_version"));
    info.proxyLan = JsonRead::boolean(object, QLatin1String("proxy_lan"));
    info.localNetwork = JsonRead::text(object, QLatin1String("local_network"));
    if (info.localNetwork.trimmed().isEmpty())
        info.localNetwork = info.proxyLan ? QStringLiteral("protected") : QStringLiteral("direct");
    info.splitProfile =
        SplitProfileInfo::fromJson(JsonRead::object(object, QLatin1String("split_profile")));
    info.lastTovravpnPolicy = JsonRead::text(object, QLatin1String("last_tovravpn_policy"));
    info.lastTovravpnSplitProfile = SplitProfileInfo::fromJson(
        JsonRead::object(object, QLatin1String("last_tovravpn_split_profile")));
    info.proxySplitProfile =
        SplitProfileInfo::fromJson(JsonRead::object(object, QLatin1String("proxy_split_profile")));
    info.lastProxyPolicy = JsonRead::text(object, QLatin1String("last_proxy_policy"));
    info.lastProxySplitProfile = SplitProfileInfo::fromJson(
        JsonRead::object(object, QLatin1String("last_proxy_split_profile")));
    return info;
}

ModeInfo ModeInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid mode JSON");
        return ModeInfo();
    }
    return fromJson(*object);
}

QString ModeInfo::summary() const
{
    if (transport.isEmpty())
        return QString();
    QStringList parts{transport};
    if (!policy.isEmpty() && policy != QLatin1String("global"))
        parts.append(policy);
    if (!region.isEmpty())
        parts.append(region);
    return parts.join(QLatin1Char(' '));
}

QJsonObject ModeInfo::requestBody() const
{
    QJsonObject body;
    if (!transport.isEmpty())
        body.insert(QLatin1String("transport"), transport);
    if (!policy.isEmpty())
        body.insert(QLatin1String("policy"), policy);
    if (!region.isEmpty())
        body.insert(QLatin1String("region"), region);
    if (splitProfile.valid && splitProfile.hasAnyField())
        body.insert(QLatin1String("split_profile"), splitProfile.toJson());
    if (proxySplitProfile.valid && proxySplitProfile.hasAnyField())
        body.insert(QLatin1String("proxy_split_profile"), proxySplitProfile.toJson());
    return body;
}
