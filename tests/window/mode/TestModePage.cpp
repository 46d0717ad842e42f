#include "AppState.h"
#include "CatalogFilterModel.h"
#include "ControlMetaTypes.h"
#include "ModeChoiceCard.h"
#include "ModeInlineError.h"
#include "ModeOptionButton.h"
#include "ModePage.h"
#include "ModeSegmentedBar.h"
#include "NetworkOptionsCard.h"
#include "SplitOptionsCard.h"
#include "ToggleSwitch.h"
#include "TovraRegionPickerDialog.h"
#include "WindowFixture.h"

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

    void checkMarksFollowTheRecord_data()
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
        ModeInfo proxySplit = mode(u"proxy"_s, u"split"_s);
        proxySplit.proxySplitProfile = profile(u"proxy"_s, {u"CN"_s});
        QTest::addRow("proxy split with regions")
            << proxySplit << C({ModeChoice::ProxySplit}) << "";
        QTest::addRow("unknown transport") << mode(u"quic"_s) << C({}) << "quic";
        QTest::addRow("unknown policy")
            << mode(u"tovravpn"_s, u"smart-route"_s) << C({}) << "tovravpn smart-route";
        QTest::addRow("no record") << ModeInfo() << C({}) << "";
    }

    void checkMarksFollowTheRecord()
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
        // Auto is asked for unless in effect, and checked only once the daemon says so.
        const bool autoInEffect = checked == QList<int>{int(ModeChoice::Auto)};
        QSignalSpy requested(&p.page, &ModePage::setModeRequested);
        QTest::mouseClick(p.option(ModeChoice::Auto), Qt::LeftButton);
        QCOMPARE(requested.count(), autoInEffect ? 0 : 1);
        QCOMPARE(p.option(ModeChoice::Auto)->isChecked(), autoInEffect);
        if (!autoInEffect)
            QCOMPARE(onlyRequest(requested).transport, u"auto"_s);
    }

    void proxyWithKillSwitchSendsNothing_data()
    {
        QTest::addColumn<int>("choice");
        QTest::addColumn<int>("answer");
        QTest::addRow("global, cancelled") << int(ModeChoice::ProxyGlobal) << 0;
        QTest::addRow("split, open settings") << int(ModeChoice::ProxySplit) << 1;
    }

    void proxyWithKillSwitchSendsNothing()
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

    // The daemon's clicks land in TestModePageWithDemoDaemon; here what the page decides: its
    // words mapped to segments, an unknown one checking none, and the value in effect not resent.
    void networkOptions()
    {
        Page p;
        ModeInfo m = mode(u"auto"_s);
        m.localNetwork = u"bridged"_s;
        m.systemProxy = u"lock-on"_s;
        p.setMode(m);
        ModeSegmentedBar *lan = p.page.networkCard()->localNetworkBar();
        ModeSegmentedBar *system = p.page.networkCard()->systemProxyBar();
        for (const QString &segment : lan->values())
            QVERIFY(!lan->segment(segment)->isChecked());
        for (const QString &segment : system->values())
            QCOMPARE(system->segment(segment)->isChecked(), segment == u"lock"_s);
        QSignalSpy lanSpy(&p.page, &ModePage::setLocalNetworkRequested);
        QSignalSpy proxySpy(&p.page, &ModePage::setSystemProxyRequested);
        for (ModeSegmentedBar *bar : {lan, system}) {
            for (const QString &value : bar->values())
                QTest::mouseClick(bar->segment(value), Qt::LeftButton);
        }
        QStringList sent;
        for (const QSignalSpy *spy : {&lanSpy, &proxySpy}) {
            for (const QList<QVariant> &args : *spy)
                sent.append(args.at(0).toString());
        }
        QCOMPARE(sent, (QStringList{u"direct"_s, u"protected"_s, u"off"_s, u"on"_s}));
        // The daemon's word is kept, even one that checks no segment.
        QCOMPARE(lan->currentValue(), u"bridged"_s);
    }

    void regionPickerSendsNothingUnchanged()
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
        QAbstractItemModelTester sourceTester(
            picker->sourceModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(picker->explanation()->text().contains(u"goes direct"_s));
        QCOMPARE(picker->selectedRegions(), QStringList{u"CN"_s});

        // Checking a region and saving is driven against the demo daemon.
        picker->reject();
        QCOMPARE(requested.count(), 0);

        // Opened again with nothing changed: Save sends nothing.
        p.page.openRegionPicker();
        QCOMPARE(picker->selectedRegions(), QStringList{u"CN"_s});
        picker->accept();
        QCOMPARE(requested.count(), 0);

        // With the default route direct the picker edits the regions that go through.
        current.splitProfile.defaultRoute = u"direct"_s;
        current.splitProfile.proxyRegions = {u"us"_s};
        p.setMode(current);
        p.page.openRegionPicker();
        QVERIFY(picker->explanation()->text().contains(u"through the tunnel"_s));
        QCOMPARE(picker->selectedRegions(), QStringList{u"US"_s});
        picker->reject();
        QCOMPARE(requested.count(), 0);
    }

    void inlineErrorBesideItsControl()
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
        QTest::mouseClick(p.page.networkCard()->systemProxyBar()->segment(u"lock"_s),
                          Qt::LeftButton);
        QVERIFY(!modeError->isVisible());
        QVERIFY(p.page.offerInlineError(u"system proxy is locked by policy"_s));
        QVERIFY(p.page.networkCard()->inlineError()->isVisible());

        // Out of sight the window notifies instead.
        QTest::mouseClick(p.page.splitCard()->gfwListSwitch(), Qt::LeftButton);
        p.page.hide();
        QVERIFY(!p.page.offerInlineError(u"Could not switch mode"_s));
    }

    void busyDisablesTheChoices()
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

    void killSwitchOpensPageWithVpnModesMarked()
    {
        WindowFixture f;
        f.controller.showModePageForKillSwitch();
        MainWindow *window = f.window();
        QCOMPARE(window->currentPage(), int(MainWindow::ModePageIndex));
        auto *page = window->findChild<ModePage *>();
        for (int i = 0; i <= int(ModeChoice::ProxySplit); ++i) {
            const ModeChoice choice = ModeChoice(i);
            QCOMPARE(page->choiceCard()->option(choice)->isHighlighted(),
                     ModeChoiceCard::isVpnChoice(choice));
        }
        // Leaving the page ends the wait for a mode.
        window->showPage(MainWindow::VpnPageIndex);
        QVERIFY(!page->choiceCard()->vpnModesHighlighted());
        // "Open Settings" from the proxy question goes to the Settings page.
        window->showPage(MainWindow::ModePageIndex);
        Q_EMIT page->settingsPageRequested();
        QCOMPARE(window->currentPage(), int(MainWindow::SettingsPageIndex));
    }
};

QTEST_MAIN(TestModePage)
#include "TestModePage.moc"
