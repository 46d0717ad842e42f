#include "ControlClient.h"
#include "ScriptedPeer.h"

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
    void requestBytes_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("expected");

        const QByteArray common =
            "Host: tovra\r\nX-Tovra-Control-Version: 1\r\nConnection: close\r\n";
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
        QTest::addRow("query and UTF-8 sent as they stand")
            << QByteArray("GET") << QStringLiteral("/v1/split/rules?kind=a b\u00e9") << QByteArray()
            << "GET /v1/split/rules?kind=a b\xc3\xa9 HTTP/1.1\r\n" + common + "\r\n";
    }

    void requestBytes()
    {
        QFETCH(QByteArray, method);
        QFETCH(QString, path);
        QFETCH(QByteArray, body);
        ScriptedPeer peer;
        peer.setReply(ScriptedPeer::response(200, "{}"));
        QString error;
        const ControlResponse response =
            ControlClient::exchange(peer.socketPath(), method, path, body, 2000, &error);
        QCOMPARE(error, QString());
        QCOMPARE(response.statusCode, 200);
        QTEST(peer.lastRequest(), "expected");
    }

    void overSocket_data()
    {
        QTest::addColumn<Reply>("reply");
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<int>("status"); // 0: no answer, the error says why
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("error");

        const QString remoteClosed = QStringLiteral("QLocalSocket: Remote closed");
        const QString timedOut = QStringLiteral("control request timed out");
        QTest::addRow("length split across writes")
            << Reply{{Step{"HTTP/1.1 200 OK\r\nContent-", 0}, Step{"Length: 5\r\n\r\nhe", 30},
                      Step{"llo", 30}},
                     Ending::KeepOpen}
            << 2000 << 200 << QByteArray("hello") << QString();
        QTest::addRow("chunked split across writes")
            << Reply{{Step{"HTTP/1.1 200 OK\r\ntransfer-encoding: CHUNKED\r\n\r\n5;ext=1\r\nhel",
                           0},
                      Step{"lo\r\n0\r\nTrailer: x\r\n", 40}, Step{"\r\n", 40}},
                     Ending::KeepOpen}
            << 2000 << 200 << QByteArray("hello") << QString();
        QTest::addRow("no deadline waits for the close")
            << Reply{{Step{"HTTP/1.1 204 No Content\r\n\r\n", 0}, Step{QByteArray(), 400}},
                     Ending::Close}
            << 0 << 204 << QByteArray() << QString();
        QTest::addRow("body framed by the close")
            << Reply{{Step{"HTTP/1.1 500 X\r\n\r\n{\"error\":", 0}, Step{"\"boom\"}", 50}},
                     Ending::Close}
            << 2000 << 500 << QByteArray("{\"error\":\"boom\"}") << QString();
        QTest::addRow("204 kept open times out")
            << Reply{{Step{"HTTP/1.1 204 No Content\r\n\r\n", 0}}, Ending::KeepOpen} << 300 << 0
            << QByteArray() << timedOut;
        QTest::addRow("silent peer times out")
            << Reply{{}, Ending::KeepOpen} << 300 << 0 << QByteArray() << timedOut;
        QTest::addRow("closes in the middle of a body")
            << Reply{{Step{"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhel", 0}}, Ending::Close}
            << 2000 << 0 << QByteArray() << remoteClosed;
        QTest::addRow("garbage then close")
            << Reply{{Step{"\x01\x02garbage\r\n\r\n", 0}}, Ending::Close} << 2000 << 0
            << QByteArray() << remoteClosed;
    }

    void overSocket()
    {
        QFETCH(Reply, reply);
        QFETCH(int, timeoutMs);
        ScriptedPeer peer;
        peer.setReply(reply);
        QString error;
        const ControlResponse response =
            ControlClient::exchange(peer.socketPath(), "GET", QStringLiteral("/v1/status"),
                                    QByteArray(), timeoutMs, &error);
        QTEST(error, "error");
        QTEST(response.statusCode, "status");
        QTEST(response.body, "body");
        if (response.statusCode == 0)
            QVERIFY(response.headers.isEmpty());
    }

    void noDaemonListening()
    {
        QTemporaryDir dir;
        QString error;
        const ControlResponse response =
            ControlClient::exchange(dir.filePath(QStringLiteral("absent.sock")), "GET",
                                    QStringLiteral("/v1/status"), QByteArray(), 2000, &error);
        QCOMPARE(response.statusCode, 0);
        QCOMPARE(error, QStringLiteral("Tovra daemon is not running."));
    }

    void cancel_data()
    {
        QTest::addColumn<bool>("beforeStart");
        QTest::addRow("before the exchange starts") << true;
        // No read deadline at all: only the cancel flag can end this exchange.
        QTest::addRow("while waiting for the answer") << false;
    }

    void cancel()
    {
        QFETCH(bool, beforeStart);
        ScriptedPeer peer;
        peer.setReply(Reply{{}, Ending::KeepOpen});
        std::atomic_bool cancel{beforeStart};
        std::atomic_bool done{false};
        QString error;
        std::thread exchange([&] {
            ControlClient::exchange(peer.socketPath(), "GET", QStringLiteral("/v1/status"),
                                    QByteArray(), 0, &error, &cancel);
            done = true;
        });
        if (!beforeStart) {
            QTRY_VERIFY(!peer.lastRequest().isEmpty());
            cancel = true;
        }

        QTRY_VERIFY_WITH_TIMEOUT(done, 5000);
        exchange.join();
        QCOMPARE(error, QStringLiteral("control request canceled"));
    }

    void connectionErrorText_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("socketError");
        QTest::addColumn<QString>("expected");
        QTest::addRow("refused") << int(QLocalSocket::ConnectionRefusedError) << QStringLiteral("x")
                                 << QStringLiteral("Tovra daemon is not running.");
        QTest::addRow("access")
            << int(QLocalSocket::SocketAccessError) << QStringLiteral("x")
            << QStringLiteral("Tovra daemon access denied. Add this user to the tovracli group, "
                              "then sign out and back in.");
        QTest::addRow("other, trimmed") << int(QLocalSocket::SocketTimeoutError)
                                        << QStringLiteral("  slow \n") << QStringLiteral("slow");
        QTest::addRow("other, blank")
            << int(QLocalSocket::UnknownSocketError) << QStringLiteral("  ")
            << QStringLiteral("Could not connect to Tovra daemon.");
    }

    void connectionErrorText()
    {
        QFETCH(int, code);
        QFETCH(QString, socketError);
        QTEST(ControlClient::connectionErrorText(QLocalSocket::LocalSocketError(code), socketError),
              "expected");
    }

    void responseErrorText_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("expected");
        QTest::addRow("error wins")
            << 500 << QByteArray(R"({"message":"m","error":"e"})") << QStringLiteral("e");
        QTest::addRow("empty error, last_error")
            << 500 << QByteArray(R"({"error":"","last_error":"late"})") << QStringLiteral("late");
        QTest::addRow("message before last_error")
            << 400 << QByteArray(R"({"last_error":"l","message":"m"})") << QStringLiteral("m");
        QTest::addRow("number error gives whole JSON")
            << 500 << QByteArray(" {\"error\":5} ") << QStringLiteral("{\"error\":5}");
        QTest::addRow("plain text trimmed")
            << 502 << QByteArray("  bad gateway\n") << QStringLiteral("bad gateway");
        QTest::addRow("empty body")
            << 500 << QByteArray() << QStringLiteral("control request failed with HTTP 500");
    }

    void responseErrorText()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        ControlResponse response;
        response.statusCode = status;
        response.body = body;
        QTEST(ControlClient::responseErrorText(response), "expected");
    }

    void socketPathOverride_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("expected");
        QTest::addRow("blank") << QByteArray("   ") << QStringLiteral("/run/tovracli/control.sock");
        QTest::addRow("set") << QByteArray("/tmp/demo.sock") << QStringLiteral("/tmp/demo.sock");
    }

    void socketPathOverride()
    {
        QFETCH(QByteArray, value);
        qputenv("TOVRA_CONTROL_SOCKET", value);
        QTEST(ControlClient::socketPathFromEnvironment(), "expected");
        qunsetenv("TOVRA_CONTROL_SOCKET");
    }
};

QTEST_GUILESS_MAIN(TestControlClient)
#include "TestControlClient.moc"
