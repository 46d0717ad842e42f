#include "AccessibleAnnouncer.h"
#include "AppState.h"
#include "CatalogFixture.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "RecentActivityStore.h"
#include "TempXdgDirs.h"
#include "ToggleSwitch.h"
#include "VpnKillSwitchRow.h"
#include "VpnPage.h"
#include "VpnRecentLocations.h"
#include "VpnStatusCard.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

// A status record as the daemon sends it, with `extra` keys merged over a signed-in default.
RuntimeInfo status(const QByteArray &extra)
{
    QByteArray body = R"({"auth_state": "logged_in", "tunnel_state": "disconnected",
        "mode": {"transport": "auto"},
        "kill_switch": {"enabled": false, "mode": "auto", "guard": "inactive"},
        "selected_node": {"id": 1001, "region": "DE", "name": "Frankfurt 01"})";
    if (!extra.isEmpty())
        body += ", " + extra;
    body += '}';
    return RuntimeInfo::parse(body, nullptr);
}

// Frankfurt 01 is 1001, Berlin 01 1004, Tokyo 01 1018.
void loadCatalogue(AppState &state)
{
    const CatalogFixture catalogue = CatalogFixture::small();
    state.setNodeGroups(NodeGroupsInfo::parse(catalogue.groupsJson(), nullptr));
    state.setNodes(NodesInfo::parse(catalogue.nodesJson(), nullptr));
}

QStringList texts(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *text : list)
        result << QString::fromUtf8(text);
    return result;
}

struct Fixture
{
    TempXdgDirs dirs;
    GuiPreferences preferences;
    AppState state;
    VpnPage page{&preferences};

    Fixture()
    {
        page.resize(700, 600);
        page.show();
    }
    void apply(const RuntimeInfo &runtime)
    {
        state.setRuntime(runtime);
        page.refresh(state);
    }
    QPushButton *primary() const { return page.statusCard()->primaryAction(); }
    QString label(const char *name) const
    {
        return page.findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
};

} // namespace

class TestVpnPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("extra");
        QTest::addColumn<QString>("pendingLabel");
        QTest::addColumn<QStringList>("expected"); // dot, title, detail, location, primary
        QTest::addColumn<QByteArray>("intent");    // of a click on the primary button
        QTest::addColumn<bool>("enabled");
        QTest::addRow("connected")
            << QByteArray(R"("tunnel_state": "connected", "connected_since": "2026-01-01T10:00:00Z",
                 "connected_node": {"id": 1004, "region": "DE", "name": "Berlin 01"},
                 "kill_switch": {"enabled": true, "mode": "auto", "guard": "active"})")
            << QString()
            << texts({"connected", "Connected", "Your traffic goes through the Tovra tunnel.",
                      "Germany \u00b7 Berlin 01", "Disconnect"})
            << QByteArray(SIGNAL(disconnectRuntimeRequested())) << true;
        QTest::addRow("connecting with a target")
            << QByteArray() << "Japan"
            << texts({"disconnected", "Connecting\u2026", "Connecting to Japan", "", "Cancel"})
            << QByteArray(SIGNAL(cancelConnectRequested())) << true;
        QTest::addRow("disconnecting")
            << QByteArray(R"("tunnel_state": "disconnecting")") << QString()
            << texts({"disconnected", "Disconnecting\u2026", "Closing the tunnel.", "",
                      "Disconnecting\u2026"})
            << QByteArray() << false;
        QTest::addRow("disconnected, kill switch guarding")
            << QByteArray(
                   R"("kill_switch": {"enabled": true, "mode": "always", "guard": "active"})")
            << QString()
            << texts({"disconnected", "Disconnected",
                      "Kill Switch blocks traffic until you connect.",
                      "Germany \u00b7 Frankfurt 01", "Connect"})
            << QByteArray(SIGNAL(connectRuntimeRequested())) << true;
        QTest::addRow("signed out")
            << QByteArray(R"("auth_state": "logged_out")") << QString()
            << texts({"disconnected", "Signed out", "Sign in to your Tovra account to connect.", "",
                      "Sign In"})
            << QByteArray(SIGNAL(accountPageRequested())) << true;
    }
    void states()
    {
        QFETCH(QByteArray, extra);
        QFETCH(QString, pendingLabel);
        QFETCH(QStringList, expected);
        QFETCH(QByteArray, intent);
        QFETCH(bool, enabled);
        Fixture f;
        loadCatalogue(f.state);
        if (!pendingLabel.isEmpty())
            f.page.setConnectInProgress(true, QStringLiteral("country:jp"), pendingLabel);
        f.apply(status(extra));
        const QLabel *dot = f.page.findChild<QLabel *>(QStringLiteral("TovraVPNStatusDot"));
        QCOMPARE(dot->property("tovraStatusState").toString(), expected.at(0));
        QCOMPARE(f.label("TovraVPNStatusTitle"), expected.at(1));
        QCOMPARE(f.label("TovraVPNStatusDetail"), expected.at(2));
        const QLabel *place = f.page.findChild<QLabel *>(QStringLiteral("TovraVPNLocationText"));
        QCOMPARE(place->isVisible() ? place->text() : QString(), expected.at(3));
        QCOMPARE(f.primary()->text(), expected.at(4));
        QCOMPARE(f.primary()->isEnabled(), enabled);
        const QList<QByteArray> intents{
            SIGNAL(connectRuntimeRequested()), SIGNAL(cancelConnectRequested()),
            SIGNAL(disconnectRuntimeRequested()), SIGNAL(accountPageRequested())};
        QList<QSharedPointer<QSignalSpy>> spies;
        for (const QByteArray &signal : intents)
            spies.append(QSharedPointer<QSignalSpy>::create(&f.page, signal.constData()));
        QTest::mouseClick(f.primary(), Qt::LeftButton);
        for (int i = 0; i < intents.size(); ++i)
            QCOMPARE(spies.at(i)->size(), intents.at(i) == intent ? 1 : 0);
        // The clock ticks only for a live, visible connection.
        const bool connected = expected.at(1) == QLatin1String("Connected");
        QCOMPARE(f.page.statusCard()->isTicking(), connected);
        if (connected) {
            QVERIFY(f.label("TovraVPNFacts").startsWith(QStringLiteral("Connected for ")));
            f.page.hide();
            QVERIFY(!f.page.statusCard()->isTicking());
        }
    }

    // What a screen reader hears as the status changes after the page first showed it.
    void announcements_data()
    {
        QTest::addColumn<QList<QByteArray>>("steps");
        QTest::addColumn<QStringList>("spoken"); // "!" before an assertive line
        const QByteArray tokyo =
            R"("connected_node": {"id": 1018, "region": "JP", "name": "Tokyo 01"})";
        QTest::addRow("connect and disconnect")
            << QList<QByteArray>{R"("tunnel_state": "connecting", )" + tokyo,
                                 R"("tunnel_state": "connected", )" + tokyo, QByteArray()}
            << texts({"Connecting to Japan \u00b7 Tokyo 01", "Connected to Japan \u00b7 Tokyo 01",
                      "Disconnected"});
        QTest::addRow("failure with the reason")
            << QList<QByteArray>{R"("tunnel_state": "connecting")",
                                 R"("last_error": "Handshake timed out.")"}
            << texts({"Connecting\u2026", "!Connection failed: Handshake timed out."});
        QTest::addRow("signed out by the service")
            << QList<QByteArray>{R"("tunnel_state": "connected", )" + tokyo,
                                 R"("auth_state": "logged_out")"}
            << texts({"Connected to Japan \u00b7 Tokyo 01", "!Signed out"});
        QTest::addRow("the same state again") << QList<QByteArray>{QByteArray()} << QStringList();
    }
    void announcements()
    {
        QFETCH(QList<QByteArray>, steps);
        QFETCH(QStringList, spoken);
        Fixture f;
        loadCatalogue(f.state);
        f.apply(status({}));
        QSignalSpy heard(f.page.announcer(), &AccessibleAnnouncer::announced);
        for (const QByteArray &step : steps) {
            f.apply(status(step));
            QTRY_VERIFY(!f.page.hasPendingAnnouncement());
        }
        QStringList lines;
        for (const QList<QVariant> &args : heard) {
            const bool assertive = args.at(1).value<AccessibleAnnouncer::Politeness>() ==
                                   AccessibleAnnouncer::Politeness::Assertive;
            lines << (assertive ? QStringLiteral("!") : QString()) + args.at(0).toString();
        }
        QCOMPARE(lines, spoken);
    }

    // A location the shell records shows at once; Clear empties the list and says so.
    void recentLocations()
    {
        Fixture f;
        f.apply(status(QByteArray()));
        RecentActivityStore(&f.preferences)
            .addLocation({QStringLiteral("1100"), QStringLiteral("Japan \u00b7 Tokyo 01"),
                          QStringLiteral("jp")});
        VpnRecentLocations *card = f.page.recentLocations();
        QCOMPARE(card->rows().size(), 1);
        QCOMPARE(card->rows().first()->text(), QStringLiteral("Japan \u00b7 Tokyo 01"));

        QSignalSpy cleared(&f.page, &VpnPage::recentConnectionsCleared);
        QSignalSpy named(&f.page, &VpnPage::pendingConnectTargetChanged);
        QSignalSpy connects(&f.page, &VpnPage::connectNodeRequested);
        QTest::mouseClick(card->rows().first(), Qt::LeftButton);
        QCOMPARE(named.size(), 1);
        QCOMPARE(connects.size(), 1);
        QCOMPARE(connects.first().first().toString(), QStringLiteral("1100"));
        QTest::mouseClick(card->clearButton(), Qt::LeftButton);
        QCOMPARE(cleared.size(), 1);
        QVERIFY(card->rows().isEmpty());
        QVERIFY(RecentActivityStore(&f.preferences).recentLocations().isEmpty());
        QVERIFY(!card->clearButton()->isVisible());
    }

    void killSwitch_data()
    {
        QTest::addColumn<QByteArray>("extra");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("intent");
        QTest::addRow("turn on") << QByteArray() << 0
                                 << QByteArray(SIGNAL(setKillSwitchEnabledRequested(bool)));
        QTest::addRow("proxy: switch to Auto")
            << QByteArray(R"("mode": {"transport": "proxy"})") << 1
            << QByteArray(SIGNAL(switchToAutoAndEnableKillSwitchRequested()));
        QTest::addRow("proxy: choose a mode")
            << QByteArray(R"("mode": {"transport": "proxy"})") << 2
            << QByteArray(SIGNAL(chooseModeForKillSwitchRequested()));
        QTest::addRow("proxy: cancelled")
            << QByteArray(R"("mode": {"transport": "proxy"})") << 0 << QByteArray();
        QTest::addRow("lockdown cannot be turned off")
            << QByteArray(R"("kill_switch": {"enabled": true, "mode": "lockdown",
                 "guard": "active"})")
            << 0 << QByteArray();
    }
    void killSwitch()
    {
        QFETCH(QByteArray, extra);
        QFETCH(int, answer);
        QFETCH(QByteArray, intent);
        Fixture f;
        int asked = 0;
        f.page.setKillSwitchConfirm([&](QWidget *) {
            ++asked;
            return answer;
        });
        f.apply(status(extra));
        QSignalSpy set(&f.page, &VpnPage::setKillSwitchEnabledRequested);
        QSignalSpy toAuto(&f.page, &VpnPage::switchToAutoAndEnableKillSwitchRequested);
        QSignalSpy choose(&f.page, &VpnPage::chooseModeForKillSwitchRequested);
        ToggleSwitch *toggle = f.page.statusCard()->killSwitchRow()->toggle();
        const bool wasOn = toggle->isChecked();
        // Lockdown keeps the switch disabled; a stray request is refused just the same.
        if (toggle->isEnabled())
            QTest::mouseClick(toggle, Qt::LeftButton);
        else
            Q_EMIT toggle->toggleRequested(false);
        QCOMPARE(set.size(), intent == SIGNAL(setKillSwitchEnabledRequested(bool)) ? 1 : 0);
        QCOMPARE(toAuto.size(),
                 intent == SIGNAL(switchToAutoAndEnableKillSwitchRequested()) ? 1 : 0);
        QCOMPARE(choose.size(), intent == SIGNAL(chooseModeForKillSwitchRequested()) ? 1 : 0);
        QCOMPARE(asked, extra.contains("proxy") ? 1 : 0);
        if (!set.isEmpty())
            QCOMPARE(set.first().first().toBool(), true);
        // The switch follows the record, never the click.
        QCOMPARE(toggle->isChecked(), wasOn);
    }
};

QTEST_MAIN(TestVpnPage)
#include "TestVpnPage.moc"
