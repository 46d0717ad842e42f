#include "TrayNodeMenuModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

NodeEntry node(const char *id, const char *name = "", const char *region = "", int pingMs = -1,
               bool favourite = false)
{
    NodeEntry entry;
    entry.valid = true;
    entry.id = QString::fromUtf8(id);
    entry.name = QString::fromUtf8(name);
    entry.region = QString::fromUtf8(region);
    entry.pingMs = pingMs;
    if (favourite)
        entry.tags = {QStringLiteral("FAVORITE")};
    return entry;
}

NodeGroupEntry group(const char *name, const char *code, const QStringList &nodeIds,
                     const QList<NodeGroupEntry> &subgroups = {})
{
    NodeGroupEntry entry;
    entry.name = QString::fromUtf8(name);
    entry.code = QString::fromUtf8(code);
    entry.nodeIds = nodeIds;
    entry.subgroups = subgroups;
    return entry;
}

// One row of three texts, so that each case stays on one line.
void textRow(const char *name, const char *first, const char *second, const char *expected)
{
    QTest::newRow(name) << first << second << expected;
}

} // namespace

class TestTrayNodeMenuModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinLabel_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("expected");
        textRow("both trimmed", "  Germany ", " Berlin  ", "Germany - Berlin");
        textRow("first blank", "   ", "Berlin", "Berlin");
        textRow("second extends first", "Tokyo", "tokyo 2", "tokyo 2");
        textRow("first extends second", "Tokyo 2", "Tokyo", "Tokyo 2 - Tokyo");
        textRow("second contains first later", "York", "New York", "York - New York");
    }

    void joinLabel()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, expected);
        QCOMPARE(TrayNodeMenuModel::joinLabel(first, second), expected);
    }

    void formatDuration_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("expected");
        QTest::addRow("59 s") << qint64(59) << "less than 1m";
        QTest::addRow("60 s") << qint64(60) << "1m";
        QTest::addRow("hour and 59 s") << qint64(3659) << "1h";
        QTest::addRow("86399 s") << qint64(86399) << "23h 59m";
        QTest::addRow("day and hour") << qint64(90000) << "1d 1h";
    }

    void formatDuration()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, expected);
        QCOMPARE(TrayNodeMenuModel::formatDuration(seconds), expected);
    }

    void nodeLabel_data()
    {
        QTest::addColumn<NodeEntry>("entry");
        QTest::addColumn<NodeGroupsInfo>("groups");
        QTest::addColumn<QString>("expected");

        NodeGroupsInfo world;
        world.valid = true;
        world.groups = {
            group("Europe", "EU", {},
                  {group("Germany", "DE", {}, {group("Frankfurt", "", {QStringLiteral("1001")})}),
                   group("", "XK", {QStringLiteral("2001")})})};

        QTest::addRow("country by region")
            << node("1001", "Frankfurt 1", "DE") << world << "Germany - Frankfurt 1";
        QTest::addRow("code the country table lacks: its unnamed group")
            << node("2001", "Pristina 1", "XK") << world << "Group - Pristina 1";
        QTest::addRow("held by a city only")
            << node("1001", "Frankfurt 1") << world << "Frankfurt 1";
        QTest::addRow("no group: the country table's name")
            << node("4001", "Lima 1", "PE") << world << "Peru - Lima 1";
        QTest::addRow("unknown code, no group: the code as the page shows it")
            << node("4003", "Atlantis 1", "zz") << world << "ZZ - Atlantis 1";
        QTest::addRow("no name: id") << node("4002", "", "PE") << NodeGroupsInfo() << "Peru - 4002";
    }

    void nodeLabel()
    {
        QFETCH(NodeEntry, entry);
        QFETCH(NodeGroupsInfo, groups);
        QFETCH(QString, expected);
        QCOMPARE(TrayNodeMenuModel::nodeLabel(entry, groups), expected);
    }

    void fiveEntries_data()
    {
        QTest::addColumn<NodesInfo>("nodes");
        QTest::addColumn<QStringList>("recent");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<QStringList>("tiers");   // the plan's; empty: every tier
        QTest::addColumn<QString>("expectedIds"); // "!": locked

        NodesInfo catalogue;
        catalogue.valid = true;
        catalogue.nodes = {
            node("a", "A", "", 90), node("b", "B", "", 10), node("c", "C", "", -1, true),
            node("d", "D", "", 30), node("e", "E"),         node("f", "F", "", 20),
            node("g", "G")};
        QTest::addRow("favourites then lowest ping")
            << catalogue << QStringList() << false << QStringList() << "c b f d a";

        NodesInfo withConnected = catalogue;
        withConnected.connected = node("g", "G");
        withConnected.selected = node("e", "E");
        QTest::addRow("connected first, then recent")
            << withConnected << QStringList{QStringLiteral("e"), QStringLiteral("zz")} << true
            << QStringList() << "g c e b f";
        QTest::addRow("not connected: selected first")
            << withConnected << QStringList() << false << QStringList() << "e c b f d";

        // A Free plan: the starred premium node shows locked, the premium one with the lowest ping
        // gives its place to a node the plan includes.
        NodesInfo tiered = catalogue;
        tiered.nodes[1].tags.append(QStringLiteral("SVIP"));
        tiered.nodes[2].tags.append(QStringLiteral("SVIP"));
        QTest::addRow("free plan: premium locked, last")
            << tiered << QStringList() << false << QStringList{QStringLiteral("FREE")}
            << "c! f d a e";

        NodesInfo small;
        small.valid = true;
        small.nodes = {node("x", "X"), node("y", "Y"), node("x", "X again")};
        QTest::addRow("fewer than five, no repeats")
            << small << QStringList() << false << QStringList() << "x y";
        QTest::addRow("no catalogue")
            << NodesInfo() << QStringList() << false << QStringList() << "";
    }

    void fiveEntries()
    {
        QFETCH(NodesInfo, nodes);
        QFETCH(QStringList, recent);
        QFETCH(bool, connected);
        QFETCH(QStringList, tiers);
        QFETCH(QString, expectedIds);

        TrayNodeMenuModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setConnection(connected, QString(), QDateTime::currentDateTimeUtc());
        model.setCatalog(nodes, NodeGroupsInfo(), recent);
        // The plan after the nodes, as when a Free account signs in with the menu loaded.
        model.setAvailableTiers(tiers);
        QCOMPARE(resets.count(), tiers.isEmpty() ? 2 : 3);
        QStringList ids;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            const bool locked = !index.flags().testFlag(Qt::ItemIsEnabled);
            QCOMPARE(index.data().toString().endsWith(u" · Locked: needs the SVIP plan"), locked);
            ids.append(index.data(TrayNodeMenuModel::NodeIdRole).toString() +
                       (locked ? QStringLiteral("!") : QString()));
            QCOMPARE(index.data(TrayNodeMenuModel::ConnectedRole).toBool(),
                     connected && row == 0 && nodes.connected.valid);
        }
        QCOMPARE(ids.join(u' '), expectedIds);
    }

    void currentLine_data()
    {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<bool>("stale");
        QTest::addColumn<QString>("since");
        QTest::addColumn<QString>("expectedLine");
        QTest::addColumn<QString>("expectedFirstEntry");

        // The connected node is Berlin 1, the selected one Delft 2; now is 12:05 UTC.
        const auto row = [](const char *name, bool connected, bool stale, const char *since,
                            const char *line, const char *firstEntry) {
            QTest::newRow(name) << connected << stale << since << line << firstEntry;
        };
        row("connected two hours", true, false, "2024-05-01T10:00:00Z",
            "Location: Germany - Berlin 1 · 2h 5m", "Germany - Berlin 1 · 2h 5m");
        // 2024-05-01T12:04:30Z, thirty seconds before now.
        row("connected, epoch seconds", true, false, "1714565070",
            "Location: Germany - Berlin 1 · less than 1m", "Germany - Berlin 1 · less than 1m");
        row("connected, since unknown", true, false, "", "Location: Germany - Berlin 1",
            "Germany - Berlin 1");
        row("selected", false, false, "", "Current: Netherlands - Delft 2",
            "Netherlands - Delft 2");
        row("selected from the cached list", false, true, "",
            "Current: Netherlands - Delft 2 (stale)", "Netherlands - Delft 2");
    }

    void currentLine()
    {
        QFETCH(bool, connected);
        QFETCH(bool, stale);
        QFETCH(QString, since);
        QFETCH(QString, expectedLine);
        QFETCH(QString, expectedFirstEntry);

        NodesInfo nodes;
        nodes.valid = true;
        nodes.stale = stale;
        nodes.nodes = {node("1", "Berlin 1", "DE"), node("2", "Delft 2", "NL")};
        nodes.connected = node("1");
        nodes.selected = node("2");

        TrayNodeMenuModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setCatalog(nodes, NodeGroupsInfo(), {});
        model.setConnection(
            connected, since,
            QDateTime::fromString(QStringLiteral("2024-05-01T12:05:00Z"), Qt::ISODate));
        QCOMPARE(model.currentLine(), expectedLine);
        QCOMPARE(model.index(0).data().toString(), expectedFirstEntry);
    }
};

QTEST_GUILESS_MAIN(TestTrayNodeMenuModel)
#include "TestTrayNodeMenuModel.moc"
