#include "LanguageConfigInfo.h"

#include "JsonRead.h"

LanguageConfigInfo LanguageConfigInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid language config JSON");
        return LanguageConfigInfo();
    }
    LanguageConfigInfo info;
    info.valid = true;
    info.source = JsonRead::text(*object, QLatin1String("source"));
    info.language = JsonRead::text(*object, QLatin1String("language"));
    info.effectiveLanguage = JsonRead::text(*object, QLatin1String("effective_language"));
    const QList<QJsonObject> languages =
        JsonRead::objects(object->value(QLatin1String("supported_languages")));
    for (const QJsonObject &language : languages)
        info.supportedLanguages.append(LanguageEntry::fromJson(language));
    return info;
}
