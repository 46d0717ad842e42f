#include "ControlEndpoints.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The record parsers' own rules; plain fields are checked against the demo daemon's answers.
class TestControlRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusNotAnObject()
    {
        QString error;
        QCOMPARE(RuntimeInfo::parse("[]", &error), RuntimeInfo());
        QCOMPARE(error, u"invalid status JSON"_s);
    }

    // Values of the wrong type take their defaults, elements that are not objects are skipped, and
    // nothing of it makes the record invalid.
    void statusNestedRecords()
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
        QCOMPARE(info.mode.splitProfile.directRegions, QStringList{u"CN"_s});
        QVERIFY(info.mode.splitProfile.valid && info.mode.splitProfile.gfwlist);
        QVERIFY(!info.mode.proxySplitProfile.valid);
        QVERIFY(info.killSwitch.valid && info.killSwitch.enabled);
        QCOMPARE(info.killSwitch.lanDiscovery, QStringList{u"mdns"_s});
        QCOMPARE(info.proxyListeners.size(), 1);
        QCOMPARE(info.proxyListeners.constFirst().address, u"127.0.0.1:1080"_s);
        QVERIFY(!info.pacStatus.valid);
    }

    void modeSummary_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QString>("summary");
        QTest::addRow("global policy never named")
            << QByteArray(R"({"transport":"T","policy":"global","region":"R"})") << u"T R"_s;
        QTest::addRow("Global is not global")
            << QByteArray(R"({"transport":"T","policy":"Global"})") << u"T Global"_s;
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
            << QByteArray(R"({"local_network":"  ","proxy_lan":true})") << u"protected"_s;
        QTest::addRow("set value kept untrimmed")
            << QByteArray(R"({"local_network":" bypass ","proxy_lan":true})") << u" bypass "_s;
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
            << QByteArray(R"({"id":7.0,"name":"A"})") << u"[7] A"_s;
        QTest::addRow("boolean id adds nothing")
            << QByteArray(R"({"id":true,"region":"DE"})") << u"[DE]"_s;
        QTest::addRow("not an object") << QByteArray("\"node\"") << QString();
    }

    void nodeReference()
    {
        QFETCH(QByteArray, node);
        const RuntimeInfo info = RuntimeInfo::parse("{\"selected_node\":" + node + "}", nullptr);
        QTEST(info.selectedNode, "text");
    }

    void nodes()
    {
        const QByteArray body = R"({"stale":true,"pingRunning":true,"nodes":["skip",
            {"id":42,"name":"Berlin 1","tags":["FREE",3],"region":"DE","type":"free","pingMs":0},
            {"id":"n-2","signalLevel":2.5},{}],
            "selected":{"id":"n-2"},"connected":"nope"})";
        QString error;
        const NodesInfo info = NodesInfo::parse(body, &error);
        QVERIFY(error.isEmpty());
        QVERIFY(info.valid && info.stale && info.pingRunning);
        QCOMPARE(info.nodes.size(), 3);
        const NodeEntry &berlin = info.nodes.at(0);
        QCOMPARE(berlin.id, u"42"_s);
        QCOMPARE(berlin.tags, QStringList{u"FREE"_s});
        QCOMPARE(berlin.pingMs, 0);
        QCOMPARE(berlin.signalLevel, -1);
        QCOMPARE(info.nodes.at(1).signalLevel, -1);
        QCOMPARE(info.nodes.at(1).pingMs, -1);
        QVERIFY(!info.nodes.at(2).valid);
        QCOMPARE(info.selected.id, u"n-2"_s);
        QVERIFY(!info.connected.valid);
    }

    void nodeGroupsRecurse()
    {
        const QByteArray body = R"({"tabs":[{"group_type":"all","node_ids":["1","2"]},7],
            "groups":[{"id":42.9,"name":"Europe","level":1,"rank":2,"subgroups":[
                {"id":"de","code":"DE","subgroups":[{"id":"ber","name":"Berlin","node_ids":["1"]}, "x"]}]}]})";
        const NodeGroupsInfo info = NodeGroupsInfo::parse(body, nullptr);
        QVERIFY(info.valid);
        QCOMPARE(info.tabs.size(), 1);
        QCOMPARE(info.tabs.constFirst().nodeIds.size(), 2);
        const NodeGroupEntry &europe = info.groups.constFirst();
        QCOMPARE(europe.id, u"42"_s);
        QCOMPARE(europe.subgroups.constFirst().code, u"DE"_s);
        QCOMPARE(europe.subgroups.constFirst().subgroups.size(), 1);
        const NodeGroupEntry &berlin = europe.subgroups.constFirst().subgroups.constFirst();
        QCOMPARE(berlin.name, u"Berlin"_s);
        QCOMPARE(berlin.nodeIds, QStringList{u"1"_s});
    }

    void downloadState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("valid");
        for (const char *state : {"idle", "queued", "checking", "downloading", "verifying",
                                  "retrying", "canceling", "ready", "failed", "canceled"})
            QTest::addRow("%s", state) << QString::fromLatin1(state) << true;
        QTest::addRow("Ready") << u"Ready"_s << false;
    }

    void downloadState()
    {
        QFETCH(QString, state);
        QFETCH(bool, valid);
        QString error;
        const GUIUpdateDownloadInfo info = GUIUpdateDownloadInfo::parse(
            "{\"state\":\"" + state.toUtf8() +
                "\",\"bytes_downloaded\":5000000000,\"bytes_total\":6000000000}",
            &error);
        QCOMPARE(info.valid, valid);
        QCOMPARE(error, valid ? QString() : u"GUI update download state is invalid"_s);
        if (valid)
            QCOMPARE(info.bytesDownloaded, Q_INT64_C(5000000000));
    }

    void purchaseURL_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("accepted");
        const QString host = QStringLiteral(TOVRA_VENDOR_HOST);
        const QString good =
            u"https://%1/purchase?lang=en&webAccessToken=t0k&account=42"_s.arg(host);
        QTest::addRow("accepted") << good << true;
        QTest::addRow("explicit port")
            << u"https://%1:443/purchase?lang=en&webAccessToken=t&account=4"_s.arg(host) << false;
        QTest::addRow("fragment") << good + u"#x"_s << false;
        QTest::addRow("http") << QString(good).replace(u"https:"_s, u"http:"_s) << false;
        QTest::addRow("other path") << QString(good).replace(u"/purchase"_s, u"/buy"_s) << false;
        QTest::addRow("missing account")
            << u"https://%1/purchase?lang=en&webAccessToken=t"_s.arg(host) << false;
        QTest::addRow("lang twice") << good + u"&lang=de"_s << false;
        QTest::addRow("blank token")
            << u"https://%1/purchase?lang=en&webAccessToken=%20&account=4"_s.arg(host) << false;
        QTest::addRow("user info")
            << u"https://me@%1/purchase?lang=en&webAccessToken=t&account=4"_s.arg(host) << false;
        QTest::addRow("other host")
            << u"https://evil.example/purchase?lang=en&webAccessToken=t&account=4"_s << false;
        QTest::addRow("not a string") << QString() << false;
    }

    void purchaseURL()
    {
        QFETCH(QString, url);
        QFETCH(bool, accepted);
        QString error;
        const QByteArray body =
            url.isEmpty() ? QByteArray(R"({"url":5})") : "{\"url\":\"" + url.toUtf8() + "\"}";
        const PurchaseURLInfo info = PurchaseURLInfo::parse(body, &error);
        QCOMPARE(info.valid, accepted);
        QCOMPARE(info.url, accepted ? url : QString());
        QCOMPARE(error, accepted ? QString() : u"invalid purchase URL"_s);
    }

    void updateSizes()
    {
        const QByteArray body = R"({"current_version_num":100.5,"update_available":true,
            "latest":{"version_num":200,"is_force_upgrade":true,"change_log":["a",2,"b"],
            "download":{"recommended_artifact":{"size_bytes":12345678901}}}})";
        const UpdateInfo info = UpdateInfo::parse(body, nullptr);
        QVERIFY(info.valid && info.updateAvailable && info.forceUpgrade);
        QCOMPARE(info.currentVersionNum, 100.5);
        QCOMPARE(info.versionNum, 200.0);
        QCOMPARE(info.artifactSize, Q_INT64_C(12345678901));
        QCOMPARE(info.changeLog, (QStringList{u"a"_s, u"b"_s}));
    }
};

QTEST_APPLESS_MAIN(TestControlRecords)
#include "TestControlRecords.moc"
