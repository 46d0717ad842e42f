#include "RoutingStore.h"

#include <QHostAddress>
#include <QStringList>

namespace {

constexpr int PacPort = 17891;

const QStringList Transports{QStringLiteral("auto"), QStringLiteral("wireguard"),
                             QStringLiteral("tovravpn"), QStringLiteral("proxy")};
const QStringList Policies{QStringLiteral("global"),       QStringLiteral("split"),
                           QStringLiteral("gfwlist"),      QStringLiteral("bypass-region"),
                           QStringLiteral("proxy-region"), QStringLiteral("direct-region")};

QJsonObject defaultProfile(const QString &route)
{
    return {{QStringLiteral("default_route"), route},
            {QStringLiteral("direct_regions"), QJsonArray{QStringLiteral("CN")}},
            {QStringLiteral("proxy_regions"), QJsonArray()},
            {QStringLiteral("gfwlist"), false},
            {QStringLiteral("lan_routing"), QStringLiteral("direct")},
            {QStringLiteral("custom_rules"), false}};
}

// Keeps the profile keys the daemon knows, with their types checked.
QString cleanProfile(const QJsonValue &value, QJsonObject *profile)
{
    if (!value.isObject())
        return QStringLiteral("split profile must be an object");
    const QJsonObject in = value.toObject();
    const QString route =
        in.value(QStringLiteral("default_route")).toString(QStringLiteral("proxy"));
    if (route != QLatin1String("proxy") && route != QLatin1String("direct"))
        return QStringLiteral("default_route must be \"proxy\" or \"direct\"");
    QJsonObject out = defaultProfile(route);
    for (const char *key : {"direct_regions", "proxy_regions"}) {
        QJsonArray regions;
        const QJsonArray given = in.value(QLatin1String(key)).toArray();
        for (const QJsonValue &region : given) {
            const QString code = region.toString().trimmed().toUpper();
            if (code.size() != 2)
                return QStringLiteral("%1 holds an invalid region code").arg(QLatin1String(key));
            regions.append(code);
        }
        out.insert(QLatin1String(key), regions);
    }
    out.insert(QStringLiteral("gfwlist"), in.value(QStringLiteral("gfwlist")).toBool());
    out.insert(QStringLiteral("custom_rules"), in.value(QStringLiteral("custom_rules")).toBool());
    const QString lan = in.value(QStringLiteral("lan_routing")).toString(QStringLiteral("direct"));
    out.insert(QStringLiteral("lan_routing"), lan.isEmpty() ? QStringLiteral("direct") : lan);
    *profile = out;
    return {};
}

bool validListenAddress(const QString &address)
{
    const qsizetype colon = address.lastIndexOf(QLatin1Char(':'));
    if (colon < 1)
        return false;
    bool ok = false;
    const int port = address.mid(colon + 1).toInt(&ok);
    QString host = address.left(colon);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.mid(1, host.size() - 2);
    return ok && port > 0 && port < 65536 &&
           (host == QLatin1String("localhost") || !QHostAddress(host).isNull());
}

} // namespace

RoutingStore::RoutingStore()
    : m_splitProfile(defaultProfile(QStringLiteral("proxy")))
    , m_lastTovravpnSplitProfile(m_splitProfile)
    , m_proxySplitProfile(defaultProfile(QStringLiteral("proxy")))
    , m_lastProxySplitProfile(m_proxySplitProfile)
{
    m_listeners = {QJsonObject{{QStringLiteral("name"), QStringLiteral("local-socks")},
                               {QStringLiteral("scheme"), QStringLiteral("socks5")},
                               {QStringLiteral("address"), QStringLiteral("127.0.0.1:1080")}},
                   QJsonObject{{QStringLiteral("name"), QStringLiteral("local-http")},
                               {QStringLiteral("scheme"), QStringLiteral("http")},
                               {QStringLiteral("address"), QStringLiteral("127.0.0.1:8118")}}};
}

QString RoutingStore::setMode(const QJsonObject &request)
{
    const QString transport =
        request.value(QStringLiteral("transport")).toString(m_transport).trimmed();
    if (!Transports.contains(transport))
        return QStringLiteral("unknown transport \"%1\"").arg(transport);
    const bool proxyFamily = transport == QLatin1String("proxy");
    // A family switch without a policy restores that family's last policy.
    QString policy = request.value(QStringLiteral("policy")).toString().trimmed();
    if (policy.isEmpty() && transport == QLatin1String("tovravpn"))
        policy = m_lastTovravpnPolicy;
    if (policy.isEmpty() && proxyFamily)
        policy = m_lastProxyPolicy;
    if (!policy.isEmpty() && !Policies.contains(policy))
        return QStringLiteral("unknown policy \"%1\"").arg(policy);

    QJsonObject splitProfile = m_splitProfile;
    QJsonObject proxyProfile = m_proxySplitProfile;
    if (request.contains(QStringLiteral("split_profile"))) {
        const QString error =
            cleanProfile(request.value(QStringLiteral("split_profile")), &splitProfile);
        if (!error.isEmpty())
            return error;
    }
    if (request.contains(QStringLiteral("proxy_split_profile"))) {
        const QString error =
            cleanProfile(request.value(QStringLiteral("proxy_split_profile")), &proxyProfile);
        if (!error.isEmpty())
            return error;
    }
    m_transport = transport;
    m_policy = policy;
    m_region = request.value(QStringLiteral("region")).toString().trimmed().toUpper();
    m_splitProfile = splitProfile;
    m_proxySplitProfile = proxyProfile;
    if (transport == QLatin1String("tovravpn")) {
        m_lastTovravpnPolicy = policy.isEmpty() ? QStringLiteral("global") : policy;
        m_lastTovravpnSplitProfile = m_splitProfile;
    } else if (proxyFamily) {
        m_lastProxyPolicy = policy.isEmpty() ? QStringLiteral("global") : policy;
        m_lastProxySplitProfile = m_proxySplitProfile;
    }
    return {};
}

QString RoutingStore::setSystemProxy(const QString &value)
{
    if (value != QLatin1String("off") && value != QLatin1String("on") &&
        value != QLatin1String("lock"))
        return QStringLiteral("system proxy must be \"off\", \"on\" or \"lock\"");
    m_systemProxy = value;
    return {};
}

QString RoutingStore::setLocalNetwork(const QString &value)
{
    if (value != QLatin1String("direct") && value != QLatin1String("protected"))
        return QStringLiteral("local network must be \"direct\" or \"protected\"");
    m_localNetwork = value;
    return {};
}

QString RoutingStore::setProxyLan(const QString &value)
{
    if (value != QLatin1String("on") && value != QLatin1String("off"))
        return QStringLiteral("proxy LAN must be \"on\" or \"off\"");
    m_proxyLan = value == QLatin1String("on");
    return {};
}

QString RoutingStore::setListeners(const QJsonArray &listeners)
{
    QJsonArray accepted;
    for (const QJsonValue &value : listeners) {
        const QJsonObject listener = value.toObject();
        const QString name = listener.value(QStringLiteral("name")).toString();
        const QString scheme = listener.value(QStringLiteral("scheme")).toString();
        const QString address = listener.value(QStringLiteral("address")).toString().trimmed();
        if (!(name == QLatin1String("local-socks") && scheme == QLatin1String("socks5")) &&
            !(name == QLatin1String("local-http") && scheme == QLatin1String("http")))
            return QStringLiteral("unknown proxy listener \"%1\"").arg(name);
        if (!validListenAddress(address))
            return QStringLiteral("invalid listen address \"%1\": use HOST:PORT").arg(address);
        accepted.append(QJsonObject{{QStringLiteral("name"), name},
                                    {QStringLiteral("scheme"), scheme},
                                    {QStringLiteral("address"), address}});
    }
    m_listeners = accepted;
    return {};
}

QJsonObject RoutingStore::modeJson() const
{
    const bool pac = m_systemProxy != QLatin1String("off");
    return {{QStringLiteral("transport"), m_transport},
            {QStringLiteral("policy"), m_policy},
            {QStringLiteral("region"), m_region},
            {QStringLiteral("system_proxy"), m_systemProxy},
            {QStringLiteral("pac_port"), pac ? PacPort : 0},
            {QStringLiteral("pac_version"), pac ? QStringLiteral("3") : QString()},
            {QStringLiteral("proxy_lan"), m_proxyLan},
            {QStringLiteral("local_network"), m_localNetwork},
            {QStringLiteral("split_profile"), m_splitProfile},
            {QStringLiteral("last_tovravpn_policy"), m_lastTovravpnPolicy},
            {QStringLiteral("last_tovravpn_split_profile"), m_lastTovravpnSplitProfile},
            {QStringLiteral("proxy_split_profile"), m_proxySplitProfile},
            {QStringLiteral("last_proxy_policy"), m_lastProxyPolicy},
            {QStringLiteral("last_proxy_split_profile"), m_lastProxySplitProfile}};
}

QJsonArray RoutingStore::accessUrlsJson() const
{
    QJsonArray urls;
    for (const QJsonValue &value : m_listeners) {
        const QJsonObject listener = value.toObject();
        const QString scheme = listener.value(QStringLiteral("scheme")).toString();
        urls.append(QJsonObject{{QStringLiteral("kind"), scheme == QLatin1String("http")
                                                             ? QStringLiteral("http")
                                                             : QStringLiteral("socks")},
                                {QStringLiteral("scheme"), scheme},
                                {QStringLiteral("url"),
                                 QString(scheme + QStringLiteral("://") +
                                         listener.value(QStringLiteral("address")).toString())}});
    }
    return urls;
}

QJsonObject RoutingStore::pacStatusJson() const
{
    if (m_systemProxy == QLatin1String("off"))
        return {{QStringLiteral("state"), QStringLiteral("inactive")}};
    return {
        {QStringLiteral("state"), QStringLiteral("active")},
        {QStringLiteral("path"), QStringLiteral("/tovra.pac")},
        {QStringLiteral("proxy_address"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("proxy_port"), 8118},
        {QStringLiteral("active_listener_address"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("active_listener_port"), PacPort},
        {QStringLiteral("message"), QStringLiteral("serving PAC on 127.0.0.1:%1").arg(PacPort)}};
}
