#include "AppState.h"
#include "ConnectionFlow.h"
#include "ControlEndpoints.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "TovraTrayApp.h"
#include "TrayMenu.h"
#include "WindowController.h"

#include <QAction>

#include <QSignalSpy>
#include <QTest>

// The shell against the real demo daemon: the flows that break in practice. (An incompatible
// daemon, and one that goes away, run through the real client in the fault matrix.)
class TestTovraAppShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compatibleDaemon()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        TovraAppShell shell(nullptr, daemon.socketPath());
        shell.setSystemTrayAvailable(false);
        // The shell numbers its requests above the tray's, so neither takes the other's answers.
        QCOMPARE(shell.ledger()->nextId(), Q_UINT64_C(4294967296));
        shell.start();
        QCOMPARE(shell.compatibilityState(), TovraAppShell::CompatibilityChecking);
        QVERIFY(!shell.tray()->isControlAvailable());
        // The check is no outage: the window (Sign In above all) does not wait for it.
        QCOMPARE(shell.windowController()->replayState().daemonUnavailableReason, QString());
        QTRY_COMPARE(shell.compatibilityState(), TovraAppShell::Compatible);
        QVERIFY(shell.tray()->isControlAvailable());
        // Without a tray the window is the way in: shown at start, and closing it quits.
        QVERIFY(shell.windowController()->window() &&
                shell.windowController()->window()->isVisible());
    }

    void daemonAwayThenBack()
    {
        DemoDaemon daemon;
        TovraAppShell shell(nullptr, daemon.socketPath());
        shell.setSystemTrayAvailable(false);
        shell.start();
        // An unreachable daemon is never called incompatible: the tray stays usable for retries.
        QTRY_COMPARE(shell.compatibilityState(), TovraAppShell::CompatibilityUnknown);
        QCOMPARE(shell.notifier()->lastText(), QStringLiteral("Tovra daemon is not running."));
        QVERIFY(shell.tray()->isControlAvailable());

        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        shell.tray()->refreshStatus();
        QTRY_VERIFY(shell.state()->runtime().valid);
        QTRY_COMPARE(shell.compatibilityState(), TovraAppShell::Compatible);
    }

    void newerDisconnectSupersedesConnect()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start({QStringLiteral("--connect-ms"), QStringLiteral("1500")}),
                 qPrintable(daemon.errorString()));
        QString error;
        ControlEndpoints::login(daemon.socketPath(), QStringLiteral("demo@tovra.invalid"),
                                QStringLiteral("demo"), false, 3000, &error);
        QCOMPARE(error, QString());
        const NodesInfo nodes =
            ControlEndpoints::fetchNodes(daemon.socketPath(), false, 3000, &error);
        QVERIFY(!nodes.nodes.isEmpty());

        TovraAppShell shell(nullptr, daemon.socketPath());
        shell.setSystemTrayAvailable(false);
        shell.start();
        QTRY_COMPARE(shell.compatibilityState(), TovraAppShell::Compatible);
        QTRY_VERIFY(!shell.tray()->isBusy());

        QSignalSpy notices(shell.notifier(), &ShellNotifier::posted);
        shell.connectNode(nodes.nodes.constFirst().id, nodes.nodes.constFirst().name);
        QVERIFY(shell.connectionFlow()->connectInProgress());
        shell.disconnectRuntime();
        QVERIFY(!shell.connectionFlow()->connectInProgress());
        QTRY_VERIFY(!shell.connectionFlow()->disconnectInProgress());
        QTRY_COMPARE(shell.state()->runtime().tunnelState, QStringLiteral("disconnected"));
        // The superseded connect ends without a word: no failure reaches the user.
        for (const QList<QVariant> &notice : notices)
            QVERIFY2(notice.at(1).toString() != QLatin1String("error"),
                     qPrintable(notice.at(0).toString()));
    }

    void trayConnectEndsConnected()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start({QStringLiteral("--connect-ms"), QStringLiteral("1200")}),
                 qPrintable(daemon.errorString()));
        QString error;
        ControlEndpoints::login(daemon.socketPath(), QStringLiteral("demo@tovra.invalid"),
                                QStringLiteral("demo"), false, 3000, &error);
        QCOMPARE(error, QString());

        // Living in the tray, with no window made yet.
        GuiPreferences preferences;
        preferences.setShowOnLaunch(false);
        TovraAppShell shell(nullptr, daemon.socketPath(), &preferences);
        shell.setSystemTrayAvailable(true);
        shell.start();
        QTRY_COMPARE(shell.compatibilityState(), TovraAppShell::Compatible);
        QTRY_VERIFY(shell.tray()->menu().connect->isEnabled());
        shell.tray()->menu().connect->trigger();
        QTRY_VERIFY(shell.connectionFlow()->connectInProgress());
        // The daemon reports connecting first; the views must not wait for the slow poll to learn
        // that the tunnel is up.
        QTRY_COMPARE_WITH_TIMEOUT(shell.state()->runtime().tunnelState, QStringLiteral("connected"),
                                  4000);
        QTRY_COMPARE_WITH_TIMEOUT(shell.tray()->menu().statusLine->text(),
                                  QStringLiteral("Tovra: connected"), 4000);
        const TrayMenu &menu = shell.tray()->menu();
        QVERIFY(!menu.connect->isEnabled());
        QVERIFY(menu.disconnect->isEnabled());
    }

private:
    TempXdgDirs m_dirs;
};

QTEST_MAIN(TestTovraAppShell)
#include "TestTovraAppShell.moc"
