#include "AutoConnectConfigInfo.h"

#include "JsonRead.h"

AutoConnectConfigInfo AutoConnectConfigInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid auto-connect config JSON");
        return AutoConnectConfigInfo();
    }
    AutoConnectConfigInfo info;
    info.valid = true;
    info.autoConnect = JsonRead::text(*object, QLatin1String("auto_connect"));
    info.reconnectSource = JsonRead::text(*object, QLatin1String("reconnect_source"));
    info.reconnectTarget = JsonRead::text(*object, QLatin1String("reconnect_target"));
    return info;
}
