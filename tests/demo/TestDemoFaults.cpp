#include "ControlEndpoints.h"
#include "DemoDaemon.h"

#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QStringList args(std::initializer_list<const char *> items)
{
    QStringList list;
    for (const char *item : items)
        list.append(QString::fromUtf8(item));
    return list;
}

// Runs one client operation by name; returns whether its record came back valid.
bool run(const QString &operation, const QString &socket, int timeoutMs, QString *error)
{
    if (operation == QLatin1String("groups"))
        return ControlEndpoints::fetchNodeGroups(socket, timeoutMs, error).valid;
    return ControlEndpoints::fetchLanguageConfig(socket, timeoutMs, error).valid;
}

// One raw exchange, for what the client library never sends.
QByteArray exchange(const QString &socketPath, const QByteArray &request)
{
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (!socket.waitForConnected(5000))
        return {};
    socket.write(request);
    QByteArray answer;
    QSignalSpy closed(&socket, &QLocalSocket::disconnected);
    while (socket.state() == QLocalSocket::ConnectedState && closed.wait(5000)) {
    }
    answer += socket.readAll();
    return answer;
}

} // namespace

// Each fault the daemon injects reaches the client as the error text the client promises; the
// daemon as a process stops on signals, replaces a stale socket, refuses a second instance, and
// answers what only raw requests can send.
class TestDemoFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultBecomesErrorText_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("error");
        QTest::addRow("failure worded by last_error")
            << args({"--fail",
                     R"(/v1/nodes/groups=500:{"error":"","last_error":"catalogue offline"})"})
            << "groups"
            << "catalogue offline";
        QTest::addRow("failure on every path") << args({"--fail", "*=503"}) << "language"
                                               << "demo failure injected for /v1/config/language";
    }

    void faultBecomesErrorText()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, operation);
        QFETCH(QString, error);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(options), qPrintable(daemon.errorString()));
        QString message;
        QVERIFY(!run(operation, daemon.socketPath(), 5000, &message));
        QCOMPARE(message, error);
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

    // Every other test stops its daemon with SIGTERM and DemoDaemon::stop checks the clean exit.
    void stopsCleanlyOnSigint()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QVERIFY2(daemon.stop(SIGINT), qPrintable(daemon.errorString()));
        QVERIFY(!QFileInfo::exists(QFileInfo(daemon.socketPath()).absolutePath() +
                                   u"/tovra-demo.pid"_s));
    }

    void replacesStaleSocket()
    {
        // A daemon killed outright leaves its socket file behind, with nobody listening.
        DemoDaemon daemon;
        QProcess crashed;
        crashed.start(DemoDaemon::binaryPath(),
                      {u"--socket"_s, daemon.socketPath(), u"--data-dir"_s, daemon.dataDir()});
        QTRY_VERIFY(ControlEndpoints::fetchStatus(daemon.socketPath(), 1000).valid);
        crashed.kill();
        QVERIFY(crashed.waitForFinished());
        QString error;
        QVERIFY(!ControlEndpoints::fetchStatus(daemon.socketPath(), 1000, &error).valid);
        QCOMPARE(error, u"Tovra daemon is not running."_s);
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QVERIFY(ControlEndpoints::fetchStatus(daemon.socketPath(), 5000).valid);
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

    void refusesSecondInstance()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QProcess second;
        second.start(DemoDaemon::binaryPath(), {u"--socket"_s, daemon.socketPath()});
        QVERIFY(second.waitForFinished(10000));
        QCOMPARE(second.exitCode(), 1);
        QVERIFY(second.readAllStandardError().contains("another daemon is already listening"));
        QVERIFY(ControlEndpoints::fetchStatus(daemon.socketPath(), 5000).valid);
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

    void rawRequests_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("statusLine");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray v1 = "X-Tovra-Control-Version: 1\r\n";
        QTest::addRow("missing version header")
            << QByteArray("GET /v1/status HTTP/1.1\r\nHost: tovra\r\n\r\n")
            << QByteArray("HTTP/1.1 409 ") << QByteArray("X-Tovra-Control-Version: 1\r\n");
        QTest::addRow("wrong version header")
            << QByteArray("GET /v1/status HTTP/1.1\r\nX-Tovra-Control-Version: 7\r\n\r\n")
            << QByteArray("HTTP/1.1 409 ") << QByteArray("X-Tovra-Daemon-Version: 2.8.0-demo\r\n");
        QTest::addRow("unknown path")
            << QByteArray("GET /v1/nothing HTTP/1.1\r\n" + v1 + "\r\n")
            << QByteArray("HTTP/1.1 404 ") << QByteArray("{\"error\":\"not found\"}");
        QTest::addRow("wrong method")
            << QByteArray("DELETE /v1/status HTTP/1.1\r\n" + v1 + "\r\n")
            << QByteArray("HTTP/1.1 405 ") << QByteArray("Allow: GET\r\n");
        QTest::addRow("body not JSON")
            << QByteArray("POST /v1/mode HTTP/1.1\r\n" + v1 + "Content-Length: 5\r\n\r\n{nope")
            << QByteArray("HTTP/1.1 400 ") << QByteArray("{\"error\":\"invalid JSON body");
        QTest::addRow("body an array")
            << QByteArray("POST /v1/mode HTTP/1.1\r\n" + v1 + "Content-Length: 2\r\n\r\n[]")
            << QByteArray("HTTP/1.1 400 ")
            << QByteArray("{\"error\":\"request body must be a JSON object\"}");
        QTest::addRow("malformed request line")
            << QByteArray("HELLO\r\n\r\n") << QByteArray("HTTP/1.1 400 ")
            << QByteArray("malformed request line");
        QTest::addRow("body with a wrong type")
            << QByteArray("POST /v1/kill-switch HTTP/1.1\r\n" + v1 +
                          "Content-Length: 17\r\n\r\n{\"enabled\":\"yes\"}")
            << QByteArray("HTTP/1.1 400 ")
            << QByteArray("{\"error\":\"\\\"enabled\\\" must be true or false\"}");
        const QByteArray hugeId = "{\"node\":1e300,\"favorite\":true}";
        QTest::addRow("node id out of range")
            << QByteArray("POST /v1/nodes/favorite HTTP/1.1\r\n" + v1 + "Content-Length: " +
                          QByteArray::number(hugeId.size()) + "\r\n\r\n" + hugeId)
            << QByteArray("HTTP/1.1 404 ") << QByteArray("{\"error\":\"unknown location\"}");
    }

    void rawRequests()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, statusLine);
        QFETCH(QByteArray, expected);
        if (!m_raw.running())
            QVERIFY2(m_raw.start(), qPrintable(m_raw.errorString()));
        const QByteArray answer = exchange(m_raw.socketPath(), request);
        QVERIFY2(answer.startsWith(statusLine), answer.constData());
        QVERIFY2(answer.contains(expected), answer.constData());
    }

private:
    DemoDaemon m_raw; // requests the client never sends
};

QTEST_GUILESS_MAIN(TestDemoFaults)
#include "TestDemoFaults.moc"
