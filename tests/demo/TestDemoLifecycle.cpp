#include "ControlEndpoints.h"
#include "DemoDaemon.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Leaves a socket file behind with nobody listening, as a crashed daemon would.
bool makeStaleSocket(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray encoded = QFile::encodeName(path);
    if (fd < 0 || encoded.size() >= qsizetype(sizeof(address.sun_path)))
        return false;
    memcpy(address.sun_path, encoded.constData(), size_t(encoded.size()));
    const bool bound = ::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0;
    ::close(fd);
    return bound && QFileInfo::exists(path);
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

// The daemon as a process: start, stop on signals, a stale socket, a second instance, and
// the protocol checks that only raw requests can reach.
class TestDemoLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stopsCleanlyOnSignal_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::addRow("SIGTERM") << int(SIGTERM);
        QTest::addRow("SIGINT") << int(SIGINT);
    }

    void stopsCleanlyOnSignal()
    {
        QFETCH(int, signalNumber);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QVERIFY(QFileInfo::exists(daemon.socketPath()));
        QVERIFY(ControlEndpoints::fetchStatus(daemon.socketPath(), 5000).valid);
        QVERIFY2(daemon.stop(signalNumber), qPrintable(daemon.errorString()));
        QVERIFY(!QFileInfo::exists(QFileInfo(daemon.socketPath()).absolutePath() +
                                   u"/tovra-demo.pid"_s));
        QString error;
        QVERIFY(!ControlEndpoints::fetchStatus(daemon.socketPath(), 1000, &error).valid);
        QCOMPARE(error, u"Tovra daemon is not running."_s);
    }

    void replacesStaleSocket()
    {
        DemoDaemon daemon;
        QVERIFY(makeStaleSocket(daemon.socketPath()));
        QString error;
        QVERIFY(!ControlEndpoints::fetchStatus(daemon.socketPath(), 1000, &error).valid);
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QVERIFY(ControlEndpoints::fetchStatus(daemon.socketPath(), 5000, &error).valid);
        QCOMPARE(error, QString());
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
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        const QByteArray answer = exchange(daemon.socketPath(), request);
        QVERIFY2(answer.startsWith(statusLine), answer.constData());
        QVERIFY2(answer.contains(expected), answer.constData());
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }
};

QTEST_GUILESS_MAIN(TestDemoLifecycle)
#include "TestDemoLifecycle.moc"
