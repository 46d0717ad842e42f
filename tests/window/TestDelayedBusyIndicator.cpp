#include "DelayedBusyIndicator.h"

#include <QTest>

class TestDelayedBusyIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keptBusyShowsOnceThenClears();
    void clearedBeforeDelayNeverShows();
};

void TestDelayedBusyIndicator::keptBusyShowsOnceThenClears()
{
    QList<bool> calls;
    DelayedBusyIndicator indicator([&calls](bool shown) { calls.append(shown); });
    indicator.setBusy(true);
    QVERIFY(calls.isEmpty());
    QVERIFY(indicator.isPending());
    indicator.setBusy(true);
    QTRY_VERIFY(indicator.isShown());
    indicator.setBusy(true);
    indicator.setBusy(false);
    indicator.setBusy(false);
    QCOMPARE(calls, (QList<bool>{true, false}));
    QVERIFY(!indicator.isShown());
}

void TestDelayedBusyIndicator::clearedBeforeDelayNeverShows()
{
    QList<bool> calls;
    DelayedBusyIndicator cleared([&calls](bool shown) { calls.append(shown); });
    bool sentinelShown = false;
    DelayedBusyIndicator sentinel([&sentinelShown](bool shown) { sentinelShown = shown; });
    cleared.setBusy(true);
    sentinel.setBusy(true);
    cleared.setBusy(false);
    // The sentinel started later with the same delay: once it shows, the cleared one had its
    // chance to fire.
    QTRY_VERIFY(sentinelShown);
    QVERIFY(calls.isEmpty());
    QVERIFY(!cleared.isPending());
}

QTEST_GUILESS_MAIN(TestDelayedBusyIndicator)
#include "TestDelayedBusyIndicator.moc"
