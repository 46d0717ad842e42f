#include "AppState.h"
#include "ControlMetaTypes.h"
#include "DemoDaemon.h"
#include "MainWindow.h"
#include "ModeChoiceCard.h"
#include "ModeInlineError.h"
#include "ModeOptionButton.h"
#include "ModePage.h"
#include "ModeSegmentedBar.h"
#include "NetworkOptionsCard.h"
#include "SplitOptionsCard.h"
#include "TempXdgDirs.h"
#include "ToggleSwitch.h"
#include "TovraAppShell.h"
#include "TovraRegionPickerDialog.h"
#include "TovraSplitRulesEditorDialog.h"
#include "WindowController.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Long enough for a routing change through the worker thread on a loaded machine.
constexpr int kAnswerMs = 10000;

struct Client
{
    TovraAppShell shell;
    ModePage *page = nullptr;

    explicit Client(const QString &socket)
        : shell(nullptr, socket)
    {
        shell.setSystemTrayAvailable(false);
        shell.start();
    }
    bool ready()
    {
        if (shell.compatibilityState() != TovraAppShell::Compatible ||
            !shell.state()->runtime().mode.valid)
            return false;
        MainWindow *window = shell.windowController()->window();
        window->showPage(MainWindow::ModePageIndex);
        page = window->findChild<ModePage *>();
        return true;
    }
    const ModeInfo &mode() const { return shell.state()->runtime().mode; }
    SplitProfileInfo tunnelProfile() const { return mode().splitProfile; }
    bool checked(ModeChoice choice) const
    {
        return page->choiceCard()->option(choice)->isChecked();
    }
};

} // namespace

class TestModePageWithDemoDaemon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }
    void everyModeAndOption();
    void rulesImportShowsTheCount();
    void conflictShownInline();

private:
    TempXdgDirs m_dirs;
};

void TestModePageWithDemoDaemon::everyModeAndOption()
{
    DemoDaemon daemon;
    QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
    Client c(daemon.socketPath());
    QTRY_VERIFY_WITH_TIMEOUT(c.ready(), kAnswerMs);

    for (const ModeChoice choice :
         {ModeChoice::WireGuard, ModeChoice::TovraVpnGlobal, ModeChoice::ProxyGlobal,
          ModeChoice::ProxySplit, ModeChoice::Auto, ModeChoice::TovraVpnSplit}) {
        QTest::mouseClick(c.page->choiceCard()->option(choice), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(c.checked(choice), kAnswerMs);
        const ModeInfo sent = modeForChoice(choice);
        QCOMPARE(c.mode().transport, sent.transport);
    }

    // TovraVPN Split is in effect; the demo starts with CN going direct.
    SplitOptionsCard *split = c.page->splitCard();
    QVERIFY(split->hasFamily());
    QCOMPARE(c.tunnelProfile().directRegions, QStringList{u"CN"_s});
    QTest::mouseClick(split->defaultRouteBar()->segment(u"direct"_s), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(c.tunnelProfile().defaultRoute, u"direct"_s, kAnswerMs);
    QCOMPARE(split->defaultRouteBar()->currentValue(), u"direct"_s);
    // The regions that went direct are kept for when the route comes back.
    QCOMPARE(c.tunnelProfile().directRegions, QStringList{u"CN"_s});
    QTest::mouseClick(split->defaultRouteBar()->segment(u"proxy"_s), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(c.tunnelProfile().defaultRoute, u"proxy"_s, kAnswerMs);

    QTest::mouseClick(split->gfwListSwitch(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(split->gfwListSwitch()->isChecked(), kAnswerMs);
    QVERIFY(c.tunnelProfile().gfwlist);
    QTest::mouseClick(split->customRulesSwitch(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(split->customRulesSwitch()->isChecked(), kAnswerMs);
    QVERIFY(c.tunnelProfile().customRules);
    QVERIFY(c.tunnelProfile().gfwlist);

    QTest::mouseClick(split->chooseRegionsButton(), Qt::LeftButton);
    TovraRegionPickerDialog *picker = c.page->regionPicker();
    picker->searchField()->setText(u"germany"_s);
    QTest::keyClick(picker->searchField(), Qt::Key_Down);
    QTest::keyClick(picker->listView(), Qt::Key_Space);
    QTest::mouseClick(picker->saveButton(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(c.tunnelProfile().directRegions, (QStringList{u"CN"_s, u"DE"_s}),
                              kAnswerMs);
    QVERIFY(c.tunnelProfile().gfwlist);

    // The proxy family has options of its own.
    QTest::mouseClick(c.page->choiceCard()->option(ModeChoice::ProxySplit), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(c.checked(ModeChoice::ProxySplit), kAnswerMs);
    QCOMPARE(split->family(), SplitFamily::Proxy);
    QTest::mouseClick(split->gfwListSwitch(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(c.mode().proxySplitProfile.gfwlist, kAnswerMs);
    // The tunnel family's profile was left alone.
    QCOMPARE(c.tunnelProfile().directRegions, (QStringList{u"CN"_s, u"DE"_s}));

    NetworkOptionsCard *network = c.page->networkCard();
    QTest::mouseClick(network->localNetworkBar()->segment(u"protected"_s), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(network->localNetworkBar()->currentValue(), u"protected"_s,
                              kAnswerMs);
    QTest::mouseClick(network->systemProxyBar()->segment(u"lock"_s), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(c.mode().systemProxy, u"lock"_s, kAnswerMs);
}

void TestModePageWithDemoDaemon::rulesImportShowsTheCount()
{
    DemoDaemon daemon;
    QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
    Client c(daemon.socketPath());
    QTRY_VERIFY_WITH_TIMEOUT(c.ready(), kAnswerMs);
    QTest::mouseClick(c.page->choiceCard()->option(ModeChoice::TovraVpnSplit), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(c.checked(ModeChoice::TovraVpnSplit), kAnswerMs);

    QTest::mouseClick(c.page->splitCard()->editRulesButton(), Qt::LeftButton);
    TovraSplitRulesEditorDialog *editor = c.page->rulesEditor();
    QVERIFY(editor->isVisible());
    // Showing the page already fetched the rules: the daemon's three kinds.
    QTRY_COMPARE_WITH_TIMEOUT(editor->kinds(), (QStringList{u"direct"_s, u"proxy"_s, u"block"_s}),
                              kAnswerMs);
    editor->selectKind(u"block"_s);
    editor->editor()->setPlainText(u"# trackers\nads.example\n\n*.tracker.example\n"_s);
    QTest::mouseClick(editor->importButton(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(editor->resultLabel()->text(),
                              u"Custom split rules updated (2 rule(s))"_s, kAnswerMs);
    // The refreshed list comes back as the daemon keeps it, and the page counts it.
    QTRY_COMPARE_WITH_TIMEOUT(editor->editor()->toPlainText(),
                              u"ads.example\n*.tracker.example\n"_s, kAnswerMs);
    QVERIFY(!editor->hasUnsavedEdits(u"block"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!c.page->isSplitRulesFetchInProgress(), kAnswerMs);

    // The same list again is "unchanged".
    QTest::mouseClick(editor->importButton(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(editor->resultLabel()->text(), u"Custom split rules unchanged"_s,
                              kAnswerMs);
    bool counted = false;
    for (const QLabel *label : c.page->splitCard()->findChildren<QLabel *>())
        counted = counted || label->text().contains(u"Rules held: 2."_s);
    QVERIFY(counted);
}

void TestModePageWithDemoDaemon::conflictShownInline()
{
    DemoDaemon daemon;
    const QString conflict = u"Turn off Kill Switch before switching to Tovra Proxy."_s;
    QVERIFY2(daemon.start({u"--fail"_s, u"/v1/mode=409:{\"error\":\"%1\"}"_s.arg(conflict)}),
             qPrintable(daemon.errorString()));
    Client c(daemon.socketPath());
    QTRY_VERIFY_WITH_TIMEOUT(c.ready(), kAnswerMs);
    const ModeInfo before = c.mode();
    QTest::mouseClick(c.page->choiceCard()->option(ModeChoice::ProxyGlobal), Qt::LeftButton);
    ModeInlineError *error = c.page->choiceCard()->inlineError();
    QTRY_VERIFY_WITH_TIMEOUT(error->isVisible(), kAnswerMs);
    QCOMPARE(error->text(), conflict);
    QCOMPARE(c.mode().transport, before.transport);
    QVERIFY(!c.checked(ModeChoice::ProxyGlobal));
}

QTEST_MAIN(TestModePageWithDemoDaemon)
#include "TestModePageWithDemoDaemon.moc"
