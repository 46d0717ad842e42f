#include "ControlEndpoints.h"

#include "ControlCall.h"
#include "ControlClient.h"
#include "DiagnosticsRepair.h"
#include "JsonRead.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QUrlQuery>

namespace {

using Cancel = ControlEndpoints::Cancel;

QJsonObject single(const char *key, const QJsonValue &value)
{
    return QJsonObject{{QLatin1String(key), value}};
}

} // namespace

RuntimeInfo ControlEndpoints::fetchStatus(const QString &socketPath, int timeoutMs,
                                          QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/status"), &RuntimeInfo::parse);
}

VersionInfo ControlEndpoints::fetchVersion(const QString &socketPath, int timeoutMs,
                                           QString *errorOut, Cancel cancel)
{
    const ControlCall call(socketPath, timeoutMs, errorOut, cancel);
    QString error;
    const ControlResponse response =
        call.exchange("GET", QStringLiteral("/v1/version"), QByteArray(), &error);
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
        call.report(error);
        return info;
    }
    if (!ControlClient::isSuccess(response)) {
        // An unreachable daemon is never reported as an incompatible one.
        ControlClient::applyResponseError(response, &error);
        info.compatible = true;
        call.report(error);
        return info;
    }
    const auto object = JsonRead::parseObject(response.body);
    if (!object) {
        call.report(QStringLiteral("invalid version JSON"));
        return VersionInfo();
    }
    info.valid = true;
    info.daemonVersion = JsonRead::text(*object, QLatin1String("version"));
    info.controlVersion = JsonRead::text(*object, QLatin1String("api_version"));
    info.compatible = info.controlVersion == QString::fromLatin1(ControlClient::controlVersion());
    call.report(QString());
    return info;
}

APIURLConfigInfo ControlEndpoints::fetchAPIURLConfig(const QString &socketPath, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/config/api-url"), &APIURLConfigInfo::parse);
}

APIURLConfigInfo ControlEndpoints::setAPIURL(const QString &socketPath, const QString &apiURL,
                                             int timeoutMs, QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/config/api-url"), single("api_url", apiURL),
              &APIURLConfigInfo::parse);
}

APIURLConfigInfo ControlEndpoints::resetAPIURL(const QString &socketPath, int timeoutMs,
                                               QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .remove(QStringLiteral("/v1/config/api-url"), &APIURLConfigInfo::parse);
}

AutoConnectConfigInfo ControlEndpoints::setAutoConnectPreference(const QString &socketPath,
                                                                 const QString &value,
                                                                 int timeoutMs, QString *errorOut,
                                                                 Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/config/auto-connect"), single("auto_connect", value),
              &AutoConnectConfigInfo::parse);
}

LanguageConfigInfo ControlEndpoints::fetchLanguageConfig(const QString &socketPath, int timeoutMs,
                                                         QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/config/language"), &LanguageConfigInfo::parse);
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
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/config/language"), body, &LanguageConfigInfo::parse);
}

UpdateInfo ControlEndpoints::checkUpdate(const QString &socketPath, const QString &version,
                                         int timeoutMs, QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/gui/update/check"), single("version", version),
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
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/gui/update/download"), body, &GUIUpdateDownloadInfo::parse);
}

GUIUpdateDownloadInfo ControlEndpoints::fetchGUIUpdateDownload(const QString &socketPath,
                                                               int timeoutMs, QString *errorOut,
                                                               Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/gui/update/download"), &GUIUpdateDownloadInfo::parse);
}

GUIUpdateDownloadInfo ControlEndpoints::cancelGUIUpdateDownload(const QString &socketPath,
                                                                int timeoutMs, QString *errorOut,
                                                                Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .remove(QStringLiteral("/v1/gui/update/download"), &GUIUpdateDownloadInfo::parse);
}

UserInfo ControlEndpoints::fetchUser(const QString &socketPath, int timeoutMs, QString *errorOut,
                                     Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/user"), &UserInfo::parse);
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
    return ControlCall(socketPath, timeoutMs, errorOut, cancel).get(path, &PurchaseURLInfo::parse);
}

NodesInfo ControlEndpoints::fetchNodes(const QString &socketPath, bool refresh, int timeoutMs,
                                       QString *errorOut, Cancel cancel)
{
    if (refresh)
        return ControlCall(socketPath, timeoutMs, errorOut, cancel)
            .post(QStringLiteral("/v1/nodes/refresh"), QJsonObject(), &NodesInfo::parse);
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/nodes"), &NodesInfo::parse);
}

NodesInfo ControlEndpoints::setNodeFavorite(const QString &socketPath, const QString &node,
                                            bool favorite, int timeoutMs, QString *errorOut,
                                            Cancel cancel)
{
    const QJsonObject body{{QLatin1String("node"), node}, {QLatin1String("favorite"), favorite}};
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/nodes/favorite"), body, &NodesInfo::parse);
}

NodeGroupsInfo ControlEndpoints::fetchNodeGroups(const QString &socketPath, int timeoutMs,
                                                 QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/nodes/groups"), &NodeGroupsInfo::parse);
}

ConfigPaths ControlEndpoints::fetchConfigPaths(const QString &socketPath, int timeoutMs,
                                               QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/config/path"), &ConfigPaths::parse);
}

KillSwitchInfo ControlEndpoints::fetchKillSwitch(const QString &socketPath, int timeoutMs,
                                                 QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/kill-switch"), &KillSwitchInfo::parse);
}

KillSwitchInfo ControlEndpoints::setKillSwitchEnabled(const QString &socketPath, bool enabled,
                                                      int timeoutMs, QString *errorOut,
                                                      Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/kill-switch"), single("enabled", enabled),
              &KillSwitchInfo::parse);
}

KillSwitchInfo ControlEndpoints::setKillSwitchMode(const QString &socketPath, const QString &mode,
                                                   int timeoutMs, QString *errorOut, Cancel cancel)
{
    const ControlCall call(socketPath, timeoutMs, errorOut, cancel);
    QString error;
    const ControlResponse response = call.exchange("POST", QStringLiteral("/v1/kill-switch/mode"),
                                                   ControlCall::json(single("mode", mode)), &error);
    if (ControlClient::isSuccess(response)) {
        KillSwitchInfo info = KillSwitchInfo::parse(response.body, &error);
        call.report(error);
        return info;
    }
    if (response.statusCode == 404) {
        // A daemon that knows the endpoint explains its 404; an older one has no such route.
        const QJsonObject object = JsonRead::parseObject(response.body).value_or(QJsonObject());
        if (JsonRead::text(object, QLatin1String("error")).trimmed().isEmpty()) {
            call.report(QCoreApplication::translate(
                "ControlClient", "Tovra daemon is too old for Kill Switch modes. Update Tovra."));
            return KillSwitchInfo();
        }
    }
    ControlClient::applyResponseError(response, &error);
    call.report(error);
    return KillSwitchInfo();
}

KillSwitchInfo ControlEndpoints::setKillSwitchAllowLAN(const QString &socketPath, bool enabled,
                                                       int timeoutMs, QString *errorOut,
                                                       Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/kill-switch/allow-lan"), single("enabled", enabled),
              &KillSwitchInfo::parse);
}

RuntimeInfo ControlEndpoints::connectRuntime(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/connect"), QJsonObject(), &RuntimeInfo::parse);
}

RuntimeInfo ControlEndpoints::connectNode(const QString &socketPath, const QString &node,
                                          int timeoutMs, QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/connect"), single("node", node), &RuntimeInfo::parse);
}

RuntimeInfo ControlEndpoints::connectSmart(const QString &socketPath, const QString &selector,
                                           int timeoutMs, QString *errorOut, Cancel cancel)
{
    QJsonObject body{{QLatin1String("smart"), true}};
    if (!selector.isEmpty())
        body.insert(QLatin1String("group"), selector);
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/connect"), body, &RuntimeInfo::parse);
}

RuntimeInfo ControlEndpoints::disconnectRuntime(const QString &socketPath, int timeoutMs,
                                                QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/disconnect"), QJsonObject(), &RuntimeInfo::parse);
}

RuntimeInfo ControlEndpoints::login(const QString &socketPath, const QString &username,
                                    const QString &password, bool rememberMe, int timeoutMs,
                                    QString *errorOut, Cancel cancel)
{
    const QJsonObject body{{QLatin1String("username"), username},
                           {QLatin1String("password"), password},
                           {QLatin1String("remember_me"), rememberMe}};
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/session/login"), body, &RuntimeInfo::parse);
}

RuntimeInfo ControlEndpoints::logout(const QString &socketPath, int timeoutMs, QString *errorOut,
                                     Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/session/logout"), QJsonObject(), &RuntimeInfo::parse);
}

ModeInfo ControlEndpoints::setMode(const QString &socketPath, const ModeInfo &mode, int timeoutMs,
                                   QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/mode"), mode.requestBody(), &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setSystemProxyPreference(const QString &socketPath, const QString &value,
                                                    int timeoutMs, QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/proxy/system-proxy"), single("value", value), &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setLocalNetworkPreference(const QString &socketPath,
                                                     const QString &value, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/local-network"), single("value", value), &ModeInfo::parse);
}

ModeInfo ControlEndpoints::setProxyLANPreference(const QString &socketPath, bool enabled,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    const QString value = enabled ? QStringLiteral("on") : QStringLiteral("off");
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/proxy/proxy-lan"), single("value", value), &ModeInfo::parse);
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
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/proxy/listen"), single("proxy_listeners", listeners),
              &ProxyListenResultInfo::parse);
}

SplitDNSInfo ControlEndpoints::fetchSplitDNS(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .get(QStringLiteral("/v1/split/dns"), &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::setSplitDNSLocal(const QString &socketPath,
                                                const QStringList &servers, int timeoutMs,
                                                QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/split/dns/local"),
              single("local_direct_dns", QJsonArray::fromStringList(servers)),
              &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::setSplitDNSPolicy(const QString &socketPath, const QString &policy,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/split/dns/policy"), single("policy", policy),
              &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::clearSplitDNSLocal(const QString &socketPath, int timeoutMs,
                                                  QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .remove(QStringLiteral("/v1/split/dns/local"), &SplitDNSInfo::parse);
}

SplitDNSInfo ControlEndpoints::resetSplitDNS(const QString &socketPath, int timeoutMs,
                                             QString *errorOut, Cancel cancel)
{
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/split/dns/reset"), QJsonObject(), &SplitDNSInfo::parse);
}

SplitRulesInfo ControlEndpoints::fetchSplitRules(const QString &socketPath, const QString &kind,
                                                 int timeoutMs, QString *errorOut, Cancel cancel)
{
    QString path = QStringLiteral("/v1/split/rules");
    const QString trimmedKind = kind.trimmed();
    if (!trimmedKind.isEmpty())
        path += QStringLiteral("?kind=") + trimmedKind;
    return ControlCall(socketPath, timeoutMs, errorOut, cancel).get(path, &SplitRulesInfo::parse);
}

SplitRuleMutationInfo ControlEndpoints::importSplitRules(const QString &socketPath,
                                                         const QString &kind,
                                                         const QString &content, int timeoutMs,
                                                         QString *errorOut, Cancel cancel)
{
    const QJsonObject body{{QLatin1String("kind"), kind}, {QLatin1String("content"), content}};
    return ControlCall(socketPath, timeoutMs, errorOut, cancel)
        .post(QStringLiteral("/v1/split/rules/import"), body, &SplitRuleMutationInfo::parse);
}

RepairResultInfo ControlEndpoints::repairDiagnostics(const QString &socketPath, int timeoutMs,
                                                     QString *errorOut, Cancel cancel)
{
    return DiagnosticsRepair::run(socketPath, timeoutMs, errorOut, cancel);
}
