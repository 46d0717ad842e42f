#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

using namespace Qt::StringLiterals;

class TestGuiMemLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchedByEnvironment_data()
    {
        QTest::addColumn<QString>("value"); // "-" leaves the variable unset
        QTest::addColumn<QByteArray>("output");
        const QByteArray line("tovra.mem: window 12 MiB\n");
        QTest::addRow("unset") << u"-"_s << QByteArray();
        QTest::addRow("zero") << u"0"_s << QByteArray();
        QTest::addRow("not a number") << u"yes"_s << QByteArray();
        QTest::addRow("padded") << u" 2 "_s << line;
    }

    void switchedByEnvironment()
    {
        QFETCH(QString, value);
        QFETCH(QByteArray, output);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TOVRA_GUI_MEM_LOG"_s);
        if (value != u"-")
            environment.insert(u"TOVRA_GUI_MEM_LOG"_s, value);
        QProcess helper;
        helper.setProcessEnvironment(environment);
        helper.start(QStringLiteral(APP_TEST_HELPER), {u"memlog"_s, u"window 12 MiB"_s});
        QVERIFY(helper.waitForFinished(10000));
        QCOMPARE(helper.exitCode(), 0);
        QCOMPARE(helper.readAllStandardError(), output);
        QCOMPARE(helper.readAllStandardOutput(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestGuiMemLog)
#include "TestGuiMemLog.moc"
