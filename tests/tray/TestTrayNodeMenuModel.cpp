#include "TrayNodeMenuModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

NodeEntry node(const QString &id, const QString &name, const QString &region, int pingMs = -1,
               const QStringList &tags = {})
{
    NodeEntry entry;
    entry.valid = true;
    entry.id = id;
    entry.name = name;
    entry.region = region;
    entry.pingMs = pingMs;
    entry.tags = tags;
    return entry;
}

NodeGroupEntry group(const QString &name, const QString &code, const QStringList &nodeIds,
                     const QList<NodeGroupEntry> &subgroups = {})
{
    NodeGroupEntry entry;
    entry.name = name;
    entry.code = code;
    entry.nodeIds = nodeIds;
    entry.subgroups = subgroups;
    return entry;
}

QStringList rowIds(const TrayNodeMenuModel &model)
{
    QStringList ids;
    for (int row = 0; row < model.rowCount(); ++row)
        ids.append(model.index(row).data(TrayNodeMenuModel::NodeIdRole).toString());
    return ids;
}

} // namespace

class TestTrayNodeMenuModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinLabel_data();
    void joinLabel();
    void formatDuration_data();
    void formatDuration();
    void nodeLabel_data();
    void nodeLabel();
    void fiveEntries_data();
    void fiveEntries();
    void currentLine_data();
    void currentLine();
};

void TestTrayNodeMenuModel::joinLabel_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("expected");
    QTest::addRow("both distinct") << "Germany"
                                   << "Frankfurt 1"
                                   << "Germany - Frankfurt 1";
    QTest::addRow("both trimmed") << "  Germany "
                                  << " Berlin  "
                                  << "Germany - Berlin";
    QTest::addRow("first empty") << ""
                                 << "Berlin"
                                 << "Berlin";
    QTest::addRow("first blank") << "   "
                                 << "Berlin"
                                 << "Berlin";
    QTest::addRow("second empty") << "Germany"
                                  << ""
                                  << "Germany";
    QTest::addRow("both empty") << ""
                                << ""
                                << "";
    QTest::addRow("equal ignoring case") << "tokyo"
                                         << "Tokyo"
                                         << "Tokyo";
    QTest::addRow("second extends first") << "Tokyo"
                                          << "tokyo 2"
                                          << "tokyo 2";
    QTest::addRow("first extends second") << "Tokyo 2"
                                          << "Tokyo"
                                          << "Tokyo 2 - Tokyo";
    QTest::addRow("second contains first later") << "York"
                                                 << "New York"
                                                 << "York - New York";
}

void TestTrayNodeMenuModel::joinLabel()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, expected);
    QCOMPARE(TrayNodeMenuModel::joinLabel(first, second), expected);
}

void TestTrayNodeMenuModel::formatDuration_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("expected");
    QTest::addRow("zero") << qint64(0) << "less than 1m";
    QTest::addRow("59 s") << qint64(59) << "less than 1m";
    QTest::addRow("60 s") << qint64(60) << "1m";
    QTest::addRow("3599 s") << qint64(3599) << "59m";
    QTest::addRow("one hour") << qint64(3600) << "1h";
    QTest::addRow("hour and minute") << qint64(3660) << "1h 1m";
    QTest::addRow("hour and 59 s") << qint64(3659) << "1h";
    QTest::addRow("86399 s") << qint64(86399) << "23h 59m";
    QTest::addRow("one day") << qint64(86400) << "1d";
    QTest::addRow("day and hour") << qint64(90000) << "1d 1h";
    QTest::addRow("day and 59 min") << qint64(86400 + 3599) << "1d";
    QTest::addRow("ten days") << qint64(10 * 86400 + 5 * 3600 + 7) << "10d 5h";
}

void TestTrayNodeMenuModel::formatDuration()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, expected);
    QCOMPARE(TrayNodeMenuModel::formatDuration(seconds), expected);
}

void TestTrayNodeMenuModel::nodeLabel_data()
{
    QTest::addColumn<NodeEntry>("entry");
    QTest::addColumn<NodeGroupsInfo>("groups");
    QTest::addColumn<QString>("expected");

    NodeGroupsInfo world;
    world.valid = true;
    world.groups = {
        group(QStringLiteral("Europe"), QStringLiteral("EU"), {},
              {group(QStringLiteral("Germany"), QStringLiteral("DE"), {},
                     {group(QStringLiteral("Frankfurt"), QString(), {QStringLiteral("1001")})}),
               group(QString(), QStringLiteral("NL"), {QStringLiteral("2001")})}),
        group(QStringLiteral("Japan"), QStringLiteral("JP"), {})};

    QTest::addRow("country by region")
        << node(QStringLiteral("1001"), QStringLiteral("Frankfurt 1"), QStringLiteral("DE"))
        << world << "Germany - Frankfurt 1";
    QTest::addRow("region code in another case")
        << node(QStringLiteral("3001"), QStringLiteral("Tokyo 1"), QStringLiteral("jp")) << world
        << "Japan - Tokyo 1";
    QTest::addRow("unnamed group")
        << node(QStringLiteral("2001"), QStringLiteral("Amsterdam 1"), QStringLiteral("NL"))
        << world << "Group - Amsterdam 1";
    QTest::addRow("held by a city only")
        << node(QStringLiteral("1001"), QStringLiteral("Frankfurt 1"), QString()) << world
        << "Frankfurt 1";
    QTest::addRow("no group: region code")
        << node(QStringLiteral("4001"), QStringLiteral("Lima 1"), QStringLiteral("PE")) << world
        << "PE - Lima 1";
    QTest::addRow("no name: id") << node(QStringLiteral("4002"), QString(), QStringLiteral("PE"))
                                 << NodeGroupsInfo() << "PE - 4002";
}

void TestTrayNodeMenuModel::nodeLabel()
{
    QFETCH(NodeEntry, entry);
    QFETCH(NodeGroupsInfo, groups);
    QFETCH(QString, expected);
    QCOMPARE(TrayNodeMenuModel::nodeLabel(entry, groups), expected);
}

void TestTrayNodeMenuModel::fiveEntries_data()
{
    QTest::addColumn<NodesInfo>("nodes");
    QTest::addColumn<QStringList>("recent");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<QStringList>("expectedIds");

    const QString fav = QStringLiteral("FAVORITE");
    NodesInfo catalogue;
    catalogue.valid = true;
    catalogue.nodes = {node(QStringLiteral("a"), QStringLiteral("A"), {}, 90),
                       node(QStringLiteral("b"), QStringLiteral("B"), {}, 10),
                       node(QStringLiteral("c"), QStringLiteral("C"), {}, -1, {fav}),
                       node(QStringLiteral("d"), QStringLiteral("D"), {}, 30),
                       node(QStringLiteral("e"), QStringLiteral("E"), {}, -1),
                       node(QStringLiteral("f"), QStringLiteral("F"), {}, 20),
                       node(QStringLiteral("g"), QStringLiteral("G"), {}, -1)};

    QTest::addRow("favourites then lowest ping")
        << catalogue << QStringList() << false
        << QStringList{QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("f"),
                       QStringLiteral("d"), QStringLiteral("a")};

    NodesInfo withConnected = catalogue;
    withConnected.connected = node(QStringLiteral("g"), QStringLiteral("G"), {});
    withConnected.selected = node(QStringLiteral("e"), QStringLiteral("E"), {});
    QTest::addRow("connected first, then recent")
        << withConnected << QStringList{QStringLiteral("e"), QStringLiteral("zz")} << true
        << QStringList{QStringLiteral("g"), QStringLiteral("c"), QStringLiteral("e"),
                       QStringLiteral("b"), QStringLiteral("f")};
    QTest::addRow("not connected: selected first")
        << withConnected << QStringList() << false
        << QStringList{QStringLiteral("e"), QStringLiteral("c"), QStringLiteral("b"),
                       QStringLiteral("f"), QStringLiteral("d")};

    NodesInfo small;
    small.valid = true;
    small.nodes = {node(QStringLiteral("x"), QStringLiteral("X"), {}),
                   node(QStringLiteral("y"), QStringLiteral("Y"), {}),
                   node(QStringLiteral("x"), QStringLiteral("X again"), {})};
    QTest::addRow("fewer than five, no repeats")
        << small << QStringList() << false << QStringList{QStringLiteral("x"), QStringLiteral("y")};
    QTest::addRow("no catalogue") << NodesInfo() << QStringList() << false << QStringList();
}

void TestTrayNodeMenuModel::fiveEntries()
{
    QFETCH(NodesInfo, nodes);
    QFETCH(QStringList, recent);
    QFETCH(bool, connected);
    QFETCH(QStringList, expectedIds);

    TrayNodeMenuModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setConnection(connected, QString(), QDateTime::currentDateTimeUtc());
    model.setCatalog(nodes, NodeGroupsInfo(), recent);
    QCOMPARE(rowIds(model), expectedIds);
    QVERIFY(model.rowCount() <= TrayNodeMenuModel::kEntryCount);
    QCOMPARE(resets.count(), 2);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        const bool isConnected = index.data(TrayNodeMenuModel::ConnectedRole).toBool();
        QCOMPARE(isConnected, connected && row == 0 && nodes.connected.valid);
    }
}

void TestTrayNodeMenuModel::currentLine_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("stale");
    QTest::addColumn<QString>("since");
    QTest::addColumn<QString>("expectedLine");
    QTest::addColumn<QString>("expectedFirstEntry");

    QTest::addRow("connected two hours") << true << false << "2024-05-01T10:00:00Z"
                                         << "Location: DE - Berlin 1 · 2h 5m"
                                         << "DE - Berlin 1 · 2h 5m";
    QTest::addRow("connected, epoch seconds")
        << true << false
        << QString::number(
               QDateTime::fromString(QStringLiteral("2024-05-01T12:04:30Z"), Qt::ISODate)
                   .toSecsSinceEpoch())
        << "Location: DE - Berlin 1 · less than 1m"
        << "DE - Berlin 1 · less than 1m";
    QTest::addRow("connected, since unknown") << true << false << ""
                                              << "Location: DE - Berlin 1"
                                              << "DE - Berlin 1";
    QTest::addRow("selected") << false << false << ""
                              << "Current: NL - Delft 2"
                              << "NL - Delft 2";
    QTest::addRow("selected from the cached list") << false << true << ""
                                                   << "Current: NL - Delft 2 (stale)"
                                                   << "NL - Delft 2";
}

void TestTrayNodeMenuModel::currentLine()
{
    QFETCH(bool, connected);
    QFETCH(bool, stale);
    QFETCH(QString, since);
    QFETCH(QString, expectedLine);
    QFETCH(QString, expectedFirstEntry);

    NodesInfo nodes;
    nodes.valid = true;
    nodes.stale = stale;
    nodes.nodes = {node(QStringLiteral("1"), QStringLiteral("Berlin 1"), QStringLiteral("DE")),
                   node(QStringLiteral("2"), QStringLiteral("Delft 2"), QStringLiteral("NL"))};
    nodes.connected = node(QStringLiteral("1"), QString(), QString());
    nodes.selected = node(QStringLiteral("2"), QString(), QString());

    TrayNodeMenuModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setCatalog(nodes, NodeGroupsInfo(), {});
    model.setConnection(connected, since,
                        QDateTime::fromString(QStringLiteral("2024-05-01T12:05:00Z"), Qt::ISODate));
    QCOMPARE(model.currentLine(), expectedLine);
    QCOMPARE(model.index(0).data().toString(), expectedFirstEntry);
}

QTEST_GUILESS_MAIN(TestTrayNodeMenuModel)
#include "TestTrayNodeMenuModel.moc"
