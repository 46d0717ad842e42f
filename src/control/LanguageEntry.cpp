#include "LanguageEntry.h"

#include "JsonRead.h"

LanguageEntry LanguageEntry::fromJson(const QJsonObject &object)
{
    return LanguageEntry{JsonRead::text(object, QLatin1String("code")),
                         JsonRead::text(object, QLatin1String("name"))};
}
