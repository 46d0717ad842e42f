#include "AppState.h"
#include "CatalogFilterModel.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
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
#include "TovraRegionPickerDialog.h"
#include "WindowController.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

ModeInfo mode(const QString &transport, const QString &policy = QString())
{
    ModeInfo m;
    m.valid = true;
    m.transport = transport;
    m.policy = policy;
    m.localNetwork = u"direct"_s;
    m.systemProxy = u"off"_s;
    return m;
}

SplitProfileInfo profile(const QString &route, const QStringList &direct = {},
                         const QStringList &proxied = {})
{
    SplitProfileInfo p;
    p.valid = true;
    p.defaultRoute = route;
    p.directRegions = direct;
    p.proxyRegions = proxied;
    p.lanRouting = u"direct"_s;
    return p;
}

// A split record with something in every field, so that a change that drops one shows.
ModeInfo fullSplit(const QString &transport)
{
    ModeInfo m = mode(transport, u"split"_s);
    m.region = u"CN"_s;
    m.systemProxy = u"on"_s;
    m.localNetwork = u"protected"_s;
    m.splitProfile = profile(u"proxy"_s, {u"CN"_s});
    m.proxySplitProfile = profile(u"proxy"_s, {u"IR"_s});
    m.proxySplitProfile.customRules = true;
    m.lastProxyPolicy = u"split"_s;
    m.lastTovravpnPolicy = u"split"_s;
    return m;
}

struct Page
{
    AppState state;
    ModePage page;
    int confirmations = 0;
    int answer = 0;

    Page()
    {
        page.setProxyConfirmation([this](QWidget *) {
            ++confirmations;
            return answer;
        });
        page.resize(700, 900);
        page.show();
    }
    void setMode(const ModeInfo &m, bool killSwitch = false)
    {
        RuntimeInfo runtime;
        runtime.valid = true;
        runtime.mode = m;
        state.setRuntime(runtime);
        KillSwitchInfo ks;
        ks.valid = true;
        ks.enabled = killSwitch;
        ks.mode = u"auto"_s;
        state.setKillSwitch(ks);
        page.refresh(state);
    }
    ModeOptionButton *option(ModeChoice choice) const { return page.choiceCard()->option(choice); }
    QList<int> checked() const
    {
        QList<int> result;
        for (int i = 0; i <= int(ModeChoice::ProxySplit); ++i) {
            if (option(ModeChoice(i))->isChecked())
                result.append(i);
        }
        return result;
    }
};

ModeInfo onlyRequest(const QSignalSpy &spy)
{
    return spy.count() == 1 ? spy.at(0).at(0).value<ModeInfo>() : ModeInfo();
}

} // namespace

class TestModePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }
    void choiceSendsItsMode_data();
    void choiceSendsItsMode();
    void checkMarksFollowTheRecord_data();
    void checkMarksFollowTheRecord();
    void proxyWithKillSwitchSendsNothing_data();
    void proxyWithKillSwitchSendsNothing();
    void splitOptionChangesOneField_data();
    void splitOptionChangesOneField();
    void networkOptions_data();
    void networkOptions();
    void regionPickerSendsOneChange();
    void inlineErrorBesideItsControl();
    void busyDisablesTheChoices();
    void killSwitchOpensPageWithVpnModesMarked();
};

void TestModePage::choiceSendsItsMode_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("transport");
    QTest::addColumn<QString>("policy");
    QTest::addColumn<QString>("title");
    QTest::addRow("Auto") << int(ModeChoice::Auto) << "auto"
                          << ""
                          << "Auto";
    QTest::addRow("TovraVPN Split") << int(ModeChoice::TovraVpnSplit) << "tovravpn"
                                    << "split"
                                    << "TovraVPN Split";
    QTest::addRow("Tovra Proxy Global") << int(ModeChoice::ProxyGlobal) << "proxy"
                                        << "global"
                                        << "Tovra Proxy Global";
}

void TestModePage::choiceSendsItsMode()
{
    QFETCH(int, choice);
    QFETCH(QString, transport);
    QFETCH(QString, policy);
    QFETCH(QString, title);
    Page p;
    // Some other mode is in effect, so every choice is a change.
    ModeInfo current = mode(u"future"_s);
    p.setMode(current);
    QSignalSpy requested(&p.page, &ModePage::setModeRequested);
    ModeOptionButton *option = p.option(ModeChoice(choice));
    QCOMPARE(option->title(), title);
    QVERIFY(!option->description().isEmpty());
    QTest::mouseClick(option, Qt::LeftButton);
    const ModeInfo sent = onlyRequest(requested);
    QCOMPARE(sent.transport, transport);
    QCOMPARE(sent.policy, policy);
    // Only the daemon's answer checks the card.
    QVERIFY(!option->isChecked());
    // The same mode once in effect: choosing it again sends nothing.
    p.setMode(sent);
    QVERIFY(option->isChecked());
    option->setFocus();
    QTest::keyClick(option, Qt::Key_Space);
    QCOMPARE(requested.count(), 1);
}

void TestModePage::checkMarksFollowTheRecord_data()
{
    QTest::addColumn<ModeInfo>("record");
    QTest::addColumn<QList<int>>("checked");
    QTest::addColumn<QString>("unknownText");
    const auto C = [](std::initializer_list<ModeChoice> choices) {
        QList<int> ints;
        for (ModeChoice choice : choices)
            ints.append(int(choice));
        return ints;
    };
    QTest::addRow("auto") << mode(u"auto"_s) << C({ModeChoice::Auto}) << "";
    QTest::addRow("tovravpn split")
        << mode(u"tovravpn"_s, u"split"_s) << C({ModeChoice::TovraVpnSplit}) << "";
    QTest::addRow("proxy global") << mode(u"proxy"_s, u"global"_s) << C({ModeChoice::ProxyGlobal})
                                  << "";
    ModeInfo proxySplit = mode(u"proxy"_s, u"split"_s);
    proxySplit.proxySplitProfile = profile(u"proxy"_s, {u"CN"_s});
    QTest::addRow("proxy split with regions") << proxySplit << C({ModeChoice::ProxySplit}) << "";
    QTest::addRow("unknown transport") << mode(u"quic"_s) << C({}) << "quic";
    QTest::addRow("unknown policy")
        << mode(u"tovravpn"_s, u"smart-route"_s) << C({}) << "tovravpn smart-route";
    QTest::addRow("no record") << ModeInfo() << C({}) << "";
}

void TestModePage::checkMarksFollowTheRecord()
{
    QFETCH(ModeInfo, record);
    QFETCH(QList<int>, checked);
    QFETCH(QString, unknownText);
    Page p;
    p.setMode(record);
    QCOMPARE(p.checked(), checked);
    bool mentioned = unknownText.isEmpty();
    for (const QLabel *label : p.page.choiceCard()->findChildren<QLabel *>()) {
        if (!unknownText.isEmpty() && label->isVisible() && label->text().contains(unknownText))
            mentioned = true;
    }
    QVERIFY2(mentioned, qPrintable(unknownText));
    // Split options show only for a split mode in effect.
    const bool split = checked == QList<int>{int(ModeChoice::TovraVpnSplit)} ||
                       checked == QList<int>{int(ModeChoice::ProxySplit)};
    QCOMPARE(p.page.splitCard()->hasFamily(), split);
}

void TestModePage::proxyWithKillSwitchSendsNothing_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<int>("answer");
    QTest::addRow("global, cancelled") << int(ModeChoice::ProxyGlobal) << 0;
    QTest::addRow("split, open settings") << int(ModeChoice::ProxySplit) << 1;
}

void TestModePage::proxyWithKillSwitchSendsNothing()
{
    QFETCH(int, choice);
    QFETCH(int, answer);
    Page p;
    p.answer = answer;
    p.setMode(mode(u"auto"_s), true);
    QSignalSpy requested(&p.page, &ModePage::setModeRequested);
    QSignalSpy settings(&p.page, &ModePage::settingsPageRequested);
    QTest::mouseClick(p.option(ModeChoice(choice)), Qt::LeftButton);
    QCOMPARE(p.confirmations, 1);
    QCOMPARE(requested.count(), 0);
    QCOMPARE(settings.count(), answer);
    // A VPN mode needs no question.
    QTest::mouseClick(p.option(ModeChoice::WireGuard), Qt::LeftButton);
    QCOMPARE(p.confirmations, 1);
    QCOMPARE(requested.count(), 1);
}

void TestModePage::splitOptionChangesOneField_data()
{
    QTest::addColumn<ModeInfo>("current");
    QTest::addColumn<QString>("control");
    QTest::addColumn<ModeInfo>("expected");

    const ModeInfo tunnel = fullSplit(u"tovravpn"_s);
    ModeInfo gfw = tunnel;
    gfw.splitProfile.gfwlist = true;
    QTest::addRow("tunnel gfwlist on") << tunnel << "gfwlist" << gfw;
    ModeInfo proxy = fullSplit(u"proxy"_s);
    proxy.proxySplitProfile.defaultRoute = u"direct"_s;
    ModeInfo proxyRoute = proxy;
    proxyRoute.proxySplitProfile.defaultRoute = u"proxy"_s;
    QTest::addRow("proxy default proxy") << proxy << "route:proxy" << proxyRoute;
    // A legacy region policy: the profile it stands for is the starting point.
    ModeInfo legacy = mode(u"tovravpn"_s, u"bypass-region"_s);
    legacy.region = u"CN,IR"_s;
    ModeInfo legacyGfw = legacy;
    legacyGfw.policy = u"split"_s;
    legacyGfw.splitProfile = profile(u"proxy"_s, {u"CN"_s, u"IR"_s});
    legacyGfw.splitProfile.lanRouting.clear();
    legacyGfw.splitProfile.gfwlist = true;
    QTest::addRow("legacy policy gfwlist on") << legacy << "gfwlist" << legacyGfw;
}

void TestModePage::splitOptionChangesOneField()
{
    QFETCH(ModeInfo, current);
    QFETCH(QString, control);
    QFETCH(ModeInfo, expected);
    Page p;
    p.setMode(current);
    QSignalSpy requested(&p.page, &ModePage::setModeRequested);
    SplitOptionsCard *split = p.page.splitCard();
    if (control.startsWith(u"route:")) {
        QTest::mouseClick(split->defaultRouteBar()->segment(control.mid(6)), Qt::LeftButton);
    } else {
        ToggleSwitch *toggle =
            control == u"gfwlist" ? split->gfwListSwitch() : split->customRulesSwitch();
        const bool before = toggle->isChecked();
        QTest::mouseClick(toggle, Qt::LeftButton);
        QCOMPARE(toggle->isChecked(), before);
    }
    const ModeInfo sent = onlyRequest(requested);
    QCOMPARE(sent.splitProfile, expected.splitProfile);
    QCOMPARE(sent.proxySplitProfile, expected.proxySplitProfile);
    QCOMPARE(sent.region, expected.region);
    QVERIFY(sent == expected);
    // The segment shows the daemon's route until it answers.
    const QString shown = split->defaultRouteBar()->currentValue();
    QCOMPARE(split->defaultRouteBar()->segment(shown)->isChecked(), true);
}

void TestModePage::networkOptions_data()
{
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("proxy");
    QTest::addColumn<QString>("checkedLocal");
    QTest::addColumn<QString>("checkedProxy");
    QTest::addRow("direct, off") << "direct"
                                 << "off"
                                 << "direct"
                                 << "off";
    QTest::addRow("protected, lock-on") << "protected"
                                        << "lock-on"
                                        << "protected"
                                        << "lock";
    QTest::addRow("unknown words") << "bridged"
                                   << "auto"
                                   << ""
                                   << "";
}

void TestModePage::networkOptions()
{
    QFETCH(QString, local);
    QFETCH(QString, proxy);
    QFETCH(QString, checkedLocal);
    QFETCH(QString, checkedProxy);
    Page p;
    ModeInfo m = mode(u"auto"_s);
    m.localNetwork = local;
    m.systemProxy = proxy;
    p.setMode(m);
    ModeSegmentedBar *lan = p.page.networkCard()->localNetworkBar();
    ModeSegmentedBar *system = p.page.networkCard()->systemProxyBar();
    for (const auto &[bar, value] :
         {std::pair{lan, checkedLocal}, std::pair{system, checkedProxy}}) {
        for (const QString &segment : bar->values())
            QCOMPARE(bar->segment(segment)->isChecked(), segment == value);
    }
    QSignalSpy lanSpy(&p.page, &ModePage::setLocalNetworkRequested);
    QSignalSpy proxySpy(&p.page, &ModePage::setSystemProxyRequested);
    for (const QString &value : lan->values())
        QTest::mouseClick(lan->segment(value), Qt::LeftButton);
    for (const QString &value : system->values())
        QTest::mouseClick(system->segment(value), Qt::LeftButton);
    // The value in effect is not asked for again.
    QStringList lanSent, proxySent;
    for (const QList<QVariant> &args : lanSpy)
        lanSent.append(args.at(0).toString());
    for (const QList<QVariant> &args : proxySpy)
        proxySent.append(args.at(0).toString());
    QStringList lanExpected{u"direct"_s, u"protected"_s};
    lanExpected.removeAll(checkedLocal);
    QStringList proxyExpected{u"off"_s, u"on"_s, u"lock"_s};
    proxyExpected.removeAll(checkedProxy);
    QCOMPARE(lanSent, lanExpected);
    QCOMPARE(proxySent, proxyExpected);
    // The daemon's word is kept, even one that checks no segment.
    QCOMPARE(lan->currentValue(), local);
}

void TestModePage::regionPickerSendsOneChange()
{
    Page p;
    ModeInfo current = fullSplit(u"tovravpn"_s);
    p.setMode(current);
    QSignalSpy requested(&p.page, &ModePage::setModeRequested);
    QTest::mouseClick(p.page.splitCard()->chooseRegionsButton(), Qt::LeftButton);
    TovraRegionPickerDialog *picker = p.page.regionPicker();
    QVERIFY(picker && picker->isVisible());
    QAbstractItemModelTester tester(picker->filterModel(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester sourceTester(picker->sourceModel(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(picker->explanation()->text().contains(u"goes direct"_s));
    QCOMPARE(picker->selectedRegions(), QStringList{u"CN"_s});

    // Check Germany from the keyboard: search, Enter to the matches, Space to check.
    QTest::keyClicks(picker->searchField(), u"germ"_s);
    QCOMPARE(picker->filterModel()->rowCount(), 1);
    QTest::keyClick(picker->searchField(), Qt::Key_Return);
    QVERIFY(picker->isVisible());
    QTest::keyClick(picker->listView(), Qt::Key_Space);
    QCOMPARE(picker->selectedRegions(), (QStringList{u"CN"_s, u"DE"_s}));
    // And the United Kingdom by a click on its row, away from the box; its code finds it too.
    picker->searchField()->setText(u"GB"_s);
    QCOMPARE(picker->filterModel()->rowCount(), 1);
    picker->searchField()->setText(u"kingdom"_s);
    QListView *list = picker->listView();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(picker->filterModel()->index(0, 0)).center());
    QCOMPARE(picker->selectedRegions(), (QStringList{u"CN"_s, u"DE"_s, u"GB"_s}));
    QCOMPARE(requested.count(), 0);

    QTest::mouseClick(picker->saveButton(), Qt::LeftButton);
    ModeInfo expected = current;
    expected.splitProfile.directRegions = {u"CN"_s, u"DE"_s, u"GB"_s};
    QVERIFY(onlyRequest(requested) == expected);

    // Opened again with nothing changed: Save sends nothing.
    p.page.openRegionPicker();
    QCOMPARE(picker->selectedRegions(), QStringList{u"CN"_s});
    picker->accept();
    QCOMPARE(requested.count(), 1);

    // With the default route direct the picker edits the regions that go through.
    current.splitProfile.defaultRoute = u"direct"_s;
    current.splitProfile.proxyRegions = {u"us"_s};
    p.setMode(current);
    p.page.openRegionPicker();
    QVERIFY(picker->explanation()->text().contains(u"through the tunnel"_s));
    QCOMPARE(picker->selectedRegions(), QStringList{u"US"_s});
    picker->reject();
    QCOMPARE(requested.count(), 1);
}

void TestModePage::inlineErrorBesideItsControl()
{
    Page p;
    p.setMode(fullSplit(u"tovravpn"_s));
    const QString conflict = u"Turn off Kill Switch before switching to Tovra Proxy."_s;
    // Nothing asked from this page: the window notifies.
    QVERIFY(!p.page.offerInlineError(conflict));

    QTest::mouseClick(p.option(ModeChoice::ProxyGlobal), Qt::LeftButton);
    QVERIFY(p.page.offerInlineError(conflict));
    ModeInlineError *modeError = p.page.choiceCard()->inlineError();
    QVERIFY(modeError->isVisible());
    QCOMPARE(modeError->text(), conflict);
    // One answer, one error: a later one with no new attempt goes to the window.
    QVERIFY(!p.page.offerInlineError(u"other"_s));

    // The next attempt clears it, and its own error lands by its own control.
    QTest::mouseClick(p.page.networkCard()->systemProxyBar()->segment(u"lock"_s), Qt::LeftButton);
    QVERIFY(!modeError->isVisible());
    QVERIFY(p.page.offerInlineError(u"system proxy is locked by policy"_s));
    QVERIFY(p.page.networkCard()->inlineError()->isVisible());

    // Out of sight the window notifies instead.
    QTest::mouseClick(p.page.splitCard()->gfwListSwitch(), Qt::LeftButton);
    p.page.hide();
    QVERIFY(!p.page.offerInlineError(u"Could not switch mode"_s));
}

void TestModePage::busyDisablesTheChoices()
{
    Page p;
    p.setMode(fullSplit(u"tovravpn"_s));
    p.page.setModeBusy(true);
    QVERIFY(!p.option(ModeChoice::Auto)->isEnabled());
    QVERIFY(!p.page.splitCard()->gfwListSwitch()->isEnabled());
    QVERIFY(!p.page.networkCard()->localNetworkBar()->isEnabled());
    QVERIFY(p.page.findChild<QLabel *>(u"TovraModeBusy"_s)->isVisible());
    p.page.setModeBusy(false);
    QVERIFY(p.option(ModeChoice::Auto)->isEnabled());
    // A kill switch change in flight holds the mode choices only.
    p.page.setSettingsBusy(true);
    QVERIFY(!p.option(ModeChoice::Auto)->isEnabled());
    QVERIFY(p.page.splitCard()->gfwListSwitch()->isEnabled());
    p.page.setSettingsBusy(false);
    QVERIFY(p.option(ModeChoice::Auto)->isEnabled());
}

void TestModePage::killSwitchOpensPageWithVpnModesMarked()
{
    TempXdgDirs dirs;
    AppState state;
    GuiPreferences preferences;
    WindowController controller(&state, &preferences);
    controller.showModePageForKillSwitch();
    MainWindow *window = controller.window();
    QCOMPARE(window->currentPage(), int(MainWindow::ModePageIndex));
    auto *page = window->findChild<ModePage *>();
    for (int i = 0; i <= int(ModeChoice::ProxySplit); ++i) {
        const ModeChoice choice = ModeChoice(i);
        QCOMPARE(page->choiceCard()->option(choice)->isHighlighted(),
                 ModeChoiceCard::isVpnChoice(choice));
    }
    QCOMPARE(page->choiceCard()->option(ModeChoice::TovraVpnSplit)->isHighlighted(), true);
    // Leaving the page ends the wait for a mode.
    window->showPage(MainWindow::VpnPageIndex);
    QVERIFY(!page->choiceCard()->vpnModesHighlighted());
    // "Open Settings" from the proxy question goes to the Settings page.
    window->showPage(MainWindow::ModePageIndex);
    Q_EMIT page->settingsPageRequested();
    QCOMPARE(window->currentPage(), int(MainWindow::SettingsPageIndex));
}

QTEST_MAIN(TestModePage)
#include "TestModePage.moc"
