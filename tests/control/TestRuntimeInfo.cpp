#include "RuntimeInfo.h"

#include <QJsonDocument>
#include <QTest>

class TestRuntimeInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notAnObject_data();
    void notAnObject();
    void emptyObjectIsValid();
    void fullRecord();
    void modeSummary_data();
    void modeSummary();
    void localNetworkDefault_data();
    void localNetworkDefault();
    void nodeReference_data();
    void nodeReference();
    void lenientTypes();
};

void TestRuntimeInfo::notAnObject_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addRow("array") << QByteArray("[]");
    QTest::addRow("text") << QByteArray("not json");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("number") << QByteArray("42");
}

void TestRuntimeInfo::notAnObject()
{
    QFETCH(QByteArray, body);
    QString error;
    const RuntimeInfo info = RuntimeInfo::parse(body, &error);
    QCOMPARE(error, QStringLiteral("invalid status JSON"));
    QCOMPARE(info, RuntimeInfo());
}

void TestRuntimeInfo::emptyObjectIsValid()
{
    QString error;
    const RuntimeInfo info = RuntimeInfo::parse("{}", &error);
    QVERIFY(error.isEmpty());
    RuntimeInfo expected;
    expected.valid = true;
    // With no mode object the mode stays in its default state, local network included.
    QCOMPARE(info, expected);
}

void TestRuntimeInfo::fullRecord()
{
    const QByteArray body = R"({
        "daemon_state":"running","daemon_version":"2.1.0","api_url":"https://api.example",
        "auto_connect":"last","auto_connect_state":"idle","language":"de","language_source":"user",
        "effective_language":"de-DE","catalog_refresh":"done","auth_state":"signed_in",
        "tunnel_state":"connected","tunnel_kind":"wireguard","tunnel_reason":"user","last_error":"",
        "mode":{"transport":"tovravpn","policy":"split","region":"CN","pac_port":8090,"proxy_lan":true,
                "split_profile":{"default_route":"proxy","direct_regions":["CN",1],"gfwlist":true}},
        "connected_source":"tray","connected_target":"node","connected_since":"2026-11-21T05:00:00Z",
        "selected_node":{"id":12,"region":"US","name":"Chicago"},"connected_node":{"id":"n-3","name":"Oslo"},
        "kill_switch":{"enabled":true,"mode":"lockdown","lan_discovery":["mdns",false]},
        "proxy_listeners":[5,{"name":"local-socks","scheme":"socks5","address":"127.0.0.1:1080"}],
        "proxy_access_urls":[{"kind":"pac","scheme":"http","url":"http://127.0.0.1:8090/p.pac"}],
        "pac_status":{"state":"serving","proxy_port":1080},
        "unknown_key":{"ignored":true}
    })";
    QString error;
    const RuntimeInfo info = RuntimeInfo::parse(body, &error);
    QVERIFY(error.isEmpty());
    QVERIFY(info.valid);
    QCOMPARE(info.daemonVersion, QStringLiteral("2.1.0"));
    QCOMPARE(info.effectiveLanguage, QStringLiteral("de-DE"));
    QCOMPARE(info.tunnelState, QStringLiteral("connected"));
    QCOMPARE(info.modeSummary, QStringLiteral("tovravpn split CN"));
    QCOMPARE(info.mode.pacPort, 8090);
    QCOMPARE(info.mode.localNetwork, QStringLiteral("protected"));
    QVERIFY(info.mode.splitProfile.valid);
    QCOMPARE(info.mode.splitProfile.directRegions, QStringList{QStringLiteral("CN")});
    QVERIFY(info.mode.splitProfile.gfwlist);
    QVERIFY(!info.mode.proxySplitProfile.valid);
    QCOMPARE(info.connectedSince, QStringLiteral("2026-11-21T05:00:00Z"));
    QCOMPARE(info.selectedNode, QStringLiteral("[12] [US] Chicago"));
    QCOMPARE(info.connectedNode, QStringLiteral("[n-3] Oslo"));
    QVERIFY(info.killSwitch.valid && info.killSwitch.enabled);
    QCOMPARE(info.killSwitch.mode, QStringLiteral("lockdown"));
    QCOMPARE(info.killSwitch.lanDiscovery, QStringList{QStringLiteral("mdns")});
    QCOMPARE(info.proxyListeners.size(), 1);
    QCOMPARE(info.proxyListeners.constFirst().address, QStringLiteral("127.0.0.1:1080"));
    QCOMPARE(info.proxyAccessUrls.size(), 1);
    QCOMPARE(info.proxyAccessUrls.constFirst().url, QStringLiteral("http://127.0.0.1:8090/p.pac"));
    QVERIFY(info.pacStatus.valid);
    QCOMPARE(info.pacStatus.proxyPort, 1080);
}

void TestRuntimeInfo::modeSummary_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("summary");
    QTest::addRow("global policy never named")
        << QByteArray(R"({"transport":"T","policy":"global","region":"R"})")
        << QStringLiteral("T R");
    QTest::addRow("other policy named")
        << QByteArray(R"({"transport":"T","policy":"P","region":"R"})") << QStringLiteral("T P R");
    QTest::addRow("Global is not global")
        << QByteArray(R"({"transport":"T","policy":"Global"})") << QStringLiteral("T Global");
    QTest::addRow("empty transport")
        << QByteArray(R"({"transport":"","policy":"P","region":"R"})") << QString();
    QTest::addRow("transport not a string")
        << QByteArray(R"({"transport":3,"policy":"P"})") << QString();
    QTest::addRow("transport alone")
        << QByteArray(R"({"transport":"auto"})") << QStringLiteral("auto");
}

void TestRuntimeInfo::modeSummary()
{
    QFETCH(QByteArray, mode);
    const RuntimeInfo info = RuntimeInfo::parse("{\"mode\":" + mode + "}", nullptr);
    QTEST(info.modeSummary, "summary");
}

void TestRuntimeInfo::localNetworkDefault_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("localNetwork");
    QTest::addRow("empty with proxy LAN")
        << QByteArray(R"({"local_network":"","proxy_lan":true})") << QStringLiteral("protected");
    QTest::addRow("spaces count as empty")
        << QByteArray(R"({"local_network":"  ","proxy_lan":true})") << QStringLiteral("protected");
    QTest::addRow("proxy LAN off")
        << QByteArray(R"({"proxy_lan":false})") << QStringLiteral("direct");
    QTest::addRow("proxy LAN absent")
        << QByteArray(R"({"transport":"auto"})") << QStringLiteral("direct");
    QTest::addRow("set value kept untrimmed")
        << QByteArray(R"({"local_network":" bypass ","proxy_lan":true})")
        << QStringLiteral(" bypass ");
}

void TestRuntimeInfo::localNetworkDefault()
{
    QFETCH(QByteArray, mode);
    const RuntimeInfo info = RuntimeInfo::parse("{\"mode\":" + mode + "}", nullptr);
    QTEST(info.mode.localNetwork, "localNetwork");
}

void TestRuntimeInfo::nodeReference_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("text");
    QTest::addRow("whole number as 7.0")
        << QByteArray(R"({"id":7.0,"name":"A"})") << QStringLiteral("[7] A");
    QTest::addRow("fractional id becomes 0")
        << QByteArray(R"({"id":7.5})") << QStringLiteral("[0]");
    QTest::addRow("boolean id adds nothing")
        << QByteArray(R"({"id":true,"region":"DE"})") << QStringLiteral("[DE]");
    QTest::addRow("string id") << QByteArray(R"({"id":"x1","region":"JP","name":"Tokyo 2"})")
                               << QStringLiteral("[x1] [JP] Tokyo 2");
    QTest::addRow("empty object") << QByteArray("{}") << QString();
    QTest::addRow("not an object") << QByteArray("\"node\"") << QString();
}

void TestRuntimeInfo::nodeReference()
{
    QFETCH(QByteArray, node);
    const RuntimeInfo info = RuntimeInfo::parse("{\"selected_node\":" + node + "}", nullptr);
    QTEST(info.selectedNode, "text");
}

void TestRuntimeInfo::lenientTypes()
{
    const QByteArray body = R"({"tunnel_state":5,"mode":{"transport":"auto","pac_port":"8090"},
        "kill_switch":{},"pac_status":[],"proxy_listeners":{"name":"x"},"auth_state":null})";
    QString error;
    const RuntimeInfo info = RuntimeInfo::parse(body, &error);
    QVERIFY(error.isEmpty());
    QVERIFY(info.valid);
    QCOMPARE(info.tunnelState, QString());
    QCOMPARE(info.authState, QString());
    QCOMPARE(info.mode.pacPort, 0);
    QVERIFY(!info.killSwitch.valid);
    QVERIFY(!info.pacStatus.valid);
    QVERIFY(info.proxyListeners.isEmpty());
}

QTEST_APPLESS_MAIN(TestRuntimeInfo)
#include "TestRuntimeInfo.moc"
