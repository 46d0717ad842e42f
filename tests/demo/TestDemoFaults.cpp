#include "ControlEndpoints.h"
#include "DemoDaemon.h"

#include <QTest>

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
    if (operation == QLatin1String("status"))
        return ControlEndpoints::fetchStatus(socket, timeoutMs, error).valid;
    if (operation == QLatin1String("version"))
        return ControlEndpoints::fetchVersion(socket, timeoutMs, error).valid;
    if (operation == QLatin1String("nodes"))
        return ControlEndpoints::fetchNodes(socket, false, timeoutMs, error).valid;
    if (operation == QLatin1String("groups"))
        return ControlEndpoints::fetchNodeGroups(socket, timeoutMs, error).valid;
    if (operation == QLatin1String("user"))
        return ControlEndpoints::fetchUser(socket, timeoutMs, error).valid;
    if (operation == QLatin1String("language"))
        return ControlEndpoints::fetchLanguageConfig(socket, timeoutMs, error).valid;
    if (operation == QLatin1String("killSwitchMode"))
        return ControlEndpoints::setKillSwitchMode(socket, u"always"_s, timeoutMs, error).valid;
    if (operation == QLatin1String("login"))
        return ControlEndpoints::login(socket, u"demo@tovra.invalid"_s, u"demo"_s, false, timeoutMs,
                                       error)
            .valid;
    qFatal("unknown operation");
}

} // namespace

// Each fault the daemon injects reaches the client as the error text the client promises.
class TestDemoFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultBecomesErrorText_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<QString>("error");
        QTest::addRow("hang past the timeout")
            << args({"--hang", "/v1/status"}) << "status" << 500 << "control request timed out";
        QTest::addRow("latency past the timeout")
            << args({"--latency", "1500"}) << "status" << 300 << "control request timed out";
        QTest::addRow("failure with default body") << args({"--fail", "/v1/nodes=503"}) << "nodes"
                                                   << 5000 << "demo failure injected for /v1/nodes";
        QTest::addRow("failure worded by last_error")
            << args({"--fail",
                     R"(/v1/nodes/groups=500:{"error":"","last_error":"catalogue offline"})"})
            << "groups" << 5000 << "catalogue offline";
        QTest::addRow("failure on every path") << args({"--fail", "*=503"}) << "language" << 5000
                                               << "demo failure injected for /v1/config/language";
        QTest::addRow("old daemon without kill switch modes")
            << args({"--no-kill-switch-mode"}) << "killSwitchMode" << 5000
            << "Tovra daemon is too old for Kill Switch modes. Update Tovra.";
        QTest::addRow("incompatible daemon")
            << args({"--incompatible"}) << "status" << 5000
            << "control version 1 is not supported; this daemon speaks control version 2";
    }

    void faultBecomesErrorText()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, operation);
        QFETCH(int, timeoutMs);
        QFETCH(QString, error);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(options), qPrintable(daemon.errorString()));
        QString message;
        QVERIFY(!run(operation, daemon.socketPath(), timeoutMs, &message));
        QCOMPARE(message, error);
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

    void chunkedRecordsParse_data()
    {
        QTest::addColumn<QString>("operation");
        // Small and large bodies, and the answer to a request that has one of its own.
        for (const char *operation : {"status", "nodes", "groups", "login"})
            QTest::addRow("%s", operation) << QString::fromLatin1(operation);
    }

    void chunkedRecordsParse()
    {
        QFETCH(QString, operation);
        if (!m_chunked.running())
            QVERIFY2(m_chunked.start({u"--chunked"_s}), qPrintable(m_chunked.errorString()));
        QString error;
        QVERIFY2(run(operation, m_chunked.socketPath(), 5000, &error), qPrintable(error));
    }

    void brokenAnswerNeverYieldsRecord_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("operation");
        QTest::addRow("cut short, content length")
            << args({"--truncate", "/v1/status"}) << "status";
        QTest::addRow("cut short, chunked")
            << args({"--chunked", "--truncate", "/v1/nodes"}) << "nodes";
        QTest::addRow("cut short, small body") << args({"--truncate", "/v1/version"}) << "version";
        QTest::addRow("garbage") << args({"--garbage", "/v1/status"}) << "status";
    }

    void brokenAnswerNeverYieldsRecord()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, operation);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(options), qPrintable(daemon.errorString()));
        QString error;
        QVERIFY(!run(operation, daemon.socketPath(), 5000, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

    void faultOnOnePathSparesTheRest()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start(args({"--hang", "/v1/nodes", "--fail", "/v1/user=500"})),
                 qPrintable(daemon.errorString()));
        QString error;
        QVERIFY(!run(u"nodes"_s, daemon.socketPath(), 300, &error));
        QCOMPARE(error, u"control request timed out"_s);
        QVERIFY(!run(u"user"_s, daemon.socketPath(), 5000, &error));
        QCOMPARE(error, u"demo failure injected for /v1/user"_s);
        QVERIFY(run(u"status"_s, daemon.socketPath(), 5000, &error));
        QVERIFY(run(u"groups"_s, daemon.socketPath(), 5000, &error));
        QCOMPARE(error, QString());
        QVERIFY2(daemon.stop(), qPrintable(daemon.errorString()));
    }

private:
    DemoDaemon m_chunked;
};

QTEST_GUILESS_MAIN(TestDemoFaults)
#include "TestDemoFaults.moc"
