#include "APIURLConfigInfo.h"

#include "JsonRead.h"

APIURLConfigInfo APIURLConfigInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid API URL config JSON");
        return APIURLConfigInfo();
    }
    APIURLConfigInfo info;
    info.valid = true;
    info.apiURL = JsonRead::text(*object, QLatin1String("api_url"));
    info.validated = JsonRead::boolean(*object, QLatin1String("validated"));
    return info;
}
