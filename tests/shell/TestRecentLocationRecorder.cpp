#include "RecentLocationRecorder.h"

#include "AppState.h"
#include "GuiPreferences.h"
#include "RecentActivityStore.h"
#include "TempXdgDirs.h"

#include <QTest>

// The recent locations a connection leaves behind, whoever made it.
class TestRecentLocationRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueCompletesEntry_data()
    {
        QTest::addColumn<bool>("clearedBeforeCatalogue");
        QTest::addColumn<QString>("expected"); // label and flag of the one entry; empty: no entry
        QTest::addRow("named and flagged once the catalogue arrives")
            << false << QStringLiteral("Germany \u00b7 Frankfurt 01|de");
        QTest::addRow("cleared meanwhile: stays cleared") << true << QString();
    }

    void catalogueCompletesEntry()
    {
        QFETCH(bool, clearedBeforeCatalogue);
        QFETCH(QString, expected);
        TempXdgDirs dirs;
        GuiPreferences preferences;
        AppState state;
        RecentLocationRecorder recorder(&state, &preferences);
        RecentActivityStore store(&preferences);

        // Connected by another client; the status names the node before any catalogue is known.
        RuntimeInfo runtime;
        runtime.valid = true;
        runtime.authState = QStringLiteral("logged_in");
        runtime.tunnelState = QStringLiteral("connected");
        runtime.connectedNode = QStringLiteral("[1001] [DE] Frankfurt 01");
        state.setRuntime(runtime);
        QCOMPARE(store.recentLocations().size(), 1);
        if (clearedBeforeCatalogue)
            store.clearLocations();

        NodeEntry node;
        node.valid = true;
        node.id = QStringLiteral("1001");
        node.name = QStringLiteral("Frankfurt 01");
        node.region = QStringLiteral("DE");
        NodesInfo nodes;
        nodes.valid = true;
        nodes.nodes = {node};
        state.setNodes(nodes);
        QStringList entries;
        for (const RecentLocation &location : store.recentLocations())
            entries << location.label + u'|' + location.flagCode;
        QCOMPARE(entries.join(u'\n'), expected);
    }
};

QTEST_MAIN(TestRecentLocationRecorder)
#include "TestRecentLocationRecorder.moc"
