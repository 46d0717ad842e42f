#include "GuiRestartLauncher.h"
#include "GuiRestartScheduler.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Set for the copy of this program that the launcher starts: where it reports what it got.
static const char kReportVariable[] = "TOVRA_TEST_RESTART_REPORT";

class TestGuiRestart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneRestartAtATime_data()
    {
        QTest::addColumn<bool>("launchResult");
        QTest::addRow("launch succeeds") << true;
        QTest::addRow("launch fails") << false;
    }

    void oneRestartAtATime()
    {
        QFETCH(bool, launchResult);
        GuiRestartScheduler scheduler;
        int launches = 0;
        int failures = 0;
        int successes = 0;
        const auto schedule = [&](int delayMs) {
            scheduler.schedule(
                delayMs, [&] { return ++launches > 1 || launchResult; }, [&] { ++failures; },
                [&] { ++successes; });
        };
        schedule(50);
        QVERIFY(scheduler.isPending());
        schedule(0); // a second request within the delay starts no second process
        QTRY_COMPARE(launches, 1);
        QCOMPARE(successes, launchResult ? 1 : 0);
        QCOMPARE(failures, launchResult ? 0 : 1);
        QCOMPARE(scheduler.isPending(), launchResult);
        if (!launchResult) { // a failed launch leaves the scheduler ready for the next request
            schedule(0);
            QTRY_COMPARE(successes, 1);
            QCOMPARE(launches, 2);
        }
    }

    void launcherStartsFreshCopyWithRestartSwitches()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString report = dir.filePath(u"report"_s);
        qputenv(kReportVariable, report.toLocal8Bit());
        const QString oldCwd = QDir::currentPath();
        QDir::setCurrent(dir.path()); // the new process must not inherit this
        const bool launched = launchGuiRestart();
        QDir::setCurrent(oldCwd);
        qunsetenv(kReportVariable);
        QVERIFY(launched);

        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(report), 10000);
        QFile file(report);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()).split(u'\n'),
                 (QStringList{u"--tovra-restart-show-window"_s, u"--tovra-language-restart"_s,
                              QCoreApplication::applicationDirPath()}));
    }
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString report = qEnvironmentVariable(kReportVariable);
    if (!report.isEmpty() && app.arguments().contains(u"--tovra-language-restart"_s)) {
        // Started by the launcher: report the arguments and the working directory, then leave.
        QSaveFile file(report);
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        file.write((app.arguments().mid(1) << QDir::currentPath()).join(u'\n').toUtf8());
        return file.commit() ? 0 : 1;
    }
    TestGuiRestart test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestGuiRestart.moc"
