// Figures for the Locations page with a large catalogue (10,000 nodes in 1,000 groups), on the
// offscreen platform, printed side by side with their targets: building the tree and its first
// layout, filter keystrokes typed into the search field, and a ping update of every node.
// Each figure is the interface thread's CPU time, so that other work on a busy machine does not
// count; the wall-clock time is printed beside it.
#include "AppState.h"
#include "CatalogFilterModel.h"
#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "LocationsPage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <ctime>
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

double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

// CPU time of this thread and wall time, in nanoseconds.
struct Stopwatch
{
    qint64 cpu0 = 0;
    QElapsedTimer wall;

    static qint64 cpuNow()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
    }
    void restart()
    {
        wall.restart();
        cpu0 = cpuNow();
    }
    qint64 cpu() const { return cpuNow() - cpu0; }
};

struct Sample
{
    qint64 cpu = 0;
    qint64 wall = 0;
};

// The tree lays out and paints its visible rows now, as the next frame would.
void paintNow(QTreeView *tree)
{
    tree->doItemsLayout();
    tree->viewport()->repaint();
}

// Typing and erasing what users look for: cities, countries, node numbers, feature words.
QStringList keystrokeTexts(int count)
{
    const QStringList queries{QStringLiteral("city 123"),  QStringLiteral("country 7"),
                              QStringLiteral("node 4242"), QStringLiteral("p2p city 9"),
                              QStringLiteral("free aa"),   QStringLiteral("c3 node 51")};
    QStringList texts;
    while (texts.size() < count) {
        for (const QString &query : queries) {
            for (qsizetype i = 1; i <= query.size(); ++i)
                texts.append(query.left(i));
            for (qsizetype i = query.size() - 1; i >= 0; --i)
                texts.append(query.left(i));
        }
    }
    return texts.mid(0, count);
}

Sample percentile(const std::vector<Sample> &samples, double p)
{
    std::vector<qint64> cpu, wall;
    for (const Sample &sample : samples) {
        cpu.push_back(sample.cpu);
        wall.push_back(sample.wall);
    }
    std::sort(cpu.begin(), cpu.end());
    std::sort(wall.begin(), wall.end());
    const size_t at = std::min(cpu.size() - 1, size_t(p * double(cpu.size())));
    return {cpu[at], wall[at]};
}

void row(const char *what, Sample value, double target)
{
    std::printf("%-40s %9.2f ms %9.2f ms   < %4.0f ms   %s\n", what, ms(value.cpu), ms(value.wall),
                target, ms(value.cpu) < target ? "ok" : "OVER");
}

Sample take(const Stopwatch &watch)
{
    return {watch.cpu(), watch.wall.nsecsElapsed()};
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    CatalogFixture fixture = generatedCatalogue(10000, 1000);
    QString error;
    const NodeGroupsInfo groups = NodeGroupsInfo::parse(fixture.groupsJson(), &error);
    NodesInfo nodes = NodesInfo::parse(fixture.nodesJson(), &error);
    RuntimeInfo runtime;
    runtime.valid = true;

    AppState state;
    state.setRuntime(runtime);
    LocationsPage page;
    page.resize(760, 720);
    page.show();
    QApplication::processEvents();
    auto *tree = page.findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
    auto *search = page.findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));

    Stopwatch timer;
    timer.restart();
    state.setNodeGroups(groups);
    state.setNodes(nodes);
    page.refresh(state);
    paintNow(tree);
    const Sample build = take(timer);

    // Each keystroke as the event loop would run it: the text, then whatever it posted.
    const QStringList texts = keystrokeTexts(200);
    std::vector<Sample> keystrokes;
    keystrokes.reserve(size_t(texts.size()));
    for (const QString &text : texts) {
        timer.restart();
        search->setText(text);
        QApplication::processEvents(); // lays out and paints, as the next frame would
        keystrokes.push_back(take(timer));
    }
    search->clear();
    paintNow(tree);

    // Expand some groups, as a user browsing would, then change every ping.
    tree->expandToDepth(1);
    paintNow(tree);
    fixture.setPings(17);
    const NodesInfo pinged = NodesInfo::parse(fixture.nodesJson(), &error);
    state.setNodes(pinged);
    timer.restart();
    page.refresh(state);
    const Sample update = take(timer);
    paintNow(tree);
    const Sample updateAndPaint = take(timer);

    std::printf("Locations page, %d nodes in %d groups (%s)\n", page.catalogModel()->nodeCount(),
                1000, qPrintable(QApplication::platformName()));
    std::printf("%-40s %12s %12s   %7s\n", "", "cpu", "wall", "target");
    row("model build + first layout", build, 50);
    row("filter keystroke p50 (200 keystrokes)", percentile(keystrokes, 0.50), 16);
    row("filter keystroke p95", percentile(keystrokes, 0.95), 16);
    row("filter keystroke max", percentile(keystrokes, 1.0), 50);
    row("ping update of every node", update, 10);
    std::printf("%-40s %9.2f ms %9.2f ms\n", "  same, with the repaint", ms(updateAndPaint.cpu),
                ms(updateAndPaint.wall));
    return 0;
}
