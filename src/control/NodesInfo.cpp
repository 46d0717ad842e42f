#include "NodesInfo.h"

#include "JsonRead.h"

NodesInfo NodesInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid nodes JSON");
        return NodesInfo();
    }
    NodesInfo info;
    info.valid = true;
    info.stale = JsonRead::boolean(*object, QLatin1String("stale"));
    info.pingRunning = JsonRead::boolean(*object, QLatin1String("pingRunning"));
    const QList<QJsonObject> nodes = JsonRead::objects(object->value(QLatin1String("nodes")));
    info.nodes.reserve(nodes.size());
    for (const QJsonObject &node : nodes)
        info.nodes.append(NodeEntry::fromJson(node));
    info.selected = NodeEntry::fromJson(JsonRead::object(*object, QLatin1String("selected")));
    info.connected = NodeEntry::fromJson(JsonRead::object(*object, QLatin1String("connected")));
    return info;
}
