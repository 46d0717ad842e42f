#include "ControlEndpoints.h"
#include "DemoDaemon.h"

#include <QDateTime>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

using E = ControlEndpoints;
constexpr int Timeout = 5000;
const QString DemoUser = u"demo@tovra.invalid"_s;
const QString Password = u"demo"_s;

const NodeEntry *findNode(const NodesInfo &nodes, const QString &id)
{
    for (const NodeEntry &node : nodes.nodes) {
        if (node.id == id)
            return &node;
    }
    return nullptr;
}

} // namespace

// What the demo daemon simulates, seen through the client library: each change shows in what
// follows, and each refusal comes with the text a user will read.
class TestDemoContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_daemon = std::make_unique<DemoDaemon>();
        QVERIFY2(m_daemon->start({u"--connect-ms"_s, u"400"_s}),
                 qPrintable(m_daemon->errorString()));
    }

    void cleanup()
    {
        QVERIFY2(m_daemon->stop(), qPrintable(m_daemon->errorString()));
        m_daemon.reset();
    }

    void signIn_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("error");
        const QString wrong = u"Incorrect email or password."_s;
        QTest::addRow("user name in capitals") << DemoUser.toUpper() << Password << QString();
        QTest::addRow("unknown account") << u"who@tovra.invalid"_s << Password << wrong;
        QTest::addRow("empty user") << QString() << Password << u"Enter account and password."_s;
    }

    void signIn()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        QFETCH(QString, error);
        QString message;
        const RuntimeInfo answer = E::login(socket(), user, password, true, Timeout, &message);
        QCOMPARE(message, error);
        QCOMPARE(answer.valid, error.isEmpty());
        QCOMPARE(E::fetchStatus(socket(), Timeout).authState,
                 error.isEmpty() ? u"logged_in"_s : u"logged_out"_s);
    }

    void userAndPurchaseLink()
    {
        QString error;
        QVERIFY(!E::fetchUser(socket(), Timeout, &error).valid);
        QCOMPARE(error, u"Sign in to see your account."_s);
        QVERIFY(!E::connectRuntime(socket(), Timeout, &error).valid);
        QCOMPARE(error, u"Sign in to Tovra before connecting."_s);
        signInAs();
        const UserInfo user = E::fetchUser(socket(), Timeout, &error);
        QCOMPARE(error, QString());
        QCOMPARE(user.email, DemoUser);
        // The client accepts only links on the vendor host with every query item once.
        const PurchaseURLInfo link = E::fetchPurchaseURL(socket(), u"de"_s, Timeout, &error);
        QVERIFY2(link.valid, qPrintable(error));
        const QUrlQuery query(QUrl(link.url).query());
        QCOMPARE(query.queryItemValue(u"lang"_s), u"de"_s);
        QCOMPARE(query.queryItemValue(u"account"_s), user.userNumber);
    }

    void connectGoesThroughConnecting()
    {
        signInAs();
        QString error;
        const RuntimeInfo answer = E::connectNode(socket(), u"1009"_s, Timeout, &error);
        QCOMPARE(error, QString());
        QCOMPARE(answer.tunnelState, u"connecting"_s);
        QCOMPARE(answer.selectedNode, u"[1009] [NL] Amsterdam 01"_s);
        QVERIFY(answer.connectedNode.isEmpty() && answer.connectedSince.isEmpty());

        QTRY_COMPARE_WITH_TIMEOUT(E::fetchStatus(socket(), Timeout).tunnelState, u"connected"_s,
                                  5000);
        const RuntimeInfo connected = E::fetchStatus(socket(), Timeout);
        QCOMPARE(connected.connectedNode, u"[1009] [NL] Amsterdam 01"_s);
        QCOMPARE(connected.connectedSource, u"node"_s);
        const QDateTime since = QDateTime::fromString(connected.connectedSince, Qt::ISODate);
        QVERIFY(since.isValid() && since.timeSpec() == Qt::UTC);
        QCOMPARE(E::fetchNodes(socket(), false, Timeout).connected.id, u"1009"_s);

        QCOMPARE(E::disconnectRuntime(socket(), Timeout, &error).tunnelState, u"disconnecting"_s);
        QTRY_COMPARE_WITH_TIMEOUT(E::fetchStatus(socket(), Timeout).tunnelState, u"disconnected"_s,
                                  5000);
        QVERIFY(E::fetchStatus(socket(), Timeout).connectedNode.isEmpty());
    }

    void connectChoosesTarget_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("region"); // the start of the chosen node's region, or the error
        QTest::addColumn<QString>("source");
        // clang-format off
        QTest::addRow("smart in a country") << "smart" << "JP" << "[JP]" << "smart";
        QTest::addRow("smart in a city") << "smart" << "los angeles" << "[US]" << "smart";
        QTest::addRow("smart by group id") << "smart" << "country:au" << "[AU]" << "smart";
        QTest::addRow("plain connect") << "runtime" << "" << "[" << "last";
        QTest::addRow("unknown group") << "smart" << "atlantis" << "No location matches \"atlantis\"."
                                       << "";
        QTest::addRow("unknown node") << "node" << "99" << "This location is no longer available."
                                      << "";
        // clang-format on
    }

    void connectChoosesTarget()
    {
        QFETCH(QString, kind);
        QFETCH(QString, argument);
        QFETCH(QString, region);
        QFETCH(QString, source);
        signInAs();
        QString error;
        const RuntimeInfo answer =
            kind == u"smart"  ? E::connectSmart(socket(), argument, Timeout, &error)
            : kind == u"node" ? E::connectNode(socket(), argument, Timeout, &error)
                              : E::connectRuntime(socket(), Timeout, &error);
        if (source.isEmpty()) {
            QCOMPARE(error, region);
            QCOMPARE(E::fetchStatus(socket(), Timeout).tunnelState, u"disconnected"_s);
            return;
        }

        QCOMPARE(error, QString());
        QVERIFY2(answer.selectedNode.section(QLatin1Char(' '), 1, 1).startsWith(region),
                 qPrintable(answer.selectedNode));
        QCOMPARE(answer.connectedSource, source);
        QTRY_COMPARE_WITH_TIMEOUT(E::fetchStatus(socket(), Timeout).connectedNode,
                                  answer.selectedNode, 5000);
    }

    void freePlanRefusesSvipNode()
    {
        signInAs(u"free@tovra.invalid"_s);
        const NodesInfo nodes = E::fetchNodes(socket(), false, Timeout);
        const auto svip = std::find_if(nodes.nodes.cbegin(), nodes.nodes.cend(),
                                       [](const NodeEntry &node) { return node.type == u"svip"; });
        QVERIFY(svip != nodes.nodes.cend());
        QString error;
        QVERIFY(!E::connectNode(socket(), svip->id, Timeout, &error).valid);
        QCOMPARE(error, u"This location needs an SVIP plan."_s);
        const RuntimeInfo smart = E::connectSmart(socket(), u"all"_s, Timeout, &error);
        QCOMPARE(error, QString());
        const QString chosen = smart.selectedNode.section(QLatin1Char(' '), 0, 0).mid(1).chopped(1);
        QCOMPARE(findNode(nodes, chosen)->type, u"free"_s);
    }

    void logoutDisconnects()
    {
        signInAs();
        QVERIFY(E::connectRuntime(socket(), Timeout).valid);
        QString error;
        const RuntimeInfo answer = E::logout(socket(), Timeout, &error);
        QCOMPARE(error, QString());
        QCOMPARE(answer.authState, u"logged_out"_s);
        QCOMPARE(answer.tunnelReason, u"signed_out"_s);
        QTRY_COMPARE_WITH_TIMEOUT(E::fetchStatus(socket(), Timeout).tunnelState, u"disconnected"_s,
                                  5000);
    }

    void refreshMeasuresProgressively()
    {
        const NodesInfo started = E::fetchNodes(socket(), true, Timeout);
        QVERIFY(started.pingRunning);
        QCOMPARE(started.nodes.last().pingMs, -1);
        QCOMPARE(E::fetchStatus(socket(), Timeout).catalogRefresh, u"running"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!E::fetchNodes(socket(), false, Timeout).pingRunning, 10000);
        for (const NodeEntry &node : E::fetchNodes(socket(), false, Timeout).nodes)
            QVERIFY(node.pingMs > 0 && node.signalLevel >= 1 && node.signalLevel <= 4);
    }

    void familyRestoresLastPolicy()
    {
        const auto mode = [](const char *transport, const char *policy) {
            ModeInfo result;
            result.transport = QString::fromLatin1(transport);
            result.policy = QString::fromLatin1(policy);
            return result;
        };
        QVERIFY(E::setMode(socket(), mode("tovravpn", "gfwlist"), Timeout).valid);
        QCOMPARE(E::setMode(socket(), mode("proxy", "global"), Timeout).lastTovravpnPolicy,
                 u"gfwlist"_s);
        const ModeInfo back = E::setMode(socket(), mode("tovravpn", ""), Timeout);
        QCOMPARE(back.policy, u"gfwlist"_s);
        QCOMPARE(back.lastProxyPolicy, u"global"_s);
    }

    void killSwitch()
    {
        QString error;
        KillSwitchInfo info = E::setKillSwitchEnabled(socket(), true, Timeout, &error);
        QVERIFY(info.enabled);
        QCOMPARE(info.guard, u"active"_s);
        ModeInfo proxy;
        proxy.transport = u"proxy"_s;
        QVERIFY(!E::setMode(socket(), proxy, Timeout, &error).valid);
        QCOMPARE(error, u"Turn off Kill Switch before switching to Tovra Proxy."_s);

        info = E::setKillSwitchAllowLAN(socket(), false, Timeout, &error);
        QVERIFY(!info.allowLan && info.lanDiscovery.isEmpty());
        info = E::setKillSwitchMode(socket(), u"lockdown"_s, Timeout, &error);
        QCOMPARE(info.mode, u"lockdown"_s);
        QVERIFY(!E::setKillSwitchEnabled(socket(), false, Timeout, &error).valid);
        QCOMPARE(error, u"Kill Switch is in lockdown and cannot be turned off."_s);
        QCOMPARE(E::fetchKillSwitch(socket(), Timeout), info);
        QCOMPARE(E::fetchStatus(socket(), Timeout).killSwitch, info);
    }

    void languageResolves_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("effective");
        // clang-format off
        QTest::addRow("locale spelling") << "de_DE.UTF-8" << "de-DE" << "de";
        QTest::addRow("traditional Chinese by region") << "zh_TW" << "zh-TW" << "zh-Hant";
        QTest::addRow("unsupported falls back to English") << "sw" << "sw" << "en";
        // clang-format on
    }

    void languageResolves()
    {
        QFETCH(QString, tag);
        QFETCH(QString, effective);
        QString error;
        const LanguageConfigInfo info =
            E::setLanguageIfSource(socket(), u"system"_s, tag, u"system"_s, Timeout, &error);
        QCOMPARE(error, QString());
        QTEST(info.language, "language");
        QCOMPARE(info.effectiveLanguage, effective);
        QCOMPARE(E::fetchStatus(socket(), Timeout).effectiveLanguage, effective);
    }

private:
    QString socket() const { return m_daemon->socketPath(); }
    void signInAs(const QString &user = DemoUser)
    {
        QString error;
        const RuntimeInfo info = E::login(socket(), user, Password, true, Timeout, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(info.authState, u"logged_in"_s);
    }

    std::unique_ptr<DemoDaemon> m_daemon;
};

QTEST_GUILESS_MAIN(TestDemoContract)
#include "TestDemoContract.moc"
