// The Locations page with a large catalogue (10,000 nodes in 1,000 groups by default) on the
// offscreen platform, next to the floor doing the same work with plain Qt classes (PlainCatalog):
// building the tree and its first layout, filter keystrokes typed into the search field, and a
// ping update of every node with its repaint. Client and floor take turns at each step, and each
// figure is the interface thread's CPU time, so that other work on a busy machine counts for
// neither. Usage: tovra-bench-catalog [NODES [GROUPS]]
#include "AppState.h"
#include "BenchTable.h"
#include "CatalogFilterModel.h"
#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "LocationRoles.h"
#include "LocationsPage.h"
#include "PlainCatalog.h"

#include <QApplication>
#include <QLineEdit>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

namespace {

// nodeCount nodes spread evenly over groupCount groups (continents, countries, cities).
CatalogFixture generatedCatalogue(int nodeCount, int groupCount)
{
    // groupCount = continents + countries + cities, with 10 cities per country and
    // 10 countries per continent where the counts allow.
    const int continents = qMax(1, groupCount / 111);
    const int countries = qMax(1, groupCount / 11 - continents);
    const int cities = qMax(1, groupCount - continents - countries);
    CatalogFixture fixture;
    for (int i = 0; i < nodeCount; ++i) {
        const int city = int(qint64(i) * cities / nodeCount);
        const int country = city * countries / cities;
        const int continent = country * continents / countries;
        CatalogFixture::Node node;
        node.id = QString::number(100000 + i);
        node.name = QStringLiteral("Node %1").arg(i);
        node.continent = QStringLiteral("C%1").arg(continent);
        node.region = QStringLiteral("%1%2")
                          .arg(QChar(u'a' + country / 26 % 26))
                          .arg(QChar(u'a' + country % 26));
        node.country = QStringLiteral("Country %1").arg(country);
        node.city = QStringLiteral("City %1").arg(city);
        node.svip = i % 3 != 0;
        node.favorite = i % 50 == 0;
        if (i % 4 == 1)
            node.features.append(QStringLiteral("P2P"));
        fixture.nodes.append(node);
    }
    fixture.setPings(0);
    return fixture;
}

// Milliseconds of this thread's CPU time that work takes.
double cpuMs(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    };
    const double start = now();
    work();
    return now() - start;
}

double percentile(std::vector<double> samples, double p)
{
    std::sort(samples.begin(), samples.end());
    return samples[std::min(samples.size() - 1, size_t(p * double(samples.size())))];
}

// The tree lays out and paints its visible rows now, as the next frame would.
void paintNow(QTreeView *tree)
{
    tree->doItemsLayout();
    tree->viewport()->repaint();
}

// Typing and erasing what users look for: cities, countries, node numbers, feature words.
QStringList keystrokeTexts(int count)
{
    QStringList texts;
    while (texts.size() < count) {
        for (const char16_t *text :
             {u"city 123", u"country 7", u"node 4242", u"p2p city 9", u"free aa", u"c3 node 51"}) {
            const QString query = QString::fromUtf16(text);
            for (qsizetype i = 1; i <= query.size(); ++i)
                texts.append(query.left(i));
            for (qsizetype i = query.size() - 1; i >= 0; --i)
                texts.append(query.left(i));
        }
    }
    return texts.mid(0, count);
}

int clientMatches(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    int count = 0;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        count += index.data(LocationIsGroupRole).toBool() ? clientMatches(model, index) : 1;
    }
    return count;
}

struct Client
{
    AppState state;
    LocationsPage page;
    QTreeView *tree = page.findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
    QLineEdit *search = page.findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
};

template<typename View>
void showAtPageSize(View &view)
{
    view.resize(760, 720);
    view.show();
    QApplication::processEvents();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int nodeCount = argc > 1 ? std::atoi(argv[1]) : 10000;
    const int groupCount = argc > 2 ? std::atoi(argv[2]) : nodeCount / 10;
    CatalogFixture fixture = generatedCatalogue(nodeCount, groupCount);
    QString error;
    const NodeGroupsInfo groups = NodeGroupsInfo::parse(fixture.groupsJson(), &error);
    const NodesInfo nodes = NodesInfo::parse(fixture.nodesJson(), &error);
    RuntimeInfo runtime;
    runtime.valid = true;

    // Building: a fresh view each time, taking turns.
    std::vector<double> clientBuild, floorBuild;
    std::unique_ptr<Client> client;
    std::unique_ptr<PlainCatalog> plain;
    for (int i = 0; i < 5; ++i) {
        client = std::make_unique<Client>();
        client->state.setRuntime(runtime);
        showAtPageSize(client->page);
        clientBuild.push_back(cpuMs([&] {
            client->state.setNodeGroups(groups);
            client->state.setNodes(nodes);
            client->page.refresh(client->state);
            paintNow(client->tree);
        }));
        plain = std::make_unique<PlainCatalog>();
        showAtPageSize(*plain);
        floorBuild.push_back(cpuMs([&] {
            plain->setCatalog(groups, nodes);
            paintNow(plain->tree());
        }));
    }

    // Each keystroke as the event loop would run it: the text, then whatever it posted, which
    // lays out and paints as the next frame would.
    std::vector<double> clientKeys, floorKeys;
    for (const QString &text : keystrokeTexts(200)) {
        clientKeys.push_back(cpuMs([&] {
            client->search->setText(text);
            QApplication::processEvents();
        }));
        floorKeys.push_back(cpuMs([&] {
            plain->search()->setText(text);
            QApplication::processEvents();
        }));
    }
    // The floor does the same job only if it finds the same nodes.
    bool sameMatches = true;
    for (const QString &query : keystrokeTexts(200)) {
        client->search->setText(query);
        plain->search()->setText(query);
        sameMatches =
            sameMatches && clientMatches(*client->page.filterModel()) == plain->matchingNodes();
    }
    client->search->clear();
    plain->search()->clear();

    // Some groups open, as a user browsing would, then every ping changes.
    client->tree->expandToDepth(1);
    plain->tree()->expandToDepth(1);
    paintNow(client->tree);
    paintNow(plain->tree());
    std::vector<double> clientPings, floorPings;
    for (int i = 0; i < 5; ++i) {
        fixture.setPings(17 + i);
        const NodesInfo pinged = NodesInfo::parse(fixture.nodesJson(), &error);
        client->state.setNodes(pinged);
        clientPings.push_back(cpuMs([&] {
            client->page.refresh(client->state);
            paintNow(client->tree);
        }));
        floorPings.push_back(cpuMs([&] {
            plain->updatePings(pinged);
            paintNow(plain->tree());
        }));
    }

    BenchTable::header();
    const QByteArray title = QStringLiteral("Locations, %1 nodes in %2 groups, CPU time (%3)%4")
                                 .arg(client->page.catalogModel()->nodeCount())
                                 .arg(groupCount)
                                 .arg(QApplication::platformName(),
                                      sameMatches ? QString() : QStringLiteral(": MATCHES DIFFER"))
                                 .toUtf8();
    BenchTable::section(title.constData());
    BenchTable::row("build + first layout (median of 5)", percentile(clientBuild, 0.5),
                    percentile(floorBuild, 0.5), "ms", 1.0);
    // The floor leaves its results folded; the client opens them, a few screens at most.
    BenchTable::row("filter keystroke p50 (200 keystrokes)", percentile(clientKeys, 0.5),
                    percentile(floorKeys, 0.5), "ms", 0);
    BenchTable::row("filter keystroke p95", percentile(clientKeys, 0.95),
                    percentile(floorKeys, 0.95), "ms", 0.5);
    BenchTable::row("filter keystroke max", percentile(clientKeys, 1.0), percentile(floorKeys, 1.0),
                    "ms", 0);
    BenchTable::row("ping update of every node + repaint (median)", percentile(clientPings, 0.5),
                    percentile(floorPings, 0.5), "ms", 1.0);
    return sameMatches ? 0 : 1;
}
