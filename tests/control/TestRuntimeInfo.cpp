#include "RuntimeInfo.h"

#include <QTest>

class TestRuntimeInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notAnObject_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addRow("array") << QByteArray("[]");
        QTest::addRow("text") << QByteArray("not json");
    }

    void notAnObject()
    {
        QFETCH(QByteArray, body);
        QString error;
        const RuntimeInfo info = RuntimeInfo::parse(body, &error);
        QCOMPARE(error, QStringLiteral("invalid status JSON"));
        QCOMPARE(info, RuntimeInfo());
    }

    // Values of the wrong type take their defaults, elements that are not objects are skipped, and
    // nothing of it makes the record invalid.
    void nestedRecords()
    {
        const QByteArray body = R"({"tunnel_state":5,"auth_state":null,
            "mode":{"transport":"tovravpn","pac_port":"8090",
                    "split_profile":{"default_route":"proxy","direct_regions":["CN",1],"gfwlist":true}},
            "kill_switch":{"enabled":true,"mode":"lockdown","lan_discovery":["mdns",false]},
            "proxy_listeners":[5,{"name":"local-socks","scheme":"socks5","address":"127.0.0.1:1080"}],
            "pac_status":[],"unknown_key":{"ignored":true}})";
        QString error;
        const RuntimeInfo info = RuntimeInfo::parse(body, &error);
        QVERIFY(error.isEmpty());
        QVERIFY(info.valid);
        QCOMPARE(info.tunnelState, QString());
        QCOMPARE(info.mode.pacPort, 0);
        QCOMPARE(info.mode.splitProfile.directRegions, QStringList{QStringLiteral("CN")});
        QVERIFY(info.mode.splitProfile.valid && info.mode.splitProfile.gfwlist);
        QVERIFY(!info.mode.proxySplitProfile.valid);
        QVERIFY(info.killSwitch.valid && info.killSwitch.enabled);
        QCOMPARE(info.killSwitch.lanDiscovery, QStringList{QStringLiteral("mdns")});
        QCOMPARE(info.proxyListeners.size(), 1);
        QCOMPARE(info.proxyListeners.constFirst().address, QStringLiteral("127.0.0.1:1080"));
        QVERIFY(!info.pacStatus.valid);
    }

    void modeSummary_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QString>("summary");
        QTest::addRow("global policy never named")
            << QByteArray(R"({"transport":"T","policy":"global","region":"R"})")
            << QStringLiteral("T R");
        QTest::addRow("other policy named")
            << QByteArray(R"({"transport":"T","policy":"P","region":"R"})")
            << QStringLiteral("T P R");
        QTest::addRow("Global is not global")
            << QByteArray(R"({"transport":"T","policy":"Global"})") << QStringLiteral("T Global");
        QTest::addRow("no transport, no summary")
            << QByteArray(R"({"transport":3,"policy":"P","region":"R"})") << QString();
    }

    void modeSummary()
    {
        QFETCH(QByteArray, mode);
        const RuntimeInfo info = RuntimeInfo::parse("{\"mode\":" + mode + "}", nullptr);
        QTEST(info.modeSummary, "summary");
    }

    void localNetworkDefault_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QString>("localNetwork");
        QTest::addRow("blank with proxy LAN")
            << QByteArray(R"({"local_network":"  ","proxy_lan":true})")
            << QStringLiteral("protected");
        QTest::addRow("proxy LAN absent")
            << QByteArray(R"({"transport":"auto"})") << QStringLiteral("direct");
        QTest::addRow("set value kept untrimmed")
            << QByteArray(R"({"local_network":" bypass ","proxy_lan":true})")
            << QStringLiteral(" bypass ");
    }

    void localNetworkDefault()
    {
        QFETCH(QByteArray, mode);
        const RuntimeInfo info = RuntimeInfo::parse("{\"mode\":" + mode + "}", nullptr);
        QTEST(info.mode.localNetwork, "localNetwork");
    }

    void nodeReference_data()
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
        QTest::addRow("not an object") << QByteArray("\"node\"") << QString();
    }

    void nodeReference()
    {
        QFETCH(QByteArray, node);
        const RuntimeInfo info = RuntimeInfo::parse("{\"selected_node\":" + node + "}", nullptr);
        QTEST(info.selectedNode, "text");
    }
};

QTEST_APPLESS_MAIN(TestRuntimeInfo)
#include "TestRuntimeInfo.moc"
