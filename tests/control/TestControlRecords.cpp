#include "ControlEndpoints.h"

#include <QTest>

// The record parsers' own rules; plain fields are checked against the demo daemon's answers.
class TestControlRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(berlin.id, QStringLiteral("42"));
        QCOMPARE(berlin.tags, QStringList{QStringLiteral("FREE")});
        QCOMPARE(berlin.pingMs, 0);
        QCOMPARE(berlin.signalLevel, -1);
        QCOMPARE(info.nodes.at(1).signalLevel, -1);
        QCOMPARE(info.nodes.at(1).pingMs, -1);
        QVERIFY(!info.nodes.at(2).valid);
        QCOMPARE(info.selected.id, QStringLiteral("n-2"));
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
        QCOMPARE(europe.id, QStringLiteral("42"));
        QCOMPARE(europe.subgroups.constFirst().code, QStringLiteral("DE"));
        QCOMPARE(europe.subgroups.constFirst().subgroups.size(), 1);
        const NodeGroupEntry &berlin = europe.subgroups.constFirst().subgroups.constFirst();
        QCOMPARE(berlin.name, QStringLiteral("Berlin"));
        QCOMPARE(berlin.nodeIds, QStringList{QStringLiteral("1")});
    }

    void downloadState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("valid");
        for (const char *state : {"idle", "queued", "checking", "downloading", "verifying",
                                  "retrying", "canceling", "ready", "failed", "canceled"})
            QTest::addRow("%s", state) << QString::fromLatin1(state) << true;
        QTest::addRow("Ready") << QStringLiteral("Ready") << false;
        QTest::addRow("empty") << QString() << false;
        QTest::addRow("paused") << QStringLiteral("paused") << false;
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
        QCOMPARE(error, valid ? QString() : QStringLiteral("GUI update download state is invalid"));
        if (valid)
            QCOMPARE(info.bytesDownloaded, Q_INT64_C(5000000000));
    }

    void purchaseURL_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("accepted");
        const QString host = QStringLiteral(TOVRA_VENDOR_HOST);
        const QString good =
            QStringLiteral("https://%1/purchase?lang=en&webAccessToken=t0k&account=42").arg(host);
        QTest::addRow("accepted") << good << true;
        QTest::addRow("explicit port")
            << QStringLiteral("https://%1:443/purchase?lang=en&webAccessToken=t&account=4")
                   .arg(host)
            << false;
        QTest::addRow("fragment") << good + QStringLiteral("#x") << false;
        QTest::addRow("http") << QString(good).replace(QStringLiteral("https:"),
                                                       QStringLiteral("http:"))
                              << false;
        QTest::addRow("other path")
            << QString(good).replace(QStringLiteral("/purchase"), QStringLiteral("/buy")) << false;
        QTest::addRow("missing account")
            << QStringLiteral("https://%1/purchase?lang=en&webAccessToken=t").arg(host) << false;
        QTest::addRow("lang twice") << good + QStringLiteral("&lang=de") << false;
        QTest::addRow("blank token")
            << QStringLiteral("https://%1/purchase?lang=en&webAccessToken=%20&account=4").arg(host)
            << false;
        QTest::addRow("user info")
            << QStringLiteral("https://me@%1/purchase?lang=en&webAccessToken=t&account=4").arg(host)
            << false;
        QTest::addRow("other host")
            << QStringLiteral("https://evil.example/purchase?lang=en&webAccessToken=t&account=4")
            << false;
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
        QCOMPARE(error, accepted ? QString() : QStringLiteral("invalid purchase URL"));
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
        QCOMPARE(info.changeLog, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    }
};

QTEST_APPLESS_MAIN(TestControlRecords)
#include "TestControlRecords.moc"
