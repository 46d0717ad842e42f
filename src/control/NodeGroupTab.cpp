#include "NodeGroupTab.h"

#include "JsonRead.h"

NodeGroupTab NodeGroupTab::fromJson(const QJsonObject &object)
{
    NodeGroupTab tab;
    tab.groupType = JsonRead::text(object, QLatin1String("group_type"));
    tab.nodeIds = JsonRead::textList(object, QLatin1String("node_ids"));
    return tab;
}
