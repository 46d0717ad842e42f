#include "ControlEndpoints.h"
#include "DemoDaemon.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr int Timeout = 5000;
const QString DemoUser = QStringLiteral("demo@tovra.invalid");
const QString FreeUser = QStringLiteral("free@tovra.invalid");
const QString Password = QStringLiteral("demo");

const NodeEntry *findNode(const NodesInfo &nodes, const QString &id)
{
    for (const NodeEntry &node : nodes.nodes) {
        if (node.id == id)
            return &node;
    }
    return nullptr;
}

const NodeGroupTab *findTab(const NodeGroupsInfo &groups, const QString &type)
{
    for (const NodeGroupTab &tab : groups.tabs) {
        if (tab.groupType == type)
            return &tab;
    }
    return nullptr;
}

} // namespace

// Every operation of the client library against the running demo daemon: each answer parses
// into a valid record carrying the simulation's values, and each change shows in what follows.
class TestDemoContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void signIn_data();
    void signIn();
    void userAndPurchaseLink();
    void connectNeedsSignIn();
    void connectGoesThroughConnecting();
    void connectChoosesTarget_data();
    void connectChoosesTarget();
    void freePlanRefusesSvipNode();
    void logoutDisconnects();
    void catalogue();
    void refreshMeasuresProgressively();
    void favouritesPersist();
    void modeRoundTrip();
    void familyRestoresLastPolicy();
    void proxyPreferences();
    void killSwitch();
    void splitDns();
    void languageResolves_data();
    void languageResolves();
    void languageAndApiUrl();
    void updateDownloadRefusesOtherRelease();

private:
    QString socket() const { return m_daemon->socketPath(); }
    void signInAs(const QString &user = DemoUser);

    std::unique_ptr<DemoDaemon> m_daemon;
};

void TestDemoContract::init()
{
    m_daemon = std::make_unique<DemoDaemon>();
    QVERIFY2(m_daemon->start({QStringLiteral("--connect-ms"), QStringLiteral("400")}),
             qPrintable(m_daemon->errorString()));
}

void TestDemoContract::cleanup()
{
    QVERIFY2(m_daemon->stop(), qPrintable(m_daemon->errorString()));
    m_daemon.reset();
}

void TestDemoContract::signInAs(const QString &user)
{
    QString error;
    const RuntimeInfo info =
        ControlEndpoints::login(socket(), user, Password, true, Timeout, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(info.authState, QStringLiteral("logged_in"));
}

void TestDemoContract::signIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("authState");
    QTest::addRow("svip account") << DemoUser << Password << QString() << "logged_in";
    QTest::addRow("user name in capitals")
        << DemoUser.toUpper() << Password << QString() << "logged_in";
    QTest::addRow("wrong password") << DemoUser << "nope"
                                    << "Incorrect email or password."
                                    << "logged_out";
    QTest::addRow("unknown account")
        << "who@tovra.invalid" << Password << "Incorrect email or password."
        << "logged_out";
    QTest::addRow("empty user") << "" << Password << "Enter account and password."
                                << "logged_out";
}

void TestDemoContract::signIn()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, error);
    QFETCH(QString, authState);
    QString message;
    const RuntimeInfo answer =
        ControlEndpoints::login(socket(), user, password, true, Timeout, &message);
    QCOMPARE(message, error);
    QCOMPARE(answer.valid, error.isEmpty());
    const RuntimeInfo after = ControlEndpoints::fetchStatus(socket(), Timeout);
    QCOMPARE(after.authState, authState);
}

void TestDemoContract::userAndPurchaseLink()
{
    QString error;
    QVERIFY(!ControlEndpoints::fetchUser(socket(), Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("Sign in to see your account."));
    signInAs();
    error.clear();
    const UserInfo user = ControlEndpoints::fetchUser(socket(), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(user.email, DemoUser);

    // The client accepts only links on the vendor host with every query item once.
    const PurchaseURLInfo link =
        ControlEndpoints::fetchPurchaseURL(socket(), QStringLiteral("de"), Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(link.valid);
    const QUrlQuery query(QUrl(link.url).query());
    QCOMPARE(query.queryItemValue(QStringLiteral("lang")), QStringLiteral("de"));
    QCOMPARE(query.queryItemValue(QStringLiteral("account")), user.userNumber);
}

void TestDemoContract::connectNeedsSignIn()
{
    QString error;
    const RuntimeInfo info = ControlEndpoints::connectRuntime(socket(), Timeout, &error);
    QVERIFY(!info.valid);
    QCOMPARE(error, QStringLiteral("Sign in to Tovra before connecting."));
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).tunnelState,
             QStringLiteral("disconnected"));
}

void TestDemoContract::connectGoesThroughConnecting()
{
    signInAs();
    QString error;
    const RuntimeInfo answer =
        ControlEndpoints::connectNode(socket(), QStringLiteral("1009"), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(answer.tunnelState, QStringLiteral("connecting"));
    QCOMPARE(answer.selectedNode, QStringLiteral("[1009] [NL] Amsterdam 01"));
    QVERIFY(answer.connectedNode.isEmpty());
    QVERIFY(answer.connectedSince.isEmpty());

    QTRY_COMPARE_WITH_TIMEOUT(ControlEndpoints::fetchStatus(socket(), Timeout).tunnelState,
                              QStringLiteral("connected"), 5000);
    const RuntimeInfo connected = ControlEndpoints::fetchStatus(socket(), Timeout);
    QCOMPARE(connected.connectedNode, QStringLiteral("[1009] [NL] Amsterdam 01"));
    QCOMPARE(connected.connectedSource, QStringLiteral("node"));
    const QDateTime since = QDateTime::fromString(connected.connectedSince, Qt::ISODate);
    QVERIFY(since.isValid());
    QCOMPARE(since.timeSpec(), Qt::UTC);
    const NodesInfo nodes = ControlEndpoints::fetchNodes(socket(), false, Timeout);
    QCOMPARE(nodes.connected.id, QStringLiteral("1009"));

    error.clear();
    const RuntimeInfo leaving = ControlEndpoints::disconnectRuntime(socket(), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(leaving.tunnelState, QStringLiteral("disconnecting"));
    QTRY_COMPARE_WITH_TIMEOUT(ControlEndpoints::fetchStatus(socket(), Timeout).tunnelState,
                              QStringLiteral("disconnected"), 5000);
    QVERIFY(ControlEndpoints::fetchStatus(socket(), Timeout).connectedNode.isEmpty());
}

void TestDemoContract::connectChoosesTarget_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("error");
    QTest::addRow("smart in a country") << "smart"
                                        << "JP"
                                        << "[JP]"
                                        << "smart" << QString();
    QTest::addRow("smart in a city") << "smart"
                                     << "los angeles"
                                     << "[US]"
                                     << "smart" << QString();
    QTest::addRow("smart by group id") << "smart"
                                       << "country:au"
                                       << "[AU]"
                                       << "smart" << QString();
    QTest::addRow("smart everywhere") << "smart"
                                      << ""
                                      << "["
                                      << "smart" << QString();
    QTest::addRow("plain connect") << "runtime"
                                   << ""
                                   << "["
                                   << "last" << QString();
    QTest::addRow("unknown group") << "smart"
                                   << "atlantis"
                                   << ""
                                   << ""
                                   << "No location matches \"atlantis\".";
    QTest::addRow("unknown node") << "node"
                                  << "99"
                                  << ""
                                  << ""
                                  << "This location is no longer available.";
}

void TestDemoContract::connectChoosesTarget()
{
    QFETCH(QString, kind);
    QFETCH(QString, argument);
    QFETCH(QString, region);
    QFETCH(QString, source);
    QFETCH(QString, error);
    signInAs();
    QString message;
    RuntimeInfo answer;
    if (kind == QLatin1String("smart"))
        answer = ControlEndpoints::connectSmart(socket(), argument, Timeout, &message);
    else if (kind == QLatin1String("node"))
        answer = ControlEndpoints::connectNode(socket(), argument, Timeout, &message);
    else
        answer = ControlEndpoints::connectRuntime(socket(), Timeout, &message);
    QCOMPARE(message, error);
    if (!error.isEmpty()) {
        QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).tunnelState,
                 QStringLiteral("disconnected"));
        return;
    }
    QVERIFY2(answer.selectedNode.section(QLatin1Char(' '), 1, 1).startsWith(region),
             qPrintable(answer.selectedNode));
    QCOMPARE(answer.connectedSource, source);
    QTRY_COMPARE_WITH_TIMEOUT(ControlEndpoints::fetchStatus(socket(), Timeout).connectedNode,
                              answer.selectedNode, 5000);
}

void TestDemoContract::freePlanRefusesSvipNode()
{
    signInAs(FreeUser);
    const NodesInfo nodes = ControlEndpoints::fetchNodes(socket(), false, Timeout);
    QString svip, free;
    for (const NodeEntry &node : nodes.nodes) {
        if (node.type == QLatin1String("svip") && svip.isEmpty())
            svip = node.id;
        if (node.type == QLatin1String("free") && free.isEmpty())
            free = node.id;
    }
    QString error;
    QVERIFY(!ControlEndpoints::connectNode(socket(), svip, Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("This location needs an SVIP plan."));
    error.clear();
    const RuntimeInfo smart =
        ControlEndpoints::connectSmart(socket(), QStringLiteral("all"), Timeout, &error);
    QCOMPARE(error, QString());
    const QString chosen = smart.selectedNode.section(QLatin1Char(' '), 0, 0).mid(1).chopped(1);
    QCOMPARE(findNode(nodes, chosen)->type, QStringLiteral("free"));
}

void TestDemoContract::logoutDisconnects()
{
    signInAs();
    QVERIFY(ControlEndpoints::connectRuntime(socket(), Timeout).valid);
    QString error;
    const RuntimeInfo answer = ControlEndpoints::logout(socket(), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(answer.authState, QStringLiteral("logged_out"));
    QCOMPARE(answer.tunnelReason, QStringLiteral("signed_out"));
    QTRY_COMPARE_WITH_TIMEOUT(ControlEndpoints::fetchStatus(socket(), Timeout).tunnelState,
                              QStringLiteral("disconnected"), 5000);
}

void TestDemoContract::catalogue()
{
    QString error;
    const NodesInfo nodes = ControlEndpoints::fetchNodes(socket(), false, Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(nodes.valid);
    QVERIFY(nodes.nodes.size() >= 150);
    QSet<QString> regions;
    for (const NodeEntry &node : nodes.nodes) {
        QVERIFY(node.valid);
        QCOMPARE(node.region.size(), 2);
        QVERIFY(node.type == QLatin1String("free") || node.type == QLatin1String("svip"));
        QVERIFY(node.tags.contains(node.type.toUpper()));
        regions.insert(node.region);
    }
    QVERIFY(regions.size() >= 40);

    const NodeGroupsInfo groups = ControlEndpoints::fetchNodeGroups(socket(), Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(groups.valid);
    QCOMPARE(findTab(groups, QStringLiteral("free"))->nodeIds.size() +
                 findTab(groups, QStringLiteral("svip"))->nodeIds.size(),
             nodes.nodes.size());
    const NodeGroupEntry &europe = groups.groups.first();
    const NodeGroupEntry &germany = europe.subgroups.first();
    const NodeGroupEntry &frankfurt = germany.subgroups.first();
    QCOMPARE(frankfurt.level, 3);
    QCOMPARE(frankfurt.nodeIds.first(), nodes.nodes.first().id);
}

void TestDemoContract::refreshMeasuresProgressively()
{
    QString error;
    const NodesInfo started = ControlEndpoints::fetchNodes(socket(), true, Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(started.pingRunning);
    QCOMPARE(started.nodes.last().pingMs, -1);
    QCOMPARE(started.nodes.last().signalLevel, -1);
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).catalogRefresh,
             QStringLiteral("running"));
    QTRY_VERIFY_WITH_TIMEOUT(!ControlEndpoints::fetchNodes(socket(), false, Timeout).pingRunning,
                             10000);
    const NodesInfo done = ControlEndpoints::fetchNodes(socket(), false, Timeout);
    for (const NodeEntry &node : done.nodes) {
        QVERIFY(node.pingMs > 0);
        QVERIFY(node.signalLevel >= 1 && node.signalLevel <= 4);
    }
}

void TestDemoContract::favouritesPersist()
{
    QString error;
    NodesInfo nodes =
        ControlEndpoints::setNodeFavorite(socket(), QStringLiteral("1030"), true, Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(findNode(nodes, QStringLiteral("1030"))->tags.contains(QStringLiteral("FAVORITE")));
    nodes = ControlEndpoints::fetchNodes(socket(), false, Timeout);
    QVERIFY(findNode(nodes, QStringLiteral("1030"))->tags.contains(QStringLiteral("FAVORITE")));
    QCOMPARE(
        findTab(ControlEndpoints::fetchNodeGroups(socket(), Timeout), QStringLiteral("favorite"))
            ->nodeIds,
        QStringList{QStringLiteral("1030")});

    nodes =
        ControlEndpoints::setNodeFavorite(socket(), QStringLiteral("1030"), false, Timeout, &error);
    QVERIFY(!findNode(nodes, QStringLiteral("1030"))->tags.contains(QStringLiteral("FAVORITE")));
    QVERIFY(!ControlEndpoints::setNodeFavorite(socket(), QStringLiteral("5"), true, Timeout, &error)
                 .valid);
    QCOMPARE(error, QStringLiteral("unknown location"));
}

void TestDemoContract::modeRoundTrip()
{
    ModeInfo wanted;
    wanted.transport = QStringLiteral("tovravpn");
    wanted.policy = QStringLiteral("split");
    wanted.splitProfile.valid = true;
    wanted.splitProfile.defaultRoute = QStringLiteral("direct");
    wanted.splitProfile.proxyRegions = {QStringLiteral("US"), QStringLiteral("JP")};
    wanted.splitProfile.gfwlist = true;
    QString error;
    const ModeInfo answer = ControlEndpoints::setMode(socket(), wanted, Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(answer.splitProfile.proxyRegions, wanted.splitProfile.proxyRegions);
    QCOMPARE(answer.lastTovravpnPolicy, QStringLiteral("split"));
    QCOMPARE(answer.lastTovravpnSplitProfile, answer.splitProfile);
    const RuntimeInfo status = ControlEndpoints::fetchStatus(socket(), Timeout);
    QCOMPARE(status.mode, answer);
    QCOMPARE(status.modeSummary, QStringLiteral("tovravpn split"));

    wanted.transport = QStringLiteral("teleport");
    QVERIFY(!ControlEndpoints::setMode(socket(), wanted, Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("unknown transport \"teleport\""));
}

void TestDemoContract::familyRestoresLastPolicy()
{
    ModeInfo mode;
    mode.transport = QStringLiteral("tovravpn");
    mode.policy = QStringLiteral("gfwlist");
    QVERIFY(ControlEndpoints::setMode(socket(), mode, Timeout).valid);
    mode = {};
    mode.transport = QStringLiteral("proxy");
    mode.policy = QStringLiteral("global");
    QCOMPARE(ControlEndpoints::setMode(socket(), mode, Timeout).lastTovravpnPolicy,
             QStringLiteral("gfwlist"));
    mode = {};
    mode.transport = QStringLiteral("tovravpn");
    const ModeInfo back = ControlEndpoints::setMode(socket(), mode, Timeout);
    QCOMPARE(back.policy, QStringLiteral("gfwlist"));
    QCOMPARE(back.lastProxyPolicy, QStringLiteral("global"));
}

void TestDemoContract::proxyPreferences()
{
    QString error;
    ModeInfo mode =
        ControlEndpoints::setSystemProxyPreference(socket(), QStringLiteral("on"), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(mode.systemProxy, QStringLiteral("on"));
    QVERIFY(mode.pacPort > 0);
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).pacStatus.state,
             QStringLiteral("active"));
    mode = ControlEndpoints::setProxyLANPreference(socket(), true, Timeout, &error);
    QVERIFY(mode.proxyLan);
    QCOMPARE(error, QString());

    const ProxyListenResultInfo listen = ControlEndpoints::setProxyListeners(
        socket(), QStringLiteral(" 127.0.0.1:2080 "), QString(), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(listen.proxyListeners.size(), 1);
    QCOMPARE(listen.proxyListeners.first().address, QStringLiteral("127.0.0.1:2080"));
    QVERIFY(!listen.appliesOnReconnect);
    QVERIFY(!ControlEndpoints::setProxyListeners(socket(), QStringLiteral("nowhere"), QString(),
                                                 Timeout, &error)
                 .valid);
    QCOMPARE(error, QStringLiteral("invalid listen address \"nowhere\": use HOST:PORT"));
}

void TestDemoContract::killSwitch()
{
    QString error;
    KillSwitchInfo info = ControlEndpoints::setKillSwitchEnabled(socket(), true, Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(info.enabled);
    QCOMPARE(info.guard, QStringLiteral("active"));

    ModeInfo proxy;
    proxy.transport = QStringLiteral("proxy");
    QVERIFY(!ControlEndpoints::setMode(socket(), proxy, Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("Turn off Kill Switch before switching to Tovra Proxy."));

    info = ControlEndpoints::setKillSwitchAllowLAN(socket(), false, Timeout, &error);
    QVERIFY(!info.allowLan);
    QVERIFY(info.lanDiscovery.isEmpty());
    info =
        ControlEndpoints::setKillSwitchMode(socket(), QStringLiteral("lockdown"), Timeout, &error);
    QCOMPARE(info.mode, QStringLiteral("lockdown"));
    error.clear();
    QVERIFY(!ControlEndpoints::setKillSwitchEnabled(socket(), false, Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("Kill Switch is in lockdown and cannot be turned off."));
    QCOMPARE(ControlEndpoints::fetchKillSwitch(socket(), Timeout), info);
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).killSwitch, info);
}

void TestDemoContract::splitDns()
{
    QString error;
    SplitDNSInfo dns = ControlEndpoints::fetchSplitDNS(socket(), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(dns.localDnsSource, QStringLiteral("system"));
    QVERIFY(QFileInfo::exists(dns.configuredPath));
    dns = ControlEndpoints::setSplitDNSLocal(
        socket(), {QStringLiteral("9.9.9.9"), QStringLiteral("1.1.1.1")}, Timeout, &error);
    QCOMPARE(dns.configuredLocalDirectDns,
             (QStringList{QStringLiteral("9.9.9.9"), QStringLiteral("1.1.1.1")}));
    QCOMPARE(dns.localDnsSource, QStringLiteral("config"));
    QVERIFY(dns.changed);
    dns = ControlEndpoints::setSplitDNSPolicy(socket(), QStringLiteral("remote"), Timeout, &error);
    QCOMPARE(dns.effectivePolicy, QStringLiteral("remote"));
    dns = ControlEndpoints::clearSplitDNSLocal(socket(), Timeout, &error);
    QVERIFY(dns.configuredLocalDirectDns.isEmpty());
    dns = ControlEndpoints::resetSplitDNS(socket(), Timeout, &error);
    QCOMPARE(dns.configuredPolicy, QStringLiteral("auto"));
    QCOMPARE(error, QString());
    QVERIFY(!ControlEndpoints::setSplitDNSLocal(socket(), {QStringLiteral("dns.example")}, Timeout,
                                                &error)
                 .valid);
    QCOMPARE(error, QStringLiteral("\"dns.example\" is not an IP address"));
}

void TestDemoContract::languageResolves_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("effective");
    QTest::addRow("locale spelling") << "de_DE.UTF-8"
                                     << "de-DE"
                                     << "de";
    QTest::addRow("simplified Chinese by region") << "zh_CN"
                                                  << "zh-CN"
                                                  << "zh-Hans";
    QTest::addRow("traditional Chinese by region") << "zh_TW"
                                                   << "zh-TW"
                                                   << "zh-Hant";
    QTest::addRow("unsupported falls back to English") << "sw"
                                                       << "sw"
                                                       << "en";
}

void TestDemoContract::languageResolves()
{
    QFETCH(QString, tag);
    QFETCH(QString, language);
    QFETCH(QString, effective);
    QString error;
    const LanguageConfigInfo info = ControlEndpoints::setLanguageIfSource(
        socket(), QStringLiteral("system"), tag, QStringLiteral("system"), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(info.language, language);
    QCOMPARE(info.effectiveLanguage, effective);
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).effectiveLanguage, effective);
}

void TestDemoContract::languageAndApiUrl()
{
    QString error;
    LanguageConfigInfo language = ControlEndpoints::fetchLanguageConfig(socket(), Timeout, &error);
    QCOMPARE(language.source, QStringLiteral("system"));
    QVERIFY(language.supportedLanguages.size() >= 10);
    language = ControlEndpoints::setLanguage(socket(), QStringLiteral("user"),
                                             QStringLiteral("de_AT"), Timeout, &error);
    QCOMPARE(error, QString());
    QCOMPARE(language.language, QStringLiteral("de-AT"));
    QCOMPARE(language.effectiveLanguage, QStringLiteral("de"));
    // The system's tag applies only while the source is still "system".
    language = ControlEndpoints::setLanguageIfSource(socket(), QStringLiteral("system"),
                                                     QStringLiteral("fr"), QStringLiteral("system"),
                                                     Timeout, &error);
    QCOMPARE(language.language, QStringLiteral("de-AT"));
    QCOMPARE(ControlEndpoints::fetchStatus(socket(), Timeout).effectiveLanguage,
             QStringLiteral("de"));

    QVERIFY(
        !ControlEndpoints::setAPIURL(socket(), QStringLiteral("ftp://x"), Timeout, &error).valid);
    QCOMPARE(error, QStringLiteral("API URL must be an http or https URL with a host"));
}

// The download itself, its file and cancel are driven end to end by TestUpdateFlow; here only
// what no flow reaches: an offer the daemon no longer holds.
void TestDemoContract::updateDownloadRefusesOtherRelease()
{
    QString error;
    const UpdateInfo offer =
        ControlEndpoints::checkUpdate(socket(), QStringLiteral(TOVRA_VERSION), Timeout, &error);
    QCOMPARE(error, QString());
    QVERIFY(offer.updateAvailable);
    QVERIFY(QUrl(offer.artifactURL).host() == QStringLiteral(TOVRA_VENDOR_HOST));
    const GUIUpdateDownloadInfo mismatch = ControlEndpoints::startGUIUpdateDownload(
        socket(), QStringLiteral(TOVRA_VERSION), 42, Timeout, &error);
    QCOMPARE(mismatch.state, QStringLiteral("failed"));
    QCOMPARE(mismatch.errorCode, QStringLiteral("release_mismatch"));
}

QTEST_GUILESS_MAIN(TestDemoContract)
#include "TestDemoContract.moc"
