#include "NodeEntry.h"

#include "JsonRead.h"

NodeEntry NodeEntry::fromJson(const QJsonObject &object)
{
    NodeEntry entry;
    if (object.isEmpty())
        return entry;
    entry.valid = true;
    entry.id = JsonRead::idText(object.value(QLatin1String("id")));
    entry.name = JsonRead::text(object, QLatin1String("name"));
    entry.tags = JsonRead::textList(object, QLatin1String("tags"));
    entry.region = JsonRead::text(object, QLatin1String("region"));
    entry.type = JsonRead::text(object, QLatin1String("type"));
    // -1 keeps "not measured" apart from a measured 0.
    entry.signalLevel = JsonRead::integer(object, QLatin1String("signalLevel"), -1);
    entry.pingMs = JsonRead::integer(object, QLatin1String("pingMs"), -1);
    return entry;
}
