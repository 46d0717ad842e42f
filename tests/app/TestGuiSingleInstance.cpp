#include "GuiSingleInstance.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

#include <memory>

#include <unistd.h>

namespace {

QString uniqueName()
{
    return QStringLiteral("tovra-test-") + QUuid::createUuid().toString(QUuid::Id128);
}

// A helper process started in one of its modes on a server name.
std::unique_ptr<QProcess> startHelper(const char *mode, const QString &name)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(APP_TEST_HELPER), {QString::fromLatin1(mode), name});
    return process;
}

bool waitForReady(QProcess &process)
{
    return process.waitForStarted() && process.waitForReadyRead(10000) &&
           process.readLine().trimmed() == "ready";
}

// The way a crashed GUI leaves the name: a socket file that nobody listens on.
bool leaveStaleSocket(const QString &name)
{
    auto holder = startHelper("hold", name);
    if (!waitForReady(*holder))
        return false;
    holder->kill();
    holder->waitForFinished();
    return QFileInfo::exists(QDir::temp().filePath(name));
}

} // namespace

class TestGuiSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultServerNameIsPerUser();
    void secondLaunchActivatesPrimary_data();
    void secondLaunchActivatesPrimary();
    void anyConnectionActivates_data();
    void anyConnectionActivates();
    void staleSocketIsRecovered();
    void waitForPrimaryTakesOverWhenReleased();
    void waitForPrimaryRemovesStaleNameAfterTimeout();
    void unusableNameFails();
    void destructionReleasesTheName();
};

void TestGuiSingleInstance::defaultServerNameIsPerUser()
{
    QCOMPARE(GuiSingleInstance::defaultServerName(),
             QStringLiteral("com.tovra.Vpn.gui.") + QString::number(::getuid()));
}

void TestGuiSingleInstance::secondLaunchActivatesPrimary_data()
{
    QTest::addColumn<int>("launches");
    QTest::addRow("one") << 1;
    QTest::addRow("three") << 3;
}

void TestGuiSingleInstance::secondLaunchActivatesPrimary()
{
    QFETCH(int, launches);
    GuiSingleInstance primary(uniqueName());
    QCOMPARE(primary.acquire(), SingleInstanceResult::Primary);
    QSignalSpy activated(&primary, &GuiSingleInstance::activateRequested);

    for (int i = 0; i < launches; ++i) {
        auto second = startHelper("acquire", primary.serverName());
        QTRY_COMPARE_WITH_TIMEOUT(second->state(), QProcess::NotRunning, 10000);
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), int(SingleInstanceResult::ActivatedExisting));
    }
    QTRY_COMPARE(activated.count(), launches);
    QVERIFY(primary.isListening());
}

void TestGuiSingleInstance::anyConnectionActivates_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addRow("activate") << QByteArray("activate\n");
    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("other text") << QByteArray("show me the window please\n");
}

void TestGuiSingleInstance::anyConnectionActivates()
{
    QFETCH(QByteArray, message);
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
    QVERIFY(activated.wait(5000));
    // The primary hangs up on its own once it has taken the request.
    QTRY_COMPARE(client.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(activated.count(), 1);
}

void TestGuiSingleInstance::staleSocketIsRecovered()
{
    const QString name = uniqueName();
    QVERIFY(leaveStaleSocket(name));

    GuiSingleInstance instance(name);
    QString error;
    QCOMPARE(instance.acquire(&error), SingleInstanceResult::Primary);
    QVERIFY(instance.isListening());

    // The recovered name really works: the next launch wakes this process.
    QSignalSpy activated(&instance, &GuiSingleInstance::activateRequested);
    auto second = startHelper("acquire", name);
    QTRY_COMPARE_WITH_TIMEOUT(second->state(), QProcess::NotRunning, 10000);
    QCOMPARE(second->exitCode(), int(SingleInstanceResult::ActivatedExisting));
    QTRY_COMPARE(activated.count(), 1);
}

void TestGuiSingleInstance::waitForPrimaryTakesOverWhenReleased()
{
    const QString name = uniqueName();
    auto old = startHelper("hold", name);
    QVERIFY(waitForReady(*old));

    GuiSingleInstance instance(name);
    QVERIFY(!instance.tryListen());
    old->write("quit\n");
    QVERIFY(old->waitForBytesWritten());
    // Polls until the old process has let go; far below the time-out.
    QCOMPARE(instance.waitForPrimary(20000, 10), SingleInstanceResult::Primary);
    QVERIFY(old->waitForFinished());
    QCOMPARE(old->exitCode(), 0);
}

void TestGuiSingleInstance::waitForPrimaryRemovesStaleNameAfterTimeout()
{
    const QString name = uniqueName();
    QVERIFY(leaveStaleSocket(name));
    GuiSingleInstance instance(name);
    QCOMPARE(instance.waitForPrimary(100, 10), SingleInstanceResult::Primary);
    QVERIFY(instance.isListening());
}

void TestGuiSingleInstance::unusableNameFails()
{
    const QString name = QStringLiteral("/nonexistent-tovra-dir/") + uniqueName();
    GuiSingleInstance instance(name);
    QString error;
    QCOMPARE(instance.acquire(&error), SingleInstanceResult::Failed);
    QVERIFY(!error.isEmpty());
    QVERIFY(!instance.isListening());
    error.clear();
    QCOMPARE(instance.waitForPrimary(0, 1, &error), SingleInstanceResult::Failed);
    QVERIFY(!error.isEmpty());
}

void TestGuiSingleInstance::destructionReleasesTheName()
{
    const QString name = uniqueName();
    {
        GuiSingleInstance first(name);
        QVERIFY(first.tryListen());
    }
    GuiSingleInstance second(name);
    QVERIFY(second.tryListen());
}

QTEST_GUILESS_MAIN(TestGuiSingleInstance)
#include "TestGuiSingleInstance.moc"
