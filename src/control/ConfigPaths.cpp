#include "ConfigPaths.h"

#include "JsonRead.h"

ConfigPaths ConfigPaths::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid config path JSON");
        return ConfigPaths();
    }
    ConfigPaths info;
    info.valid = true;
    info.configDir = JsonRead::text(*object, QLatin1String("ConfigDir"));
    info.runtimeDir = JsonRead::text(*object, QLatin1String("RuntimeDir"));
    info.logDir = JsonRead::text(*object, QLatin1String("LogDir"));
    info.stateFile = JsonRead::text(*object, QLatin1String("StateFile"));
    info.credentialsKeyFile = JsonRead::text(*object, QLatin1String("CredentialsKeyFile"));
    info.historyFile = JsonRead::text(*object, QLatin1String("HistoryFile"));
    info.profilesDir = JsonRead::text(*object, QLatin1String("ProfilesDir"));
    info.socketPath = JsonRead::text(*object, QLatin1String("SocketPath"));
    info.pidFile = JsonRead::text(*object, QLatin1String("PIDFile"));
    info.controlAddr = JsonRead::text(*object, QLatin1String("ControlAddr"));
    return info;
}
