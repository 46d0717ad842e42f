#include "AppState.h"

#include "ControlMetaTypes.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

// One record kind of the store: how to write a default or a changed record, and how to check
// that a signal argument is the stored value.
struct RecordCase
{
    QByteArray signal;
    std::function<void(AppState &)> setDefault;
    std::function<void(AppState &)> setChanged;
    std::function<bool(const AppState &, const QVariant &)> carriesStored;
    std::function<bool(const AppState &)> storedIsDefault;
};

template<typename Record>
RecordCase recordCase(void (AppState::*setter)(Record), const Record &(AppState::*getter)() const,
                      const char *signal, std::function<void(Record &)> mutate)
{
    RecordCase result;
    result.signal = QByteArray("2") + signal; // the form that SIGNAL() produces
    result.setDefault = [setter](AppState &state) { (state.*setter)(Record()); };
    result.setChanged = [setter, mutate](AppState &state) {
        Record record;
        mutate(record);
        (state.*setter)(record);
    };
    result.carriesStored = [getter](const AppState &state, const QVariant &argument) {
        return qvariant_cast<Record>(argument) == (state.*getter)();
    };
    result.storedIsDefault = [getter](const AppState &state) {
        return (state.*getter)() == Record();
    };
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
    void initTestCase();
    void setterEmitsOnlyOnChange_data();
    void setterEmitsOnlyOnChange();
    void nestedFieldChangeIsAChange();
    void clearUser();
    void cooldownCountsDownToZero();
    void startCooldown_data();
    void startCooldown();
    void restartAfterTickResets();
};

void TestAppState::initTestCase()
{
    registerControlMetaTypes();
}

void TestAppState::setterEmitsOnlyOnChange_data()
{
    QTest::addColumn<RecordCase>("record");
    QTest::addRow("runtime") << recordCase<RuntimeInfo>(
        &AppState::setRuntime, &AppState::runtime, "runtimeChanged(RuntimeInfo)",
        [](RuntimeInfo &r) { r.tunnelState = QStringLiteral("connected"); });
    QTest::addRow("user") << recordCase<UserInfo>(
        &AppState::setUser, &AppState::user, "userChanged(UserInfo)",
        [](UserInfo &r) { r.email = QStringLiteral("ann@example.org"); });
    QTest::addRow("nodes") << recordCase<NodesInfo>(
        &AppState::setNodes, &AppState::nodes, "nodesChanged(NodesInfo)",
        [](NodesInfo &r) { r.nodes.append(NodeEntry()); });
    QTest::addRow("nodeGroups") << recordCase<NodeGroupsInfo>(
        &AppState::setNodeGroups, &AppState::nodeGroups, "nodeGroupsChanged(NodeGroupsInfo)",
        [](NodeGroupsInfo &r) { r.stale = true; });
    QTest::addRow("configPaths") << recordCase<ConfigPaths>(
        &AppState::setConfigPaths, &AppState::configPaths, "configPathsChanged(ConfigPaths)",
        [](ConfigPaths &r) { r.logDir = QStringLiteral("/var/log/tovra"); });
    QTest::addRow("killSwitch") << recordCase<KillSwitchInfo>(
        &AppState::setKillSwitch, &AppState::killSwitch, "killSwitchChanged(KillSwitchInfo)",
        [](KillSwitchInfo &r) { r.mode = QStringLiteral("lockdown"); });
    QTest::addRow("version") << recordCase<VersionInfo>(
        &AppState::setVersion, &AppState::version, "versionChanged(VersionInfo)",
        [](VersionInfo &r) { r.daemonVersion = QStringLiteral("2.0.0"); });
    QTest::addRow("apiURLConfig") << recordCase<APIURLConfigInfo>(
        &AppState::setAPIURLConfig, &AppState::apiURLConfig,
        "apiURLConfigChanged(APIURLConfigInfo)",
        [](APIURLConfigInfo &r) { r.apiURL = QStringLiteral("https://api.example.org"); });
    QTest::addRow("languageConfig") << recordCase<LanguageConfigInfo>(
        &AppState::setLanguageConfig, &AppState::languageConfig,
        "languageConfigChanged(LanguageConfigInfo)",
        [](LanguageConfigInfo &r) { r.language = QStringLiteral("de"); });
    QTest::addRow("update") << recordCase<UpdateInfo>(
        &AppState::setUpdate, &AppState::update, "updateChanged(UpdateInfo)",
        [](UpdateInfo &r) { r.currentVersion = QStringLiteral("0.1.0"); });
    QTest::addRow("splitDNS") << recordCase<SplitDNSInfo>(
        &AppState::setSplitDNS, &AppState::splitDNS, "splitDNSChanged(SplitDNSInfo)",
        [](SplitDNSInfo &r) { r.configuredLocalDirectDns.append(QStringLiteral("1.1.1.1")); });
    QTest::addRow("splitRules") << recordCase<SplitRulesInfo>(
        &AppState::setSplitRules, &AppState::splitRules, "splitRulesChanged(SplitRulesInfo)",
        [](SplitRulesInfo &r) { r.dir = QStringLiteral("/etc/tovra/rules"); });
}

void TestAppState::setterEmitsOnlyOnChange()
{
    QFETCH(RecordCase, record);
    AppState state;
    QSignalSpy spy(&state, record.signal.constData());
    QVERIFY(spy.isValid());

    record.setDefault(state);
    QCOMPARE(spy.count(), 0);

    record.setChanged(state);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!record.storedIsDefault(state));
    QVERIFY(record.carriesStored(state, spy.at(0).at(0)));

    record.setChanged(state); // a poll that returns the same record
    QCOMPARE(spy.count(), 1);

    record.setDefault(state);
    QCOMPARE(spy.count(), 2);
    QVERIFY(record.storedIsDefault(state));
}

void TestAppState::nestedFieldChangeIsAChange()
{
    AppState state;
    RuntimeInfo runtime;
    runtime.valid = true;
    runtime.mode.proxySplitProfile.directRegions = {QStringLiteral("cn"), QStringLiteral("ir")};
    state.setRuntime(runtime);
    QSignalSpy spy(&state, &AppState::runtimeChanged);

    runtime.mode.proxySplitProfile.directRegions = {QStringLiteral("ir"), QStringLiteral("cn")};
    state.setRuntime(runtime); // same elements, other order
    QCOMPARE(spy.count(), 1);
    QCOMPARE(state.runtime().mode.proxySplitProfile.directRegions.first(), QStringLiteral("ir"));
}

void TestAppState::clearUser()
{
    AppState state;
    UserInfo user;
    user.valid = true;
    user.email = QStringLiteral("ann@example.org");
    user.leftDays = 12;
    state.setUser(user);
    QSignalSpy spy(&state, &AppState::userChanged);

    state.clearUser();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(state.user(), UserInfo());
    state.clearUser();
    QCOMPARE(spy.count(), 1);
}

void TestAppState::cooldownCountsDownToZero()
{
    AppState state;
    QSignalSpy spy(&state, &AppState::nodesRefreshCooldownChanged);
    state.startNodesRefreshCooldown(2);
    QCOMPARE(state.nodesRefreshCooldown(), 2);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 3, 5000);
    QCOMPARE(spy.at(0).at(0).toInt(), 2);
    QCOMPARE(spy.at(1).at(0).toInt(), 1);
    QCOMPARE(spy.at(2).at(0).toInt(), 0);
    QCOMPARE(state.nodesRefreshCooldown(), 0);
    // The last tick stopped the timer: nothing follows the 0.
    QVERIFY(!cooldownTimerActive(state));
}

void TestAppState::startCooldown_data()
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

void TestAppState::startCooldown()
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
    QList<int> values;
    for (const QList<QVariant> &arguments : spy)
        values.append(arguments.at(0).toInt());
    QCOMPARE(values, emitted);
    QCOMPARE(state.nodesRefreshCooldown(), remaining);
    QCOMPARE(cooldownTimerActive(state), remaining > 0);
}

void TestAppState::restartAfterTickResets()
{
    AppState state;
    QSignalSpy spy(&state, &AppState::nodesRefreshCooldownChanged);
    state.startNodesRefreshCooldown(60);
    QVERIFY(spy.wait(3000));
    QCOMPARE(state.nodesRefreshCooldown(), 59);
    state.startNodesRefreshCooldown(60);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.last().at(0).toInt(), 60);
}

QTEST_GUILESS_MAIN(TestAppState)
#include "TestAppState.moc"
