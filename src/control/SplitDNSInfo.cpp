#include "SplitDNSInfo.h"

#include "JsonRead.h"

SplitDNSInfo SplitDNSInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid split DNS JSON");
        return SplitDNSInfo();
    }
    const QJsonObject config = JsonRead::object(*object, QLatin1String("config"));
    const QJsonObject effective = JsonRead::object(*object, QLatin1String("effective"));

    SplitDNSInfo info;
    info.valid = true;
    info.configuredPath = JsonRead::text(config, QLatin1String("path"));
    info.configuredPolicy = JsonRead::text(config, QLatin1String("policy"));
    info.configuredLocalDirectDns = JsonRead::textList(config, QLatin1String("local_direct_dns"));
    info.effectivePolicy = JsonRead::text(effective, QLatin1String("policy"));
    info.effectiveLocalDirectDns = JsonRead::textList(effective, QLatin1String("local_direct_dns"));
    info.localDnsSource = JsonRead::text(effective, QLatin1String("local_dns_source"));
    info.autoDefault = JsonRead::boolean(effective, QLatin1String("auto_cn_default"));
    info.fakeIpEnabled = JsonRead::boolean(effective, QLatin1String("fake_ip_enabled"));
    info.changed = JsonRead::boolean(*object, QLatin1String("changed"));
    info.runtimeReloaded = JsonRead::boolean(*object, QLatin1String("runtime_reloaded"));
    info.runtimeWarning = JsonRead::text(*object, QLatin1String("runtime_warning"));
    return info;
}
