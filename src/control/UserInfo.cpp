#include "UserInfo.h"

#include "JsonRead.h"

UserInfo UserInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid user JSON");
        return UserInfo();
    }
    UserInfo info;
    info.valid = true;
    info.email = JsonRead::text(*object, QLatin1String("email"));
    info.userNumber = JsonRead::text(*object, QLatin1String("user_number"));
    info.role = JsonRead::text(*object, QLatin1String("role"));
    info.emailChecked = JsonRead::boolean(*object, QLatin1String("email_checked"));
    info.leftDays = JsonRead::integer(*object, QLatin1String("left_days"));
    info.maxDeviceCount = JsonRead::integer(*object, QLatin1String("max_device_count"));
    return info;
}
