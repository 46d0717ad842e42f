#include "AppState.h"

#include "ControlMetaTypes.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

// One record kind of the store: its change signal, how to store a default or a changed record,
// and whether a signal argument carries the changed record.
struct RecordCase
{
    QByteArray signal;
    std::function<void(AppState &, bool)> store;
    std::function<bool(const QVariant &)> isChanged;
};

template<typename Record, typename Field>
RecordCase recordCase(void (AppState::*setter)(Record), const char *signal, Field Record::*field,
                      std::type_identity_t<Field> value)
{
    const auto make = [field, value](bool changed) {
        Record record;
        if (changed)
            record.*field = value;
        return record;
    };
    return {
        QByteArray("2") + signal, // the form that SIGNAL() produces
        [setter, make](AppState &state, bool changed) { (state.*setter)(make(changed)); },
        [make](const QVariant &argument) { return qvariant_cast<Record>(argument) == make(true); }};
}

QList<int> values(const QSignalSpy &spy)
{
    QList<int> result;
    for (const QList<QVariant> &arguments : spy)
        result.append(arguments.at(0).toInt());
    return result;
}

bool cooldownTimerActive(const AppState &state)
{
    const QTimer *timer = state.findChild<QTimer *>();
    return timer && timer->isActive();
}

} // namespace

Q_DECLARE_METATYPE(RecordCase)

class TestAppState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void setterEmitsOnlyOnChange_data()
    {
        QTest::addColumn<RecordCase>("record");
        QTest::addRow("runtime") << recordCase(&AppState::setRuntime, "runtimeChanged(RuntimeInfo)",
                                               &RuntimeInfo::tunnelState, u"connected"_s);
        QTest::addRow("user") << recordCase(&AppState::setUser, "userChanged(UserInfo)",
                                            &UserInfo::email, u"ann@example.org"_s);
        QTest::addRow("nodes") << recordCase(&AppState::setNodes, "nodesChanged(NodesInfo)",
                                             &NodesInfo::nodes, {NodeEntry()});
        QTest::addRow("nodeGroups")
            << recordCase(&AppState::setNodeGroups, "nodeGroupsChanged(NodeGroupsInfo)",
                          &NodeGroupsInfo::stale, true);
        QTest::addRow("configPaths")
            << recordCase(&AppState::setConfigPaths, "configPathsChanged(ConfigPaths)",
                          &ConfigPaths::logDir, u"/var/log/tovra"_s);
        QTest::addRow("killSwitch")
            << recordCase(&AppState::setKillSwitch, "killSwitchChanged(KillSwitchInfo)",
                          &KillSwitchInfo::mode, u"lockdown"_s);
        QTest::addRow("version") << recordCase(&AppState::setVersion, "versionChanged(VersionInfo)",
                                               &VersionInfo::daemonVersion, u"2.0.0"_s);
        QTest::addRow("apiURLConfig")
            << recordCase(&AppState::setAPIURLConfig, "apiURLConfigChanged(APIURLConfigInfo)",
                          &APIURLConfigInfo::apiURL, u"https://api.example.org"_s);
        QTest::addRow("languageConfig")
            << recordCase(&AppState::setLanguageConfig, "languageConfigChanged(LanguageConfigInfo)",
                          &LanguageConfigInfo::language, u"de"_s);
        QTest::addRow("update") << recordCase(&AppState::setUpdate, "updateChanged(UpdateInfo)",
                                              &UpdateInfo::currentVersion, u"0.1.0"_s);
        QTest::addRow("splitDNS") << recordCase(
            &AppState::setSplitDNS, "splitDNSChanged(SplitDNSInfo)",
            &SplitDNSInfo::configuredLocalDirectDns, {u"1.1.1.1"_s});
        QTest::addRow("splitRules")
            << recordCase(&AppState::setSplitRules, "splitRulesChanged(SplitRulesInfo)",
                          &SplitRulesInfo::dir, u"/etc/tovra/rules"_s);
    }

    void setterEmitsOnlyOnChange()
    {
        QFETCH(RecordCase, record);
        AppState state;
        QSignalSpy spy(&state, record.signal.constData());
        QVERIFY(spy.isValid());
        record.store(state, false); // equal to what the store starts with
        record.store(state, true);
        record.store(state, true); // a poll that returns the same record
        QCOMPARE(spy.count(), 1);
        QVERIFY(record.isChanged(spy.at(0).at(0)));
        record.store(state, false);
        QCOMPARE(spy.count(), 2);
    }

    void nestedFieldChangeIsAChange()
    {
        AppState state;
        RuntimeInfo runtime;
        runtime.mode.proxySplitProfile.directRegions = {u"cn"_s, u"ir"_s};
        state.setRuntime(runtime);
        QSignalSpy spy(&state, &AppState::runtimeChanged);
        runtime.mode.proxySplitProfile.directRegions = {u"ir"_s, u"cn"_s}; // only the order
        state.setRuntime(runtime);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(state.runtime().mode.proxySplitProfile.directRegions.first(), u"ir"_s);
    }

    void clearUserEmitsOnce()
    {
        AppState state;
        UserInfo user;
        user.email = u"ann@example.org"_s;
        state.setUser(user);
        QSignalSpy spy(&state, &AppState::userChanged);
        state.clearUser();
        state.clearUser();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(state.user(), UserInfo());
    }

    void cooldownCountsDownToZero()
    {
        AppState state;
        QSignalSpy spy(&state, &AppState::nodesRefreshCooldownChanged);
        state.startNodesRefreshCooldown(2);
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 3, 5000);
        QCOMPARE(values(spy), (QList<int>{2, 1, 0}));
        QVERIFY(!cooldownTimerActive(state)); // nothing follows the 0
    }

    void startCooldown_data()
    {
        QTest::addColumn<int>("running"); // started first, 0 for none
        QTest::addColumn<int>("requested");
        QTest::addColumn<QList<int>>("emitted");
        QTest::addColumn<int>("remaining");
        QTest::addRow("zero stops a running countdown") << 30 << 0 << QList<int>{0} << 0;
        QTest::addRow("negative with nothing running") << 0 << -5 << QList<int>{} << 0;
        QTest::addRow("negative stops like zero") << 30 << -5 << QList<int>{0} << 0;
        QTest::addRow("same value before a tick") << 60 << 60 << QList<int>{} << 60;
        QTest::addRow("other value") << 60 << 10 << QList<int>{10} << 10;
    }

    void startCooldown()
    {
        QFETCH(int, running);
        QFETCH(int, requested);
        QFETCH(QList<int>, emitted);
        QFETCH(int, remaining);
        AppState state;
        if (running > 0)
            state.startNodesRefreshCooldown(running);
        QSignalSpy spy(&state, &AppState::nodesRefreshCooldownChanged);
        state.startNodesRefreshCooldown(requested);
        QCOMPARE(values(spy), emitted);
        QCOMPARE(state.nodesRefreshCooldown(), remaining);
        QCOMPARE(cooldownTimerActive(state), remaining > 0);
    }

    void restartAfterTickResets()
    {
        AppState state;
        QSignalSpy spy(&state, &AppState::nodesRefreshCooldownChanged);
        state.startNodesRefreshCooldown(60);
        QVERIFY(spy.wait(3000));
        state.startNodesRefreshCooldown(60);
        QCOMPARE(values(spy), (QList<int>{60, 59, 60}));
    }
};

QTEST_GUILESS_MAIN(TestAppState)
#include "TestAppState.moc"
