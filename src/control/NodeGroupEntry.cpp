#include "NodeGroupEntry.h"

#include "JsonRead.h"

NodeGroupEntry NodeGroupEntry::fromJson(const QJsonObject &object)
{
    NodeGroupEntry entry;
    entry.id = JsonRead::idText(object.value(QLatin1String("id")));
    entry.name = JsonRead::text(object, QLatin1String("name"));
    entry.code = JsonRead::text(object, QLatin1String("code"));
    entry.level = JsonRead::integer(object, QLatin1String("level"));
    entry.rank = JsonRead::integer(object, QLatin1String("rank"));
    entry.nodeIds = JsonRead::textList(object, QLatin1String("node_ids"));
    const QList<QJsonObject> subgroups =
        JsonRead::objects(object.value(QLatin1String("subgroups")));
    for (const QJsonObject &subgroup : subgroups)
        entry.subgroups.append(fromJson(subgroup));
    return entry;
}

bool operator==(const NodeGroupEntry &, const NodeGroupEntry &) = default;
