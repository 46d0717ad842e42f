#include "SplitRulesInfo.h"

#include "JsonRead.h"

SplitRulesInfo SplitRulesInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid split rules JSON");
        return SplitRulesInfo();
    }
    SplitRulesInfo info;
    info.valid = true;
    info.dir = JsonRead::text(*object, QLatin1String("dir"));
    // Rule kinds are the daemon's words; every key it sends is kept.
    const QJsonObject files = JsonRead::object(*object, QLatin1String("files"));
    for (auto it = files.constBegin(); it != files.constEnd(); ++it) {
        if (it.value().isString())
            info.files.insert(it.key(), it.value().toString());
    }
    const QJsonObject rules = JsonRead::object(*object, QLatin1String("rules"));
    for (auto it = rules.constBegin(); it != rules.constEnd(); ++it) {
        if (it.value().isObject())
            info.rules.insert(it.key(),
                              JsonRead::textList(it.value().toObject(), QLatin1String("items")));
    }
    return info;
}
