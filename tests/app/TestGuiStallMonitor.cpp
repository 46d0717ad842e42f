#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

// The stall monitor as the client runs it: a helper process reads the environment, freezes its
// event loop once for 300 ms, and its standard error is what a user would attach to a report.
class TestGuiStallMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsFreezes_data()
    {
        QTest::addColumn<QString>("value"); // "-" leaves the variable unset
        QTest::addColumn<int>("threshold"); // 0: the monitor stays off and silent
        QTest::addRow("unset") << u"-"_s << 0;
        QTest::addRow("zero") << u"0"_s << 0;
        QTest::addRow("not a number") << u"fast"_s << 0;
        QTest::addRow("padded") << u" 120 "_s << 120;
    }

    void reportsFreezes()
    {
        QFETCH(QString, value);
        QFETCH(int, threshold);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TOVRA_GUI_STALL_MS"_s);
        if (value != u"-")
            environment.insert(u"TOVRA_GUI_STALL_MS"_s, value);
        QProcess helper;
        helper.setProcessEnvironment(environment);
        helper.start(QStringLiteral(APP_TEST_HELPER), {u"stall"_s, u"300"_s});
        QVERIFY(helper.waitForFinished(20000));
        QCOMPARE(helper.exitCode(), 0);
        const QStringList lines =
            QString::fromUtf8(helper.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
        if (threshold == 0) {
            QCOMPARE(lines, QStringList());
            return;
        }
        QVERIFY2(!lines.isEmpty(), "no output");
        QCOMPARE(lines.first(), u"tovra.stall: watching, threshold %1 ms"_s.arg(threshold));
        // The freeze is reported, at least the threshold long, naming what ran. A loaded machine
        // may add a stall of its own, so every report is checked rather than counted.
        static const QRegularExpression report(u"^tovra.stall: (\\d+) ms \\((.+), (\\w+)\\)$"_s);
        const QStringList reports = lines.mid(1);
        QVERIFY2(!reports.isEmpty(), "the freeze was not reported");
        for (const QString &line : reports) {
            const QRegularExpressionMatch match = report.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            QVERIFY2(match.captured(1).toInt() >= threshold, qPrintable(line));
        }
    }
};

QTEST_GUILESS_MAIN(TestGuiStallMonitor)
#include "TestGuiStallMonitor.moc"
