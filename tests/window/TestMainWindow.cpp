#include "AccountPage.h"
#include "AppState.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "LocationsPage.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "NavigationSidebar.h"
#include "NotificationHost.h"
#include "QuitWatcher.h"
#include "SettingsPage.h"
#include "SignalProbe.h"
#include "TempXdgDirs.h"
#include "ThemeEngine.h"
#include "VpnPage.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

const QList<QByteArray> kWindowSignals = {
    "hiddenToTray()",
    "connectRuntimeRequested()",
    "cancelConnectRequested()",
    "disconnectRuntimeRequested()",
    "setModeRequested(ModeInfo)",
    "splitRulesRequested()",
    "importSplitRulesRequested(QString,QString)",
    "setLocalNetworkRequested(QString)",
    "refreshLocationsRequested()",
    "connectNodeRequested(QString,QString)",
    "recentConnectionsCleared()",
    "connectSmartRequested(QString)",
    "pendingConnectTargetChanged(QString,QString)",
    "setNodeFavoriteRequested(QString,bool)",
    "openLogsRequested()",
    "openExternalURLRequested(QUrl)",
    "settingsVisibleRequested()",
    "setKillSwitchEnabledRequested(bool)",
    "setKillSwitchModeRequested(QString)",
    "switchToAutoAndEnableKillSwitchRequested()",
    "chooseModeForKillSwitchRequested()",
    "modePageLeft()",
    "setSystemProxyRequested(QString)",
    "setAPIURLRequested(QString)",
    "resetAPIURLRequested()",
    "setAutoConnectRequested(QString)",
    "setLanguageRequested(QString,QString)",
    "checkUpdateRequested()",
    "setProxyListenersRequested(QString,QString)",
    "setSplitDNSLocalRequested(QStringList)",
    "setSplitDNSPolicyRequested(QString)",
    "clearSplitDNSLocalRequested()",
    "resetSplitDNSRequested()",
    "repairDiagnosticsRequested()",
    "loginRequested(QString,QString,bool)",
    "logoutRequested()",
    "purchaseURLRequested(QString)",
    "appearancePreferenceChanged()",
};

struct Fixture
{
    TempXdgDirs dirs;
    AppState state;
    GuiPreferences preferences;
    QPointer<MainWindow> window = new MainWindow(&state, &preferences);

    ~Fixture() { delete window.data(); }
    template<typename T>
    T *page() const
    {
        return window->findChild<T *>();
    }
    QLabel *title() const
    {
        return window->findChild<QLabel *>(QStringLiteral("TovraCurrentPageTitle"));
    }
    NotificationHost *host() const { return window->findChild<NotificationHost *>(); }
    QString hostText() const
    {
        return host()->findChild<QLabel *>(QStringLiteral("TovraNotificationMessage"))->text();
    }
};

SplitRulesInfo someRules()
{
    SplitRulesInfo rules;
    rules.valid = true;
    rules.rules.insert(QStringLiteral("direct"), {QStringLiteral("example.org")});
    return rules;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void construction_data();
    void construction();
    void signalOrder_data();
    void signalOrder();
    void invalidPageChangesNothing_data();
    void invalidPageChangesNothing();
    void pageSwitchSignals_data();
    void pageSwitchSignals();
    void splitRulesRequest_data();
    void splitRulesRequest();
    void splitRulesNotRequestedAgainWhileFetching();
    void busyShownOnlyAfterDelay();
    void busyClearedBeforeDelayNeverShows();
    void errorFallbacks_data();
    void errorFallbacks();
    void appearance_data();
    void appearance();
    void pageIntentsReachWindow_data();
    void pageIntentsReachWindow();
    void closeHidesToTray_data();
    void closeHidesToTray();
    void closeQuitsWithoutHideOnClose();
};

void TestMainWindow::initTestCase()
{
    registerControlMetaTypes();
    // As the window controller does: closing the last window never quits by itself.
    QApplication::setQuitOnLastWindowClosed(false);
}

void TestMainWindow::construction_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<int>("stackIndex");
    QTest::addRow("root") << "TovraWindowRoot" << -1;
    QTest::addRow("sidebar") << "TovraSidebar" << -1;
    QTest::addRow("divider") << "TovraSidebarDivider" << -1;
    QTest::addRow("title") << "TovraCurrentPageTitle" << -1;
    QTest::addRow("notifications") << "TovraNotificationHost" << -1;
    QTest::addRow("vpn page") << "TovraVPNPage" << 0;
    QTest::addRow("locations page") << "TovraLocationsPage" << 1;
    QTest::addRow("mode page") << "TovraModePage" << 2;
    QTest::addRow("settings page") << "TovraSettingsPage" << 3;
    QTest::addRow("account page") << "TovraAccountPage" << 4;
}

void TestMainWindow::construction()
{
    QFETCH(QString, objectName);
    QFETCH(int, stackIndex);
    Fixture f;
    QCOMPARE(f.window->windowTitle(), QStringLiteral("Tovra"));
    QCOMPARE(f.window->minimumSize(), QSize(780, 620));
    QCOMPARE(f.window->currentPage(), 0);
    QVERIFY(!f.host()->isVisible());
    auto *widget = f.window->findChild<QWidget *>(objectName);
    QVERIFY(widget);
    if (stackIndex >= 0) {
        QCOMPARE(f.window->findChild<QStackedWidget *>()->widget(stackIndex), widget);
    }
    auto *close = f.window->findChild<QAction *>(QStringLiteral("TovraCloseWindowAction"));
    QVERIFY(close);
    QVERIFY(f.window->actions().contains(close));
    QCOMPARE(close->shortcut(), QKeySequence(QKeySequence::Close));
    QCOMPARE(close->shortcutContext(), Qt::WindowShortcut);
}

void TestMainWindow::signalOrder_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QByteArray>("signature");
    for (int i = 0; i < kWindowSignals.size(); ++i) {
        QTest::addRow("%d %s", i, kWindowSignals.at(i).constData()) << i << kWindowSignals.at(i);
    }
}

void TestMainWindow::signalOrder()
{
    QFETCH(int, position);
    QFETCH(QByteArray, signature);
    const QList<QByteArray> declared = SignalProbe::ownSignals(MainWindow::staticMetaObject);
    QCOMPARE(declared.size(), kWindowSignals.size());
    QCOMPARE(declared.at(position), signature);
}

void TestMainWindow::invalidPageChangesNothing_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("index");
    QTest::addRow("negative from vpn") << 0 << -1;
    QTest::addRow("past the end from vpn") << 0 << 5;
    QTest::addRow("negative from mode") << 2 << -1;
    QTest::addRow("past the end from mode") << 2 << 5;
}

void TestMainWindow::invalidPageChangesNothing()
{
    QFETCH(int, start);
    QFETCH(int, index);
    Fixture f;
    f.state.setSplitRules(someRules());
    f.window->showPage(start);
    const QString title = f.title()->text();
    QSignalSpy left(f.window, &MainWindow::modePageLeft);
    QSignalSpy settings(f.window, &MainWindow::settingsVisibleRequested);
    f.window->showPage(index);
    QCOMPARE(f.window->currentPage(), start);
    QCOMPARE(f.window->findChild<NavigationSidebar *>()->currentIndex(), start);
    QCOMPARE(f.title()->text(), title);
    QCOMPARE(left.count(), 0);
    QCOMPARE(settings.count(), 0);
}

void TestMainWindow::pageSwitchSignals_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("modeLeft");
    QTest::addColumn<int>("settingsVisible");
    QTest::addColumn<QString>("title"); // empty: no page title shown
    QTest::addRow("mode to vpn") << 2 << 0 << 1 << 0 << QString();
    QTest::addRow("mode to locations") << 2 << 1 << 1 << 0 << "Locations";
    QTest::addRow("mode to settings") << 2 << 3 << 1 << 1 << "Settings";
    QTest::addRow("mode to account") << 2 << 4 << 1 << 0 << "Account";
    QTest::addRow("mode to mode") << 2 << 2 << 0 << 0 << "Mode";
    QTest::addRow("vpn to mode") << 0 << 2 << 0 << 0 << "Mode";
    QTest::addRow("locations to settings") << 1 << 3 << 0 << 1 << "Settings";
    QTest::addRow("settings to vpn") << 3 << 0 << 0 << 0 << QString();
}

void TestMainWindow::pageSwitchSignals()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, modeLeft);
    QFETCH(int, settingsVisible);
    QFETCH(QString, title);
    Fixture f;
    f.state.setSplitRules(someRules());
    f.window->show();
    f.window->showPage(from);
    QSignalSpy left(f.window, &MainWindow::modePageLeft);
    QSignalSpy settings(f.window, &MainWindow::settingsVisibleRequested);
    f.window->showPage(to);
    QCOMPARE(f.window->currentPage(), to);
    QCOMPARE(left.count(), modeLeft);
    QCOMPARE(settings.count(), settingsVisible);
    QCOMPARE(f.title()->isVisible(), !title.isEmpty());
    if (!title.isEmpty()) {
        QCOMPARE(f.title()->text(), title);
    }
    QCOMPARE(f.window->findChild<NavigationSidebar *>()->currentIndex(), to);
}

void TestMainWindow::splitRulesRequest_data()
{
    QTest::addColumn<bool>("haveRules");
    QTest::addColumn<bool>("fetching");
    QTest::addColumn<bool>("importing");
    QTest::addColumn<int>("requests");
    QTest::addRow("no rules") << false << false << false << 1;
    QTest::addRow("rules held") << true << false << false << 0;
    QTest::addRow("fetch running") << false << true << false << 0;
    QTest::addRow("import running") << false << false << true << 0;
}

void TestMainWindow::splitRulesRequest()
{
    QFETCH(bool, haveRules);
    QFETCH(bool, fetching);
    QFETCH(bool, importing);
    QFETCH(int, requests);
    Fixture f;
    if (haveRules) {
        f.state.setSplitRules(someRules());
    }
    f.window->setSplitRulesFetchInProgress(fetching);
    f.window->setSplitRulesImportInProgress(importing);
    QCOMPARE(f.page<ModePage>()->isSplitRulesFetchInProgress(), fetching);
    QCOMPARE(f.page<ModePage>()->isSplitRulesImportInProgress(), importing);
    QSignalSpy requested(f.window, &MainWindow::splitRulesRequested);
    f.window->showPage(2);
    QCOMPARE(requested.count(), requests);
}

void TestMainWindow::splitRulesNotRequestedAgainWhileFetching()
{
    Fixture f;
    QSignalSpy requested(f.window, &MainWindow::splitRulesRequested);
    f.window->showPage(2);
    QCOMPARE(requested.count(), 1);
    f.window->setSplitRulesFetchInProgress(true);
    f.window->showPage(0);
    f.window->showPage(2);
    QCOMPARE(requested.count(), 1);
    // The fetch failed: coming back asks again.
    f.window->setSplitRulesFetchInProgress(false);
    f.window->showPage(0);
    f.window->showPage(2);
    QCOMPARE(requested.count(), 2);
}

void TestMainWindow::busyShownOnlyAfterDelay()
{
    Fixture f;
    ModePage *mode = f.page<ModePage>();
    f.window->setModeOperationBusy(true);
    QVERIFY(!mode->isModeBusy());
    QTRY_VERIFY(mode->isModeBusy());
    f.window->setModeOperationBusy(false);
    QVERIFY(!mode->isModeBusy());
}

void TestMainWindow::busyClearedBeforeDelayNeverShows()
{
    Fixture f;
    ModePage *mode = f.page<ModePage>();
    f.window->setModeOperationBusy(true);
    f.window->setSettingsOperationBusy(true);
    f.window->setModeOperationBusy(false);
    // The settings indicator started later with the same delay; once it shows, the mode one
    // would have shown too had its timer survived.
    QTRY_VERIFY(f.page<SettingsPage>()->isBusy());
    QVERIFY(mode->isSettingsBusy());
    QVERIFY(!mode->isModeBusy());
    f.window->setSettingsOperationBusy(false);
    QVERIFY(!f.page<SettingsPage>()->isBusy());
    QVERIFY(!mode->isSettingsBusy());
}

void TestMainWindow::errorFallbacks_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("shown");
    QTest::addRow("operation, empty")
        << QByteArray("showOperationError") << QString() << "Operation failed";
    QTest::addRow("operation, blank") << QByteArray("showOperationError") << " \t "
                                      << "Operation failed";
    QTest::addRow("operation, daemon text")
        << QByteArray("showOperationError") << "  node is offline \n"
        << "node is offline";
    QTest::addRow("settings, empty")
        << QByteArray("showSettingsOperationError") << QString() << "Settings operation failed";
    QTest::addRow("mode, empty") << QByteArray("showModeOperationError") << QString()
                                 << "Mode operation failed";
    QTest::addRow("mode, daemon text") << QByteArray("showModeOperationError") << "bad rule "
                                       << "bad rule";
}

void TestMainWindow::errorFallbacks()
{
    QFETCH(QByteArray, operation);
    QFETCH(QString, message);
    QFETCH(QString, shown);
    Fixture f;
    f.window->show();
    using Report = void (MainWindow::*)(const QString &);
    const QHash<QByteArray, Report> reports = {
        {"showOperationError", &MainWindow::showOperationError},
        {"showSettingsOperationError", &MainWindow::showSettingsOperationError},
        {"showModeOperationError", &MainWindow::showModeOperationError},
    };
    (f.window->*reports.value(operation))(message);
    NotificationHost *host = f.host();
    QVERIFY(host->isVisible());
    QCOMPARE(f.hostText(), shown);
    QCOMPARE(host->kind(), QStringLiteral("error"));
    auto *timer = host->findChild<QTimer *>();
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 5000);
    QVERIFY(f.window->findChild<QStackedWidget *>()->geometry().contains(host->geometry()));
}

void TestMainWindow::appearance_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<bool>("fromSettingsPage");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<Appearance>("effective");
    QTest::addColumn<int>("changes");
    QTest::addRow("dark") << "dark" << false << "dark" << Appearance::Dark << 1;
    QTest::addRow("light") << "light" << false << "light" << Appearance::Light << 1;
    QTest::addRow("dark from settings page") << "dark" << true << "dark" << Appearance::Dark << 1;
    QTest::addRow("system again") << "system" << false << "system" << Appearance::Light << 0;
    QTest::addRow("unknown means system") << "sepia" << false << "system" << Appearance::Light << 0;
}

void TestMainWindow::appearance()
{
    QFETCH(QString, preference);
    QFETCH(bool, fromSettingsPage);
    QFETCH(QString, stored);
    QFETCH(Appearance, effective);
    QFETCH(int, changes);
    Fixture f;
    QSignalSpy changed(f.window, &MainWindow::appearancePreferenceChanged);
    if (fromSettingsPage) {
        Q_EMIT f.page<SettingsPage>()->appearanceChangeRequested(preference);
    } else {
        f.window->setAppearancePreference(preference);
    }
    QCOMPARE(changed.count(), changes);
    QCOMPARE(f.window->appearancePreference(), stored);
    QCOMPARE(f.preferences.appearance(), stored);
    QCOMPARE(f.window->effectiveAppearance(), effective);
    const ThemeColors colors = ThemeEngine::buildColors(effective);
    QCOMPARE(f.window->palette().color(QPalette::Window), colors.color(ThemeColor::WindowBg));
    QCOMPARE(f.page<ModePage>()->themeColors().appearance(), effective);
}

void TestMainWindow::pageIntentsReachWindow_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QByteArray>("signature");
    const QList<std::pair<const char *, const QMetaObject *>> pages = {
        {"TovraVPNPage", &VpnPage::staticMetaObject},
        {"TovraLocationsPage", &LocationsPage::staticMetaObject},
        {"TovraModePage", &ModePage::staticMetaObject},
        {"TovraSettingsPage", &SettingsPage::staticMetaObject},
        {"TovraAccountPage", &AccountPage::staticMetaObject},
    };
    for (const auto &[name, metaObject] : pages) {
        for (const QByteArray &signature : SignalProbe::ownSignals(*metaObject)) {
            if (kWindowSignals.contains(signature)) {
                QTest::addRow("%s %s", name, signature.constData())
                    << QString::fromLatin1(name) << signature;
            }
        }
    }
}

void TestMainWindow::pageIntentsReachWindow()
{
    QFETCH(QString, page);
    QFETCH(QByteArray, signature);
    Fixture f;
    QObject *source = f.window->findChild<QWidget *>(page);
    const QMetaMethod method =
        source->metaObject()->method(source->metaObject()->indexOfSignal(signature.constData()));
    ModeInfo mode;
    mode.valid = true;
    mode.transport = QStringLiteral("wireguard");
    const QVariantList arguments =
        SignalProbe::sampleArguments(method, {{"ModeInfo", QVariant::fromValue(mode)}});
    QSignalSpy received(f.window, SignalProbe::spyName(signature).constData());
    QVERIFY(SignalProbe::emitSignal(source, signature, arguments));
    QCOMPARE(received.count(), 1);
    QCOMPARE(received.at(0), arguments);
}

void TestMainWindow::closeHidesToTray_data()
{
    QTest::addColumn<bool>("deleteOnClose");
    QTest::addColumn<bool>("byShortcut");
    QTest::addColumn<int>("startPage");
    QTest::addRow("hide, keep") << false << false << 0;
    QTest::addRow("hide, keep, from mode") << false << false << 2;
    QTest::addRow("hide by close shortcut") << false << true << 2;
    QTest::addRow("hide, delete") << true << false << 2;
}

void TestMainWindow::closeHidesToTray()
{
    QFETCH(bool, deleteOnClose);
    QFETCH(bool, byShortcut);
    QFETCH(int, startPage);
    Fixture f;
    f.state.setSplitRules(someRules());
    f.window->setDeleteOnClose(deleteOnClose);
    QCOMPARE(f.window->testAttribute(Qt::WA_DeleteOnClose), deleteOnClose);
    f.window->show();
    f.window->showPage(startPage);
    QSignalSpy hidden(f.window, &MainWindow::hiddenToTray);
    QSignalSpy left(f.window, &MainWindow::modePageLeft);
    auto *close = f.window->findChild<QAction *>(QStringLiteral("TovraCloseWindowAction"));
    QuitWatcher quit;
    QuitWatcher::runLoopAround([&] {
        if (byShortcut) {
            close->trigger();
        } else {
            f.window->close();
        }
    });
    QCOMPARE(quit.quitRequests(), 0);
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(left.count(), startPage == 2 ? 1 : 0);
    if (deleteOnClose) {
        QTRY_VERIFY(f.window.isNull());
        return;
    }
    QVERIFY(!f.window->isVisible());
    // It comes back as it was.
    f.window->show();
    QCOMPARE(f.window->currentPage(), startPage);
}

void TestMainWindow::closeQuitsWithoutHideOnClose()
{
    Fixture f;
    f.window->setHideOnClose(false);
    f.window->show();
    QSignalSpy hidden(f.window, &MainWindow::hiddenToTray);
    QuitWatcher quit;
    QuitWatcher::runLoopAround([&] { f.window->close(); });
    QCOMPARE(quit.quitRequests(), 1);
    QCOMPARE(hidden.count(), 0);
    QVERIFY(!f.window->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
