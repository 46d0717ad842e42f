#include "ControlResponseParser.h"

#include <QTest>

class TestControlResponseParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framing_data()
    {
        QTest::addColumn<QByteArray>("buffer");
        QTest::addColumn<bool>("endOfStream");
        QTest::addColumn<bool>("complete");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");

        const QByteArray head = "HTTP/1.1 200 OK\r\n";
        QTest::addRow("no header end") << head + "Content-Length: 0\r\n"
                                       << true << false << 0 << QByteArray();
        QTest::addRow("length exact") << head + "Content-Length: 5\r\n\r\nhello" << false << true
                                      << 200 << QByteArray("hello");
        QTest::addRow("length short")
            << head + "Content-Length: 5\r\n\r\nhel" << true << false << 0 << QByteArray();
        QTest::addRow("length cuts extra bytes") << head + "Content-Length: 5\r\n\r\nhelloworld"
                                                 << false << true << 200 << QByteArray("hello");
        QTest::addRow("last length wins")
            << head + "Content-Length: 9\r\nContent-Length: 2\r\n\r\nhello" << false << true << 200
            << QByteArray("he");
        QTest::addRow("bad length means none, before end")
            << head + "Content-Length: x\r\n\r\nhello" << false << false << 0 << QByteArray();
        QTest::addRow("bad length means none, at end")
            << head + "Content-Length: x\r\n\r\nhello" << true << true << 200
            << QByteArray("hello");
        QTest::addRow("no length waits for end")
            << head + "\r\nabc" << false << false << 0 << QByteArray();
        QTest::addRow("no length at end")
            << head + "\r\nabc" << true << true << 200 << QByteArray("abc");
        QTest::addRow("204 at end of stream")
            << QByteArray("HTTP/1.1 204 No Content\r\n\r\n") << true << true << 204 << QByteArray();
        QTest::addRow("status not a number")
            << QByteArray("HTTP/1.1 OK 200\r\nContent-Length: 0\r\n\r\n") << true << false << 0
            << QByteArray();
        QTest::addRow("one word status line") << QByteArray("HTTP/1.1\r\nContent-Length: 0\r\n\r\n")
                                              << true << false << 0 << QByteArray();
        QTest::addRow("reason and protocol unchecked")
            << QByteArray("XYZ 503\r\nContent-Length: 1\r\n\r\nz") << false << true << 503
            << QByteArray("z");

        const QByteArray chunked = head + "Transfer-Encoding: Chunked\r\n\r\n";
        QTest::addRow("chunked with extension and trailer")
            << chunked + "5;name=value\r\nhello\r\n0\r\nX-Trailer: t\r\n\r\n"
            << false << true << 200 << QByteArray("hello");
        QTest::addRow("chunked joins chunks") << chunked + "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n"
                                              << false << true << 200 << QByteArray("abcde");
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
        QTest::addRow("chunk incomplete data")
            << chunked + "5\r\nhel" << true << false << 0 << QByteArray();
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

    void headers()
    {
        const QByteArray buffer = "HTTP/1.1 409 Conflict\r\n"
                                  "X-Tovra-Daemon-Version:  2.0.1 \r\n"
                                  "x-tovra-daemon-version: 2.0.2\r\n"
                                  "Content-Length: 2\r\n"
                                  "Transfer-Encoding: identity\r\n"
                                  ":no-name\r\n"
                                  "no colon here\r\n"
                                  "Empty:\r\n"
                                  "\r\n{}";
        ControlResponse response;
        QVERIFY(ControlResponseParser::parse(buffer, false, &response));
        QCOMPARE(response.statusCode, 409);
        QCOMPARE(response.body, QByteArray("{}"));
        // Later duplicates replace earlier ones; content-length is never kept; values are trimmed.
        const QHash<QByteArray, QByteArray> expected{
            {"x-tovra-daemon-version", "2.0.2"}, {"transfer-encoding", "identity"}, {"empty", ""}};
        QCOMPARE(response.headers, expected);
    }
};

QTEST_APPLESS_MAIN(TestControlResponseParser)
#include "TestControlResponseParser.moc"
