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
    return {u"node-%1"_s.arg(n), u"Node %1"_s.arg(n), u"jp"_s};
}

QList<RecentLocation> locations(int count)
{
    QList<RecentLocation> result;
    for (int i = 0; i < count; ++i)
        result.append(location(i));
    return result;
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
    void init()
    {
        m_dirs = std::make_unique<TempXdgDirs>();
        m_preferences = std::make_unique<GuiPreferences>();
    }

    void cleanup()
    {
        m_preferences.reset();
        m_dirs.reset();
    }

    void searches_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QString>("added"); // blank: nothing is added, nothing written
        QTest::addColumn<QStringList>("shown");
        const QStringList twenty = ids(locations(20));
        QTest::addRow("eight shown in order") << twenty << QString() << twenty.mid(0, 8);
        QTest::addRow("blanks skipped") << QStringList{u""_s, u"  "_s, u"tokyo"_s, u" tokyo"_s}
                                        << QString() << QStringList{u"tokyo"_s};
        const QStringList abc{u"a"_s, u"b"_s, u"c"_s};
        const QStringList eight = u"1 2 3 4 5 6 7 8"_s.split(u' ');
        QTest::addRow("new goes first")
            << abc.mid(0, 2) << u"c"_s << QStringList{u"c"_s, u"a"_s, u"b"_s};
        QTest::addRow("existing moves up")
            << abc << u" c "_s << QStringList{u"c"_s, u"a"_s, u"b"_s};
        QTest::addRow("ninth drops the oldest")
            << eight << u"9"_s << QStringList{u"9"_s} + eight.mid(0, 7);
    }

    void searches()
    {
        QFETCH(QStringList, stored);
        QFETCH(QString, added);
        QFETCH(QStringList, shown);
        m_preferences->setRecentSearches(stored);
        RecentActivityStore store(m_preferences.get());
        QSignalSpy changed(&store, &RecentActivityStore::recentSearchesChanged);
        store.addSearch(added);
        QCOMPARE(store.recentSearches(), shown);
        const bool written = shown != stored;
        QCOMPARE(changed.count(), written && !added.isEmpty() ? 1 : 0);
        QCOMPARE(m_preferences->recentSearches(), written && !added.isEmpty() ? shown : stored);
    }

    void addLocation_data()
    {
        QTest::addColumn<int>("storedCount");
        QTest::addColumn<RecentLocation>("added");
        QTest::addColumn<QStringList>("expectedIds");
        QTest::addRow("newest first")
            << 2 << location(7) << QStringList{u"node-7"_s, u"node-0"_s, u"node-1"_s};
        QTest::addRow("same id replaced and moved up")
            << 3 << RecentLocation{u"node-2"_s, u"Renamed"_s, u"de"_s}
            << QStringList{u"node-2"_s, u"node-0"_s, u"node-1"_s};
        QTest::addRow("twenty-first drops the oldest")
            << 20 << location(99) << QStringList{u"node-99"_s} + ids(locations(19));
        QTest::addRow("no id ignored")
            << 2 << RecentLocation{u" "_s, u"Nowhere"_s, u"xx"_s} << ids(locations(2));
    }

    void addLocation()
    {
        QFETCH(int, storedCount);
        QFETCH(RecentLocation, added);
        QFETCH(QStringList, expectedIds);
        m_preferences->setRecentNodes(locations(storedCount));
        RecentActivityStore store(m_preferences.get());
        store.addLocation(added);
        const QList<RecentLocation> result = store.recentLocations();
        QCOMPARE(ids(result), expectedIds);
        if (result.first().id == added.id)
            QCOMPARE(result.first(), added);
        QCOMPARE(GuiPreferences().recentNodes(100), result);
    }

    void clearingSetsTheFlagUntilTheNextVisit()
    {
        RecentActivityStore store(m_preferences.get());
        RecentActivityStore other(m_preferences.get()); // a page's, beside the shell's
        QSignalSpy changed(&other, &RecentActivityStore::recentLocationsChanged);
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

private:
    std::unique_ptr<TempXdgDirs> m_dirs;
    std::unique_ptr<GuiPreferences> m_preferences;
};

QTEST_GUILESS_MAIN(TestRecentActivityStore)
#include "TestRecentActivityStore.moc"
