#include "AppState.h"
#include "ConnectionFlow.h"
#include "ControlEndpoints.h"
#include "ControlWorker.h"
#include "DemoDaemon.h"
#include "LocationRoles.h"
#include "MainWindow.h"
#include "NotificationHost.h"
#include "ShellWorkers.h"
#include "StderrCapture.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "TovraTrayApp.h"
#include "TrayStatusPoller.h"
#include "WindowController.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

namespace {

// A shell without a tray on a fresh demo daemon, its window shown and the daemon known good.
struct Running
{
    TempXdgDirs dirs;
    DemoDaemon daemon;
    std::unique_ptr<TovraAppShell> shell;
    QList<QUrl> opened;

    bool start(const QStringList &daemonArguments, bool signedIn)
    {
        if (!daemon.start(daemonArguments))
            return false;
        if (signedIn)
            ControlEndpoints::login(daemon.socketPath(), QStringLiteral("demo@tovra.invalid"),
                                    QStringLiteral("demo"), false, 3000);
        shell = std::make_unique<TovraAppShell>(nullptr, daemon.socketPath());
        shell->setSystemTrayAvailable(false);
        shell->windowController()->setUrlOpener([this](const QUrl &url) {
            opened.append(url);
            return true;
        });
        shell->start();
        return QTest::qWaitFor([this] {
            return shell->compatibilityState() == TovraAppShell::Compatible &&
                   shell->state()->runtime().valid && !shell->tray()->isBusy();
        });
    }
    WindowController *controller() const { return shell->windowController(); }
    template<typename T>
    T *find(const QString &name) const
    {
        return controller()->window()->findChild<T *>(name);
    }
    bool windowSays(const QString &text) const
    {
        const auto *host = controller()->window()->findChild<NotificationHost *>();
        const QList<QLabel *> labels = host->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return label->text() == text; });
    }
};

} // namespace

// What the shell hands the window for its Account and VPN pages, against the demo daemon.
class TestShellWindowFlows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connectNeverShowsTheStateBefore()
    {
        // What the window and the tray show, as the text log writes it (on for this test).
        Running run;
        QVERIFY2(run.start({QStringLiteral("--connect-ms"), QStringLiteral("300")}, true),
                 qPrintable(run.daemon.errorString()));
        StderrCapture capture;
        run.shell->connectNode(QStringLiteral("1001"), QString());
        QTRY_COMPARE(run.shell->state()->runtime().tunnelState, QStringLiteral("connected"));
        const QStringList lines = capture.stop().split(u'\n');
        const auto connecting = std::find_if(lines.begin(), lines.end(), [](const QString &line) {
            return line.startsWith(QLatin1String("tovra.text: window.status: Connecting"));
        });
        QVERIFY(connecting != lines.end());
        for (auto line = connecting; line != lines.end(); ++line)
            QVERIFY2(!line->contains(QLatin1String("isconnected")), qPrintable(*line));
    }
    // A refused sign-in; the accepted one runs through the real client end to end.
    void signInRefusedThroughTheWindow()
    {
        Running run;
        QVERIFY2(run.start({}, false), qPrintable(run.daemon.errorString()));
        run.controller()->showAccount();
        auto *user = run.find<QLineEdit>(QStringLiteral("TovraAccountUsername"));
        auto *secret = run.find<QLineEdit>(QStringLiteral("TovraAccountPassword"));
        auto *signIn = run.find<QPushButton>(QStringLiteral("TovraAccountSignIn"));
        user->setText(QStringLiteral("demo@tovra.invalid"));
        secret->setText(QStringLiteral("nope"));
        QTest::keyClick(secret, Qt::Key_Return);
        QVERIFY(run.controller()->replayState().accountBusy);
        QCOMPARE(signIn->text(), QStringLiteral("Signing in..."));
        QTest::keyClick(secret, Qt::Key_Return); // nothing twice
        QTRY_VERIFY(!run.controller()->replayState().accountBusy);
        const QString message = QStringLiteral("Incorrect email or password.");
        QCOMPARE(run.controller()->replayState().accountError, message);
        auto *label = run.find<QLabel>(QStringLiteral("TovraAccountMessage"));
        QCOMPARE(label->isHidden() ? QString() : label->text(), message);
        // The password is gone; the account name stays for another try.
        QVERIFY(secret->text().isEmpty());
        QCOMPARE(user->text(), QStringLiteral("demo@tovra.invalid"));
        // Signed in elsewhere: the error is over, here and in any later window.
        ControlEndpoints::login(run.daemon.socketPath(), QStringLiteral("demo@tovra.invalid"),
                                QStringLiteral("demo"), false, 3000);
        run.shell->tray()->refreshStatus();
        QTRY_VERIFY_WITH_TIMEOUT(run.controller()->replayState().accountError.isEmpty(),
                                 TrayStatusPoller::kIntervalMs + 2000);
        QVERIFY(label->isHidden());
    }

    // A session the daemon restored from memory is a signed-in one: its account is looked up,
    // and kept, for the page and the tray alike.
    void rememberedSessionShowsTheAccount()
    {
        Running run;
        QVERIFY2(run.start({QStringLiteral("--remembered"), QStringLiteral("free@tovra.invalid")},
                           false),
                 qPrintable(run.daemon.errorString()));
        QCOMPARE(run.shell->state()->runtime().authState, QStringLiteral("cached"));
        run.controller()->showAccount();
        auto *summary = run.find<QLabel>(QStringLiteral("TovraAccountSummary"));
        const QString free = QStringLiteral("User ID: 81020988\nPlan: Free\n"
                                            "Max simultaneous devices: 1");
        QTRY_COMPARE(summary->text(), free);
        // The tray's next look at the status leaves the record where it is. (A poll already on
        // its way makes the tray skip this one; the next is due within the interval.)
        QSignalSpy answered(run.shell->workers()->control(), &ControlWorker::statusFinished);
        run.shell->tray()->refreshStatus();
        QTRY_VERIFY_WITH_TIMEOUT(!answered.isEmpty(), TrayStatusPoller::kIntervalMs + 2000);
        QCoreApplication::processEvents();
        QVERIFY(run.shell->state()->user().valid);
        QCOMPARE(summary->text(), free);
        QCOMPARE(run.shell->tray()->menu().account->text(), QStringLiteral("Account: cached"));
    }

    // Signed out with the catalogue on screen, then signed in on the Free plan: the plan's
    // locks reach the Locations page, and a locked row connects nowhere.
    void freeSignInLocksPremiumLocations()
    {
        Running run;
        QVERIFY2(run.start({}, false), qPrintable(run.daemon.errorString()));
        run.controller()->showLocations();
        QTRY_VERIFY(run.shell->state()->nodes().valid && run.shell->state()->nodeGroups().valid);
        auto *tree = run.find<QTreeView>(QStringLiteral("TovraLocationsTree"));
        QAbstractItemModelTester tester(tree->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        run.shell->loginAccount(QStringLiteral("free@tovra.invalid"), QStringLiteral("demo"),
                                false);
        QTRY_VERIFY(run.shell->state()->user().valid);

        const QModelIndexList premium =
            tree->model()->match(tree->model()->index(0, 0), LocationTierRole,
                                 QStringLiteral("SVIP"), 1, Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(premium.size(), 1);
        QVERIFY(premium.first().data(LocationLockedRole).toBool());

        QSignalSpy connects(run.controller(), &WindowController::connectNodeRequested);
        tree->scrollTo(premium.first());
        tree->setCurrentIndex(premium.first());
        QTest::keyClick(tree, Qt::Key_Return);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {},
                           tree->visualRect(premium.first()).center());
        QCOMPARE(connects.size(), 0);
        QVERIFY(!run.shell->connectionFlow()->connectInProgress());
    }

    // The window is marked while a connect runs; a refused connect renames nothing.
    void connectTargetFollowsTheAcceptedConnect()
    {
        Running run;
        QVERIFY2(run.start({QStringLiteral("--connect-ms"), QStringLiteral("1500")}, true),
                 qPrintable(run.daemon.errorString()));
        ConnectionFlow *flow = run.shell->connectionFlow();
        run.shell->connectNode(QStringLiteral("1001"), QStringLiteral("First place"));
        QVERIFY(flow->connectInProgress());
        QCOMPARE(run.controller()->replayState().connectTargetLabel, QStringLiteral("First place"));
        QVERIFY(run.controller()->replayState().connecting);
        // Refused while the first runs: neither the window nor the tray hears of it.
        run.shell->connectNode(QStringLiteral("1002"), QStringLiteral("Second place"));
        QCOMPARE(run.controller()->replayState().connectTargetLabel, QStringLiteral("First place"));
        QVERIFY(run.shell->tray()->menu().statusLine->text().contains(QStringLiteral("First")));
        QTRY_VERIFY(!flow->connectInProgress());
        QVERIFY(!run.controller()->replayState().connecting);
        QVERIFY(run.controller()->replayState().connectTargetLabel.isEmpty());
        QTRY_COMPARE(run.shell->state()->runtime().tunnelState, QStringLiteral("connected"));

        // Refused while the shell signs in: the tray must not take the refused target as the
        // one to name when the daemon next connects on its own.
        run.shell->loginAccount(QStringLiteral("demo@tovra.invalid"), QStringLiteral("demo"),
                                false);
        run.shell->connectNode(QStringLiteral("1002"), QStringLiteral("Second place"));
        QVERIFY(!flow->connectInProgress());
        QVERIFY(!run.controller()->replayState().connecting);
        QTRY_VERIFY(!run.controller()->replayState().accountBusy);
        ControlEndpoints::connectNode(run.daemon.socketPath(), QStringLiteral("1003"), 3000);
        run.shell->tray()->refreshStatus();
        QAction *line = run.shell->tray()->menu().statusLine;
        QTRY_VERIFY2(line->text().startsWith(QStringLiteral("Tovra: connecting")),
                     qPrintable(line->text()));
        QVERIFY2(!line->text().contains(QStringLiteral("Second")), qPrintable(line->text()));
    }

    void renewal_data()
    {
        QTest::addColumn<QStringList>("daemonArguments");
        QTest::addColumn<QString>("failure");
        QTest::addRow("opens the link") << QStringList() << QString();
        QTest::addRow("a link that fails the checks")
            << QStringList{QStringLiteral("--fail"),
                           QStringLiteral(
                               "/v1/account/purchase-url=200:{\"url\":\"https://example.org/x\"}")}
            << "Could not open renewal page";
    }
    void renewal()
    {
        QFETCH(QStringList, daemonArguments);
        QFETCH(QString, failure);
        Running run;
        QVERIFY2(run.start(daemonArguments, true), qPrintable(run.daemon.errorString()));
        run.controller()->showAccount();
        auto *renew = run.find<QPushButton>(QStringLiteral("TovraAccountRenew"));
        QTRY_VERIFY(renew->isVisible());
        QTest::mouseClick(renew, Qt::LeftButton);
        QVERIFY(run.controller()->replayState().renewalOpening);
        QCOMPARE(renew->text(), QStringLiteral("Opening\u2026"));
        QTRY_VERIFY(!run.controller()->replayState().renewalOpening);
        QCOMPARE(renew->text(), QStringLiteral("Renew"));
        QCOMPARE(run.opened.size(), failure.isEmpty() ? 1 : 0);
        if (failure.isEmpty())
            QCOMPARE(run.opened.constFirst().path(), QStringLiteral("/purchase"));
        else
            QVERIFY(run.windowSays(failure));
    }
};

QTEST_MAIN(TestShellWindowFlows)
#include "TestShellWindowFlows.moc"
