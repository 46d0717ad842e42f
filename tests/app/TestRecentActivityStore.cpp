#include "RecentActivityStore.h"

#include "GuiPreferences.h"
#include "TempXdgDirs.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

RecentLocation location(int n)
{
    return {QStringLiteral("node-%1").arg(n), QStringLiteral("Node %1").arg(n),
            QStringLiteral("jp")};
}

QStringList ids(const QList<RecentLocation> &locations)
{
    QStringList result;
    for (const RecentLocation &entry : locations)
        result.append(entry.id);
    return result;
}

} // namespace

class TestRecentActivityStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void storedSearches_data();
    void storedSearches();
    void addSearch_data();
    void addSearch();
    void locationsReadAtMostTwenty();
    void addLocation_data();
    void addLocation();
    void clearingSetsTheFlagUntilTheNextVisit();

private:
    std::unique_ptr<TempXdgDirs> m_dirs;
    std::unique_ptr<GuiPreferences> m_preferences;
};

void TestRecentActivityStore::init()
{
    m_dirs = std::make_unique<TempXdgDirs>();
    m_preferences = std::make_unique<GuiPreferences>();
}

void TestRecentActivityStore::cleanup()
{
    m_preferences.reset();
    m_dirs.reset();
}

void TestRecentActivityStore::storedSearches_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("expected");

    QStringList forty;
    for (int i = 0; i < 40; ++i)
        forty.append(QStringLiteral(" q%1 ").arg(i % 5)); // five distinct, padded
    for (int i = 0; i < 8; ++i)
        forty[30 + i] = QStringLiteral("late%1").arg(i);
    QTest::addRow("40 with duplicates")
        << forty << QStringList{u"q0"_s, u"q1"_s,    u"q2"_s,   u"q3"_s,
                                u"q4"_s, u"late0"_s, u"late1"_s}; // only 32 examined

    QStringList many;
    for (int i = 0; i < 20; ++i)
        many.append(QStringLiteral("s%1").arg(i));
    QTest::addRow("keeps eight in order") << many << many.mid(0, 8);
    QTest::addRow("blanks skipped")
        << QStringList{u""_s, u"  "_s, u"tokyo"_s, u" tokyo"_s} << QStringList{u"tokyo"_s};
    QTest::addRow("case differs is distinct")
        << QStringList{u"Tokyo"_s, u"tokyo"_s} << QStringList{u"Tokyo"_s, u"tokyo"_s};
}

void TestRecentActivityStore::storedSearches()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, expected);
    m_preferences->setRecentSearches(stored);
    RecentActivityStore store(m_preferences.get());
    QCOMPARE(store.recentSearches(), expected);
}

void TestRecentActivityStore::addSearch_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<int>("signals");
    QTest::addRow("new goes first")
        << QStringList{u"a"_s, u"b"_s} << "c" << QStringList{u"c"_s, u"a"_s, u"b"_s} << 1;
    QTest::addRow("existing moves up")
        << QStringList{u"a"_s, u"b"_s, u"c"_s} << " c " << QStringList{u"c"_s, u"a"_s, u"b"_s} << 1;
    QTest::addRow("already first")
        << QStringList{u"a"_s, u"b"_s} << "a" << QStringList{u"a"_s, u"b"_s} << 0;
    QTest::addRow("blank ignored") << QStringList{u"a"_s} << "  " << QStringList{u"a"_s} << 0;
    QTest::addRow("ninth drops the oldest")
        << QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s} << "9"
        << QStringList{u"9"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s} << 1;
}

void TestRecentActivityStore::addSearch()
{
    QFETCH(QStringList, before);
    QFETCH(QString, added);
    QFETCH(QStringList, after);
    QFETCH(int, signals);

    m_preferences->setRecentSearches(before);
    RecentActivityStore store(m_preferences.get());
    QSignalSpy changed(&store, &RecentActivityStore::recentSearchesChanged);
    store.addSearch(added);
    QCOMPARE(store.recentSearches(), after);
    QCOMPARE(m_preferences->recentSearches(), after);
    QCOMPARE(changed.count(), signals);
}

void TestRecentActivityStore::locationsReadAtMostTwenty()
{
    QList<RecentLocation> stored;
    for (int i = 0; i < 25; ++i)
        stored.append(location(i));
    m_preferences->setRecentNodes(stored);
    RecentActivityStore store(m_preferences.get());
    QCOMPARE(store.recentLocations(), stored.mid(0, 20));
}

void TestRecentActivityStore::addLocation_data()
{
    QTest::addColumn<int>("storedCount");
    QTest::addColumn<RecentLocation>("added");
    QTest::addColumn<QStringList>("expectedIds");

    QTest::addRow("newest first") << 2 << location(7)
                                  << QStringList{u"node-7"_s, u"node-0"_s, u"node-1"_s};
    QTest::addRow("same id replaced and moved up")
        << 3 << RecentLocation{u"node-2"_s, u"Renamed"_s, u"de"_s}
        << QStringList{u"node-2"_s, u"node-0"_s, u"node-1"_s};
    QTest::addRow("twenty-first drops the oldest")
        << 20 << location(99) << (QStringList{u"node-99"_s} + [] {
               QStringList rest;
               for (int i = 0; i < 19; ++i)
                   rest.append(QStringLiteral("node-%1").arg(i));
               return rest;
           }());
    QTest::addRow("no id ignored") << 2 << RecentLocation{u" "_s, u"Nowhere"_s, u"xx"_s}
                                   << QStringList{u"node-0"_s, u"node-1"_s};
}

void TestRecentActivityStore::addLocation()
{
    QFETCH(int, storedCount);
    QFETCH(RecentLocation, added);
    QFETCH(QStringList, expectedIds);

    QList<RecentLocation> stored;
    for (int i = 0; i < storedCount; ++i)
        stored.append(location(i));
    m_preferences->setRecentNodes(stored);

    RecentActivityStore store(m_preferences.get());
    store.addLocation(added);
    const QList<RecentLocation> result = store.recentLocations();
    QCOMPARE(ids(result), expectedIds);
    if (result.first().id == added.id)
        QCOMPARE(result.first(), added);

    GuiPreferences reread;
    QCOMPARE(reread.recentNodes(100), result);
}

void TestRecentActivityStore::clearingSetsTheFlagUntilTheNextVisit()
{
    RecentActivityStore store(m_preferences.get());
    QSignalSpy changed(&store, &RecentActivityStore::recentLocationsChanged);
    store.addLocation(location(1));
    store.clearLocations();
    QCOMPARE(changed.count(), 2);
    QVERIFY(store.recentLocations().isEmpty());
    QVERIFY(store.locationsCleared());
    QVERIFY(GuiPreferences().recentNodesCleared());

    store.addLocation(location(2));
    QVERIFY(!store.locationsCleared());
    QCOMPARE(ids(store.recentLocations()), QStringList{u"node-2"_s});
}

QTEST_GUILESS_MAIN(TestRecentActivityStore)
#include "TestRecentActivityStore.moc"
