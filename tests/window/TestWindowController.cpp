#include "ControlMetaTypes.h"
#include "ModePage.h"
#include "NotificationHost.h"
#include "QuitWatcher.h"
#include "StderrCapture.h"
#include "ThemeEngine.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace {

struct Fixture : WindowFixture
{
    QList<QUrl> opened;
    bool openerSucceeds = true;

    Fixture()
    {
        controller.setUrlOpener([this](const QUrl &url) {
            opened.append(url);
            return openerSucceeds;
        });
    }
    // The notification shown in the window, empty when none is.
    QString notification() const
    {
        auto *host = controller.window()->findChild<NotificationHost *>();
        if (!host->isVisible()) {
            return QString();
        }
        return host->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"))->text();
    }
};

} // namespace

class TestWindowController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void showSlots_data()
    {
        QTest::addColumn<QByteArray>("slot");
        QTest::addColumn<int>("page");
        QTest::addColumn<bool>("minimised");
        QTest::addRow("showOrRaise, minimised") << QByteArray("showOrRaise") << 0 << true;
        QTest::addRow("showAccount") << QByteArray("showAccount") << 4 << false;
        QTest::addRow("showLocations") << QByteArray("showLocations") << 1 << false;
    }

    void showSlots()
    {
        QFETCH(QByteArray, slot);
        QFETCH(int, page);
        QFETCH(bool, minimised);
        Fixture f;
        QVERIFY(QMetaObject::invokeMethod(&f.controller, slot.constData()));
        MainWindow *window = f.controller.window();
        if (minimised) {
            window->showMinimized();
            QVERIFY(window->isMinimized());
        }
        // The second call brings back the same window.
        QVERIFY(QMetaObject::invokeMethod(&f.controller, slot.constData()));
        QCOMPARE(f.controller.window(), window);
        QVERIFY(window->isVisible());
        QVERIFY(!window->isMinimized());
        QCOMPARE(window->currentPage(), page);
        QCOMPARE(f.controller.windowsCreated(), 1);
    }

    void close_data()
    {
        QTest::addColumn<bool>("tray");
        QTest::addColumn<bool>("hideOnClose");
        QTest::addColumn<bool>("setAfterShow");
        QTest::addColumn<bool>("release");
        QTest::addColumn<int>("quits");
        QTest::addRow("hide, keep the window") << true << true << false << false << 0;
        QTest::addRow("hide, release on hide") << true << true << false << true << 0;
        QTest::addRow("no tray") << false << true << false << false << 1;
        QTest::addRow("no tray, told after showing") << false << true << true << false << 1;
        QTest::addRow("tray, close quits") << true << false << false << false << 1;
    }

    void close()
    {
        QFETCH(bool, tray);
        QFETCH(bool, hideOnClose);
        QFETCH(bool, setAfterShow);
        QFETCH(bool, release);
        QFETCH(int, quits);
        Fixture f;
        f.controller.setReleaseOnHide(release);
        f.controller.setHideOnClose(hideOnClose);
        // "After showing": the window is built while a tray is still reported.
        f.controller.setSystemTrayAvailable(tray || setAfterShow);
        f.controller.showModePage();
        f.controller.setSystemTrayAvailable(tray);
        QPointer<MainWindow> first = f.controller.window();
        QSignalSpy left(&f.controller, &WindowController::modePageLeft);
        // Connected after the controller, so this runs once the controller has handled the hide.
        bool forgottenOnHide = false;
        connect(first, &MainWindow::hiddenToTray, this,
                [&] { forgottenOnHide = !f.controller.window(); });
        QuitWatcher quit;
        StderrCapture log;
        QuitWatcher::runLoopAround([&] { first->close(); });
        QCOMPARE(quit.quitRequests(), quits);
        QCOMPARE(forgottenOnHide, release);
        QCOMPARE(left.count(), quits ? 0 : 1); // hidden from the Mode page, it was left
        if (release) {
            QTRY_VERIFY(first.isNull());
        } else {
            QCOMPARE(f.controller.window(), first.data());
            QVERIFY(!first->isVisible());
        }
        const QString lines = log.stop();
        QCOMPARE(lines.contains(QStringLiteral(
                     "tovra.mem: MainWindow QPointer cleared on hide-to-tray (created=1)\n")),
                 release);
        QCOMPARE(lines.contains(QStringLiteral("tovra.mem: MainWindow destroyed\n")), release);
        f.controller.showOrRaise();
        QVERIFY(f.controller.window()->isVisible());
        QCOMPARE(f.controller.windowsCreated(), release ? 2 : 1);
        // A kept window comes back as it was.
        if (!release)
            QCOMPARE(f.controller.window()->currentPage(), int(MainWindow::ModePageIndex));
    }

    void newWindowStartsInCachedState()
    {
        Fixture f;
        // Set before any window exists, so only the replay can bring them in.
        f.controller.setReleaseOnHide(true);
        f.controller.setModeOperationBusy(true);
        f.controller.setSplitRulesFetchInProgress(true);
        f.controller.showModePage();
        MainWindow *window = f.controller.window();
        QVERIFY(window->deleteOnClose());
        auto *mode = window->findChild<ModePage *>();
        QVERIFY(mode->isSplitRulesFetchInProgress());
        QVERIFY(!mode->isModeBusy());
        QTRY_VERIFY(mode->isModeBusy());
        f.controller.setModeOperationBusy(false);
        QVERIFY(!mode->isModeBusy());
    }

    void opening_data()
    {
        QTest::addColumn<bool>("logs");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("openerSucceeds");
        QTest::addColumn<bool>("openerCalled");
        QTest::addColumn<QString>("notification"); // empty: none shown
        const QString link = QStringLiteral("https://www.tovra.com/privacy");
        const QString dir = QDir::tempPath();
        const QString gone = QStringLiteral("/nonexistent/tovra-logs");
        QTest::addRow("link opened") << false << link << true << true << QString();
        QTest::addRow("link, opener fails")
            << false << link << false << true << "Could not open link";
        QTest::addRow("invalid link")
            << false << QString() << true << false << "Could not open link";
        QTest::addRow("logs opened") << true << dir << true << true << QString();
        QTest::addRow("logs, opener fails")
            << true << dir << false << true
            << QStringLiteral("Could not open log directory: ") + dir;
        QTest::addRow("logs, empty path")
            << true << QString() << true << false << "Log directory is unavailable";
        QTest::addRow("logs missing") << true << gone << true << false
                                      << QStringLiteral("Log directory does not exist: ") + gone;
    }

    void opening()
    {
        QFETCH(bool, logs);
        QFETCH(QString, target);
        QFETCH(bool, openerSucceeds);
        QFETCH(bool, openerCalled);
        QFETCH(QString, notification);
        Fixture f;
        f.openerSucceeds = openerSucceeds;
        f.controller.showOrRaise();
        const QUrl url = logs ? QUrl::fromLocalFile(target) : QUrl(target);
        if (logs) {
            QCOMPARE(f.controller.openLogDirectory(target), notification.isEmpty());
        } else {
            Q_EMIT f.controller.window()->openExternalURLRequested(url);
        }
        QCOMPARE(f.opened, openerCalled ? QList<QUrl>{url} : QList<QUrl>{});
        QCOMPARE(f.notification(), notification);
    }

    void appearanceThemesUpdateDialog()
    {
        const auto background = [](Appearance appearance) {
            return ThemeEngine::buildColors(appearance).color(ThemeColor::WindowBg);
        };
        Fixture f;
        QDialog dialog;
        f.controller.setUpdateDialog(&dialog);
        QCOMPARE(dialog.palette().color(QPalette::Window), background(Appearance::Light));
        f.controller.setAppearancePreference(QStringLiteral("dark"));
        QCOMPARE(f.preferences.appearance(), QStringLiteral("dark"));
        QCOMPARE(dialog.palette().color(QPalette::Window), background(Appearance::Dark));
        // A window built later starts in the stored appearance.
        f.controller.showOrRaise();
        QCOMPARE(f.controller.window()->effectiveAppearance(), Appearance::Dark);
    }
};

QTEST_MAIN(TestWindowController)
#include "TestWindowController.moc"
