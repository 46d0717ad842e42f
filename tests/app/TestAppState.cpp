#include "AppState.h"

#include "ControlMetaTypes.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

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

// Every setter shares one compare-and-store; the runtime record, the deepest, stands for all.
class TestAppState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void setterEmitsOnlyOnChange()
    {
        AppState state;
        QSignalSpy spy(&state, &AppState::runtimeChanged);
        RuntimeInfo runtime;
        state.setRuntime(runtime); // equal to what the store starts with
        runtime.mode.proxySplitProfile.directRegions = {u"cn"_s, u"ir"_s};
        state.setRuntime(runtime);
        state.setRuntime(runtime); // a poll that returns the same record
        QCOMPARE(spy.count(), 1);
        runtime.mode.proxySplitProfile.directRegions = {u"ir"_s, u"cn"_s}; // only the order
        state.setRuntime(runtime);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).value<RuntimeInfo>(), runtime);
        QCOMPARE(state.runtime(), runtime);
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
        QTest::addColumn<int>("running"); // started first
        QTest::addColumn<int>("requested");
        QTest::addColumn<QList<int>>("emitted");
        QTest::addColumn<int>("remaining");
        QTest::addRow("zero stops a running countdown") << 30 << 0 << QList<int>{0} << 0;
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
