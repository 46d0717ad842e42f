#include "GuiSingleInstance.h"

#include "DesktopCommandSender.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString uniqueName()
{
    return u"tovra-test-"_s + QUuid::createUuid().toString(QUuid::Id128);
}

// A helper process started in one of its modes on a server name.
std::unique_ptr<QProcess> startHelper(const QString &mode, const QString &name)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(APP_TEST_HELPER), {mode, name});
    return process;
}

bool waitForReady(QProcess &process)
{
    return process.waitForStarted() && process.waitForReadyRead(10000) &&
           process.readLine().trimmed() == "ready";
}

// A second launch on the name; returns its exit code, which is its SingleInstanceResult.
int launchSecond(const QString &name, const QString &token = QString())
{
    auto second = std::make_unique<QProcess>();
    second->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"XDG_ACTIVATION_TOKEN"_s);
    environment.remove(u"DESKTOP_STARTUP_ID"_s);
    if (!token.isEmpty()) {
        environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
        environment.insert(u"DESKTOP_STARTUP_ID"_s, token + u"_TIME1"_s);
    }
    second->setProcessEnvironment(environment);
    second->start(QStringLiteral(APP_TEST_HELPER), {u"acquire"_s, name});
    if (!second->waitForFinished(10000) || second->exitStatus() != QProcess::NormalExit)
        return -1;
    return second->exitCode();
}

} // namespace

class TestGuiSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultServerPathIsPrivate_data()
    {
        QTest::addColumn<QString>("runtimeMode"); // "private", "shared" or "unset"
        QTest::addColumn<bool>("usesRuntimeDir");
        QTest::addRow("private runtime directory") << u"private"_s << true;
        QTest::addRow("world-writable runtime directory") << u"shared"_s << false;
        QTest::addRow("no runtime directory") << u"unset"_s << false;
    }

    void defaultServerPathIsPrivate()
    {
        QFETCH(QString, runtimeMode);
        QFETCH(bool, usesRuntimeDir);
        QTemporaryDir runtime;
        QVERIFY(runtime.isValid());
        QFile::setPermissions(runtime.path(), runtimeMode == u"shared"
                                                  ? QFileDevice::Permissions(0x7777)
                                                  : QFileDevice::ReadOwner |
                                                        QFileDevice::WriteOwner |
                                                        QFileDevice::ExeOwner);
        const QByteArray saved = qgetenv("XDG_RUNTIME_DIR");
        if (runtimeMode == u"unset")
            qunsetenv("XDG_RUNTIME_DIR");
        else
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        QString error;
        const QString path = GuiSingleInstance::defaultServerPath(&error);
        qputenv("XDG_RUNTIME_DIR", saved);

        QVERIFY2(!path.isEmpty(), qPrintable(error));
        QCOMPARE(QFileInfo(path).fileName(), GuiSingleInstance::defaultServerName());
        QCOMPARE(QFileInfo(path).path() == runtime.path(), usesRuntimeDir);
        QVERIFY(GuiSingleInstance::isPrivateDirectory(QFileInfo(path).path()));
    }

    void squattedNameIsNeitherContactedNorRemoved()
    {
        // Another user binds our name in a directory everybody may write to.
        const QString setpriv = QStandardPaths::findExecutable(u"setpriv"_s);
        if (::getuid() != 0 || setpriv.isEmpty())
            QSKIP("needs root and setpriv to act as another user");
        QTemporaryDir shared;
        QVERIFY(shared.isValid());
        QFile::setPermissions(shared.path(), QFileDevice::Permissions(0x7777));
        const QString name = shared.filePath(uniqueName());
        QProcess squatter;
        squatter.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        squatter.start(setpriv, {u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s,
                                 QStringLiteral(APP_TEST_HELPER), u"hold"_s, name});
        if (!waitForReady(squatter))
            QSKIP("the helper cannot run as another user from this build tree");

        GuiSingleInstance instance(name);
        QString error;
        QCOMPARE(instance.acquire(&error), SingleInstanceResult::Failed);
        QVERIFY2(error.contains(u"belongs to uid 65534"_s), qPrintable(error));
        QVERIFY(!instance.isListening());
        QVERIFY(QFileInfo::exists(name));
        // A desktop action neither talks to it nor starts a client in its place.
        const DesktopAnswer answer = DesktopCommandSender(name, u"/nonexistent/tovra"_s).send({});
        QCOMPARE(answer.result, DesktopAnswer::Result::Failed);
        QVERIFY2(answer.detail.contains(u"belongs to uid 65534"_s), qPrintable(answer.detail));

        // Even a socket file that looks like ours is not talked to when its peer is another user.
        QCOMPARE(::chown(QFile::encodeName(name).constData(), ::getuid(), ::getgid()), 0);
        QCOMPARE(GuiSingleInstance(name).acquire(), SingleInstanceResult::Primary);

        squatter.write("quit\n");
        QVERIFY(squatter.waitForFinished());
        QVERIFY(!squatter.readAllStandardOutput().contains("activated"));
    }

    void secondLaunchActivatesPrimary()
    {
        GuiSingleInstance primary(uniqueName());
        QCOMPARE(primary.acquire(), SingleInstanceResult::Primary);
        // The launch's tokens are in the environment while the window is raised, and only then.
        QStringList seen;
        connect(&primary, &GuiSingleInstance::activateRequested, this, [&seen] {
            seen << qEnvironmentVariable("XDG_ACTIVATION_TOKEN")
                 << qEnvironmentVariable("DESKTOP_STARTUP_ID");
        });
        QCOMPARE(launchSecond(primary.serverName(), u"tok en=%1"_s),
                 int(SingleInstanceResult::ActivatedExisting));
        QTRY_COMPARE(seen, (QStringList{u"tok en=%1"_s, u"tok en=%1_TIME1"_s}));
        QVERIFY(primary.isListening());
        QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
        QVERIFY(!qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
    }

    void requestLines_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("leaveAtOnce");  // a launch from before answers: write, hang up
        QTest::addColumn<QByteArray>("answer"); // what a staying launch reads back
        QTest::addRow("activate") << QByteArray("activate\n") << false << QByteArray("ok");
        QTest::addRow("old launch") << QByteArray("activate\n") << true << QByteArray();
        QTest::addRow("nothing, then gone") << QByteArray() << true << QByteArray();
        QTest::addRow("nothing, time-out") << QByteArray() << false << QByteArray("ok");
        QTest::addRow("too long") << QByteArray(5000, 'x') << false << QByteArray("ok");
    }

    // Commands for the shell over this line: TestDesktopCommands, with the real client.
    void requestLines()
    {
        QFETCH(QByteArray, message);
        QFETCH(bool, leaveAtOnce);
        QFETCH(QByteArray, answer);
        GuiSingleInstance primary(uniqueName());
        QVERIFY(primary.tryListen());
        QSignalSpy activated(&primary, &GuiSingleInstance::activateRequested);
        QLocalSocket client;
        client.connectToServer(primary.serverName());
        QVERIFY(client.waitForConnected(2000));
        if (!message.isEmpty()) {
            client.write(message);
            QVERIFY(client.waitForBytesWritten(2000));
        }
        if (leaveAtOnce)
            client.disconnectFromServer();
        // The primary hangs up on its own once it has answered.
        QTRY_COMPARE_WITH_TIMEOUT(client.state(), QLocalSocket::UnconnectedState, 5000);
        QCOMPARE(client.readAll().trimmed(), answer);
        QTRY_COMPARE(activated.count(), 1);
    }

    void launchMeetsOlderPrimary()
    {
        // A running client from before answers reads what comes and hangs up.
        const QString name = uniqueName();
        auto old = startHelper(u"old"_s, name);
        QVERIFY(waitForReady(*old));
        GuiSingleInstance launch(name);
        QCOMPARE(launch.acquire(), SingleInstanceResult::ActivatedExisting);
        DesktopRequest connectRequest;
        connectRequest.command = DesktopRequest::Command::Connect;
        const DesktopAnswer answer =
            DesktopCommandSender(name, u"/nonexistent/tovra"_s).send(connectRequest);
        QCOMPARE(answer.exitCode(), 1);
        QVERIFY2(answer.detail.contains(u"older version"_s), qPrintable(answer.detail));
        QByteArray said;
        QTRY_COMPARE((said += old->readAllStandardOutput()).count("activated"), 2);
        old->kill();
        QVERIFY(old->waitForFinished());
    }

    void staleSocketIsRecovered_data()
    {
        QTest::addColumn<bool>("waiting");
        QTest::addRow("acquire") << false;
        QTest::addRow("wait for the primary, then time out") << true;
    }

    void staleSocketIsRecovered()
    {
        QFETCH(bool, waiting);
        // A crashed GUI leaves a socket file that nobody listens on.
        const QString name = uniqueName();
        auto holder = startHelper(u"hold"_s, name);
        QVERIFY(waitForReady(*holder));
        holder->kill();
        QVERIFY(holder->waitForFinished());
        QVERIFY(QFileInfo::exists(QDir::temp().filePath(name)));

        GuiSingleInstance instance(name);
        QString error;
        QCOMPARE(waiting ? instance.waitForPrimary(100, 10, &error) : instance.acquire(&error),
                 SingleInstanceResult::Primary);
        // The recovered name really works: the next launch wakes this process.
        QSignalSpy activated(&instance, &GuiSingleInstance::activateRequested);
        QCOMPARE(launchSecond(name), int(SingleInstanceResult::ActivatedExisting));
        QTRY_COMPARE(activated.count(), 1);
    }
};

QTEST_GUILESS_MAIN(TestGuiSingleInstance)
#include "TestGuiSingleInstance.moc"
