#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "LocationRoles.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto QtTest = QAbstractItemModelTester::FailureReportingMode::QtTest;

NodesInfo nodesOf(const CatalogFixture &fixture)
{
    QString error;
    return NodesInfo::parse(fixture.nodesJson(), &error);
}

NodeGroupsInfo groupsOf(const CatalogFixture &fixture)
{
    QString error;
    return NodeGroupsInfo::parse(fixture.groupsJson(), &error);
}

void load(CatalogTreeModel &model, const CatalogFixture &fixture)
{
    model.setCatalog(groupsOf(fixture), nodesOf(fixture));
}

// Labels of the rows under parent, in order.
QStringList labels(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList result;
    for (int row = 0; row < model.rowCount(parent); ++row)
        result.append(model.index(row, 0, parent).data().toString());
    return result;
}

// Every row's signal that rebuilds or restructures the tree.
struct StructureSpies
{
    explicit StructureSpies(QAbstractItemModel *model)
        : reset(model, &QAbstractItemModel::modelReset)
        , inserted(model, &QAbstractItemModel::rowsInserted)
        , removed(model, &QAbstractItemModel::rowsRemoved)
        , layout(model, &QAbstractItemModel::layoutChanged)
    {}
    int total() const
    {
        return int(reset.size() + inserted.size() + removed.size() + layout.size());
    }
    QSignalSpy reset, inserted, removed, layout;
};

} // namespace

class TestCatalogTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsGroupsAndNodes()
    {
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, CatalogFixture::small());
        QCOMPARE(labels(model), QStringList({u"EU land"_s, u"NA land"_s, u"AS land"_s}));
        const QModelIndex europe = model.index(0, 0);
        // Country groups carry the shared country name, not the daemon's spelling.
        QCOMPARE(labels(model, europe),
                 QStringList({u"Germany"_s, u"United Kingdom"_s, u"Switzerland"_s}));
        const QModelIndex germany = model.index(0, 0, europe);
        QCOMPARE(labels(model, germany), QStringList({u"Frankfurt"_s, u"Berlin"_s}));
        QCOMPARE(model.rowCount(model.index(0, 0, germany)), 3);
        QCOMPARE(model.nodeCount(), 22);
        QCOMPARE(model.indexForNode(u"1004"_s).data().toString(), u"Berlin 01"_s);
        QCOMPARE(model.indexForSelector(u"country:gb"_s).data().toString(), u"United Kingdom"_s);
        QCOMPARE(model.indexForSelector(u"JP"_s).data().toString(), u"Japan"_s);
    }

    void rowRoles_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("expected");
        const QString frankfurt2 = u"1002"_s;
        QTest::addRow("connected") << u"1001"_s << int(LocationConnectedRole) << QVariant(true);
        QTest::addRow("node search text")
            << frankfurt2 << int(LocationSearchTextRole)
            << QVariant(u"frankfurt 02 svip p2p premium de germany"_s);
        QTest::addRow("group flag region")
            << u"city:de:frankfurt"_s << int(LocationRegionRole) << QVariant(u"de"_s);
        QTest::addRow("country search text")
            << u"country:de"_s << int(LocationSearchTextRole) << QVariant(u"germany de"_s);
        QTest::addRow("node reads well")
            << frankfurt2 << int(Qt::AccessibleTextRole)
            << QVariant(u"Frankfurt 02, Germany, latency not measured, SVIP"_s);
    }

    void rowRoles()
    {
        QFETCH(QString, selector);
        QFETCH(int, role);
        QFETCH(QVariant, expected);
        CatalogFixture fixture = CatalogFixture::small();
        fixture.connectedId = u"1001"_s;
        CatalogTreeModel model;
        load(model, fixture);
        const QModelIndex index = model.indexForSelector(selector);
        QVERIFY(index.isValid());
        QCOMPARE(index.data(role), expected);
    }

    void pingUpdateChangesRowsInPlace()
    {
        CatalogFixture fixture = CatalogFixture::small();
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, fixture);
        StructureSpies structure(&model);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        fixture.setPings(0);
        load(model, fixture);
        QCOMPARE(structure.total(), 0);
        QVERIFY(!changed.isEmpty());
        // Neighbouring rows share one signal, and only the state roles are named.
        QVERIFY(changed.size() < 22);
        QVERIFY(changed.first().at(2).value<QList<int>>().contains(LocationPingMsRole));
        QCOMPARE(model.indexForNode(u"1002"_s).data(LocationPingMsRole).toInt(),
                 fixture.find(u"1002"_s)->pingMs);
        changed.clear();
        load(model, fixture); // the same answer again changes nothing
        QCOMPARE(changed.size(), 0);
        // The tunnel moves to London: the mark moves from Germany to the United Kingdom.
        fixture.connectedId = u"1006"_s;
        load(model, fixture);
        QCOMPARE(structure.total(), 0);
        QVERIFY(model.indexForSelector(u"country:gb"_s).data(LocationConnectedRole).toBool());
        QVERIFY(!model.indexForSelector(u"country:de"_s).data(LocationConnectedRole).toBool());
    }

    void favoriteChangeInPlaceAndInFavoriteTab()
    {
        CatalogFixture fixture = CatalogFixture::small();
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, fixture);
        StructureSpies structure(&model);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        fixture.find(u"1013"_s)->favorite = true;
        load(model, fixture);
        QCOMPARE(structure.total(), 0);
        QCOMPARE(changed.size(), 1);
        const QModelIndex star = model.indexForNode(u"1013"_s);
        QCOMPARE(changed.first().at(0).value<QModelIndex>(), star);
        QVERIFY(star.data(LocationFavoriteRole).toBool());

        model.setTab(u"favorite"_s);
        QCOMPARE(model.nodeCount(), 1);
        QCOMPARE(labels(model), QStringList({u"NA land"_s}));
        fixture.find(u"1001"_s)->favorite = true;
        load(model, fixture);
        QCOMPARE(labels(model), QStringList({u"EU land"_s, u"NA land"_s}));
        fixture.find(u"1013"_s)->favorite = false;
        fixture.find(u"1001"_s)->favorite = false;
        load(model, fixture);
        QCOMPARE(model.rowCount(), 0);
    }

    void reshapedCatalogueInsertsAndRemoves()
    {
        CatalogFixture fixture = CatalogFixture::small();
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, fixture);
        QPersistentModelIndex tokyo = model.indexForSelector(u"city:jp:tokyo"_s);
        QPersistentModelIndex london = model.indexForNode(u"1006"_s);
        StructureSpies structure(&model);

        // Berlin closes, a node joins Zurich, Canada goes and a new continent appears.
        fixture.nodes.removeIf([](const CatalogFixture::Node &node) {
            return node.city == QLatin1String("Berlin") || node.region == QLatin1String("CA");
        });
        const auto zurich = std::find_if(fixture.nodes.begin(), fixture.nodes.end(),
                                         [](const auto &node) { return node.id == u"1010"; });
        CatalogFixture::Node extra = *zurich;
        extra.id = u"2001"_s;
        extra.name = u"Zurich 03"_s;
        fixture.nodes.insert(zurich + 1, extra);
        CatalogFixture::Node sydney = extra;
        sydney.id = u"2002"_s;
        sydney.continent = u"OC"_s;
        sydney.region = u"AU"_s;
        sydney.country = u"Australia"_s;
        sydney.city = u"Sydney"_s;
        sydney.name = u"Sydney 01"_s;
        fixture.nodes.append(sydney);
        load(model, fixture);

        QCOMPARE(structure.reset.size(), 0);
        QVERIFY(!structure.removed.isEmpty());
        QVERIFY(!structure.inserted.isEmpty());
        QCOMPARE(labels(model),
                 QStringList({u"EU land"_s, u"NA land"_s, u"AS land"_s, u"OC land"_s}));
        QCOMPARE(labels(model, model.index(0, 0, model.index(0, 0))),
                 QStringList({u"Frankfurt"_s}));
        QCOMPARE(model.rowCount(model.indexForSelector(u"city:ch:zurich"_s)), 3);
        QVERIFY(!model.indexForSelector(u"country:ca"_s).isValid());
        QCOMPARE(model.nodeCount(), 20);
        // Rows that stayed are still the same rows.
        QCOMPARE(QModelIndex(tokyo), model.indexForSelector(u"city:jp:tokyo"_s));
        QCOMPARE(QModelIndex(london), model.indexForNode(u"1006"_s));

        // Nothing left: the view gets one reset, and the next catalogue fills it again.
        model.setCatalog({}, {});
        QCOMPARE(model.rowCount(), 0);
        load(model, fixture);
        QCOMPARE(model.nodeCount(), 20);
    }

    void tabs_data()
    {
        QTest::addColumn<QString>("tab");
        QTest::addColumn<bool>("sendTabs");
        QTest::addColumn<int>("nodes");
        QTest::addRow("all") << u"all"_s << true << 22;
        QTest::addRow("free by the daemon's ids") << u"free"_s << true << 5;
        QTest::addRow("svip by the daemon's ids") << u"SVIP"_s << true << 17;
        QTest::addRow("free without the daemon's tab") << u"free"_s << false << 5;
        QTest::addRow("favourites") << u"favorite"_s << true << 2;
    }

    void tabs()
    {
        QFETCH(QString, tab);
        QFETCH(bool, sendTabs);
        QFETCH(int, nodes);
        CatalogFixture fixture = CatalogFixture::small();
        fixture.find(u"1003"_s)->favorite = true;
        fixture.find(u"1020"_s)->favorite = true;
        NodeGroupsInfo groups = groupsOf(fixture);
        if (!sendTabs)
            groups.tabs.clear();
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        model.setCatalog(groups, nodesOf(fixture));
        model.setTab(tab);
        QCOMPARE(model.nodeCount(), nodes);
        // No group is left without rows below it.
        QModelIndexList pending{QModelIndex()};
        while (!pending.isEmpty()) {
            const QModelIndex parent = pending.takeLast();
            for (int row = 0; row < model.rowCount(parent); ++row) {
                const QModelIndex child = model.index(row, 0, parent);
                if (child.data(LocationIsGroupRole).toBool()) {
                    QVERIFY(model.rowCount(child) > 0);
                    pending.append(child);
                }
            }
        }
    }

    void sortWithinEachLevel()
    {
        CatalogFixture fixture = CatalogFixture::small();
        fixture.setPings(0);
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, fixture);
        const QPersistentModelIndex japan = model.indexForSelector(u"country:jp"_s);
        model.setSortOrder(CatalogSort::Name);
        QCOMPARE(labels(model), QStringList({u"AS land"_s, u"EU land"_s, u"NA land"_s}));
        QCOMPARE(labels(model, model.indexForSelector(u"country:de"_s)),
                 QStringList({u"Berlin"_s, u"Frankfurt"_s}));
        QCOMPARE(QModelIndex(japan), model.indexForSelector(u"country:jp"_s));

        model.setSortOrder(CatalogSort::Latency);
        const QModelIndex city = model.indexForSelector(u"city:us:new-york"_s);
        int previous = -1;
        for (int row = 0; row < model.rowCount(city); ++row) {
            const int ping = model.index(row, 0, city).data(LocationPingMsRole).toInt();
            QVERIFY(ping >= previous);
            previous = ping;
        }
        // A group ranks by its fastest node.
        previous = -1;
        for (int row = 0; row < model.rowCount(); ++row) {
            const int ping = model.index(row, 0).data(LocationPingMsRole).toInt();
            QVERIFY(ping >= previous);
            previous = ping;
        }
        model.setSortOrder(CatalogSort::Daemon);
        QCOMPARE(labels(model), QStringList({u"EU land"_s, u"NA land"_s, u"AS land"_s}));
    }

    void lockedTiers()
    {
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        load(model, CatalogFixture::small());
        const QModelIndex free = model.indexForNode(u"1001"_s);
        const QModelIndex paid = model.indexForNode(u"1002"_s);
        const QModelIndex berlin = model.indexForSelector(u"city:de:berlin"_s);
        QVERIFY(!paid.data(LocationLockedRole).toBool());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.setAvailableTiers({u"FREE"_s});
        QVERIFY(!changed.isEmpty());
        QVERIFY(!free.data(LocationLockedRole).toBool());
        QVERIFY(paid.data(LocationLockedRole).toBool());
        // Berlin has only paid nodes; Frankfurt has a free one and stays open.
        QVERIFY(berlin.data(LocationLockedRole).toBool());
        for (const QModelIndex &locked : {paid, berlin}) {
            QCOMPARE(locked.data(Qt::AccessibleDescriptionRole).toString(),
                     u"Locked: needs the SVIP plan. Upgrade to use it."_s);
        }
        QVERIFY(!model.indexForSelector(u"city:de:frankfurt"_s).data(LocationLockedRole).toBool());
        model.setAvailableTiers({u"FREE"_s, u"SVIP"_s});
        QVERIFY(!paid.data(LocationLockedRole).toBool());
    }

    void badInputStillShows()
    {
        // Duplicate ids, an unknown id, an empty name, a node no group lists (one of a known
        // country, one of an unknown one, one without a region), a group id twice.
        const QByteArray nodes = R"({"stale": true, "nodes": [
            {"id": 1, "name": "Berlin 01", "region": "DE", "tags": ["FREE"]},
            {"id": 1, "name": "Berlin copy", "region": "DE"},
            {"id": 2, "name": "", "region": "DE", "pingMs": 12},
            {"id": 3, "name": "Hamburg 01", "region": "de"},
            {"id": 4, "name": "Atlantis 01", "region": "ZZ"},
            {"id": 5, "name": "Nowhere 01"},
            "garbage", {}]})";
        const QByteArray groups = R"({"groups": [
            {"id": "country:de", "name": "Germany", "code": "DE", "node_ids": ["1", "1", "2", "99"]},
            {"id": "country:de", "name": "Germany again", "code": "DE", "node_ids": ["1"]},
            {"id": "empty", "name": "Empty", "node_ids": ["98"]}]})";
        QString error;
        CatalogTreeModel model;
        QAbstractItemModelTester tester(&model, QtTest);
        model.setCatalog(NodeGroupsInfo::parse(groups, &error), NodesInfo::parse(nodes, &error));
        QCOMPARE(labels(model), QStringList({u"Germany"_s, u"ZZ"_s, u"Other locations"_s}));
        QCOMPARE(labels(model, model.index(0, 0)),
                 QStringList({u"Berlin 01"_s, u"Location 2"_s, u"Hamburg 01"_s}));
        QCOMPARE(model.nodeCount(), 5);
        QCOMPARE(model.index(1, 0).data(LocationSelectorRole).toString(), u"zz"_s);
        QVERIFY(model.index(0, 0).data(LocationStaleRole).toBool());

        // Nodes before their groups: each shows under its own country for now.
        CatalogTreeModel early;
        QAbstractItemModelTester earlyTester(&early, QtTest);
        early.setCatalog({}, NodesInfo::parse(CatalogFixture::small().nodesJson(), &error));
        QCOMPARE(early.rowCount(), 7);
        QCOMPARE(early.nodeCount(), 22);
        QCOMPARE(early.index(0, 0).data().toString(), u"Germany"_s);
    }
};

QTEST_MAIN(TestCatalogTreeModel)
#include "TestCatalogTreeModel.moc"
