#include "ControlClient.h"
#include "ControlResponseParser.h"
#include "ScriptedPeer.h"

#include <QTest>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

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
        QTest::addRow("GET without body") << QByteArray("GET") << u"/v1/status"_s << QByteArray()
                                          << "GET /v1/status HTTP/1.1\r\n" + common + "\r\n";
        QTest::addRow("POST with body")
            << QByteArray("POST") << u"/v1/connect"_s << QByteArray("{}")
            << "POST /v1/connect HTTP/1.1\r\n" + common +
                   "Content-Type: application/json\r\nContent-Length: 2\r\n\r\n{}";
        QTest::addRow("POST without body has no content headers")
            << QByteArray("POST") << u"/v1/x"_s << QByteArray()
            << "POST /v1/x HTTP/1.1\r\n" + common + "\r\n";
        QTest::addRow("query and UTF-8 sent as they stand")
            << QByteArray("GET") << u"/v1/split/rules?kind=a b\u00e9"_s << QByteArray()
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

        const QString remoteClosed = u"QLocalSocket: Remote closed"_s;
        const QString timedOut = u"control request timed out"_s;
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
        QTest::addRow("closes in the middle of a body")
            << Reply{{Step{"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhel", 0}}, Ending::Close}
            << 2000 << 0 << QByteArray() << remoteClosed;
    }

    void overSocket()
    {
        QFETCH(Reply, reply);
        QFETCH(int, timeoutMs);
        ScriptedPeer peer;
        peer.setReply(reply);
        QString error;
        const ControlResponse response = ControlClient::exchange(
            peer.socketPath(), "GET", u"/v1/status"_s, QByteArray(), timeoutMs, &error);
        QTEST(error, "error");
        QTEST(response.statusCode, "status");
        QTEST(response.body, "body");
        if (response.statusCode == 0)
            QVERIFY(response.headers.isEmpty());
    }

    // A cancel while the answer is awaited: TestControlWorker::cancelConnectWhileRunning.
    void cancelBeforeTheExchangeStarts()
    {
        ScriptedPeer peer;
        peer.setReply(Reply{{}, Ending::KeepOpen});
        std::atomic_bool cancel{true};
        std::atomic_bool done{false};
        QString error;
        std::thread exchange([&] {
            ControlClient::exchange(peer.socketPath(), "GET", u"/v1/status"_s, QByteArray(), 0,
                                    &error, &cancel);
            done = true;
        });
        QTRY_VERIFY_WITH_TIMEOUT(done, 5000);
        exchange.join();
        QCOMPARE(error, u"control request canceled"_s);
    }

    void connectionErrorText_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("socketError");
        QTest::addColumn<QString>("expected");
        QTest::addRow("refused") << int(QLocalSocket::ConnectionRefusedError) << u"x"_s
                                 << u"Tovra daemon is not running."_s;
        QTest::addRow("access")
            << int(QLocalSocket::SocketAccessError) << u"x"_s
            << QStringLiteral("Tovra daemon access denied. Add this user to the tovracli group, "
                              "then sign out and back in.");
        QTest::addRow("other, trimmed")
            << int(QLocalSocket::SocketTimeoutError) << u"  slow \n"_s << u"slow"_s;
        QTest::addRow("other, blank") << int(QLocalSocket::UnknownSocketError) << u"  "_s
                                      << u"Could not connect to Tovra daemon."_s;
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
            << 500 << QByteArray(R"({"message":"m","error":"e"})") << u"e"_s;
        QTest::addRow("empty error, last_error")
            << 500 << QByteArray(R"({"error":"","last_error":"late"})") << u"late"_s;
        QTest::addRow("message before last_error")
            << 400 << QByteArray(R"({"last_error":"l","message":"m"})") << u"m"_s;
        QTest::addRow("number error gives whole JSON")
            << 500 << QByteArray(" {\"error\":5} ") << u"{\"error\":5}"_s;
        QTest::addRow("plain text trimmed")
            << 502 << QByteArray("  bad gateway\n") << u"bad gateway"_s;
        QTest::addRow("empty body")
            << 500 << QByteArray() << u"control request failed with HTTP 500"_s;
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

    void framing_data()
    {
        QTest::addColumn<QByteArray>("buffer");
        QTest::addColumn<bool>("endOfStream");
        QTest::addColumn<bool>("complete");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");

        const QByteArray head = "HTTP/1.1 200 OK\r\n";
        QTest::addRow("length cuts extra bytes") << head + "Content-Length: 5\r\n\r\nhelloworld"
                                                 << false << true << 200 << QByteArray("hello");
        QTest::addRow("last length wins")
            << head + "Content-Length: 9\r\nContent-Length: 2\r\n\r\nhello" << false << true << 200
            << QByteArray("he");
        QTest::addRow("bad length means none, at end")
            << head + "Content-Length: x\r\n\r\nhello" << true << true << 200
            << QByteArray("hello");
        QTest::addRow("no length waits for end")
            << head + "\r\nabc" << false << false << 0 << QByteArray();
        QTest::addRow("status not a number")
            << QByteArray("HTTP/1.1 OK 200\r\nContent-Length: 0\r\n\r\n") << true << false << 0
            << QByteArray();

        const QByteArray chunked = head + "Transfer-Encoding: Chunked\r\n\r\n";
        QTest::addRow("chunked hex size") << chunked + "a\r\n0123456789\r\n0\r\n\r\n"
                                          << false << true << 200 << QByteArray("0123456789");
        QTest::addRow("chunked beats length")
            << head + "Content-Length: 1\r\nTransfer-Encoding: chunked\r\n\r\n"
                      "2\r\nok\r\n0\r\n\r\n"
            << false << true << 200 << QByteArray("ok");
        QTest::addRow("chunked missing final empty line") << chunked + "2\r\nok\r\n0\r\n"
                                                          << true << false << 0 << QByteArray();
        QTest::addRow("chunk data not followed by CRLF") << chunked + "2\r\nokXY0\r\n\r\n"
                                                         << true << false << 0 << QByteArray();
        QTest::addRow("chunk size not hex") << chunked + "zz\r\nok\r\n0\r\n\r\n"
                                            << true << false << 0 << QByteArray();
        QTest::addRow("chunk size negative") << chunked + "-2\r\nok\r\n0\r\n\r\n"
                                             << true << false << 0 << QByteArray();
        QTest::addRow("chunk size too large") << chunked + "80000000\r\n"
                                              << true << false << 0 << QByteArray();
    }

    void framing()
    {
        QFETCH(QByteArray, buffer);
        QFETCH(bool, endOfStream);
        QFETCH(bool, complete);

        ControlResponse response;
        QCOMPARE(ControlResponseParser::parse(buffer, endOfStream, &response), complete);
        if (complete) {
            QTEST(response.statusCode, "status");
            QTEST(response.body, "body");
        }
    }

    // Set, the variable wins (tovra-ctl's tests run that way); blank, it is ignored.
    void blankSocketOverrideIsIgnored()
    {
        qputenv("TOVRA_CONTROL_SOCKET", "   ");
        QCOMPARE(ControlClient::socketPathFromEnvironment(), u"/run/tovracli/control.sock"_s);
        qunsetenv("TOVRA_CONTROL_SOCKET");
    }
};

QTEST_GUILESS_MAIN(TestControlClient)
#include "TestControlClient.moc"
