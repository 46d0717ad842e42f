#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Runs the helper with variable set to value; returns its standard error, which is what a user
// would attach to a report.
QByteArray helperErrors(const QString &variable, const QString &value, const QStringList &args)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable, value);
    QProcess helper;
    helper.setProcessEnvironment(environment);
    helper.start(QStringLiteral(APP_TEST_HELPER), args);
    if (!helper.waitForFinished(20000) || helper.exitCode() != 0 ||
        !helper.readAllStandardOutput().isEmpty())
        return "helper failed";
    return helper.readAllStandardError();
}

} // namespace

// The diagnostics a user switches on from the environment: the memory lines and the stall
// monitor, whose helper freezes its event loop once for 300 ms.
class TestGuiDiagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memoryLog_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("output");
        QTest::addRow("not a number") << u"yes"_s << QByteArray();
        QTest::addRow("padded") << u" 2 "_s << QByteArray("tovra.mem: window 12 MiB\n");
    }

    void memoryLog()
    {
        QFETCH(QString, value);
        QTEST(helperErrors(u"TOVRA_GUI_MEM_LOG"_s, value, {u"memlog"_s, u"window 12 MiB"_s}),
              "output");
    }

    void stallReports_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("threshold"); // 0: the monitor stays off and silent
        QTest::addRow("not a number") << u"fast"_s << 0;
        QTest::addRow("padded") << u" 120 "_s << 120;
    }

    void stallReports()
    {
        QFETCH(QString, value);
        QFETCH(int, threshold);
        const QStringList lines =
            QString::fromUtf8(helperErrors(u"TOVRA_GUI_STALL_MS"_s, value, {u"stall"_s, u"300"_s}))
                .split(u'\n', Qt::SkipEmptyParts);
        if (threshold == 0) {
            QCOMPARE(lines, QStringList());
            return;
        }
        QVERIFY2(lines.size() > 1, qPrintable(lines.join(u'\n')));
        QCOMPARE(lines.first(), u"tovra.stall: watching, threshold %1 ms"_s.arg(threshold));
        // The freeze is reported, at least the threshold long, naming what ran. A loaded machine
        // may add a stall of its own, so every report is checked rather than counted.
        static const QRegularExpression report(u"^tovra.stall: (\\d+) ms \\((.+), (\\w+)\\)$"_s);
        for (const QString &line : lines.mid(1)) {
            const QRegularExpressionMatch match = report.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            QVERIFY2(match.captured(1).toInt() >= threshold, qPrintable(line));
        }
    }
};

QTEST_GUILESS_MAIN(TestGuiDiagnostics)
#include "TestGuiDiagnostics.moc"
