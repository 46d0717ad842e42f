#include "CatalogFilterModel.h"
#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "LocationRoles.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace {

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
    void buildsGroupsAndNodes();
    void rowRoles_data();
    void rowRoles();
    void pingUpdateChangesRowsInPlace();
    void favoriteChangeInPlaceAndInFavoriteTab();
    void reshapedCatalogueInsertsAndRemoves();
    void tabs_data();
    void tabs();
    void sortWithinEachLevel();
    void lockedTiers();
    void badInputStillShows();
    void selectionAndExpansionSurvivePingUpdate();
};

void TestCatalogTreeModel::buildsGroupsAndNodes()
{
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, CatalogFixture::small());
    QCOMPARE(labels(model), QStringList({QStringLiteral("EU land"), QStringLiteral("NA land"),
                                         QStringLiteral("AS land")}));
    const QModelIndex europe = model.index(0, 0);
    // Country groups carry the shared country name, not the daemon's spelling.
    QCOMPARE(labels(model, europe),
             QStringList({QStringLiteral("Germany"), QStringLiteral("United Kingdom"),
                          QStringLiteral("Switzerland")}));
    const QModelIndex germany = model.index(0, 0, europe);
    QCOMPARE(labels(model, germany),
             QStringList({QStringLiteral("Frankfurt"), QStringLiteral("Berlin")}));
    QCOMPARE(model.rowCount(model.index(0, 0, germany)), 3);
    QCOMPARE(model.nodeCount(), 22);
    QCOMPARE(model.indexForNode(QStringLiteral("1004")).data().toString(),
             QStringLiteral("Berlin 01"));
    QCOMPARE(model.indexForSelector(QStringLiteral("country:gb")).data().toString(),
             QStringLiteral("United Kingdom"));
    QCOMPARE(model.indexForSelector(QStringLiteral("JP")).data().toString(),
             QStringLiteral("Japan"));
}

void TestCatalogTreeModel::rowRoles_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");
    const QString frankfurt2 = QStringLiteral("1002");
    QTest::addRow("connected") << QStringLiteral("1001") << int(LocationConnectedRole)
                               << QVariant(true);
    QTest::addRow("its continent too")
        << QStringLiteral("continent:eu") << int(LocationConnectedRole) << QVariant(true);
    QTest::addRow("not another country")
        << QStringLiteral("country:gb") << int(LocationConnectedRole) << QVariant(false);
    QTest::addRow("node search text")
        << frankfurt2 << int(LocationSearchTextRole)
        << QVariant(QStringLiteral("frankfurt 02 svip p2p premium de germany"));
    QTest::addRow("group flag region") << QStringLiteral("city:de:frankfurt")
                                       << int(LocationRegionRole) << QVariant(QStringLiteral("de"));
    QTest::addRow("continent has no region")
        << QStringLiteral("continent:eu") << int(LocationRegionRole) << QVariant(QString());
    QTest::addRow("country search text")
        << QStringLiteral("country:de") << int(LocationSearchTextRole)
        << QVariant(QStringLiteral("germany de"));
    QTest::addRow("russia by its table name")
        << QStringLiteral("country:ru") << int(Qt::DisplayRole)
        << QVariant(QStringLiteral("Russian Federation"));
    QTest::addRow("node reads well")
        << frankfurt2 << int(Qt::AccessibleTextRole)
        << QVariant(QStringLiteral("Frankfurt 02, Germany, latency not measured, SVIP"));
}

void TestCatalogTreeModel::rowRoles()
{
    QFETCH(QString, selector);
    QFETCH(int, role);
    QFETCH(QVariant, expected);
    CatalogFixture fixture = CatalogFixture::small();
    fixture.connectedId = QStringLiteral("1001");
    CatalogTreeModel model;
    load(model, fixture);
    const QModelIndex index = model.indexForSelector(selector);
    QVERIFY(index.isValid());
    QCOMPARE(index.data(role), expected);
}

void TestCatalogTreeModel::pingUpdateChangesRowsInPlace()
{
    CatalogFixture fixture = CatalogFixture::small();
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
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
    QCOMPARE(model.indexForNode(QStringLiteral("1002")).data(LocationPingMsRole).toInt(),
             fixture.find(QStringLiteral("1002"))->pingMs);
    changed.clear();
    load(model, fixture); // the same answer again changes nothing
    QCOMPARE(changed.size(), 0);
    // The tunnel moves to London: the mark moves from Germany to the United Kingdom.
    fixture.connectedId = QStringLiteral("1006");
    load(model, fixture);
    QCOMPARE(structure.total(), 0);
    QVERIFY(
        model.indexForSelector(QStringLiteral("country:gb")).data(LocationConnectedRole).toBool());
    QVERIFY(
        !model.indexForSelector(QStringLiteral("country:de")).data(LocationConnectedRole).toBool());
}

void TestCatalogTreeModel::favoriteChangeInPlaceAndInFavoriteTab()
{
    CatalogFixture fixture = CatalogFixture::small();
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, fixture);
    StructureSpies structure(&model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    fixture.find(QStringLiteral("1013"))->favorite = true;
    load(model, fixture);
    QCOMPARE(structure.total(), 0);
    QCOMPARE(changed.size(), 1);
    const QModelIndex star = model.indexForNode(QStringLiteral("1013"));
    QCOMPARE(changed.first().at(0).value<QModelIndex>(), star);
    QVERIFY(star.data(LocationFavoriteRole).toBool());

    model.setTab(QStringLiteral("favorite"));
    QCOMPARE(model.nodeCount(), 1);
    QCOMPARE(labels(model), QStringList({QStringLiteral("NA land")}));
    fixture.find(QStringLiteral("1001"))->favorite = true;
    load(model, fixture);
    QCOMPARE(labels(model), QStringList({QStringLiteral("EU land"), QStringLiteral("NA land")}));
    fixture.find(QStringLiteral("1013"))->favorite = false;
    fixture.find(QStringLiteral("1001"))->favorite = false;
    load(model, fixture);
    QCOMPARE(model.rowCount(), 0);
}

void TestCatalogTreeModel::reshapedCatalogueInsertsAndRemoves()
{
    CatalogFixture fixture = CatalogFixture::small();
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, fixture);
    QPersistentModelIndex tokyo = model.indexForSelector(QStringLiteral("city:jp:tokyo"));
    QPersistentModelIndex london = model.indexForNode(QStringLiteral("1006"));
    StructureSpies structure(&model);

    // Berlin closes, a node joins Zurich, Canada goes and a new continent appears.
    fixture.nodes.removeIf([](const CatalogFixture::Node &node) {
        return node.city == QLatin1String("Berlin") || node.region == QLatin1String("CA");
    });
    const auto zurich = std::find_if(fixture.nodes.begin(), fixture.nodes.end(),
                                     [](const auto &node) { return node.id == u"1010"; });
    CatalogFixture::Node extra = *zurich;
    extra.id = QStringLiteral("2001");
    extra.name = QStringLiteral("Zurich 03");
    fixture.nodes.insert(zurich + 1, extra);
    CatalogFixture::Node sydney = extra;
    sydney.id = QStringLiteral("2002");
    sydney.continent = QStringLiteral("OC");
    sydney.region = QStringLiteral("AU");
    sydney.country = QStringLiteral("Australia");
    sydney.city = QStringLiteral("Sydney");
    sydney.name = QStringLiteral("Sydney 01");
    fixture.nodes.append(sydney);
    load(model, fixture);

    QCOMPARE(structure.reset.size(), 0);
    QVERIFY(!structure.removed.isEmpty());
    QVERIFY(!structure.inserted.isEmpty());
    QCOMPARE(labels(model), QStringList({QStringLiteral("EU land"), QStringLiteral("NA land"),
                                         QStringLiteral("AS land"), QStringLiteral("OC land")}));
    QCOMPARE(labels(model, model.index(0, 0, model.index(0, 0))),
             QStringList({QStringLiteral("Frankfurt")}));
    QCOMPARE(model.rowCount(model.indexForSelector(QStringLiteral("city:ch:zurich"))), 3);
    QVERIFY(!model.indexForSelector(QStringLiteral("country:ca")).isValid());
    QCOMPARE(model.nodeCount(), 20);
    // Rows that stayed are still the same rows.
    QCOMPARE(QModelIndex(tokyo), model.indexForSelector(QStringLiteral("city:jp:tokyo")));
    QCOMPARE(QModelIndex(london), model.indexForNode(QStringLiteral("1006")));

    // Nothing left: the view gets one reset, and the next catalogue fills it again.
    model.setCatalog({}, {});
    QCOMPARE(model.rowCount(), 0);
    load(model, fixture);
    QCOMPARE(model.nodeCount(), 20);
}

void TestCatalogTreeModel::tabs_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<bool>("sendTabs");
    QTest::addColumn<int>("nodes");
    QTest::addRow("all") << QStringLiteral("all") << true << 22;
    QTest::addRow("none chosen") << QString() << true << 22;
    QTest::addRow("free by the daemon's ids") << QStringLiteral("free") << true << 5;
    QTest::addRow("svip by the daemon's ids") << QStringLiteral("SVIP") << true << 17;
    QTest::addRow("free without the daemon's tab") << QStringLiteral("free") << false << 5;
    QTest::addRow("favourites") << QStringLiteral("favorite") << true << 2;
}

void TestCatalogTreeModel::tabs()
{
    QFETCH(QString, tab);
    QFETCH(bool, sendTabs);
    QFETCH(int, nodes);
    CatalogFixture fixture = CatalogFixture::small();
    fixture.find(QStringLiteral("1003"))->favorite = true;
    fixture.find(QStringLiteral("1020"))->favorite = true;
    NodeGroupsInfo groups = groupsOf(fixture);
    if (!sendTabs)
        groups.tabs.clear();
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
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

void TestCatalogTreeModel::sortWithinEachLevel()
{
    CatalogFixture fixture = CatalogFixture::small();
    fixture.setPings(0);
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, fixture);
    const QPersistentModelIndex japan = model.indexForSelector(QStringLiteral("country:jp"));
    model.setSortOrder(CatalogSort::Name);
    QCOMPARE(labels(model), QStringList({QStringLiteral("AS land"), QStringLiteral("EU land"),
                                         QStringLiteral("NA land")}));
    QCOMPARE(labels(model, model.indexForSelector(QStringLiteral("country:de"))),
             QStringList({QStringLiteral("Berlin"), QStringLiteral("Frankfurt")}));
    QCOMPARE(QModelIndex(japan), model.indexForSelector(QStringLiteral("country:jp")));

    model.setSortOrder(CatalogSort::Latency);
    const QModelIndex city = model.indexForSelector(QStringLiteral("city:us:new-york"));
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
    QCOMPARE(labels(model), QStringList({QStringLiteral("EU land"), QStringLiteral("NA land"),
                                         QStringLiteral("AS land")}));
}

void TestCatalogTreeModel::lockedTiers()
{
    CatalogTreeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, CatalogFixture::small());
    const QModelIndex free = model.indexForNode(QStringLiteral("1001"));
    const QModelIndex paid = model.indexForNode(QStringLiteral("1002"));
    const QModelIndex berlin = model.indexForSelector(QStringLiteral("city:de:berlin"));
    QVERIFY(!paid.data(LocationLockedRole).toBool());
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setAvailableTiers({QStringLiteral("FREE")});
    QVERIFY(!changed.isEmpty());
    QVERIFY(!free.data(LocationLockedRole).toBool());
    QVERIFY(paid.data(LocationLockedRole).toBool());
    // Berlin has only paid nodes; Frankfurt has a free one and stays open.
    QVERIFY(berlin.data(LocationLockedRole).toBool());
    for (const QModelIndex &locked : {paid, berlin}) {
        QCOMPARE(locked.data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("Locked: needs the SVIP plan. Upgrade to use it."));
    }
    QVERIFY(!model.indexForSelector(QStringLiteral("city:de:frankfurt"))
                 .data(LocationLockedRole)
                 .toBool());
    model.setAvailableTiers({QStringLiteral("FREE"), QStringLiteral("SVIP")});
    QVERIFY(!paid.data(LocationLockedRole).toBool());
}

void TestCatalogTreeModel::badInputStillShows()
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
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setCatalog(NodeGroupsInfo::parse(groups, &error), NodesInfo::parse(nodes, &error));
    QCOMPARE(labels(model), QStringList({QStringLiteral("Germany"), QStringLiteral("ZZ"),
                                         QStringLiteral("Other locations")}));
    QCOMPARE(labels(model, model.index(0, 0)),
             QStringList({QStringLiteral("Berlin 01"), QStringLiteral("Location 2"),
                          QStringLiteral("Hamburg 01")}));
    QCOMPARE(model.nodeCount(), 5);
    QCOMPARE(model.index(1, 0).data(LocationSelectorRole).toString(), QStringLiteral("zz"));
    QVERIFY(model.index(0, 0).data(LocationStaleRole).toBool());

    // Nodes before their groups: each shows under its own country for now.
    CatalogTreeModel early;
    QAbstractItemModelTester earlyTester(&early,
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
    early.setCatalog({}, NodesInfo::parse(CatalogFixture::small().nodesJson(), &error));
    QCOMPARE(early.rowCount(), 7);
    QCOMPARE(early.nodeCount(), 22);
    QCOMPARE(early.index(0, 0).data().toString(), QStringLiteral("Germany"));
}

void TestCatalogTreeModel::selectionAndExpansionSurvivePingUpdate()
{
    CatalogFixture fixture = CatalogFixture::small();
    CatalogTreeModel model;
    CatalogFilterModel filter;
    filter.setSourceModel(&model);
    QAbstractItemModelTester tester(&filter,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    load(model, fixture);
    QTreeView view;
    view.setModel(&filter);
    view.resize(400, 600);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto proxyOf = [&](const QModelIndex &source) { return filter.mapFromSource(source); };
    const QModelIndex america = proxyOf(model.indexForSelector(QStringLiteral("continent:na")));
    const QModelIndex usa = proxyOf(model.indexForSelector(QStringLiteral("country:us")));
    const QModelIndex newYork = proxyOf(model.indexForSelector(QStringLiteral("city:us:new-york")));
    view.expand(america);
    view.expand(usa);
    view.expand(newYork);
    view.setCurrentIndex(proxyOf(model.indexForNode(QStringLiteral("1014"))));
    const auto current = [&] { return view.currentIndex().data(LocationNodeIdRole).toString(); };
    QCOMPARE(current(), QStringLiteral("1014"));

    fixture.setPings(7);
    load(model, fixture);
    fixture.nodes.removeFirst(); // a refresh that also drops a node elsewhere
    load(model, fixture);
    model.setSortOrder(CatalogSort::Latency);
    fixture.setPings(91);
    load(model, fixture);

    QCOMPARE(current(), QStringLiteral("1014"));
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 1);
    QVERIFY(view.isExpanded(proxyOf(model.indexForSelector(QStringLiteral("continent:na")))));
    QVERIFY(view.isExpanded(proxyOf(model.indexForSelector(QStringLiteral("city:us:new-york")))));
    QVERIFY(!view.isExpanded(proxyOf(model.indexForSelector(QStringLiteral("continent:eu")))));
}

QTEST_MAIN(TestCatalogTreeModel)
#include "TestCatalogTreeModel.moc"
