#include "ControlEndpoints.h"
#include "ScriptedPeer.h"

#include <QHash>
#include <QTest>

#include <functional>

namespace {

using E = ControlEndpoints;
using Call = std::function<void(const QString &)>;

const int kTimeout = 3000;

ModeInfo sampleMode()
{
    ModeInfo mode;
    mode.transport = QStringLiteral("tovravpn");
    mode.policy = QStringLiteral("split");
    mode.splitProfile.valid = true;
    mode.splitProfile.directRegions = {QStringLiteral("CN")};
    mode.proxySplitProfile.valid = true; // valid but empty: not sent
    return mode;
}

// One call per endpoint row, keyed by the row name used in the data table.
const QHash<QString, Call> &calls()
{
    static const QHash<QString, Call> table{
        {QStringLiteral("fetchStatus"), [](const QString &s) { E::fetchStatus(s, kTimeout); }},
        {QStringLiteral("fetchVersion"), [](const QString &s) { E::fetchVersion(s, kTimeout); }},
        {QStringLiteral("fetchAPIURLConfig"),
         [](const QString &s) { E::fetchAPIURLConfig(s, kTimeout); }},
        {QStringLiteral("setAPIURL"),
         [](const QString &s) { E::setAPIURL(s, QStringLiteral("https://a/"), kTimeout); }},
        {QStringLiteral("resetAPIURL"), [](const QString &s) { E::resetAPIURL(s, kTimeout); }},
        {QStringLiteral("setAutoConnectPreference"),
         [](const QString &s) {
             E::setAutoConnectPreference(s, QStringLiteral("last"), kTimeout);
         }},
        {QStringLiteral("fetchLanguageConfig"),
         [](const QString &s) { E::fetchLanguageConfig(s, kTimeout); }},
        {QStringLiteral("setLanguage"),
         [](const QString &s) {
             E::setLanguage(s, QStringLiteral("user"), QStringLiteral("de"), kTimeout);
         }},
        {QStringLiteral("setLanguage system"),
         [](const QString &s) {
             E::setLanguage(s, QStringLiteral("system"), QString(), kTimeout);
         }},
        {QStringLiteral("setLanguageIfSource"),
         [](const QString &s) {
             E::setLanguageIfSource(s, QStringLiteral("system"), QStringLiteral("fr"),
                                    QStringLiteral("system"), kTimeout);
         }},
        {QStringLiteral("checkUpdate"),
         [](const QString &s) { E::checkUpdate(s, QStringLiteral("0.1.0+1"), kTimeout); }},
        {QStringLiteral("startGUIUpdateDownload"),
         [](const QString &s) {
             E::startGUIUpdateDownload(s, QStringLiteral("0.2.0"), 200, kTimeout);
         }},
        {QStringLiteral("fetchGUIUpdateDownload"),
         [](const QString &s) { E::fetchGUIUpdateDownload(s, kTimeout); }},
        {QStringLiteral("cancelGUIUpdateDownload"),
         [](const QString &s) { E::cancelGUIUpdateDownload(s, kTimeout); }},
        {QStringLiteral("fetchUser"), [](const QString &s) { E::fetchUser(s, kTimeout); }},
        {QStringLiteral("fetchPurchaseURL"),
         [](const QString &s) { E::fetchPurchaseURL(s, QStringLiteral("zh-Hans"), kTimeout); }},
        {QStringLiteral("fetchPurchaseURL no language"),
         [](const QString &s) { E::fetchPurchaseURL(s, QString(), kTimeout); }},
        {QStringLiteral("fetchNodes"), [](const QString &s) { E::fetchNodes(s, false, kTimeout); }},
        {QStringLiteral("fetchNodes refresh"),
         [](const QString &s) { E::fetchNodes(s, true, kTimeout); }},
        {QStringLiteral("setNodeFavorite"),
         [](const QString &s) { E::setNodeFavorite(s, QStringLiteral("n1"), true, kTimeout); }},
        {QStringLiteral("fetchNodeGroups"),
         [](const QString &s) { E::fetchNodeGroups(s, kTimeout); }},
        {QStringLiteral("fetchConfigPaths"),
         [](const QString &s) { E::fetchConfigPaths(s, kTimeout); }},
        {QStringLiteral("fetchKillSwitch"),
         [](const QString &s) { E::fetchKillSwitch(s, kTimeout); }},
        {QStringLiteral("setKillSwitchEnabled"),
         [](const QString &s) { E::setKillSwitchEnabled(s, false, kTimeout); }},
        {QStringLiteral("setKillSwitchMode"),
         [](const QString &s) { E::setKillSwitchMode(s, QStringLiteral("strict"), kTimeout); }},
        {QStringLiteral("setKillSwitchAllowLAN"),
         [](const QString &s) { E::setKillSwitchAllowLAN(s, true, kTimeout); }},
        {QStringLiteral("connectRuntime"),
         [](const QString &s) { E::connectRuntime(s, kTimeout); }},
        {QStringLiteral("connectNode"),
         [](const QString &s) { E::connectNode(s, QStringLiteral("42"), kTimeout); }},
        {QStringLiteral("connectSmart"),
         [](const QString &s) { E::connectSmart(s, QStringLiteral("DE"), kTimeout); }},
        {QStringLiteral("connectSmart no selector"),
         [](const QString &s) { E::connectSmart(s, QString(), kTimeout); }},
        {QStringLiteral("disconnectRuntime"),
         [](const QString &s) { E::disconnectRuntime(s, kTimeout); }},
        {QStringLiteral("login"),
         [](const QString &s) {
             E::login(s, QStringLiteral("me@x"), QStringLiteral("p\"w"), true, kTimeout);
         }},
        {QStringLiteral("logout"), [](const QString &s) { E::logout(s, kTimeout); }},
        {QStringLiteral("setMode"),
         [](const QString &s) { E::setMode(s, sampleMode(), kTimeout); }},
        {QStringLiteral("setMode empty"),
         [](const QString &s) { E::setMode(s, ModeInfo(), kTimeout); }},
        {QStringLiteral("setSystemProxyPreference"),
         [](const QString &s) { E::setSystemProxyPreference(s, QStringLiteral("pac"), kTimeout); }},
        {QStringLiteral("setLocalNetworkPreference"),
         [](const QString &s) {
             E::setLocalNetworkPreference(s, QStringLiteral("direct"), kTimeout);
         }},
        {QStringLiteral("setProxyLANPreference"),
         [](const QString &s) { E::setProxyLANPreference(s, true, kTimeout); }},
        {QStringLiteral("setProxyLANPreference off"),
         [](const QString &s) { E::setProxyLANPreference(s, false, kTimeout); }},
        {QStringLiteral("setProxyListeners"),
         [](const QString &s) {
             E::setProxyListeners(s, QStringLiteral(" 127.0.0.1:1080 "),
                                  QStringLiteral("127.0.0.1:8080"), kTimeout);
         }},
        {QStringLiteral("setProxyListeners none"),
         [](const QString &s) {
             E::setProxyListeners(s, QStringLiteral("  "), QString(), kTimeout);
         }},
        {QStringLiteral("fetchSplitDNS"), [](const QString &s) { E::fetchSplitDNS(s, kTimeout); }},
        {QStringLiteral("setSplitDNSLocal"),
         [](const QString &s) {
             E::setSplitDNSLocal(s, {QStringLiteral("1.1.1.1"), QStringLiteral("9.9.9.9")},
                                 kTimeout);
         }},
        {QStringLiteral("setSplitDNSPolicy"),
         [](const QString &s) { E::setSplitDNSPolicy(s, QStringLiteral("split"), kTimeout); }},
        {QStringLiteral("clearSplitDNSLocal"),
         [](const QString &s) { E::clearSplitDNSLocal(s, kTimeout); }},
        {QStringLiteral("resetSplitDNS"), [](const QString &s) { E::resetSplitDNS(s, kTimeout); }},
        {QStringLiteral("fetchSplitRules"),
         [](const QString &s) { E::fetchSplitRules(s, QStringLiteral("direct list"), kTimeout); }},
        {QStringLiteral("fetchSplitRules blank kind"),
         [](const QString &s) { E::fetchSplitRules(s, QStringLiteral("   "), kTimeout); }},
        {QStringLiteral("importSplitRules"),
         [](const QString &s) {
             E::importSplitRules(s, QStringLiteral("direct"), QStringLiteral("a.com\nb.com"),
                                 kTimeout);
         }},
    };
    return table;
}

struct Request
{
    QByteArray line;
    QByteArray body;
    bool hasContentHeaders = false;
};

Request split(const QByteArray &raw)
{
    const qsizetype end = raw.indexOf("\r\n\r\n");
    const QByteArray head = raw.left(end);
    return {head.left(head.indexOf("\r\n")), raw.mid(end + 4),
            head.contains("Content-Type: application/json\r\nContent-Length: ")};
}

} // namespace

class TestControlEndpoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestBytes_data();
    void requestBytes();
    void failureGivesDefaultRecordAndText();
    void version_data();
    void version();
    void killSwitchModeOnOlderDaemon_data();
    void killSwitchModeOnOlderDaemon();
    void repairDiagnostics();
    void repairStopsWhenDaemonUnreachable();
};

void TestControlEndpoints::requestBytes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("body");

    const auto row = [](const char *name, const char *line, const char *body) {
        QTest::addRow("%s", name) << QByteArray(line) << QByteArray(body);
    };
    row("fetchStatus", "GET /v1/status HTTP/1.1", "");
    row("fetchVersion", "GET /v1/version HTTP/1.1", "");
    row("fetchAPIURLConfig", "GET /v1/config/api-url HTTP/1.1", "");
    row("setAPIURL", "POST /v1/config/api-url HTTP/1.1", R"({"api_url":"https://a/"})");
    row("resetAPIURL", "DELETE /v1/config/api-url HTTP/1.1", "");
    row("setAutoConnectPreference", "POST /v1/config/auto-connect HTTP/1.1",
        R"({"auto_connect":"last"})");
    row("fetchLanguageConfig", "GET /v1/config/language HTTP/1.1", "");
    row("setLanguage", "POST /v1/config/language HTTP/1.1", R"({"language":"de","source":"user"})");
    row("setLanguage system", "POST /v1/config/language HTTP/1.1", R"({"source":"system"})");
    row("setLanguageIfSource", "POST /v1/config/language HTTP/1.1",
        R"({"if_source":"system","language":"fr","source":"system"})");
    row("checkUpdate", "POST /v1/gui/update/check HTTP/1.1", R"({"version":"0.1.0+1"})");
    row("startGUIUpdateDownload", "POST /v1/gui/update/download HTTP/1.1",
        R"({"expected_version_num":200,"version":"0.2.0"})");
    row("fetchGUIUpdateDownload", "GET /v1/gui/update/download HTTP/1.1", "");
    row("cancelGUIUpdateDownload", "DELETE /v1/gui/update/download HTTP/1.1", "");
    row("fetchUser", "GET /v1/user HTTP/1.1", "");
    row("fetchPurchaseURL", "GET /v1/account/purchase-url?lang=zh-Hans HTTP/1.1", "");
    row("fetchPurchaseURL no language", "GET /v1/account/purchase-url HTTP/1.1", "");
    row("fetchNodes", "GET /v1/nodes HTTP/1.1", "");
    row("fetchNodes refresh", "POST /v1/nodes/refresh HTTP/1.1", "{}");
    row("setNodeFavorite", "POST /v1/nodes/favorite HTTP/1.1", R"({"favorite":true,"node":"n1"})");
    row("fetchNodeGroups", "GET /v1/nodes/groups HTTP/1.1", "");
    row("fetchConfigPaths", "GET /v1/config/path HTTP/1.1", "");
    row("fetchKillSwitch", "GET /v1/kill-switch HTTP/1.1", "");
    row("setKillSwitchEnabled", "POST /v1/kill-switch HTTP/1.1", R"({"enabled":false})");
    row("setKillSwitchMode", "POST /v1/kill-switch/mode HTTP/1.1", R"({"mode":"strict"})");
    row("setKillSwitchAllowLAN", "POST /v1/kill-switch/allow-lan HTTP/1.1", R"({"enabled":true})");
    row("connectRuntime", "POST /v1/connect HTTP/1.1", "{}");
    row("connectNode", "POST /v1/connect HTTP/1.1", R"({"node":"42"})");
    row("connectSmart", "POST /v1/connect HTTP/1.1", R"({"group":"DE","smart":true})");
    row("connectSmart no selector", "POST /v1/connect HTTP/1.1", R"({"smart":true})");
    row("disconnectRuntime", "POST /v1/disconnect HTTP/1.1", "{}");
    row("login", "POST /v1/session/login HTTP/1.1",
        R"({"password":"p\"w","remember_me":true,"username":"me@x"})");
    row("logout", "POST /v1/session/logout HTTP/1.1", "{}");
    row("setMode", "POST /v1/mode HTTP/1.1",
        R"({"policy":"split","split_profile":{"custom_rules":false,"default_route":"","direct_regions":["CN"],)"
        R"("gfwlist":false,"lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    row("setMode empty", "POST /v1/mode HTTP/1.1", "{}");
    row("setSystemProxyPreference", "POST /v1/proxy/system-proxy HTTP/1.1", R"({"value":"pac"})");
    row("setLocalNetworkPreference", "POST /v1/local-network HTTP/1.1", R"({"value":"direct"})");
    row("setProxyLANPreference", "POST /v1/proxy/proxy-lan HTTP/1.1", R"({"value":"on"})");
    row("setProxyLANPreference off", "POST /v1/proxy/proxy-lan HTTP/1.1", R"({"value":"off"})");
    row("setProxyListeners", "POST /v1/proxy/listen HTTP/1.1",
        R"({"proxy_listeners":[{"address":"127.0.0.1:1080","name":"local-socks","scheme":"socks5"},)"
        R"({"address":"127.0.0.1:8080","name":"local-http","scheme":"http"}]})");
    row("setProxyListeners none", "POST /v1/proxy/listen HTTP/1.1", R"({"proxy_listeners":[]})");
    row("fetchSplitDNS", "GET /v1/split/dns HTTP/1.1", "");
    row("setSplitDNSLocal", "POST /v1/split/dns/local HTTP/1.1",
        R"({"local_direct_dns":["1.1.1.1","9.9.9.9"]})");
    row("setSplitDNSPolicy", "POST /v1/split/dns/policy HTTP/1.1", R"({"policy":"split"})");
    row("clearSplitDNSLocal", "DELETE /v1/split/dns/local HTTP/1.1", "");
    row("resetSplitDNS", "POST /v1/split/dns/reset HTTP/1.1", "{}");
    row("fetchSplitRules", "GET /v1/split/rules?kind=direct list HTTP/1.1", "");
    row("fetchSplitRules blank kind", "GET /v1/split/rules HTTP/1.1", "");
    row("importSplitRules", "POST /v1/split/rules/import HTTP/1.1",
        R"({"content":"a.com\nb.com","kind":"direct"})");
}

void TestControlEndpoints::requestBytes()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, body);

    ScriptedPeer peer;
    peer.setReply(ScriptedPeer::response(200, "{}"));
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY2(calls().contains(name), qPrintable(name));
    calls().value(name)(peer.socketPath());

    const Request request = split(peer.lastRequest());
    QCOMPARE(request.line, line);
    QCOMPARE(request.body, body);
    QCOMPARE(request.hasContentHeaders, !body.isEmpty());
}

void TestControlEndpoints::failureGivesDefaultRecordAndText()
{
    ScriptedPeer peer;
    peer.setReply(ScriptedPeer::response(401, R"({"error":"wrong password"})"));
    QString error = QStringLiteral("left over");
    const RuntimeInfo info = E::login(peer.socketPath(), QStringLiteral("a"), QStringLiteral("b"),
                                      false, kTimeout, &error);
    QCOMPARE(error, QStringLiteral("wrong password"));
    QCOMPARE(info, RuntimeInfo());

    peer.setReply(ScriptedPeer::response(200, R"({"auth_state":"signed_in"})"));
    const RuntimeInfo ok = E::login(peer.socketPath(), QStringLiteral("a"), QStringLiteral("b"),
                                    false, kTimeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(ok.authState, QStringLiteral("signed_in"));
}

void TestControlEndpoints::version_data()
{
    QTest::addColumn<QByteArray>("response");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("compatible");
    QTest::addColumn<QString>("daemonVersion");
    QTest::addColumn<QString>("controlVersion");
    QTest::addColumn<QString>("error");

    QTest::addRow("compatible") << ScriptedPeer::response(200,
                                                          R"({"version":"2.0","api_version":"1"})")
                                << true << true << QStringLiteral("2.0") << QStringLiteral("1")
                                << QString();
    QTest::addRow("other protocol in body")
        << ScriptedPeer::response(200, R"({"version":"3.0","api_version":"2"})") << true << false
        << QStringLiteral("3.0") << QStringLiteral("2") << QString();
    QTest::addRow("409 with both headers")
        << ScriptedPeer::response(409, R"({"error":"unsupported control version"})",
                                  {"X-Tovra-Daemon-Version:  3.1.0 ", "X-Tovra-Control-Version: 2"})
        << true << false << QStringLiteral("3.1.0") << QStringLiteral("2")
        << QStringLiteral("unsupported control version");
    QTest::addRow("409 without headers")
        << ScriptedPeer::response(409, "") << true << false << QString() << QString()
        << QStringLiteral("control request failed with HTTP 409");
    QTest::addRow("500 is not incompatible")
        << ScriptedPeer::response(500, "") << false << true << QString() << QString()
        << QStringLiteral("control request failed with HTTP 500");
    QTest::addRow("2xx not an object")
        << ScriptedPeer::response(200, "[]") << false << false << QString() << QString()
        << QStringLiteral("invalid version JSON");
}

void TestControlEndpoints::version()
{
    QFETCH(QByteArray, response);
    ScriptedPeer peer;
    peer.setReply(response);
    QString error;
    const VersionInfo info = E::fetchVersion(peer.socketPath(), kTimeout, &error);
    QTEST(info.valid, "valid");
    QTEST(info.compatible, "compatible");
    QTEST(info.daemonVersion, "daemonVersion");
    QTEST(info.controlVersion, "controlVersion");
    QTEST(error, "error");
}

void TestControlEndpoints::killSwitchModeOnOlderDaemon_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("error");
    const QString tooOld =
        QStringLiteral("Tovra daemon is too old for Kill Switch modes. Update Tovra.");
    QTest::addRow("no body") << QByteArray() << tooOld;
    QTest::addRow("plain text") << QByteArray("404 page not found") << tooOld;
    QTest::addRow("empty error") << QByteArray(R"({"error":""})") << tooOld;
    QTest::addRow("blank error") << QByteArray(R"({"error":"  "})") << tooOld;
    QTest::addRow("daemon explains")
        << QByteArray(R"({"error":"unknown mode"})") << QStringLiteral("unknown mode");
}

void TestControlEndpoints::killSwitchModeOnOlderDaemon()
{
    QFETCH(QByteArray, body);
    ScriptedPeer peer;
    peer.setReply(ScriptedPeer::response(404, body));
    QString error;
    const KillSwitchInfo info =
        E::setKillSwitchMode(peer.socketPath(), QStringLiteral("lockdown"), kTimeout, &error);
    QTEST(error, "error");
    QVERIFY(!info.valid);
}

void TestControlEndpoints::repairDiagnostics()
{
    ScriptedPeer peer;
    peer.setReplies(
        {{{ScriptedPeer::Step{
             ScriptedPeer::response(200, R"({"result":"repaired","reason":"rules"})"), 0}}},
         {{ScriptedPeer::Step{ScriptedPeer::response(500, R"({"error":"proxy busy"})"), 0}}},
         {{ScriptedPeer::Step{ScriptedPeer::response(200, "not json"), 0}}}});
    QString error;
    const RepairResultInfo info = E::repairDiagnostics(peer.socketPath(), kTimeout, &error);

    const QList<QByteArray> requests = peer.requests();
    QCOMPARE(requests.size(), 3);
    QCOMPARE(split(requests.at(0)).line, QByteArray("POST /v1/kill-switch/repair HTTP/1.1"));
    QCOMPARE(split(requests.at(0)).body, QByteArray("{}"));
    QCOMPARE(split(requests.at(1)).line, QByteArray("POST /v1/proxy/repair HTTP/1.1"));
    QCOMPARE(split(requests.at(1)).body, QByteArray(R"({"force":false})"));
    QCOMPARE(split(requests.at(2)).line, QByteArray("POST /v1/vpn/repair HTTP/1.1"));

    QVERIFY(info.valid);
    QCOMPARE(info.lines,
             (QStringList{QStringLiteral("kill-switch: repaired, rules"),
                          QStringLiteral("proxy: proxy busy"), QStringLiteral("vpn: ok")}));
    QCOMPARE(info.failedLines, QStringList{QStringLiteral("proxy: proxy busy")});
    QCOMPARE(error, QStringLiteral("proxy: proxy busy"));
}

void TestControlEndpoints::repairStopsWhenDaemonUnreachable()
{
    QString error;
    const RepairResultInfo info =
        E::repairDiagnostics(QStringLiteral("/nonexistent/tovra.sock"), kTimeout, &error);
    QVERIFY(!info.valid);
    QCOMPARE(info.lines, QStringList{QStringLiteral("kill-switch: Tovra daemon is not running.")});
    QCOMPARE(error, QStringLiteral("Tovra daemon is not running."));
}

QTEST_GUILESS_MAIN(TestControlEndpoints)
#include "TestControlEndpoints.moc"
