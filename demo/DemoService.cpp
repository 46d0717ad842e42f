#include "DemoService.h"

#include <QJsonArray>
#include <QUrlQuery>

#include <cmath>

namespace {

// A text field of the request, with its type checked: a wrong type is the client's fault.
bool textField(const QJsonObject &body, const char *key, QString *out, HttpResponse *error)
{
    const QJsonValue value = body.value(QLatin1String(key));
    if (value.isString()) {
        *out = value.toString();
        return true;
    }
    *error = HttpResponse::error(
        400, value.isUndefined()
                 ? QStringLiteral("missing \"%1\"").arg(QLatin1String(key))
                 : QStringLiteral("\"%1\" must be a string").arg(QLatin1String(key)));
    return false;
}

bool boolField(const QJsonObject &body, const char *key, bool *out, HttpResponse *error)
{
    const QJsonValue value = body.value(QLatin1String(key));
    if (value.isBool()) {
        *out = value.toBool();
        return true;
    }
    *error = HttpResponse::error(
        400, QStringLiteral("\"%1\" must be true or false").arg(QLatin1String(key)));
    return false;
}

// The success answer is built only after the change was applied.
template<typename Answer>
HttpResponse refusalOr(const QString &refusal, int status, Answer success)
{
    return refusal.isEmpty() ? success() : HttpResponse::error(status, refusal);
}

} // namespace

DemoService::DemoService(const DemoOptions &options, const QString &rootDir, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_config(rootDir, options.socketPath)
    , m_log(m_config.logFile())
    , m_catalog(options.catalogSize)
    , m_tunnel(options.connectMs)
    , m_killSwitch(options.lockdown)
    , m_split(m_config.configDir())
    , m_update(m_config.downloadDir(), options.vendorHost, options.forceUpgrade,
               options.flakyDownload)
{
    if (!options.rememberedAccount.isEmpty())
        m_account.restore(options.rememberedAccount);
    addStatusRoutes();
    addCatalogRoutes();
    addTunnelRoutes();
    addAccountRoutes();
    addConfigRoutes();
    addUpdateRoutes();
    addKillSwitchRoutes();
    addRoutingRoutes();
    addSplitRoutes();
    addRepairRoutes();
}

QString DemoService::tunnelKind() const
{
    const QString transport = m_routing.transport();
    return transport == QLatin1String("auto") ? QStringLiteral("wireguard") : transport;
}

QJsonObject DemoService::statusJson() const
{
    const bool active = m_tunnel.active() || m_tunnel.state() == QLatin1String("disconnecting");
    return {{QStringLiteral("daemon_state"), QStringLiteral("running")},
            {QStringLiteral("daemon_version"), QLatin1String(DaemonVersion)},
            {QStringLiteral("api_url"), m_config.apiUrl()},
            {QStringLiteral("auto_connect"), m_config.autoConnect()},
            {QStringLiteral("auto_connect_state"), m_config.autoConnect() == QLatin1String("off")
                                                       ? QStringLiteral("disabled")
                                                       : QStringLiteral("idle")},
            {QStringLiteral("language"), m_language.language()},
            {QStringLiteral("language_source"), m_language.source()},
            {QStringLiteral("effective_language"), m_language.effectiveLanguage()},
            {QStringLiteral("catalog_refresh"),
             m_catalog.pingRunning() ? QStringLiteral("running") : QStringLiteral("idle")},
            {QStringLiteral("auth_state"), m_account.authState()},
            {QStringLiteral("tunnel_state"), m_tunnel.state()},
            {QStringLiteral("tunnel_kind"), active ? m_tunnel.kind() : QString()},
            {QStringLiteral("tunnel_reason"), m_tunnel.reason()},
            {QStringLiteral("last_error"), QString()},
            {QStringLiteral("mode"), m_routing.modeJson()},
            {QStringLiteral("connected_source"), active ? m_tunnel.source() : QString()},
            {QStringLiteral("connected_target"), active ? m_tunnel.target() : QString()},
            {QStringLiteral("connected_since"), m_tunnel.connectedSince()},
            {QStringLiteral("selected_node"),
             CatalogStore::nodeReference(m_catalog.node(m_tunnel.selectedNode()))},
            {QStringLiteral("connected_node"),
             CatalogStore::nodeReference(m_catalog.node(m_tunnel.connectedNode()))},
            {QStringLiteral("kill_switch"), m_killSwitch.json()},
            {QStringLiteral("proxy_listeners"), m_routing.listenersJson()},
            {QStringLiteral("proxy_access_urls"), m_routing.accessUrlsJson()},
            {QStringLiteral("pac_status"), m_routing.pacStatusJson()}};
}

void DemoService::addStatusRoutes()
{
    m_router.add("GET", QStringLiteral("/v1/status"),
                 [this](const HttpRequest &, const QJsonObject &) { return status(); });
    m_router.add(
        "GET", QStringLiteral("/v1/version"), [](const HttpRequest &, const QJsonObject &) {
            return HttpResponse::json({{QStringLiteral("version"), QLatin1String(DaemonVersion)},
                                       {QStringLiteral("api_version"), QStringLiteral("1")}});
        });
}

HttpResponse DemoService::nodes() const
{
    return HttpResponse::json(
        m_catalog.nodesJson(m_tunnel.selectedNode(), m_tunnel.connectedNode()));
}

void DemoService::addCatalogRoutes()
{
    m_router.add("GET", QStringLiteral("/v1/nodes"),
                 [this](const HttpRequest &, const QJsonObject &) { return nodes(); });
    m_router.add("POST", QStringLiteral("/v1/nodes/refresh"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     m_catalog.refresh();
                     return nodes();
                 });
    m_router.add("POST", QStringLiteral("/v1/nodes/favorite"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     bool favorite = false;
                     if (!boolField(body, "favorite", &favorite, &error))
                         return error;
                     const CatalogStore::Node *node =
                         m_catalog.nodeFromJson(body.value(QStringLiteral("node")));
                     if (!node)
                         return HttpResponse::error(404, QStringLiteral("unknown location"));
                     m_catalog.setFavorite(node->id, favorite);
                     return nodes();
                 });
    m_router.add("GET", QStringLiteral("/v1/nodes/groups"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     return HttpResponse::json(m_catalog.groupsJson());
                 });
}

HttpResponse DemoService::connectTo(const QJsonObject &body)
{
    if (!m_account.signedIn())
        return HttpResponse::error(401, QStringLiteral("Sign in to Tovra before connecting."));
    const bool svip = m_account.svip();
    const CatalogStore::Node *target = nullptr;
    QString source;
    QString targetText;
    if (body.contains(QStringLiteral("node"))) {
        target = m_catalog.nodeFromJson(body.value(QStringLiteral("node")));
        if (!target)
            return HttpResponse::error(404,
                                       QStringLiteral("This location is no longer available."));
        if (target->svip && !svip)
            return HttpResponse::error(403, QStringLiteral("This location needs an SVIP plan."));
        source = QStringLiteral("node");
        targetText = QString::number(target->id);
    } else if (body.value(QStringLiteral("smart")).toBool()) {
        const QString group = body.value(QStringLiteral("group")).toString().trimmed();
        const QList<qint64> ids =
            group.isEmpty() ? m_catalog.allNodeIds() : m_catalog.nodesMatching(group);
        if (ids.isEmpty())
            return HttpResponse::error(404,
                                       QStringLiteral("No location matches \"%1\".").arg(group));
        target = m_catalog.bestNode(ids, svip);
        if (!target)
            return HttpResponse::error(403, QStringLiteral("These locations need an SVIP plan."));
        source = QStringLiteral("smart");
        targetText = group.isEmpty() ? QStringLiteral("all") : group;
    } else {
        const CatalogStore::Node *last = m_catalog.node(m_tunnel.selectedNode());
        target =
            last && (svip || !last->svip) ? last : m_catalog.bestNode(m_catalog.allNodeIds(), svip);
        if (!target)
            return HttpResponse::error(403,
                                       QStringLiteral("No location is available on this plan."));
        source = QStringLiteral("last");
        targetText = QString::number(target->id);
    }
    m_tunnel.connectTo(target->id, source, targetText, tunnelKind());
    return status();
}

void DemoService::addTunnelRoutes()
{
    m_router.add("POST", QStringLiteral("/v1/connect"),
                 [this](const HttpRequest &, const QJsonObject &body) { return connectTo(body); });
    m_router.add("POST", QStringLiteral("/v1/disconnect"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     m_tunnel.disconnect(QStringLiteral("user_request"));
                     return status();
                 });
}

void DemoService::addAccountRoutes()
{
    m_router.add("POST", QStringLiteral("/v1/session/login"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     QString username, password;
                     if (!textField(body, "username", &username, &error) ||
                         !textField(body, "password", &password, &error))
                         return error;
                     int code = 200;
                     const QString refusal =
                         m_account.login(username, password,
                                         body.value(QStringLiteral("remember_me")).toBool(), &code);
                     return refusalOr(refusal, code, [&] { return status(); });
                 });
    m_router.add("POST", QStringLiteral("/v1/session/logout"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     // Signing out ends the session's tunnel too.
                     if (m_tunnel.active())
                         m_tunnel.disconnect(QStringLiteral("signed_out"));
                     m_account.logout();
                     return status();
                 });
    m_router.add(
        "GET", QStringLiteral("/v1/user"), [this](const HttpRequest &, const QJsonObject &) {
            if (!m_account.signedIn())
                return HttpResponse::error(401, QStringLiteral("Sign in to see your account."));
            return HttpResponse::json(m_account.userJson());
        });
    m_router.add("GET", QStringLiteral("/v1/account/purchase-url"),
                 [this](const HttpRequest &request, const QJsonObject &) {
                     if (!m_account.signedIn())
                         return HttpResponse::error(401,
                                                    QStringLiteral("Sign in to renew your plan."));
                     QString lang = QUrlQuery(request.query())
                                        .queryItemValue(QStringLiteral("lang"), QUrl::FullyDecoded);
                     if (lang.trimmed().isEmpty())
                         lang = m_language.effectiveLanguage();
                     return HttpResponse::json(
                         {{QStringLiteral("url"),
                           m_account.purchaseUrl(m_options.vendorHost, lang.trimmed())}});
                 });
}

void DemoService::addConfigRoutes()
{
    const QString apiUrl = QStringLiteral("/v1/config/api-url");
    m_router.add("GET", apiUrl, [this](const HttpRequest &, const QJsonObject &) {
        return HttpResponse::json(m_config.apiUrlJson());
    });
    m_router.add("POST", apiUrl, [this](const HttpRequest &, const QJsonObject &body) {
        HttpResponse error;
        QString url;
        if (!textField(body, "api_url", &url, &error))
            return error;
        return refusalOr(m_config.setApiUrl(url), 400,
                         [&] { return HttpResponse::json(m_config.apiUrlJson()); });
    });
    m_router.add("DELETE", apiUrl, [this](const HttpRequest &, const QJsonObject &) {
        m_config.resetApiUrl();
        return HttpResponse::json(m_config.apiUrlJson());
    });
    m_router.add("POST", QStringLiteral("/v1/config/auto-connect"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     QString value;
                     if (!textField(body, "auto_connect", &value, &error))
                         return error;
                     const QString refusal = m_config.setAutoConnect(value);
                     return refusalOr(refusal, 400, [&] {
                         return HttpResponse::json(
                             {{QStringLiteral("auto_connect"), m_config.autoConnect()},
                              {QStringLiteral("reconnect_source"), m_tunnel.source()},
                              {QStringLiteral("reconnect_target"), m_tunnel.target()}});
                     });
                 });
    const QString language = QStringLiteral("/v1/config/language");
    m_router.add("GET", language, [this](const HttpRequest &, const QJsonObject &) {
        return HttpResponse::json(m_language.json());
    });
    m_router.add("POST", language, [this](const HttpRequest &, const QJsonObject &body) {
        HttpResponse error;
        QString source;
        if (!textField(body, "source", &source, &error))
            return error;
        const QString refusal =
            m_language.set(source, body.value(QStringLiteral("language")).toString(),
                           body.value(QStringLiteral("if_source")).toString());
        return refusalOr(refusal, 400, [&] { return HttpResponse::json(m_language.json()); });
    });
    m_router.add("GET", QStringLiteral("/v1/config/path"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     return HttpResponse::json(m_config.pathsJson());
                 });
}

void DemoService::addUpdateRoutes()
{
    m_router.add("POST", QStringLiteral("/v1/gui/update/check"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     QString version;
                     if (!textField(body, "version", &version, &error))
                         return error;
                     QJsonObject answer;
                     return refusalOr(m_update.check(version, &answer), 400,
                                      [&] { return HttpResponse::json(answer); });
                 });
    const QString download = QStringLiteral("/v1/gui/update/download");
    m_router.add("POST", download, [this](const HttpRequest &, const QJsonObject &body) {
        HttpResponse error;
        QString version;
        if (!textField(body, "version", &version, &error))
            return error;
        const QJsonValue expected = body.value(QStringLiteral("expected_version_num"));
        // Out-of-range numbers must not reach the integer conversion.
        if (!expected.isDouble() || !(std::abs(expected.toDouble()) < 1e15))
            return HttpResponse::error(400,
                                       QStringLiteral("\"expected_version_num\" must be a number"));
        const QString refusal =
            m_update.start(version, qint64(expected.toDouble()), m_tunnel.connected());
        return refusalOr(refusal, 400, [&] { return HttpResponse::json(m_update.downloadJson()); });
    });
    m_router.add("GET", download, [this](const HttpRequest &, const QJsonObject &) {
        return HttpResponse::json(m_update.downloadJson());
    });
    m_router.add("DELETE", download, [this](const HttpRequest &, const QJsonObject &) {
        m_update.cancel();
        return HttpResponse::json(m_update.downloadJson());
    });
}

void DemoService::addKillSwitchRoutes()
{
    auto killSwitch = [this] { return HttpResponse::json(m_killSwitch.json()); };
    m_router.add("GET", QStringLiteral("/v1/kill-switch"),
                 [killSwitch](const HttpRequest &, const QJsonObject &) { return killSwitch(); });
    m_router.add("POST", QStringLiteral("/v1/kill-switch"),
                 [this, killSwitch](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     bool enabled = false;
                     if (!boolField(body, "enabled", &enabled, &error))
                         return error;
                     if (enabled && m_routing.transport() == QLatin1String("proxy"))
                         return HttpResponse::error(
                             409, QStringLiteral("Kill Switch can't run in Tovra Proxy mode."));
                     return refusalOr(m_killSwitch.setEnabled(enabled), 409,
                                      [&] { return killSwitch(); });
                 });
    if (m_options.noKillSwitchMode) {
        // An older daemon's router: no such endpoint, and a plain-text 404 as its HTTP library
        // writes it.
        m_router.add("POST", QStringLiteral("/v1/kill-switch/mode"),
                     [](const HttpRequest &, const QJsonObject &) {
                         HttpResponse response;
                         response.status = 404;
                         response.headers.append(
                             {QByteArray("Content-Type"), QByteArray("text/plain; charset=utf-8")});
                         response.body = "404 page not found\n";
                         return response;
                     });
    } else {
        m_router.add("POST", QStringLiteral("/v1/kill-switch/mode"),
                     [this, killSwitch](const HttpRequest &, const QJsonObject &body) {
                         HttpResponse error;
                         QString mode;
                         if (!textField(body, "mode", &mode, &error))
                             return error;
                         return refusalOr(m_killSwitch.setMode(mode), 400,
                                          [&] { return killSwitch(); });
                     });
    }
    m_router.add("POST", QStringLiteral("/v1/kill-switch/allow-lan"),
                 [this, killSwitch](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     bool enabled = false;
                     if (!boolField(body, "enabled", &enabled, &error))
                         return error;
                     m_killSwitch.setAllowLan(enabled);
                     return killSwitch();
                 });
}

void DemoService::addRoutingRoutes()
{
    auto mode = [this] { return HttpResponse::json(m_routing.modeJson()); };
    m_router.add(
        "POST", QStringLiteral("/v1/mode"),
        [this, mode](const HttpRequest &, const QJsonObject &body) {
            if (body.value(QStringLiteral("transport")).toString() == QLatin1String("proxy") &&
                m_killSwitch.enabled())
                return HttpResponse::error(
                    409, QStringLiteral("Turn off Kill Switch before switching to Tovra Proxy."));
            return refusalOr(m_routing.setMode(body), 400, [&] { return mode(); });
        });
    auto valueRoute = [this, mode](const QString &path,
                                   QString (RoutingStore::*setter)(const QString &)) {
        m_router.add("POST", path,
                     [this, mode, setter](const HttpRequest &, const QJsonObject &body) {
                         HttpResponse error;
                         QString value;
                         if (!textField(body, "value", &value, &error))
                             return error;
                         return refusalOr((m_routing.*setter)(value), 400, [&] { return mode(); });
                     });
    };
    valueRoute(QStringLiteral("/v1/proxy/system-proxy"), &RoutingStore::setSystemProxy);
    valueRoute(QStringLiteral("/v1/local-network"), &RoutingStore::setLocalNetwork);
    valueRoute(QStringLiteral("/v1/proxy/proxy-lan"), &RoutingStore::setProxyLan);
    m_router.add("POST", QStringLiteral("/v1/proxy/listen"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     const QJsonValue listeners = body.value(QStringLiteral("proxy_listeners"));
                     if (!listeners.isArray())
                         return HttpResponse::error(
                             400, QStringLiteral("\"proxy_listeners\" must be an array"));
                     const QString refusal = m_routing.setListeners(listeners.toArray());
                     return refusalOr(refusal, 400, [&] {
                         return HttpResponse::json(
                             {{QStringLiteral("applies_on_reconnect"), m_tunnel.active()},
                              {QStringLiteral("proxy_listeners"), m_routing.listenersJson()}});
                     });
                 });
}

void DemoService::addSplitRoutes()
{
    auto dns = [this] { return HttpResponse::json(m_split.dnsJson()); };
    m_router.add("GET", QStringLiteral("/v1/split/dns"),
                 [dns](const HttpRequest &, const QJsonObject &) { return dns(); });
    m_router.add("POST", QStringLiteral("/v1/split/dns/local"),
                 [this, dns](const HttpRequest &, const QJsonObject &body) {
                     const QJsonValue servers = body.value(QStringLiteral("local_direct_dns"));
                     if (!servers.isArray())
                         return HttpResponse::error(
                             400, QStringLiteral("\"local_direct_dns\" must be an array"));
                     QStringList list;
                     const QJsonArray array = servers.toArray();
                     for (const QJsonValue &server : array)
                         list.append(server.toString());
                     return refusalOr(m_split.setDnsLocal(list, m_tunnel.active()), 400,
                                      [&] { return dns(); });
                 });
    m_router.add("DELETE", QStringLiteral("/v1/split/dns/local"),
                 [this, dns](const HttpRequest &, const QJsonObject &) {
                     m_split.clearDnsLocal(m_tunnel.active());
                     return dns();
                 });
    m_router.add("POST", QStringLiteral("/v1/split/dns/policy"),
                 [this, dns](const HttpRequest &, const QJsonObject &body) {
                     HttpResponse error;
                     QString policy;
                     if (!textField(body, "policy", &policy, &error))
                         return error;
                     return refusalOr(m_split.setDnsPolicy(policy, m_tunnel.active()), 400,
                                      [&] { return dns(); });
                 });
    m_router.add("POST", QStringLiteral("/v1/split/dns/reset"),
                 [this, dns](const HttpRequest &, const QJsonObject &) {
                     m_split.resetDns(m_tunnel.active());
                     return dns();
                 });
    m_router.add("GET", QStringLiteral("/v1/split/rules"),
                 [this](const HttpRequest &request, const QJsonObject &) {
                     const QString kind =
                         QUrlQuery(request.query())
                             .queryItemValue(QStringLiteral("kind"), QUrl::FullyDecoded);
                     if (!kind.isEmpty() && !SplitStore::knownKind(kind))
                         return HttpResponse::error(
                             400, QStringLiteral("unknown rule kind \"%1\"").arg(kind));
                     return HttpResponse::json(m_split.rulesJson(kind));
                 });
    m_router.add(
        "POST", QStringLiteral("/v1/split/rules/import"),
        [this](const HttpRequest &, const QJsonObject &body) {
            HttpResponse error;
            QString kind, content;
            if (!textField(body, "kind", &kind, &error) ||
                !textField(body, "content", &content, &error))
                return error;
            if (!SplitStore::knownKind(kind))
                return HttpResponse::error(400,
                                           QStringLiteral("unknown rule kind \"%1\"").arg(kind));
            return HttpResponse::json(m_split.importRules(kind, content, m_tunnel.active()));
        });
}

void DemoService::addRepairRoutes()
{
    m_router.add(
        "POST", QStringLiteral("/v1/kill-switch/repair"),
        [this](const HttpRequest &, const QJsonObject &) {
            return HttpResponse::json(
                {{QStringLiteral("result"), QStringLiteral("repaired")},
                 {QStringLiteral("state"),
                  m_killSwitch.enabled() ? QStringLiteral("enabled") : QStringLiteral("disabled")},
                 {QStringLiteral("reason"), QStringLiteral("firewall rules reloaded")}});
        });
    m_router.add("POST", QStringLiteral("/v1/proxy/repair"),
                 [this](const HttpRequest &, const QJsonObject &body) {
                     const bool force = body.value(QStringLiteral("force")).toBool();
                     return HttpResponse::json(
                         {{QStringLiteral("result"), QStringLiteral("ok")},
                          {QStringLiteral("state"),
                           QStringLiteral("system proxy %1").arg(m_routing.systemProxy())},
                          {QStringLiteral("reason"),
                           force ? QStringLiteral("proxy settings rewritten")
                                 : QStringLiteral("no stale proxy settings found")}});
                 });
    m_router.add("POST", QStringLiteral("/v1/vpn/repair"),
                 [this](const HttpRequest &, const QJsonObject &) {
                     return HttpResponse::json(
                         {{QStringLiteral("result"), QStringLiteral("ok")},
                          {QStringLiteral("state"), m_tunnel.state()},
                          {QStringLiteral("reason"), m_tunnel.connected()
                                                         ? QStringLiteral("routes and DNS verified")
                                                         : QStringLiteral("no tunnel to repair")}});
                 });
}
