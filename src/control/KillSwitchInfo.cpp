#include "KillSwitchInfo.h"

#include "JsonRead.h"

KillSwitchInfo KillSwitchInfo::fromJson(const QJsonObject &object)
{
    KillSwitchInfo info;
    if (object.isEmpty())
        return info;
    info.valid = true;
    info.enabled = JsonRead::boolean(object, QLatin1String("enabled"));
    info.mode = JsonRead::text(object, QLatin1String("mode"));
    info.guard = JsonRead::text(object, QLatin1String("guard"));
    info.platform = JsonRead::text(object, QLatin1String("platform"));
    info.blockMode = JsonRead::text(object, QLatin1String("block_mode"));
    info.allowLan = JsonRead::boolean(object, QLatin1String("allow_lan"));
    info.lanPolicy = JsonRead::text(object, QLatin1String("lan_policy"));
    info.lanDiscovery = JsonRead::textList(object, QLatin1String("lan_discovery"));
    info.lastError = JsonRead::text(object, QLatin1String("last_error"));
    return info;
}

KillSwitchInfo KillSwitchInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid kill-switch JSON");
        return KillSwitchInfo();
    }
    return fromJson(*object);
}
