#include "ControlEndpoints.h"
#include "ScriptedPeer.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using E = ControlEndpoints;
using Call = std::function<void(const QString &)>;

const int kTimeout = 3000;

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

Q_DECLARE_METATYPE(Call)

// Paths and methods are checked against the demo daemon (TestDemoContract, and the settings,
// mode and update flows); these are the requests whose bytes depend on the arguments.
class TestControlEndpoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestBytes_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("body");
        const auto row = [](const char *name, const char *line, const char *body, Call call) {
            QTest::addRow("%s", name) << call << QByteArray(line) << QByteArray(body);
        };
        const auto s = [](const char *text) { return QString::fromUtf8(text); };
        row("language from the system", "POST /v1/config/language HTTP/1.1",
            R"({"source":"system"})",
            [](const QString &p) { E::setLanguage(p, u"system"_s, {}, kTimeout); });
        row("purchase link without language", "GET /v1/account/purchase-url HTTP/1.1", "",
            [](const QString &p) { E::fetchPurchaseURL(p, QString(), kTimeout); });
        row("purchase link", "GET /v1/account/purchase-url?lang=zh-Hans HTTP/1.1", "",
            [s](const QString &p) { E::fetchPurchaseURL(p, s("zh-Hans"), kTimeout); });
        row("smart connect without a selector", "POST /v1/connect HTTP/1.1", R"({"smart":true})",
            [](const QString &p) { E::connectSmart(p, QString(), kTimeout); });
        row("login", "POST /v1/session/login HTTP/1.1",
            "{\"password\":\"p\\\"w\",\"remember_me\":true,\"username\":\"me@x\"}",
            [s](const QString &p) { E::login(p, s("me@x"), s("p\"w"), true, kTimeout); });
        row("mode with one profile", "POST /v1/mode HTTP/1.1",
            R"({"policy":"split","split_profile":{"custom_rules":false,"default_route":"","direct_regions":["CN"],)"
            R"("gfwlist":false,"lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})",
            [](const QString &p) {
                ModeInfo mode;
                mode.transport = u"tovravpn"_s;
                mode.policy = u"split"_s;
                mode.splitProfile.valid = true;
                mode.splitProfile.directRegions = {u"CN"_s};
                mode.proxySplitProfile.valid = true; // valid but empty: not sent
                E::setMode(p, mode, kTimeout);
            });
        row("proxy LAN off", "POST /v1/proxy/proxy-lan HTTP/1.1", R"({"value":"off"})",
            [](const QString &p) { E::setProxyLANPreference(p, false, kTimeout); });
        row("listeners", "POST /v1/proxy/listen HTTP/1.1",
            R"({"proxy_listeners":[{"address":"127.0.0.1:1080","name":"local-socks","scheme":"socks5"},)"
            R"({"address":"127.0.0.1:8080","name":"local-http","scheme":"http"}]})",
            [s](const QString &p) {
                E::setProxyListeners(p, s(" 127.0.0.1:1080 "), s("127.0.0.1:8080"), kTimeout);
            });
        row("no listeners", "POST /v1/proxy/listen HTTP/1.1", R"({"proxy_listeners":[]})",
            [s](const QString &p) { E::setProxyListeners(p, s("  "), QString(), kTimeout); });
        row("rules of a kind", "GET /v1/split/rules?kind=direct HTTP/1.1", "",
            [s](const QString &p) { E::fetchSplitRules(p, s(" direct "), kTimeout); });
        row("rules of a blank kind", "GET /v1/split/rules HTTP/1.1", "",
            [s](const QString &p) { E::fetchSplitRules(p, s("   "), kTimeout); });
    }

    void requestBytes()
    {
        QFETCH(Call, call);
        QFETCH(QByteArray, body);
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(200, "{}"));
        call(peer.socketPath());
        const Request request = split(peer.lastRequest());
        QTEST(request.line, "line");
        QCOMPARE(request.body, body);
        QCOMPARE(request.hasContentHeaders, !body.isEmpty());
    }

    void version_data()
    {
        QTest::addColumn<QByteArray>("response");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<bool>("compatible");
        QTest::addColumn<QString>("daemonVersion");
        QTest::addColumn<QString>("controlVersion");
        QTest::addColumn<QString>("error");

        QTest::addRow("compatible")
            << ScriptedPeer::response(200, R"({"version":"2.0","api_version":"1"})") << true << true
            << u"2.0"_s << u"1"_s << QString();
        QTest::addRow("other protocol in body")
            << ScriptedPeer::response(200, R"({"version":"3.0","api_version":"2"})") << true
            << false << u"3.0"_s << u"2"_s << QString();
        QTest::addRow("409 with both headers")
            << ScriptedPeer::response(
                   409, R"({"error":"unsupported control version"})",
                   {"X-Tovra-Daemon-Version:  3.1.0 ", "X-Tovra-Control-Version: 2"})
            << true << false << u"3.1.0"_s << u"2"_s << u"unsupported control version"_s;
        QTest::addRow("409 without headers")
            << ScriptedPeer::response(409, "") << true << false << QString() << QString()
            << u"control request failed with HTTP 409"_s;
        QTest::addRow("500 is not incompatible")
            << ScriptedPeer::response(500, "") << false << true << QString() << QString()
            << u"control request failed with HTTP 500"_s;
        QTest::addRow("2xx not an object") << ScriptedPeer::response(200, "[]") << false << false
                                           << QString() << QString() << u"invalid version JSON"_s;
    }

    void version()
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

    void killSwitchModeOnOlderDaemon_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("error");
        const QString tooOld = u"Tovra daemon is too old for Kill Switch modes. Update Tovra."_s;
        QTest::addRow("blank error") << QByteArray(R"({"error":"  "})") << tooOld;
        QTest::addRow("daemon explains")
            << QByteArray(R"({"error":"unknown mode"})") << u"unknown mode"_s;
    }

    void killSwitchModeOnOlderDaemon()
    {
        QFETCH(QByteArray, body);
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(404, body));
        QString error;
        const KillSwitchInfo info =
            E::setKillSwitchMode(peer.socketPath(), u"lockdown"_s, kTimeout, &error);
        QTEST(error, "error");
        QVERIFY(!info.valid);
    }

    void repairDiagnostics()
    {
        using Step = ScriptedPeer::Step;
        ScriptedPeer peer;
        peer.setReplies(
            {{{Step{ScriptedPeer::response(200, R"({"result":"repaired","reason":"rules"})"), 0}}},
             {{Step{ScriptedPeer::response(500, R"({"error":"proxy busy"})"), 0}}},
             {{Step{ScriptedPeer::response(200, "not json"), 0}}}});
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
        QCOMPARE(info.lines, (QStringList{u"kill-switch: repaired, rules"_s, u"proxy: proxy busy"_s,
                                          u"vpn: ok"_s}));
        QCOMPARE(info.failedLines, QStringList{u"proxy: proxy busy"_s});
        QCOMPARE(error, u"proxy: proxy busy"_s);

        // Unreachable: the first step says so and the rest are not tried.
        const RepairResultInfo none =
            E::repairDiagnostics(u"/nonexistent/tovra.sock"_s, kTimeout, &error);
        QVERIFY(!none.valid);
        QCOMPARE(none.lines, QStringList{u"kill-switch: Tovra daemon is not running."_s});
        QCOMPARE(error, u"Tovra daemon is not running."_s);
    }
};

QTEST_GUILESS_MAIN(TestControlEndpoints)
#include "TestControlEndpoints.moc"
