#include "GuiRestartLauncher.h"
#include "GuiRestartScheduler.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>

// Set for the copy of this program that the launcher starts: where it reports what it got.
static const char kReportVariable[] = "TOVRA_TEST_RESTART_REPORT";

class TestGuiRestart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneRestartAtATime_data();
    void oneRestartAtATime();
    void failedLaunchMakesSchedulerReady();
    void launcherStartsFreshCopyWithRestartSwitches();
};

void TestGuiRestart::oneRestartAtATime_data()
{
    QTest::addColumn<bool>("launchResult");
    QTest::addColumn<bool>("pendingAfter");
    QTest::addRow("launch succeeds") << true << true;
    QTest::addRow("launch fails") << false << false;
}

void TestGuiRestart::oneRestartAtATime()
{
    QFETCH(bool, launchResult);
    QFETCH(bool, pendingAfter);

    GuiRestartScheduler scheduler;
    int launches = 0;
    int failures = 0;
    int successes = 0;
    const auto launch = [&] {
        ++launches;
        return launchResult;
    };
    scheduler.schedule(
        50, launch, [&] { ++failures; }, [&] { ++successes; });
    QVERIFY(scheduler.isPending());
    // A second request within the delay starts no second process.
    scheduler.schedule(
        0, launch, [&] { ++failures; }, [&] { ++successes; });
    QTRY_COMPARE(launches, 1);
    QCOMPARE(successes, launchResult ? 1 : 0);
    QCOMPARE(failures, launchResult ? 0 : 1);
    QCOMPARE(scheduler.isPending(), pendingAfter);
}

void TestGuiRestart::failedLaunchMakesSchedulerReady()
{
    GuiRestartScheduler scheduler;
    int launches = 0;
    scheduler.schedule(0, [&] { return ++launches > 1; });
    QTRY_VERIFY(!scheduler.isPending());
    scheduler.schedule(0, [&] { return ++launches > 1; });
    QTRY_COMPARE(launches, 2);
    QVERIFY(scheduler.isPending());
}

void TestGuiRestart::launcherStartsFreshCopyWithRestartSwitches()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString report = dir.filePath(QStringLiteral("report"));
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
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    QCOMPARE(lines, (QStringList{QStringLiteral("--tovra-restart-show-window"),
                                 QStringLiteral("--tovra-language-restart"),
                                 QCoreApplication::applicationDirPath()}));
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString report = qEnvironmentVariable(kReportVariable);
    if (!report.isEmpty() && app.arguments().contains(QStringLiteral("--tovra-language-restart"))) {
        // Started by the launcher: report the arguments and the working directory, then leave.
        QSaveFile file(report);
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        const QStringList lines = app.arguments().mid(1) << QDir::currentPath();
        file.write(lines.join(u'\n').toUtf8());
        return file.commit() ? 0 : 1;
    }
    TestGuiRestart test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestGuiRestart.moc"
