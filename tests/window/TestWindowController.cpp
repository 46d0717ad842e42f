#include "AppState.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "NotificationHost.h"
#include "QuitWatcher.h"
#include "SignalProbe.h"
#include "StderrCapture.h"
#include "TempXdgDirs.h"
#include "ThemeEngine.h"
#include "WindowController.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The window's intents in the window's order (checked by the window's own test), less the
// four the controller handles itself, plus the update dialog's three.
QList<QByteArray> expectedControllerSignals()
{
    QList<QByteArray> expected = SignalProbe::ownSignals(MainWindow::staticMetaObject);
    for (const char *handled :
         {"hiddenToTray()", "pendingConnectTargetChanged(QString,QString)",
          "openExternalURLRequested(QUrl)", "appearancePreferenceChanged()"}) {
        expected.removeOne(handled);
    }
    const qsizetype check = expected.indexOf("checkUpdateRequested()") + 1;
    expected.insert(check, "updateDownloadCancelRequested()");
    expected.insert(check, "updateDownloadRequested()");
    expected.append("forceUpdateExitRequested()");
    return expected;
}

struct Fixture
{
    TempXdgDirs dirs;
    AppState state;
    GuiPreferences preferences;
    WindowController controller{&state, &preferences};
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
    void initTestCase();
    void signalOrder_data();
    void signalOrder();
    void intentsForwarded_data();
    void intentsForwarded();
    void showSlots_data();
    void showSlots();
    void showOrRaiseRestoresMinimised();
    void hideAndShowAgain_data();
    void hideAndShowAgain();
    void newWindowStartsInCachedState();
    void closingQuitsWithoutTray_data();
    void closingQuitsWithoutTray();
    void links_data();
    void links();
    void logDirectory_data();
    void logDirectory();
    void appearanceThemesUpdateDialog_data();
    void appearanceThemesUpdateDialog();
};

void TestWindowController::initTestCase()
{
    registerControlMetaTypes();
}

void TestWindowController::signalOrder_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QByteArray>("signature");
    const QList<QByteArray> expected = expectedControllerSignals();
    QCOMPARE(expected.size(), 37);
    for (int i = 0; i < expected.size(); ++i) {
        QTest::addRow("%d %s", i, expected.at(i).constData()) << i << expected.at(i);
    }
}

void TestWindowController::signalOrder()
{
    QFETCH(int, position);
    QFETCH(QByteArray, signature);
    const QList<QByteArray> declared = SignalProbe::ownSignals(WindowController::staticMetaObject);
    QCOMPARE(declared.size(), 37);
    QCOMPARE(declared.at(position), signature);
}

void TestWindowController::intentsForwarded_data()
{
    QTest::addColumn<QByteArray>("signature");
    const QList<QByteArray> windowSignals = SignalProbe::ownSignals(MainWindow::staticMetaObject);
    for (const QByteArray &signature : expectedControllerSignals()) {
        if (windowSignals.contains(signature)) {
            QTest::addRow("%s", signature.constData()) << signature;
        }
    }
}

void TestWindowController::intentsForwarded()
{
    QFETCH(QByteArray, signature);
    Fixture f;
    f.controller.showOrRaise();
    MainWindow *window = f.controller.window();
    const QMetaMethod method =
        window->metaObject()->method(window->metaObject()->indexOfSignal(signature.constData()));
    ModeInfo mode;
    mode.valid = true;
    mode.policy = QStringLiteral("split");
    const QVariantList arguments =
        SignalProbe::sampleArguments(method, {{"ModeInfo", QVariant::fromValue(mode)}});
    QSignalSpy forwarded(&f.controller, SignalProbe::spyName(signature).constData());
    QVERIFY(SignalProbe::emitSignal(window, signature, arguments));
    QCOMPARE(forwarded.count(), 1);
    QCOMPARE(forwarded.at(0), arguments);
}

void TestWindowController::showSlots_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("page");
    QTest::addRow("showOrRaise") << QByteArray("showOrRaise") << 0;
    QTest::addRow("activateFromApplication") << QByteArray("activateFromApplication") << 0;
    QTest::addRow("showAccount") << QByteArray("showAccount") << 4;
    QTest::addRow("showLocations") << QByteArray("showLocations") << 1;
    QTest::addRow("showModePage") << QByteArray("showModePage") << 2;
}

void TestWindowController::showSlots()
{
    QFETCH(QByteArray, slot);
    QFETCH(int, page);
    Fixture f;
    QVERIFY(!f.controller.window());
    QVERIFY(QMetaObject::invokeMethod(&f.controller, slot.constData()));
    QVERIFY(QMetaObject::invokeMethod(&f.controller, slot.constData()));
    MainWindow *window = f.controller.window();
    QVERIFY(window);
    QVERIFY(window->isVisible());
    QCOMPARE(window->currentPage(), page);
    QCOMPARE(f.controller.windowsCreated(), 1);
}

void TestWindowController::showOrRaiseRestoresMinimised()
{
    Fixture f;
    f.controller.showOrRaise();
    MainWindow *window = f.controller.window();
    window->showMinimized();
    QVERIFY(window->isMinimized());
    f.controller.showOrRaise();
    QVERIFY(!window->isMinimized());
    QVERIFY(window->isVisible());
    QCOMPARE(f.controller.window(), window);
}

void TestWindowController::hideAndShowAgain_data()
{
    QTest::addColumn<bool>("release");
    QTest::addRow("keep the window") << false;
    QTest::addRow("release on hide") << true;
}

void TestWindowController::hideAndShowAgain()
{
    QFETCH(bool, release);
    Fixture f;
    f.controller.setReleaseOnHide(release);
    f.controller.showOrRaise();
    QPointer<MainWindow> first = f.controller.window();
    // Connected after the controller, so this runs once the controller has handled the hide.
    bool forgottenOnHide = false;
    connect(first, &MainWindow::hiddenToTray, this,
            [&] { forgottenOnHide = f.controller.window() == nullptr; });
    QuitWatcher quit;
    StderrCapture log;
    QuitWatcher::runLoopAround([&] { first->close(); });
    QCOMPARE(quit.quitRequests(), 0);
    QCOMPARE(forgottenOnHide, release);
    if (release) {
        QVERIFY(!f.controller.window());
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
}

void TestWindowController::newWindowStartsInCachedState()
{
    Fixture f;
    // Set before any window exists, so only the replay can bring them in.
    f.controller.setReleaseOnHide(true);
    f.controller.setModeOperationBusy(true);
    f.controller.setSplitRulesFetchInProgress(true);
    QVERIFY(!f.controller.window());
    f.controller.showModePage();
    MainWindow *window = f.controller.window();
    QCOMPARE(window->hideOnClose(), true);
    QCOMPARE(window->deleteOnClose(), true);
    auto *mode = window->findChild<ModePage *>();
    QVERIFY(mode->isSplitRulesFetchInProgress());
    QVERIFY(!mode->isModeBusy());
    QTRY_VERIFY(mode->isModeBusy());
    f.controller.setModeOperationBusy(false);
    QVERIFY(!mode->isModeBusy());
}

void TestWindowController::closingQuitsWithoutTray_data()
{
    QTest::addColumn<bool>("tray");
    QTest::addColumn<bool>("hideOnClose");
    QTest::addColumn<bool>("setAfterShow");
    QTest::addColumn<int>("quits");
    QTest::addRow("tray, hide on close") << true << true << false << 0;
    QTest::addRow("no tray") << false << true << false << 1;
    QTest::addRow("no tray, told after showing") << false << true << true << 1;
    QTest::addRow("tray, close quits") << true << false << false << 1;
}

void TestWindowController::closingQuitsWithoutTray()
{
    QFETCH(bool, tray);
    QFETCH(bool, hideOnClose);
    QFETCH(bool, setAfterShow);
    QFETCH(int, quits);
    Fixture f;
    const auto configure = [&] {
        f.controller.setSystemTrayAvailable(tray);
        f.controller.setHideOnClose(hideOnClose);
    };
    if (!setAfterShow) {
        configure();
    }
    f.controller.showOrRaise();
    if (setAfterShow) {
        configure();
    }
    QuitWatcher quit;
    QuitWatcher::runLoopAround([&] { f.controller.window()->close(); });
    QCOMPARE(quit.quitRequests(), quits);
    QVERIFY(!f.controller.window()->isVisible());
}

void TestWindowController::links_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<bool>("openerSucceeds");
    QTest::addColumn<int>("openerCalls");
    QTest::addColumn<QString>("notification");
    const QUrl valid(QStringLiteral("https://www.tovra.com/privacy"));
    QTest::addRow("opened") << valid << true << 1 << QString();
    QTest::addRow("opener fails") << valid << false << 1 << "Could not open link";
    QTest::addRow("invalid url") << QUrl() << true << 0 << "Could not open link";
}

void TestWindowController::links()
{
    QFETCH(QUrl, url);
    QFETCH(bool, openerSucceeds);
    QFETCH(int, openerCalls);
    QFETCH(QString, notification);
    Fixture f;
    f.openerSucceeds = openerSucceeds;
    f.controller.showOrRaise();
    Q_EMIT f.controller.window()->openExternalURLRequested(url);
    QCOMPARE(f.opened.size(), openerCalls);
    if (openerCalls > 0) {
        QCOMPARE(f.opened.at(0), url);
    }
    QCOMPARE(f.notification(), notification);
}

void TestWindowController::logDirectory_data()
{
    QTest::addColumn<QString>("which");
    QTest::addColumn<bool>("openerSucceeds");
    QTest::addColumn<QString>("notification");
    QTest::addRow("empty path") << "empty" << true << "Log directory is unavailable";
    QTest::addRow("missing") << "missing" << true << "Log directory does not exist: %1";
    QTest::addRow("opener fails") << "existing" << false << "Could not open log directory: %1";
    QTest::addRow("opened") << "existing" << true << QString();
}

void TestWindowController::logDirectory()
{
    QFETCH(QString, which);
    QFETCH(bool, openerSucceeds);
    QFETCH(QString, notification);
    QTemporaryDir logs;
    QString path;
    if (which == QLatin1String("existing")) {
        path = logs.path();
    } else if (which == QLatin1String("missing")) {
        path = logs.filePath(QStringLiteral("gone"));
    }
    Fixture f;
    f.openerSucceeds = openerSucceeds;
    f.controller.showOrRaise();
    QCOMPARE(f.controller.openLogDirectory(path), notification.isEmpty());
    QCOMPARE(f.notification(), notification.isEmpty() ? QString() : notification.arg(path));
    QCOMPARE(f.opened, which == QLatin1String("existing") ? QList<QUrl>{QUrl::fromLocalFile(path)}
                                                          : QList<QUrl>{});
}

void TestWindowController::appearanceThemesUpdateDialog_data()
{
    QTest::addColumn<bool>("withWindow");
    QTest::addRow("no window") << false;
    QTest::addRow("window open") << true;
}

void TestWindowController::appearanceThemesUpdateDialog()
{
    QFETCH(bool, withWindow);
    Fixture f;
    QDialog dialog;
    f.controller.setUpdateDialog(&dialog);
    const QColor light = ThemeEngine::buildColors(Appearance::Light).color(ThemeColor::WindowBg);
    const QColor dark = ThemeEngine::buildColors(Appearance::Dark).color(ThemeColor::WindowBg);
    QCOMPARE(dialog.palette().color(QPalette::Window), light);
    if (withWindow) {
        f.controller.showOrRaise();
    }
    f.controller.setAppearancePreference(QStringLiteral("dark"));
    QCOMPARE(f.preferences.appearance(), QStringLiteral("dark"));
    QCOMPARE(f.controller.appearancePreference(), QStringLiteral("dark"));
    QCOMPARE(dialog.palette().color(QPalette::Window), dark);
    // A window built later starts in the stored appearance.
    f.controller.showOrRaise();
    QCOMPARE(f.controller.window()->effectiveAppearance(), Appearance::Dark);
}

QTEST_MAIN(TestWindowController)
#include "TestWindowController.moc"
