#include "NodeGroupsInfo.h"

#include "JsonRead.h"

NodeGroupsInfo NodeGroupsInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid node groups JSON");
        return NodeGroupsInfo();
    }
    NodeGroupsInfo info;
    info.valid = true;
    info.stale = JsonRead::boolean(*object, QLatin1String("stale"));
    const QList<QJsonObject> tabs = JsonRead::objects(object->value(QLatin1String("tabs")));
    for (const QJsonObject &tab : tabs)
        info.tabs.append(NodeGroupTab::fromJson(tab));
    const QList<QJsonObject> groups = JsonRead::objects(object->value(QLatin1String("groups")));
    for (const QJsonObject &group : groups)
        info.groups.append(NodeGroupEntry::fromJson(group));
    return info;
}
