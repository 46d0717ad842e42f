#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

class TestGuiMemLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchedByEnvironment_data();
    void switchedByEnvironment();
};

void TestGuiMemLog::switchedByEnvironment_data()
{
    QTest::addColumn<QString>("value"); // "-" leaves the variable unset
    QTest::addColumn<QByteArray>("output");
    QTest::addRow("unset") << "-" << QByteArray();
    QTest::addRow("zero") << "0" << QByteArray();
    QTest::addRow("negative") << "-3" << QByteArray();
    QTest::addRow("not a number") << "yes" << QByteArray();
    QTest::addRow("one") << "1" << QByteArray("tovra.mem: window 12 MiB\n");
    QTest::addRow("padded") << " 2 " << QByteArray("tovra.mem: window 12 MiB\n");
}

void TestGuiMemLog::switchedByEnvironment()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, output);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("TOVRA_GUI_MEM_LOG"));
    if (value != u"-")
        environment.insert(QStringLiteral("TOVRA_GUI_MEM_LOG"), value);
    QProcess helper;
    helper.setProcessEnvironment(environment);
    helper.start(QStringLiteral(APP_TEST_HELPER),
                 {QStringLiteral("memlog"), QStringLiteral("window 12 MiB")});
    QVERIFY(helper.waitForFinished(10000));
    QCOMPARE(helper.exitCode(), 0);
    QCOMPARE(helper.readAllStandardError(), output);
    QCOMPARE(helper.readAllStandardOutput(), QByteArray());
}

QTEST_GUILESS_MAIN(TestGuiMemLog)
#include "TestGuiMemLog.moc"
