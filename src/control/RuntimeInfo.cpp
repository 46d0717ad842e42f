#include "RuntimeInfo.h"

#include "JsonRead.h"

#include <QStringList>

QString RuntimeInfo::nodeReferenceText(const QJsonObject &node)
{
    if (node.isEmpty())
        return QString();
    QStringList parts;
    const QJsonValue id = node.value(QLatin1String("id"));
    if (id.isString())
        parts.append(QStringLiteral("[%1]").arg(id.toString()));
    else if (id.isDouble())
        parts.append(QStringLiteral("[%1]").arg(id.toInteger()));
    const QString region = JsonRead::text(node, QLatin1String("region"));
    if (!region.isEmpty())
        parts.append(QStringLiteral("[%1]").arg(region));
    const QString name = JsonRead::text(node, QLatin1String("name"));
    if (!name.isEmpty())
        parts.append(name);
    return parts.join(QLatin1Char(' '));
}

RuntimeInfo RuntimeInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto parsed = JsonRead::parseObject(body);
    if (!parsed) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid status JSON");
        return RuntimeInfo();
    }
    const QJsonObject &object = *parsed;
    const auto text = [&object](const char *key) {
        return JsonRead::text(object, QLatin1String(key));
    };

    RuntimeInfo info;
    info.valid = true;
    info.daemonState = text("daemon_state");
    info.daemonVersion = text("daemon_version");
    info.apiURL = text("api_url");
    info.autoConnect = text("auto_connect");
    info.autoConnectState = text("auto_connect_state");
    info.language = text("language");
    info.languageSource = text("language_source");
    info.effectiveLanguage = text("effective_language");
    info.catalogRefresh = text("catalog_refresh");
    info.authState = text("auth_state");
    info.tunnelState = text("tunnel_state");
    info.tunnelKind = text("tunnel_kind");
    info.tunnelReason = text("tunnel_reason");
    info.lastError = text("last_error");
    info.mode = ModeInfo::fromJson(JsonRead::object(object, QLatin1String("mode")));
    info.modeSummary = info.mode.summary();
    info.connectedSource = text("connected_source");
    info.connectedTarget = text("connected_target");
    info.connectedSince = text("connected_since");
    info.selectedNode = nodeReferenceText(JsonRead::object(object, QLatin1String("selected_node")));
    info.connectedNode =
        nodeReferenceText(JsonRead::object(object, QLatin1String("connected_node")));
    info.killSwitch =
        KillSwitchInfo::fromJson(JsonRead::object(object, QLatin1String("kill_switch")));
    info.proxyListeners =
        ProxyListenerInfo::listFromJson(object.value(QLatin1String("proxy_listeners")));
    info.proxyAccessUrls =
        ProxyAccessUrlInfo::listFromJson(object.value(QLatin1String("proxy_access_urls")));
    info.pacStatus = PacStatusInfo::fromJson(JsonRead::object(object, QLatin1String("pac_status")));
    return info;
}
