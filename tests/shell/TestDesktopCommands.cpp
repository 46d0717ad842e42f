#include "AppState.h"
#include "ConnectionFlow.h"
#include "ControlEndpoints.h"
#include "DemoDaemon.h"
#include "DesktopCommandFlow.h"
#include "GuiSingleInstance.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "TovraTrayApp.h"

#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QTest>

#include <signal.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace {

// The process at the other end of the single-instance socket: the client a command started.
pid_t clientPid(const QString &serverPath)
{
    QLocalSocket socket;
    socket.connectToServer(serverPath);
    if (!socket.waitForConnected(2000))
        return 0;
    ucred credentials{};
    socklen_t size = sizeof(credentials);
    getsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &credentials, &size);
    return credentials.pid;
}

// One session: the demo daemon, private XDG directories, and the client when asked for.
struct Session
{
    TempXdgDirs dirs;
    DemoDaemon daemon;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString serverPath;

    bool start(const QString &account)
    {
        const QString runtime = dirs.filePath(u"runtime"_s);
        if (!QDir().mkpath(runtime) ||
            !QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                QFileDevice::ExeOwner))
            return false;
        if (!daemon.start({u"--connect-ms"_s, u"300"_s}))
            return false;
        if (!account.isEmpty())
            ControlEndpoints::login(daemon.socketPath(), account + u"@tovra.invalid"_s, u"demo"_s,
                                    false, 3000);
        environment.insert(u"XDG_RUNTIME_DIR"_s, runtime);
        environment.insert(u"TOVRA_CONTROL_SOCKET"_s, daemon.socketPath());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        serverPath = QDir(runtime).filePath(GuiSingleInstance::defaultServerName());
        return true;
    }
    // Runs tovra with the arguments; its exit code and standard error.
    int run(const QStringList &arguments, QByteArray *errorOut)
    {
        QProcess command;
        command.setProcessEnvironment(environment);
        command.start(QStringLiteral(TOVRA_CLIENT), arguments);
        if (!command.waitForFinished(60000))
            return -1;
        *errorOut = command.readAllStandardError();
        return command.exitStatus() == QProcess::NormalExit ? command.exitCode() : -1;
    }
    ~Session()
    {
        if (const pid_t pid = serverPath.isEmpty() ? 0 : clientPid(serverPath); pid > 0)
            ::kill(pid, SIGTERM);
    }
};

} // namespace

// tovra --connect/--disconnect/--toggle-connection as a user runs them: real processes against
// the demo daemon, with and without a client running.
class TestDesktopCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLine_data()
    {
        QTest::addColumn<QString>("account"); // "demo", "free", or empty: signed out
        QTest::addColumn<bool>("clientRunning");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("error");  // the one line on stderr
        QTest::addColumn<QString>("target"); // connected_target afterwards; "-": tunnel down
        QTest::addRow("none running: a country code")
            << "demo" << false << QStringList{u"--connect"_s, u"de"_s} << 0 << ""
            << "country:de";
        QTest::addRow("a city in two words")
            << "demo" << true << QStringList{u"--connect"_s, u"New"_s, u"York"_s} << 0 << ""
            << "city:us:new-york";
        QTest::addRow("none running: unknown location")
            << "demo" << false << QStringList{u"--connect"_s, u"atlantis"_s} << 3
            << "tovra: no location matches \u201catlantis\u201d"
            << "-";
        QTest::addRow("not in the plan")
            << "free" << true << QStringList{u"--connect"_s, u"New York"_s} << 6
            << "tovra: your plan does not include \u201cNew York\u201d"
            << "-";
        QTest::addRow("signed out") << "" << true << QStringList{u"--toggle-connection"_s} << 5
                                    << "tovra: sign in to Tovra before connecting"
                                    << "-";
        QTest::addRow("two actions")
            << "demo" << false << QStringList{u"--connect"_s, u"--disconnect"_s} << 2
            << "tovra: give only one of --connect, --disconnect"
            << "-";
    }

    void commandLine()
    {
        QFETCH(QString, account);
        QFETCH(bool, clientRunning);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, error);
        QFETCH(QString, target);
        Session session;
        QVERIFY2(session.start(account), qPrintable(session.daemon.errorString()));
        QProcess client;
        if (clientRunning) {
            client.setProcessEnvironment(session.environment);
            client.start(QStringLiteral(TOVRA_CLIENT));
            QTRY_VERIFY_WITH_TIMEOUT(clientPid(session.serverPath) > 0, 15000);
        }
        QByteArray stderrText;
        QCOMPARE(session.run(arguments, &stderrText), exitCode);
        QCOMPARE(QString::fromUtf8(stderrText).trimmed(), error);
        QString statusError;
        const RuntimeInfo status =
            ControlEndpoints::fetchStatus(session.daemon.socketPath(), 2000, &statusError);
        QVERIFY2(statusError.isEmpty(), qPrintable(statusError));
        QCOMPARE(status.tunnelState == u"disconnected"_s ? u"-"_s : status.connectedTarget, target);
        // A second action reaches the client the first one started, or the running one.
        if (exitCode == 0 && target != u"-"_s) {
            QCOMPARE(session.run({u"--toggle-connection"_s}, &stderrText), 0);
            QTRY_COMPARE(ControlEndpoints::fetchStatus(session.daemon.socketPath(), 2000, nullptr)
                             .tunnelState,
                         u"disconnected"_s);
        }
        client.terminate();
        client.waitForFinished();
    }

    void busyShellRefusesTheCommand()
    {
        // A connect the daemon never answers keeps the client busy.
        TempXdgDirs dirs;
        DemoDaemon daemon;
        QVERIFY2(daemon.start({u"--hang"_s, u"/v1/connect"_s}), qPrintable(daemon.errorString()));
        ControlEndpoints::login(daemon.socketPath(), u"demo@tovra.invalid"_s, u"demo"_s, false,
                                3000);
        TovraAppShell shell(nullptr, daemon.socketPath());
        shell.setSystemTrayAvailable(false);
        shell.start();
        QTRY_VERIFY(shell.compatibilityState() == TovraAppShell::Compatible &&
                    shell.state()->runtime().valid && !shell.tray()->isBusy());
        QVERIFY(shell.connectionFlow()->connectNode(u"1001"_s, QString()));
        DesktopRequest request;
        request.command = DesktopRequest::Command::Connect;
        QList<DesktopAnswer> answers;
        shell.runDesktopCommand(request, [&](const DesktopAnswer &answer) { answers << answer; });
        QTRY_COMPARE(answers.size(), 1);
        QCOMPARE(answers.first().exitCode(), 4);
        QCOMPARE(shell.desktopCommandFlow()->pendingCount(), 0);
    }
};

QTEST_MAIN(TestDesktopCommands)
#include "TestDesktopCommands.moc"
