#include "ControlEndpoints.h"

#include <QHash>
#include <QTest>

#include <functional>

namespace {

template<typename Record>
QString parseError(const QByteArray &body)
{
    QString error;
    Record::parse(body, &error);
    return error;
}

// Every parser's own message for a body that is not a JSON object, keyed by record name.
const QHash<QString, std::function<QString(const QByteArray &)>> &parsers()
{
    static const QHash<QString, std::function<QString(const QByteArray &)>> table{
        {QStringLiteral("nodes"), parseError<NodesInfo>},
        {QStringLiteral("groups"), parseError<NodeGroupsInfo>},
        {QStringLiteral("api"), parseError<APIURLConfigInfo>},
        {QStringLiteral("auto"), parseError<AutoConnectConfigInfo>},
        {QStringLiteral("language"), parseError<LanguageConfigInfo>},
        {QStringLiteral("user"), parseError<UserInfo>},
        {QStringLiteral("purchase"), parseError<PurchaseURLInfo>},
        {QStringLiteral("paths"), parseError<ConfigPaths>},
        {QStringLiteral("update"), parseError<UpdateInfo>},
        {QStringLiteral("download"), parseError<GUIUpdateDownloadInfo>},
        {QStringLiteral("listen"), parseError<ProxyListenResultInfo>},
        {QStringLiteral("dns"), parseError<SplitDNSInfo>},
        {QStringLiteral("rules"), parseError<SplitRulesInfo>},
        {QStringLiteral("mutation"), parseError<SplitRuleMutationInfo>},
        {QStringLiteral("mode"), parseError<ModeInfo>},
        {QStringLiteral("killswitch"), parseError<KillSwitchInfo>},
    };
    return table;
}

} // namespace

class TestControlRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notAnObject_data();
    void notAnObject();
    void nodes();
    void nodeGroupsRecurse();
    void userDefaults();
    void downloadState_data();
    void downloadState();
    void purchaseURL_data();
    void purchaseURL();
    void updateNesting();
    void splitDNSAndRules();
};

void TestControlRecords::notAnObject_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("message");
    const QList<std::pair<const char *, const char *>> rows{
        {"nodes", "invalid nodes JSON"},
        {"groups", "invalid node groups JSON"},
        {"api", "invalid API URL config JSON"},
        {"auto", "invalid auto-connect config JSON"},
        {"language", "invalid language config JSON"},
        {"user", "invalid user JSON"},
        {"purchase", "invalid purchase URL JSON"},
        {"paths", "invalid config path JSON"},
        {"update", "invalid update JSON"},
        {"download", "invalid GUI update download JSON"},
        {"listen", "invalid proxy listen JSON"},
        {"dns", "invalid split DNS JSON"},
        {"rules", "invalid split rules JSON"},
        {"mutation", "invalid split rule mutation JSON"},
        {"mode", "invalid mode JSON"},
        {"killswitch", "invalid kill-switch JSON"},
    };
    for (const auto &[record, message] : rows)
        QTest::addRow("%s", record) << QString::fromLatin1(record) << QString::fromLatin1(message);
}

void TestControlRecords::notAnObject()
{
    QFETCH(QString, record);
    QTEST(parsers().value(record)("[1,2]"), "message");
    QTEST(parsers().value(record)("oops"), "message");
}

void TestControlRecords::nodes()
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

void TestControlRecords::nodeGroupsRecurse()
{
    const QByteArray body = R"({"tabs":[{"group_type":"all","node_ids":["1","2"]},7],
        "groups":[{"id":42.9,"name":"Europe","level":1,"rank":2,"subgroups":[
            {"id":"de","code":"DE","subgroups":[{"id":"ber","name":"Berlin","node_ids":["1"]}, "x"]}]}]})";
    const NodeGroupsInfo info = NodeGroupsInfo::parse(body, nullptr);
    QVERIFY(info.valid);
    QCOMPARE(info.tabs.size(), 1);
    QCOMPARE(info.tabs.constFirst().nodeIds.size(), 2);
    QCOMPARE(info.groups.size(), 1);
    const NodeGroupEntry &europe = info.groups.constFirst();
    QCOMPARE(europe.id, QStringLiteral("42"));
    QCOMPARE(europe.rank, 2);
    QCOMPARE(europe.subgroups.constFirst().code, QStringLiteral("DE"));
    const NodeGroupEntry &berlin = europe.subgroups.constFirst().subgroups.constFirst();
    QCOMPARE(europe.subgroups.constFirst().subgroups.size(), 1);
    QCOMPARE(berlin.name, QStringLiteral("Berlin"));
    QCOMPARE(berlin.nodeIds, QStringList{QStringLiteral("1")});
}

void TestControlRecords::userDefaults()
{
    const UserInfo user =
        UserInfo::parse(R"({"email":"a@b.c","left_days":"9","email_checked":1})", nullptr);
    QVERIFY(user.valid);
    QCOMPARE(user.email, QStringLiteral("a@b.c"));
    QCOMPARE(user.leftDays, 0);
    QCOMPARE(user.maxDeviceCount, 0);
    QVERIFY(!user.emailChecked);
}

void TestControlRecords::downloadState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("valid");
    for (const char *state : {"idle", "queued", "checking", "downloading", "verifying", "retrying",
                              "canceling", "ready", "failed", "canceled"})
        QTest::addRow("%s", state) << QString::fromLatin1(state) << true;
    QTest::addRow("Ready") << QStringLiteral("Ready") << false;
    QTest::addRow("empty") << QString() << false;
    QTest::addRow("paused") << QStringLiteral("paused") << false;
}

void TestControlRecords::downloadState()
{
    QFETCH(QString, state);
    QFETCH(bool, valid);
    QString error;
    const GUIUpdateDownloadInfo info = GUIUpdateDownloadInfo::parse(
        R"({"state":")" + state.toUtf8() +
            R"(","bytes_downloaded":5000000000,"bytes_total":6000000000})",
        &error);
    QCOMPARE(info.valid, valid);
    QCOMPARE(error, valid ? QString() : QStringLiteral("GUI update download state is invalid"));
    if (valid)
        QCOMPARE(info.bytesDownloaded, Q_INT64_C(5000000000));
}

void TestControlRecords::purchaseURL_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("accepted");
    const QString host = QStringLiteral(TOVRA_VENDOR_HOST);
    const QString good =
        QStringLiteral("https://%1/purchase?lang=en&webAccessToken=t0k&account=42").arg(host);
    QTest::addRow("accepted") << good << true;
    QTest::addRow("explicit port")
        << QStringLiteral("https://%1:443/purchase?lang=en&webAccessToken=t&account=4").arg(host)
        << false;
    QTest::addRow("fragment") << good + QStringLiteral("#x") << false;
    QTest::addRow("http") << QString(good).replace(QStringLiteral("https:"),
                                                   QStringLiteral("http:"))
                          << false;
    QTest::addRow("other path") << QString(good).replace(QStringLiteral("/purchase"),
                                                         QStringLiteral("/buy"))
                                << false;
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

void TestControlRecords::purchaseURL()
{
    QFETCH(QString, url);
    QFETCH(bool, accepted);
    QString error;
    const QByteArray body =
        url.isEmpty() ? QByteArray(R"({"url":5})") : R"({"url":")" + url.toUtf8() + "\"}";
    const PurchaseURLInfo info = PurchaseURLInfo::parse(body, &error);
    QCOMPARE(info.valid, accepted);
    QCOMPARE(info.url, accepted ? url : QString());
    QCOMPARE(error, accepted ? QString() : QStringLiteral("invalid purchase URL"));
}

void TestControlRecords::updateNesting()
{
    const QByteArray body =
        R"({"platform":"linux","current_version":"0.1.0","current_version_num":100.5,
        "update_available":true,"checked_at":"now","latest":{"version_code":"0.2.0","version_num":200,
        "is_force_upgrade":true,"change_log":["a","b"],"download":{"recommended":"deb",
        "recommended_artifact":{"url":"https://x/y.deb","sha256":"ab","size_bytes":12345678901}}}})";
    const UpdateInfo info = UpdateInfo::parse(body, nullptr);
    QVERIFY(info.valid && info.updateAvailable && info.forceUpgrade);
    QCOMPARE(info.currentVersionNum, 100.5);
    QCOMPARE(info.versionNum, 200.0);
    QCOMPARE(info.recommended, QStringLiteral("deb"));
    QCOMPARE(info.artifactSize, Q_INT64_C(12345678901));
    QCOMPARE(info.changeLog, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(info.checkedAt, QStringLiteral("now"));
}

void TestControlRecords::splitDNSAndRules()
{
    const SplitDNSInfo dns = SplitDNSInfo::parse(
        R"({"config":{"policy":"split","local_direct_dns":["1.1.1.1"]},"effective":{"policy":"auto",
            "auto_cn_default":true},"changed":true,"runtime_warning":"w"})",
        nullptr);
    QVERIFY(dns.valid && dns.changed && dns.autoDefault);
    QCOMPARE(dns.configuredLocalDirectDns, QStringList{QStringLiteral("1.1.1.1")});
    QCOMPARE(dns.effectivePolicy, QStringLiteral("auto"));

    const SplitRulesInfo rules = SplitRulesInfo::parse(
        R"({"dir":"/r","files":{"direct":"/r/direct.txt","bad":3},"rules":{"direct":{"items":["a.com",2]},"x":1}})",
        nullptr);
    QVERIFY(rules.valid);
    QCOMPARE(rules.files.value(QStringLiteral("direct")), QStringLiteral("/r/direct.txt"));
    QVERIFY(!rules.files.contains(QStringLiteral("bad")));
    QCOMPARE(rules.rules.value(QStringLiteral("direct")), QStringList{QStringLiteral("a.com")});
    QVERIFY(!rules.rules.contains(QStringLiteral("x")));
}

QTEST_APPLESS_MAIN(TestControlRecords)
#include "TestControlRecords.moc"
