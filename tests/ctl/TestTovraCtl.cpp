#include "ScriptedPeer.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTest>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

Run runCtl(const QStringList &arguments, const QString &socketOverride = QString(),
           const QByteArray &input = QByteArray())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TOVRA_CONTROL_SOCKET"_s, socketOverride);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TOVRA_BINARY_DIR "/src/ctl/tovra-ctl"), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(10000))
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestTovraCtl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fetchStatusPrintsRecord()
    {
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(
            200,
            R"({"tunnel_state":"connected","mode":{"transport":"auto","policy":"split"},)"
            R"("selected_node":{"id":3,"region":"SE","name":"Stockholm"},"kill_switch":{"enabled":true}})"));
        // The environment override is how scripts point it at another daemon.
        const Run run = runCtl({u"fetchStatus"_s}, peer.socketPath());
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.isEmpty());
        const QVariantMap record = QJsonDocument::fromJson(run.out).toVariant().toMap();
        QCOMPARE(record.value(u"valid"_s), QVariant(true));
        QCOMPARE(record.value(u"mode_summary"_s), QVariant(u"auto split"_s));
        QCOMPARE(record.value(u"selected_node"_s), QVariant(u"[3] [SE] Stockholm"_s));
        QCOMPARE(record.value(u"mode"_s).toMap().value(u"local_network"_s), QVariant(u"direct"_s));
        QCOMPARE(record.value(u"kill_switch"_s).toMap().value(u"enabled"_s), QVariant(true));
    }

    void rawPrintsWholeResponse()
    {
        ScriptedPeer peer;
        peer.setReply(
            ScriptedPeer::response(500, "{\"error\":\"x\"}", {"Zeta: last", "Alpha:  first "}));
        const Run run = runCtl(
            {u"--socket"_s, peer.socketPath(), u"raw"_s, u"POST"_s, u"/v1/connect"_s, u"{}"_s});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, QByteArray("500\nalpha: first\nzeta: last\n\n{\"error\":\"x\"}"));
        QVERIFY(peer.lastRequest().endsWith("Content-Length: 2\r\n\r\n{}"));
    }

    void failures_data()
    {
        QTest::addColumn<QByteArray>("response");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("stderr");

        QTest::addRow("not running") << QByteArray() << QStringList{u"fetchStatus"_s}
                                     << QByteArray("Tovra daemon is not running.\n");
        QTest::addRow("raw, not running")
            << QByteArray() << QStringList{u"raw"_s, u"GET"_s, u"/v1/status"_s}
            << QByteArray("Tovra daemon is not running.\n");
        QTest::addRow("daemon error")
            << ScriptedPeer::response(401, R"({"error":"wrong password"})")
            << QStringList{u"login"_s, u"a"_s, u"b"_s, u"false"_s}
            << QByteArray("wrong password\n");
        QTest::addRow("bad record")
            << ScriptedPeer::response(200, "[]") << QStringList{u"fetchUser"_s}
            << QByteArray("invalid user JSON\n");
    }

    void failures()
    {
        QFETCH(QByteArray, response);
        QFETCH(QStringList, arguments);
        ScriptedPeer peer;
        QString socket = peer.socketPath() + u".absent"_s;
        if (!response.isEmpty()) {
            peer.setReply(response);
            socket = peer.socketPath();
        }

        const Run run = runCtl(QStringList{u"--socket"_s, socket} + arguments);
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.out.isEmpty());
        QTEST(run.err, "stderr");
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("problem");
        QTest::addRow("unknown operation")
            << QStringList{u"fly"_s} << QByteArray("unknown operation fly");
        QTest::addRow("boolean spelled otherwise") << QStringList{u"fetchNodes"_s, u"yes"_s}
                                                   << QByteArray("refresh must be true or false");
        QTest::addRow("missing argument") << QStringList{u"connectNode"_s}
                                          << QByteArray("connectNode takes 1 argument(s), 0 given");
        QTest::addRow("mode not an object")
            << QStringList{u"setMode"_s, u"auto"_s} << QByteArray("mode must be a JSON object");
        QTest::addRow("timeout not a number")
            << QStringList{u"--timeout"_s, u"soon"_s, u"fetchStatus"_s}
            << QByteArray("--timeout needs a whole number");
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, problem);
        const Run run = runCtl(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(QByteArray(QByteArray("tovra-ctl: ") + problem)),
                 run.err.constData());
        QVERIFY(run.err.contains("Usage: tovra-ctl"));
    }

    void argumentsReachTheWire()
    {
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(200, R"({"transport":"tovravpn"})"));
        const Run mode = runCtl(
            {u"--socket"_s, peer.socketPath(), u"setMode"_s,
             QStringLiteral(R"({"transport":"tovravpn","split_profile":{"gfwlist":true}})")});
        QCOMPARE(mode.exitCode, 0);
        QVERIFY2(peer.lastRequest().endsWith(R"(,"transport":"tovravpn"})"),
                 peer.lastRequest().constData());
        QVERIFY(peer.lastRequest().contains(R"("gfwlist":true)"));

        peer.setReply(ScriptedPeer::response(200, "{}"));
        const Run dns = runCtl(
            {u"--socket"_s, peer.socketPath(), u"setSplitDNSLocal"_s, u"1.1.1.1, 8.8.8.8,"_s});
        QCOMPARE(dns.exitCode, 0);
        QVERIFY(peer.lastRequest().endsWith(R"({"local_direct_dns":["1.1.1.1","8.8.8.8"]})"));
    }

    void loginPasswordFromStandardInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode");
        // The request body when the exchange happened, else the error text expected.
        QTest::addColumn<QByteArray>("expected");
        const QString user = u"u@tovra.invalid"_s;
        QTest::addRow("dash, remember")
            << QStringList{user, u"-"_s, u"true"_s} << QByteArray("s3 cret\n") << 0
            << QByteArray(R"("password":"s3 cret","remember_me":true)");
        QTest::addRow("dash, CRLF, no newline after")
            << QStringList{user, u"-"_s} << QByteArray("pw\r\n") << 0
            << QByteArray(R"("password":"pw","remember_me":false)");
        QTest::addRow("dash, nothing on input") << QStringList{user, u"-"_s} << QByteArray() << 2
                                                << QByteArray("no password on standard input");
        QTest::addRow("dash, empty line") << QStringList{user, u"-"_s} << QByteArray("\n") << 2
                                          << QByteArray("the password is empty");
        QTest::addRow("missing, no terminal")
            << QStringList{user} << QByteArray("pw\n") << 2
            << QByteArray("give - to read it from standard input");
    }

    void loginPasswordFromStandardInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, input);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, expected);
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(200, R"({"auth_state":"logged_in"})"));
        const Run run =
            runCtl(QStringList{u"--socket"_s, peer.socketPath(), u"login"_s} + arguments, QString(),
                   input);
        QVERIFY2(run.exitCode == exitCode, run.err.constData());
        if (exitCode == 0)
            QVERIFY2(peer.lastRequest().contains(expected), peer.lastRequest().constData());
        else
            QVERIFY2(run.err.contains(expected), run.err.constData());
    }
};

QTEST_GUILESS_MAIN(TestTovraCtl)
#include "TestTovraCtl.moc"
