#include "ControlMetaTypes.h"
#include "KeyboardShortcutsDialog.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "NavigationSidebar.h"
#include "NotificationHost.h"
#include "QuitWatcher.h"
#include "SettingsPage.h"
#include "ThemeEngine.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <array>

namespace {

struct Fixture : WindowFixture
{
    MainWindow *window = show();

    QLabel *title() const { return find<QLabel>(QStringLiteral("TovraCurrentPageTitle")); }
    NotificationHost *host() const { return find<NotificationHost>(); }
    // Split rules already held, so the mode page asks for none.
    void holdSplitRules()
    {
        SplitRulesInfo rules;
        rules.valid = true;
        rules.rules.insert(QStringLiteral("direct"), {QStringLiteral("example.org")});
        state.setSplitRules(rules);
    }
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerControlMetaTypes();
        // As the window controller does: closing the last window never quits by itself.
        QApplication::setQuitOnLastWindowClosed(false);
    }

    void showPage_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("shown");
        QTest::addColumn<int>("modeLeft");
        QTest::addColumn<int>("settingsVisible");
        QTest::addColumn<QString>("title"); // empty: no page title shown
        QTest::addRow("mode to vpn") << 2 << 0 << 0 << 1 << 0 << QString();
        QTest::addRow("mode to settings") << 2 << 3 << 3 << 1 << 1 << "Settings";
        QTest::addRow("mode to mode") << 2 << 2 << 2 << 0 << 0 << "Mode";
        QTest::addRow("past the end from mode") << 2 << 5 << 2 << 0 << 0 << "Mode";
    }

    void showPage()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, shown);
        QFETCH(int, modeLeft);
        QFETCH(int, settingsVisible);
        QFETCH(QString, title);
        Fixture f;
        f.holdSplitRules();
        f.window->show();
        f.window->showPage(from);
        QSignalSpy left(f.window, &MainWindow::modePageLeft);
        QSignalSpy settings(f.window, &MainWindow::settingsVisibleRequested);
        f.window->showPage(to);
        QCOMPARE(f.window->currentPage(), shown);
        QCOMPARE(f.find<NavigationSidebar>()->currentIndex(), shown);
        QCOMPARE(left.count(), modeLeft);
        QCOMPARE(settings.count(), settingsVisible);
        QCOMPARE(f.title()->isVisible(), !title.isEmpty());
        if (!title.isEmpty()) {
            QCOMPARE(f.title()->text(), title);
        }
    }

    void splitRulesRequest()
    {
        Fixture f;
        QSignalSpy requested(f.window, &MainWindow::splitRulesRequested);
        const auto visitMode = [&] {
            f.window->showPage(MainWindow::VpnPageIndex);
            f.window->showPage(MainWindow::ModePageIndex);
        };
        // An import under way brings the list back by itself.
        f.window->setSplitRulesImportInProgress(true);
        visitMode();
        QCOMPARE(requested.count(), 0);
        f.window->setSplitRulesImportInProgress(false);
        visitMode();
        QCOMPARE(requested.count(), 1);
        f.window->setSplitRulesFetchInProgress(true);
        visitMode();
        QCOMPARE(requested.count(), 1);
        // The fetch failed: coming back asks again; rules held are not asked for.
        f.window->setSplitRulesFetchInProgress(false);
        visitMode();
        QCOMPARE(requested.count(), 2);
        f.holdSplitRules();
        visitMode();
        QCOMPARE(requested.count(), 2);
    }

    void errorFallbacks_data()
    {
        QTest::addColumn<int>("report"); // 0 operation, 1 mode
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("shown");
        QTest::addRow("operation, daemon text")
            << 0 << QStringLiteral("  node is offline \n") << "node is offline";
        QTest::addRow("mode, empty") << 1 << QString() << "Mode operation failed";
    }

    void errorFallbacks()
    {
        QFETCH(int, report);
        QFETCH(QString, message);
        QFETCH(QString, shown);
        Fixture f;
        f.window->show();
        const std::array reports = {&MainWindow::showOperationError,
                                    &MainWindow::showModeOperationError};
        (f.window->*reports.at(report))(message);
        QVERIFY(f.host()->isVisible());
        QCOMPARE(f.find<QLabel>(QStringLiteral("TovraNotificationMessage"))->text(), shown);
        QCOMPARE(f.host()->kind(), QStringLiteral("error"));
        QVERIFY(f.host()->findChild<QTimer *>()->isActive());
    }

    void appearance_data()
    {
        QTest::addColumn<QString>("preference");
        QTest::addColumn<bool>("fromSettingsPage");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<Appearance>("effective");
        QTest::addColumn<int>("changes");
        QTest::addRow("dark from settings page")
            << "dark" << true << "dark" << Appearance::Dark << 1;
        QTest::addRow("unknown means system")
            << "sepia" << false << "system" << Appearance::Light << 0;
    }

    void appearance()
    {
        QFETCH(QString, preference);
        QFETCH(bool, fromSettingsPage);
        QFETCH(QString, stored);
        QFETCH(Appearance, effective);
        QFETCH(int, changes);
        Fixture f;
        QSignalSpy changed(f.window, &MainWindow::appearancePreferenceChanged);
        if (fromSettingsPage) {
            Q_EMIT f.find<SettingsPage>()->appearanceChangeRequested(preference);
        } else {
            f.window->setAppearancePreference(preference);
        }
        QCOMPARE(changed.count(), changes);
        QCOMPARE(f.preferences.appearance(), stored);
        const ThemeColors colors = ThemeEngine::buildColors(effective);
        QCOMPARE(f.window->palette().color(QPalette::Window), colors.color(ThemeColor::WindowBg));
        QCOMPARE(f.find<ModePage>()->themeColors().appearance(), effective);
    }

    void shortcuts_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        QTest::addColumn<int>("startPage");
        QTest::addColumn<int>("cooldown");
        QTest::addColumn<int>("page");      // shown afterwards
        QTest::addColumn<QString>("focus"); // object name of the focused widget, or empty
        QTest::addColumn<int>("refreshes"); // refreshLocationsRequested
        QTest::addColumn<bool>("shortcutsShown");
        QTest::addColumn<bool>("quits");
        const QKeySequence ctrl2(Qt::CTRL | Qt::Key_2), find(QKeySequence::Find),
            ctrlR(Qt::CTRL | Qt::Key_R);
        QTest::addRow("Ctrl+2: Locations") << ctrl2 << 0 << 0 << 1 << "" << 0 << false << false;
        QTest::addRow("find on Locations")
            << find << 1 << 0 << 1 << "TovraLocationsSearch" << 0 << false << false;
        QTest::addRow("Ctrl+R") << ctrlR << 2 << 0 << 2 << "" << 1 << false << false;
        QTest::addRow("Ctrl+R in the cooldown")
            << ctrlR << 1 << 30 << 1 << "" << 0 << false << false;
        QTest::addRow("F1") << QKeySequence(QKeySequence::HelpContents) << 0 << 0 << 0 << "" << 0
                            << true << false;
        QTest::addRow("Ctrl+Q") << QKeySequence(Qt::CTRL | Qt::Key_Q) << 0 << 0 << 0 << "" << 0
                                << false << true;
    }

    void shortcuts()
    {
        QFETCH(QKeySequence, keys);
        QFETCH(int, startPage);
        QFETCH(int, cooldown);
        QFETCH(int, page);
        QFETCH(QString, focus);
        QFETCH(int, refreshes);
        QFETCH(bool, shortcutsShown);
        QFETCH(bool, quits);
        Fixture f;
        f.holdSplitRules();
        f.state.startNodesRefreshCooldown(cooldown);
        f.window->show();
        f.window->showPage(startPage);
        f.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(f.window));
        QSignalSpy refresh(f.window, &MainWindow::refreshLocationsRequested);
        if (quits) {
            // Quit ends the application's event loop; the deadline ends it with 1 otherwise.
            QTimer::singleShot(0, f.window, [&] { QTest::keySequence(f.window, keys); });
            QTimer::singleShot(5000, f.window, [] { QCoreApplication::exit(1); });
            QCOMPARE(QCoreApplication::exec(), 0);
        } else {
            QTest::keySequence(f.window, keys);
        }
        QCOMPARE(f.window->currentPage(), page);
        QCOMPARE(refresh.count(), refreshes);
        if (!focus.isEmpty())
            QTRY_COMPARE(QApplication::focusWidget() ? QApplication::focusWidget()->objectName()
                                                     : QString(),
                         focus);
        KeyboardShortcutsDialog *dialog = f.window->keyboardShortcutsDialog();
        QCOMPARE(dialog && dialog->isVisible(), shortcutsShown);
        if (dialog) {
            // Every shortcut is listed, its keys as the desktop writes them.
            const QList<WindowShortcuts::Entry> entries = WindowShortcuts::entries();
            QCOMPARE(dialog->list()->topLevelItemCount(), entries.size());
            QCOMPARE(dialog->list()->topLevelItem(1)->text(0), QStringLiteral("Ctrl+2"));
            QTest::keyClick(dialog->list(), Qt::Key_Escape);
            QTRY_VERIFY(!f.window->keyboardShortcutsDialog());
        }
    }
};

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
