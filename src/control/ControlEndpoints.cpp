#include "ControlEndpoints.h"

#include "ControlClient.h"
#include "JsonRead.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

namespace {

using Cancel = ControlEndpoints::Cancel;

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject single(const char *key, const QJsonValue &value)
{
    return QJsonObject{{QLatin1String(key), value}};
}

void setError(QString *errorOut, const QString &error)
{
    if (errorOut)
        *errorOut = error;
}

// One exchange, then the record's parser on a 2xx answer; otherwise the worded error and the
// default record. The error text is always written, empty on success.
template<typename Record>
Record call(const QString &socketPath, const char *method, const QString &path,
            const QByteArray &body, int timeoutMs, QString *errorOut, Cancel cancel,
            Record (*parse)(const QByteArray &, QString *))
{
    QString error;
    const ControlResponse response = ControlClient::exchange(socketPath, QByteArray(method), path,
                                                             body, timeoutMs, &error, cancel);
    if (!ControlClient::isSuccess(response)) {
        ControlClient::applyResponseError(response, &error);
        setError(errorOut, error);
        return Record();
    }
    Record record = parse(response.body, &error);
    setError(errorOut, error);
    return record;
}

RuntimeInfo postRuntime(const QString &socketPath, const QString &path, const QJsonObject &body,
                        int timeoutMs, QString *errorOut, Cancel cancel)
{
    return call<RuntimeInfo>(socketPath, "POST", path, compact(body), timeoutMs, errorOut, cancel,
                             &RuntimeInfo::parse);
}

QJsonObject modeBody(const ModeInfo &mode)
{
    QJsonObject body;
    if (!mode.transport.isEmpty())
        body.insert(QLatin1String("transport"), mode.transport);
    if (!mode.policy.isEmpty())
        body.insert(QLatin1String("policy"), mode.policy);
    if (!mode.region.isEmpty())
        body.insert(QLatin1String("region"), mode.region);
    if (mode.splitProfile.valid && mode.splitProfile.hasAnyField())
        body.insert(QLatin1String("split_profile"), mode.splitProfile.toJson());
    if (mode.proxySplitProfile.valid && mode.proxySplitProfile.hasAnyField())
        body.insert(QLatin1String("proxy_split_profile"), mode.proxySplitProfile.toJson());
    return body;
}

// The daemon's words about one repair: "result", "state" and "reason", the non-empty ones.
QString repairWords(const QByteArray &body)
{
    const QJsonObject object = JsonRead::parseObject(body).value_or(QJsonObject());
    QStringList words;
    for (const char *key : {"result", "state", "reason"}) {
        const QString word = JsonRead::text(object, QLatin1String(key));
        if (!word.isEmpty())
            words.append(word);
    }
    return words.isEmpty() ? QStringLiteral("ok") : words.join(QStringLiteral(", "));
}

} // namespace

RuntimeInfo ControlEndpoints::fetchStatus(const QString &socketPath, int timeoutMs,
                                          QString *errorOut, Cancel cancel)
{
    return call<RuntimeInfo>(socketPath, "GET", QStringLiteral("/v1/status"), QByteArray(),
                             timeoutMs, errorOut, cancel, &RuntimeInfo::parse);
}

VersionInfo ControlEndpoints::fetchVersion(const QString &socketPath, int timeoutMs,
                                           QString *errorOut, Cancel cancel)
{
    QString error;
    const ControlResponse response =
        ControlClient::exchange(socketPath, QByteArrayLiteral("GET"), QStringLiteral("/v1/version"),
                                QByteArray(), timeoutMs, &error, cancel);
    VersionInfo info;
    if (response.statusCode == 409) {
        // The daemon refuses our protocol version but still says which versions it speaks.
        ControlClient::applyResponseError(response, &error);
        info.valid = true;
        info.compatible = false;
        info.daemonVersion =
            QString::fromUtf8(response.headers.value("x-tovra-daemon-version")).trimmed();
        info.controlVersion =
            QString::fromUtf8(response.headers.value("x-tovra-control-version")).trimmed();
        setError(errorOut, error);
        return info;
    }
    if (!ControlClient::isSuccess(response)) {
        // An unreachable daemon is never reported as an incompatible one.
        ControlClient::applyResponseError(response, &error);
        info.compatible = true;
        setError(errorOut, error);
        return info;
    }
    const auto object = JsonRead::parseObject(response.body);
    if (!object) {
        setError(errorOut, QStringLiteral("invalid version JSON"));
        return VersionInfo();
    }
    info.valid = true;
    info.daemonVersion = JsonRead::text(*object, QLatin1String("version"));
    info.controlVersion = JsonRead::text(*object, QLatin1String("api_version"));
    info.compatible = info.controlVersion == QString::fromLatin1(ControlClient::controlVersion());
    setError(errorOut, QString());
    return info;
}

APIURLConfigInfo ControlEndpoints::fetchAPIURLConfig(const QString &socketPath, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    return call<APIURLConfigInfo>(socketPath, "GET", QStringLiteral("/v1/config/api-url"),
                                  QByteArray(), timeoutMs, errorOut, cancel,
                                  &APIURLConfigInfo::parse);
}

APIURLConfigInfo ControlEndpoints::setAPIURL(const QString &socketPath, const QString &apiURL,
                                             int timeoutMs, QString *errorOut, Cancel cancel)
{
    return call<APIURLConfigInfo>(socketPath, "POST", QStringLiteral("/v1/config/api-url"),
                                  compact(single("api_url", apiURL)), timeoutMs, errorOut, cancel,
                                  &APIURLConfigInfo::parse);
}

APIURLConfigInfo ControlEndpoints::resetAPIURL(const QString &socketPath, int timeoutMs,
                                               QString *errorOut, Cancel cancel)
{
    return call<APIURLConfigInfo>(socketPath, "DELETE", QStringLiteral("/v1/config/api-url"),
                                  QByteArray(), timeoutMs, errorOut, cancel,
                                  &APIURLConfigInfo::parse);
}

AutoConnectConfigInfo ControlEndpoints::setAutoConnectPreference(const QString &socketPath,
                                                                 const QString &value,
                                                                 int timeoutMs, QString *errorOut,
                                                                 Cancel cancel)
{
    return call<AutoConnectConfigInfo>(socketPath, "POST",
                                       QStringLiteral("/v1/config/auto-connect"),
                                       compact(single("auto_connect", value)), timeoutMs, errorOut,
                                       cancel, &AutoConnectConfigInfo::parse);
}

LanguageConfigInfo ControlEndpoints::fetchLanguageConfig(const QString &socketPath, int timeoutMs,
                                                         QString *errorOut, Cancel cancel)
{
    return call<LanguageConfigInfo>(socketPath, "GET", QStringLiteral("/v1/config/language"),
                                    QByteArray(), timeoutMs, errorOut, cancel,
                                    &LanguageConfigInfo::parse);
}

LanguageConfigInfo ControlEndpoints::setLanguage(const QString &socketPath, const QString &source,
                                                 const QString &language, int timeoutMs,
                                                 QString *errorOut, Cancel cancel)
{
    return setLanguageIfSource(socketPath, source, language, QString(), timeoutMs, errorOut,
                               cancel);
}

LanguageConfigInfo ControlEndpoints::setLanguageIfSource(const QString &socketPath,
                                                         const QString &source,
                                                         const QString &language,
                                                         const QString &ifSource, int timeoutMs,
                                                         QString *errorOut, Cancel cancel)
{
    QJsonObject body{{QLatin1String("source"), source}};
    if (!language.isEmpty())
        body.insert(QLatin1String("language"), language);
    if (!ifSource.isEmpty())
        body.insert(QLatin1String("if_source"), ifSource);
    return call<LanguageConfigInfo>(socketPath, "POST", QStringLiteral("/v1/config/language"),
                                    compact(body), timeoutMs, errorOut, cancel,
                                    &LanguageConfigInfo::parse);
}

UpdateInfo ControlEndpoints::checkUpdate(const QString &socketPath, const QString &version,
                                         int timeoutMs, QString *errorOut, Cancel cancel)
{
    return call<UpdateInfo>(socketPath, "POST", QStringLiteral("/v1/gui/update/check"),
                            compact(single("version", version)), timeoutMs, errorOut, cancel,
                            &UpdateInfo::parse);
}

GUIUpdateDownloadInfo ControlEndpoints::startGUIUpdateDownload(const QString &socketPath,
                                                               const QString &version,
                                                               qint64 expectedVersionNum,
                                                               int timeoutMs, QString *errorOut,
                                                               Cancel cancel)
{
    const QJsonObject body{{QLatin1String("version"), version},
                           {QLatin1String("expected_version_num"), expectedVersionNum}};
    return call<GUIUpdateDownloadInfo>(socketPath, "POST",
                                       QStringLiteral("/v1/gui/update/download"), compact(body),
                                       timeoutMs, errorOut, cancel, &GUIUpdateDownloadInfo::parse);
}

GUIUpdateDownloadInfo ControlEndpoints::fetchGUIUpdateDownload(const QString &socketPath,
                                                               int timeoutMs, QString *errorOut,
                                                               Cancel cancel)
{
    return call<GUIUpdateDownloadInfo>(socketPath, "GET", QStringLiteral("/v1/gui/update/download"),
                                       QByteArray(), timeoutMs, errorOut, cancel,
                                       &GUIUpdateDownloadInfo::parse);
}

GUIUpdateDownloadInfo ControlEndpoints::cancelGUIUpdateDownload(const QString &socketPath,
                                                                int timeoutMs, QString *errorOut,
                                                                Cancel cancel)
{
    return call<GUIUpdateDownloadInfo>(socketPath, "DELETE",
                                       QStringLiteral("/v1/gui/update/download"), QByteArray(),
                                       timeoutMs, errorOut, cancel, &GUIUpdateDownloadInfo::parse);
}

UserInfo ControlEndpoints::fetchUser(const QString &socketPath, int timeoutMs, QString *errorOut,
                                     Cancel cancel)
{
    return call<UserInfo>(socketPath, "GET", QStringLiteral("/v1/user"), QByteArray(), timeoutMs,
                          errorOut, cancel, &UserInfo::parse);
}

PurchaseURLInfo ControlEndpoints::fetchPurchaseURL(const QString &socketPath, const QString &lang,
                                                   int timeoutMs, QString *errorOut, Cancel cancel)
{
    QString path = QStringLiteral("/v1/account/purchase-url");
    if (!lang.isEmpty()) {
        QUrlQuery query;
        query.addQueryItem(QStringLiteral("lang"), lang);
        path += QLatin1Char('?') + query.query();
    }
    return call<PurchaseURLInfo>(socketPath, "GET", path, QByteArray(), timeoutMs, errorOut, cancel,
                                 &PurchaseURLInfo::parse);
}

NodesInfo ControlEndpoints::fetchNodes(const QString &socketPath, bool refresh, int timeoutMs,
                                       QString *errorOut, Cancel cancel)
{
    if (refresh)
        return call<NodesInfo>(socketPath, "POST", QStringLiteral("/v1/nodes/refresh"),
                               compact(QJsonObject()), timeoutMs, errorOut, cancel,
                               &NodesInfo::parse);
    return call<NodesInfo>(socketPath, "GET", QStringLiteral("/v1/nodes"), QByteArray(), timeoutMs,
                           errorOut, cancel, &NodesInfo::parse);
}

NodesInfo ControlEndpoints::setNodeFavorite(const QString &socketPath, const QString &node,
                                            bool favorite, int timeoutMs, QString *errorOut,
                                            Cancel cancel)
{
    const QJsonObject body{{QLatin1String("node"), node}, {QLatin1String("favorite"), favorite}};
    return call<NodesInfo>(socketPath, "POST", QStringLiteral("/v1/nodes/favorite"), compact(body),
                           timeoutMs, errorOut, cancel, &NodesInfo::parse);
}

NodeGroupsInfo ControlEndpoints::fetchNodeGroups(const QString &socketPath, int timeoutMs,
                                                 QString *errorOut, Cancel cancel)
{
    return call<NodeGroupsInfo>(socketPath, "GET", QStringLiteral("/v1/nodes/groups"), QByteArray(),
                                timeoutMs, errorOut, cancel, &NodeGroupsInfo::parse);
}

ConfigPaths ControlEndpoints::fetchConfigPaths(const QString &socketPath, int timeoutMs,
                                               QString *errorOut, Cancel cancel)
{
    return call<ConfigPaths>(socketPath, "GET", QStringLiteral("/v1/config/path"), QByteArray(),
                             timeoutMs, errorOut, cancel, &ConfigPaths::parse);
}

KillSwitchInfo ControlEndpoints::fetchKillSwitch(const QString &socketPath, int timeoutMs,
                                                 QString *errorOut, Cancel cancel)
{
    return call<KillSwitchInfo>(socketPath, "GET", QStringLiteral("/v1/kill-switch"), QByteArray(),
                                timeoutMs, errorOut, cancel, &KillSwitchInfo::parse);
}

KillSwitchInfo ControlEndpoints::setKillSwitchEnabled(const QString &socketPath, bool enabled,
                                                      int timeoutMs, QString *errorOut,
                                                      Cancel cancel)
{
    return call<KillSwitchInfo>(socketPath, "POST", QStringLiteral("/v1/kill-switch"),
                                compact(single("enabled", enabled)), timeoutMs, errorOut, cancel,
                                &KillSwitchInfo::parse);
}

KillSwitchInfo ControlEndpoints::setKillSwitchMode(const QString &socketPath, const QString &mode,
                                                   int timeoutMs, QString *errorOut, Cancel cancel)
{
    QString error;
    const ControlResponse response = ControlClient::exchange(
        socketPath, QByteArrayLiteral("POST"), QStringLiteral("/v1/kill-switch/mode"),
        compact(single("mode", mode)), timeoutMs, &error, cancel);
    if (ControlClient::isSuccess(response)) {
        KillSwitchInfo info = KillSwitchInfo::parse(response.body, &error);
        setError(errorOut, error);
        return info;
    }
    if (response.statusCode == 404) {
        // A daemon that knows the endpoint explains its 404; an older one has no such route.
        const QJsonObject object = JsonRead::parseObject(response.body).value_or(QJsonObject());
        if (JsonRead::text(object, QLatin1String("error")).trimmed().isEmpty()) {
            setError(errorOut, QCoreApplication::translate(
                                   "ControlClient",
                                   "Tovra daemon is too old for Kill Switch modes. Update Tovra."));
            return KillSwitchInfo();
        }
    }
    ControlClient::applyResponseError(response, &error);
    setError(errorOut, error);
    return KillSwitchInfo();
}

KillSwitchInfo ControlEndpoints::setKillSwitchAllowLAN(const QString &socketPath, bool enabled,
                                                       int timeoutMs, QString *errorOut,
                                                       Cancel cancel)
{
    return call<KillSwitchInfo>(socketPath, "POST", QStringLiteral("/v1/kill-switch/allow-lan"),
                                compact(single("enabled", enabled)), timeoutMs, errorOut, cancel,
                                &KillSwitchInfo::parse);
}

RuntimeInfo ControlEndpoints::connectRuntime(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return postRuntime(socketPath, QStringLiteral("/v1/connect"), QJsonObject(), timeoutMs,
                       errorOut, cancel);
}

RuntimeInfo ControlEndpoints::connectNode(const QString &socketPath, const QString &node,
                                          int timeoutMs, QString *errorOut, Cancel cancel)
{
    return postRuntime(socketPath, QStringLiteral("/v1/connect"), single("node", node), timeoutMs,
                       errorOut, cancel);
}

RuntimeInfo ControlEndpoints::connectSmart(const QString &socketPath, const QString &selector,
                                           int timeoutMs, QString *errorOut, Cancel cancel)
{
    QJsonObject body{{QLatin1String("smart"), true}};
    if (!selector.isEmpty())
        body.insert(QLatin1String("group"), selector);
    return postRuntime(socketPath, QStringLiteral("/v1/connect"), body, timeoutMs, errorOut,
                       cancel);
}

RuntimeInfo ControlEndpoints::disconnectRuntime(const QString &socketPath, int timeoutMs,
                                                QString *errorOut, Cancel cancel)
{
    return postRuntime(socketPath, QStringLiteral("/v1/disconnect"), QJsonObject(), timeoutMs,
                       errorOut, cancel);
}

RuntimeInfo ControlEndpoints::login(const QString &socketPath, const QString &username,
                                    const QString &password, bool rememberMe, int timeoutMs,
                                    QString *errorOut, Cancel cancel)
{
    const QJsonObject body{{QLatin1String("username"), username},
                           {QLatin1String("password"), password},
                           {QLatin1String("remember_me"), rememberMe}};
    return postRuntime(socketPath, QStringLiteral("/v1/session/login"), body, timeoutMs, errorOut,
                       cancel);
}

RuntimeInfo ControlEndpoints::logout(const QString &socketPath, int timeoutMs, QString *errorOut,
                                     Cancel cancel)
{
    return postRuntime(socketPath, QStringLiteral("/v1/session/logout"), QJsonObject(), timeoutMs,
                       errorOut, cancel);
}

ModeInfo ControlEndpoints::setMode(const QString &socketPath, const ModeInfo &mode, int timeoutMs,
                                   QString *errorOut, Cancel cancel)
{
    return call<ModeInfo>(socketPath, "POST", QStringLiteral("/v1/mode"), compact(modeBody(mode)),
                          timeoutMs, errorOut, cancel, &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setSystemProxyPreference(const QString &socketPath, const QString &value,
                                                    int timeoutMs, QString *errorOut, Cancel cancel)
{
    return call<ModeInfo>(socketPath, "POST", QStringLiteral("/v1/proxy/system-proxy"),
                          compact(single("value", value)), timeoutMs, errorOut, cancel,
                          &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setLocalNetworkPreference(const QString &socketPath,
                                                     const QString &value, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    return call<ModeInfo>(socketPath, "POST", QStringLiteral("/v1/local-network"),
                          compact(single("value", value)), timeoutMs, errorOut, cancel,
                          &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setProxyLANPreference(const QString &socketPath, bool enabled,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    const QString value = enabled ? QStringLiteral("on") : QStringLiteral("off");
    return call<ModeInfo>(socketPath, "POST", QStringLiteral("/v1/proxy/proxy-lan"),
                          compact(single("value", value)), timeoutMs, errorOut, cancel,
                          &ModeInfo::parse);
}

ProxyListenResultInfo ControlEndpoints::setProxyListeners(const QString &socketPath,
                                                          const QString &socksAddress,
                                                          const QString &httpAddress, int timeoutMs,
                                                          QString *errorOut, Cancel cancel)
{
    QJsonArray listeners;
    const QString socks = socksAddress.trimmed();
    const QString http = httpAddress.trimmed();
    if (!socks.isEmpty())
        listeners.append(QJsonObject{{QLatin1String("name"), QStringLiteral("local-socks")},
                                     {QLatin1String("scheme"), QStringLiteral("socks5")},
                                     {QLatin1String("address"), socks}});
    if (!http.isEmpty())
        listeners.append(QJsonObject{{QLatin1String("name"), QStringLiteral("local-http")},
                                     {QLatin1String("scheme"), QStringLiteral("http")},
                                     {QLatin1String("address"), http}});
    return call<ProxyListenResultInfo>(socketPath, "POST", QStringLiteral("/v1/proxy/listen"),
                                       compact(single("proxy_listeners", listeners)), timeoutMs,
                                       errorOut, cancel, &ProxyListenResultInfo::parse);
}

SplitDNSInfo ControlEndpoints::fetchSplitDNS(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return call<SplitDNSInfo>(socketPath, "GET", QStringLiteral("/v1/split/dns"), QByteArray(),
                              timeoutMs, errorOut, cancel, &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::setSplitDNSLocal(const QString &socketPath,
                                                const QStringList &servers, int timeoutMs,
                                                QString *errorOut, Cancel cancel)
{
    return call<SplitDNSInfo>(
        socketPath, "POST", QStringLiteral("/v1/split/dns/local"),
        compact(single("local_direct_dns", QJsonArray::fromStringList(servers))), timeoutMs,
        errorOut, cancel, &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::setSplitDNSPolicy(const QString &socketPath, const QString &policy,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    return call<SplitDNSInfo>(socketPath, "POST", QStringLiteral("/v1/split/dns/policy"),
                              compact(single("policy", policy)), timeoutMs, errorOut, cancel,
                              &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::clearSplitDNSLocal(const QString &socketPath, int timeoutMs,
                                                  QString *errorOut, Cancel cancel)
{
    return call<SplitDNSInfo>(socketPath, "DELETE", QStringLiteral("/v1/split/dns/local"),
                              QByteArray(), timeoutMs, errorOut, cancel, &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::resetSplitDNS(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return call<SplitDNSInfo>(socketPath, "POST", QStringLiteral("/v1/split/dns/reset"),
                              compact(QJsonObject()), timeoutMs, errorOut, cancel,
                              &SplitDNSInfo::parse);
}

SplitRulesInfo ControlEndpoints::fetchSplitRules(const QString &socketPath, const QString &kind,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    QString path = QStringLiteral("/v1/split/rules");
    const QString trimmedKind = kind.trimmed();
    if (!trimmedKind.isEmpty())
        path += QStringLiteral("?kind=") + trimmedKind;
    return call<SplitRulesInfo>(socketPath, "GET", path, QByteArray(), timeoutMs, errorOut, cancel,
                                &SplitRulesInfo::parse);
}

SplitRuleMutationInfo ControlEndpoints::importSplitRules(const QString &socketPath,
                                                         const QString &kind,
                                                         const QString &content, int timeoutMs,
                                                         QString *errorOut, Cancel cancel)
{
    const QJsonObject body{{QLatin1String("kind"), kind}, {QLatin1String("content"), content}};
    return call<SplitRuleMutationInfo>(socketPath, "POST", QStringLiteral("/v1/split/rules/import"),
                                       compact(body), timeoutMs, errorOut, cancel,
                                       &SplitRuleMutationInfo::parse);
}

RepairResultInfo ControlEndpoints::repairDiagnostics(const QString &socketPath, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    struct Repair
    {
        const char *name;
        const char *path;
        QByteArray body;
    };
    const Repair repairs[] = {
        {"kill-switch", "/v1/kill-switch/repair", QByteArrayLiteral("{}")},
        {"proxy", "/v1/proxy/repair", QByteArrayLiteral("{\"force\":false}")},
        {"vpn", "/v1/vpn/repair", QByteArrayLiteral("{}")},
    };

    RepairResultInfo info;
    QString transportError;
    for (const Repair &repair : repairs) {
        QString error;
        const ControlResponse response = ControlClient::exchange(
            socketPath, QByteArrayLiteral("POST"), QString::fromLatin1(repair.path), repair.body,
            timeoutMs, &error, cancel);
        const QString name = QString::fromLatin1(repair.name);
        if (ControlClient::isSuccess(response)) {
            info.valid = true;
            info.lines.append(QStringLiteral("%1: %2").arg(name, repairWords(response.body)));
            continue;
        }
        ControlClient::applyResponseError(response, &error);
        const QString line = QStringLiteral("%1: %2").arg(name, error);
        info.lines.append(line);
        info.failedLines.append(line);
        if (response.statusCode == 0) {
            // Unreachable or canceled: the remaining repairs would fail the same way.
            transportError = error;
            break;
        }
    }
    if (!transportError.isEmpty())
        setError(errorOut, transportError);
    else
        setError(errorOut, info.failedLines.join(QLatin1Char('\n')));
    return info;
}
