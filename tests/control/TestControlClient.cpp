#include "ControlClient.h"
#include "ScriptedPeer.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <thread>

using Step = ScriptedPeer::Step;
using Reply = ScriptedPeer::Reply;
using Ending = ScriptedPeer::Ending;

Q_DECLARE_METATYPE(Reply)

class TestControlClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestBytes_data();
    void requestBytes();
    void responsesOverSocket_data();
    void responsesOverSocket();
    void failuresOverSocket_data();
    void failuresOverSocket();
    void noDaemonListening();
    void cancelWhileWaitingForAnswer();
    void cancelBeforeStart();
    void connectionErrorText_data();
    void connectionErrorText();
    void responseErrorText_data();
    void responseErrorText();
    void applyResponseErrorKeepsTransportMessage();
    void socketPathOverride_data();
    void socketPathOverride();
};

void TestControlClient::requestBytes_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray common = "Host: tovra\r\nX-Tovra-Control-Version: 1\r\nConnection: close\r\n";
    QTest::addRow("GET without body")
        << QByteArray("GET") << QStringLiteral("/v1/status") << QByteArray()
        << "GET /v1/status HTTP/1.1\r\n" + common + "\r\n";
    QTest::addRow("POST with body")
        << QByteArray("POST") << QStringLiteral("/v1/connect") << QByteArray("{}")
        << "POST /v1/connect HTTP/1.1\r\n" + common +
               "Content-Type: application/json\r\nContent-Length: 2\r\n\r\n{}";
    QTest::addRow("POST without body has no content headers")
        << QByteArray("POST") << QStringLiteral("/v1/x") << QByteArray()
        << "POST /v1/x HTTP/1.1\r\n" + common + "\r\n";
    QTest::addRow("DELETE") << QByteArray("DELETE") << QStringLiteral("/v1/split/dns/local")
                            << QByteArray()
                            << "DELETE /v1/split/dns/local HTTP/1.1\r\n" + common + "\r\n";
    QTest::addRow("query and UTF-8 sent as they stand")
        << QByteArray("GET") << QStringLiteral("/v1/split/rules?kind=a b\u00e9") << QByteArray()
        << "GET /v1/split/rules?kind=a b\xc3\xa9 HTTP/1.1\r\n" + common + "\r\n";
}

void TestControlClient::requestBytes()
{
    QFETCH(QByteArray, method);
    QFETCH(QString, path);
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, expected);

    ScriptedPeer peer;
    peer.setReply(ScriptedPeer::response(200, "{}"));
    QString error;
    const ControlResponse response =
        ControlClient::exchange(peer.socketPath(), method, path, body, 2000, &error);
    QCOMPARE(error, QString());
    QCOMPARE(response.statusCode, 200);
    QCOMPARE(peer.lastRequest(), expected);
}

void TestControlClient::responsesOverSocket_data()
{
    QTest::addColumn<Reply>("reply");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");

    QTest::addRow("length split across writes")
        << Reply{{Step{"HTTP/1.1 200 OK\r\nContent-", 0}, Step{"Length: 5\r\n\r\nhe", 30},
                  Step{"llo", 30}},
                 Ending::KeepOpen}
        << 2000 << 200 << QByteArray("hello");
    QTest::addRow("chunked split across writes")
        << Reply{{Step{"HTTP/1.1 200 OK\r\ntransfer-encoding: CHUNKED\r\n\r\n5;ext=1\r\nhel", 0},
                  Step{"lo\r\n0\r\nTrailer: x\r\n", 40}, Step{"\r\n", 40}},
                 Ending::KeepOpen}
        << 2000 << 200 << QByteArray("hello");
    QTest::addRow("204 then close")
        << Reply{{Step{"HTTP/1.1 204 No Content\r\n\r\n", 0}}, Ending::Close} << 2000 << 204
        << QByteArray();
    QTest::addRow("no deadline waits for the close")
        << Reply{{Step{"HTTP/1.1 204 No Content\r\n\r\n", 0}, Step{QByteArray(), 400}},
                 Ending::Close}
        << 0 << 204 << QByteArray();
    QTest::addRow("body framed by the close")
        << Reply{{Step{"HTTP/1.1 500 X\r\n\r\n{\"error\":", 0}, Step{"\"boom\"}", 50}},
                 Ending::Close}
        << 2000 << 500 << QByteArray("{\"error\":\"boom\"}");
}

void TestControlClient::responsesOverSocket()
{
    QFETCH(Reply, reply);
    QFETCH(int, timeoutMs);

    ScriptedPeer peer;
    peer.setReply(reply);
    QString error;
    const ControlResponse response = ControlClient::exchange(
        peer.socketPath(), "GET", QStringLiteral("/v1/status"), QByteArray(), timeoutMs, &error);
    QCOMPARE(error, QString());
    QTEST(response.statusCode, "status");
    QTEST(response.body, "body");
}

void TestControlClient::failuresOverSocket_data()
{
    QTest::addColumn<Reply>("reply");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<QString>("error");

    const QString remoteClosed = QStringLiteral("QLocalSocket: Remote closed");
    QTest::addRow("204 kept open times out")
        << Reply{{Step{"HTTP/1.1 204 No Content\r\n\r\n", 0}}, Ending::KeepOpen} << 300
        << QStringLiteral("control request timed out");
    QTest::addRow("silent peer times out")
        << Reply{{}, Ending::KeepOpen} << 300 << QStringLiteral("control request timed out");
    QTest::addRow("closes in the middle of a body")
        << Reply{{Step{"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhel", 0}}, Ending::Close}
        << 2000 << remoteClosed;
    QTest::addRow("closes without answering") << Reply{{}, Ending::Close} << 2000 << remoteClosed;
    QTest::addRow("garbage then close")
        << Reply{{Step{"\x01\x02garbage\r\n\r\n", 0}}, Ending::Close} << 2000 << remoteClosed;
    QTest::addRow("bad chunk terminator then close")
        << Reply{{Step{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nokXX0\r\n\r\n",
                       0}},
                 Ending::Close}
        << 2000 << remoteClosed;
}

void TestControlClient::failuresOverSocket()
{
    QFETCH(Reply, reply);
    QFETCH(int, timeoutMs);

    ScriptedPeer peer;
    peer.setReply(reply);
    QString error;
    const ControlResponse response = ControlClient::exchange(
        peer.socketPath(), "GET", QStringLiteral("/v1/status"), QByteArray(), timeoutMs, &error);
    QTEST(error, "error");
    QCOMPARE(response.statusCode, 0);
    QVERIFY(response.body.isEmpty());
    QVERIFY(response.headers.isEmpty());
}

void TestControlClient::noDaemonListening()
{
    QTemporaryDir dir;
    QString error;
    const ControlResponse response =
        ControlClient::exchange(dir.filePath(QStringLiteral("absent.sock")), "GET",
                                QStringLiteral("/v1/status"), QByteArray(), 2000, &error);
    QCOMPARE(response.statusCode, 0);
    QCOMPARE(error, QStringLiteral("Tovra daemon is not running."));
}

void TestControlClient::cancelWhileWaitingForAnswer()
{
    ScriptedPeer peer;
    peer.setReply(Reply{{}, Ending::KeepOpen});
    std::atomic_bool cancel{false};
    std::atomic_bool done{false};
    QString error;
    // No read deadline at all: only the cancel flag can end this exchange.
    std::thread exchange([&] {
        ControlClient::exchange(peer.socketPath(), "GET", QStringLiteral("/v1/status"),
                                QByteArray(), 0, &error, &cancel);
        done = true;
    });
    QTRY_COMPARE(peer.connectionCount(), 1);
    QTRY_VERIFY(!peer.lastRequest().isEmpty());
    cancel = true;
    QTRY_VERIFY_WITH_TIMEOUT(done, 5000);
    exchange.join();
    QCOMPARE(error, QStringLiteral("control request canceled"));
}

void TestControlClient::cancelBeforeStart()
{
    ScriptedPeer peer;
    peer.setReply(ScriptedPeer::response(200, "{}"));
    const std::atomic_bool cancel{true};
    QString error;
    const ControlResponse response =
        ControlClient::exchange(peer.socketPath(), "GET", QStringLiteral("/v1/status"),
                                QByteArray(), 2000, &error, &cancel);
    QCOMPARE(response.statusCode, 0);
    QCOMPARE(error, QStringLiteral("control request canceled"));
}

void TestControlClient::connectionErrorText_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("socketError");
    QTest::addColumn<QString>("expected");

    const QString notRunning = QStringLiteral("Tovra daemon is not running.");
    QTest::addRow("refused") << int(QLocalSocket::ConnectionRefusedError) << QStringLiteral("x")
                             << notRunning;
    QTest::addRow("not found") << int(QLocalSocket::ServerNotFoundError) << QString() << notRunning;
    QTest::addRow("access")
        << int(QLocalSocket::SocketAccessError) << QStringLiteral("x")
        << QStringLiteral("Tovra daemon access denied. Add this user to the tovracli group, "
                          "then sign out and back in.");
    QTest::addRow("other, trimmed") << int(QLocalSocket::SocketTimeoutError)
                                    << QStringLiteral("  slow \n") << QStringLiteral("slow");
    QTest::addRow("other, blank") << int(QLocalSocket::UnknownSocketError) << QStringLiteral("  ")
                                  << QStringLiteral("Could not connect to Tovra daemon.");
}

void TestControlClient::connectionErrorText()
{
    QFETCH(int, code);
    QFETCH(QString, socketError);
    QTEST(ControlClient::connectionErrorText(QLocalSocket::LocalSocketError(code), socketError),
          "expected");
}

void TestControlClient::responseErrorText_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("expected");

    QTest::addRow("error wins") << 500 << QByteArray(R"({"message":"m","error":"e"})")
                                << QStringLiteral("e");
    QTest::addRow("empty error, last_error")
        << 500 << QByteArray(R"({"error":"","last_error":"late"})") << QStringLiteral("late");
    QTest::addRow("message before last_error")
        << 400 << QByteArray(R"({"last_error":"l","message":"m"})") << QStringLiteral("m");
    QTest::addRow("candidate not trimmed")
        << 400 << QByteArray(R"({"error":" spaced "})") << QStringLiteral(" spaced ");
    QTest::addRow("number error gives whole JSON")
        << 500 << QByteArray(" {\"error\":5} ") << QStringLiteral("{\"error\":5}");
    QTest::addRow("plain text trimmed")
        << 502 << QByteArray("  bad gateway\n") << QStringLiteral("bad gateway");
    QTest::addRow("empty body") << 500 << QByteArray()
                                << QStringLiteral("control request failed with HTTP 500");
    QTest::addRow("empty body, no status")
        << 0 << QByteArray() << QStringLiteral("control request failed");
}

void TestControlClient::responseErrorText()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    ControlResponse response;
    response.statusCode = status;
    response.body = body;
    QTEST(ControlClient::responseErrorText(response), "expected");
}

void TestControlClient::applyResponseErrorKeepsTransportMessage()
{
    QString error = QStringLiteral("Tovra daemon is not running.");
    ControlClient::applyResponseError(ControlResponse(), &error);
    QCOMPARE(error, QStringLiteral("Tovra daemon is not running."));

    ControlResponse notFound;
    notFound.statusCode = 404;
    error = QStringLiteral("stale");
    ControlClient::applyResponseError(notFound, &error);
    QCOMPARE(error, QStringLiteral("control request failed with HTTP 404"));

    ControlClient::applyResponseError(notFound, nullptr);
}

void TestControlClient::socketPathOverride_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("expected");
    QTest::addRow("unset") << QByteArray() << QStringLiteral("/run/tovracli/control.sock");
    QTest::addRow("blank") << QByteArray("   ") << QStringLiteral("/run/tovracli/control.sock");
    QTest::addRow("set") << QByteArray("/tmp/demo.sock") << QStringLiteral("/tmp/demo.sock");
}

void TestControlClient::socketPathOverride()
{
    QFETCH(QByteArray, value);
    qputenv("TOVRA_CONTROL_SOCKET", value);
    QTEST(ControlClient::socketPathFromEnvironment(), "expected");
    qunsetenv("TOVRA_CONTROL_SOCKET");
}

QTEST_GUILESS_MAIN(TestControlClient)
#include "TestControlClient.moc"
