// Writes screenshots of the Locations page to look at, with the demo daemon's catalogue:
// tovra-locations-shots OUT_DIR. Not a test; run under QT_QPA_PLATFORM=offscreen.
#include "AppState.h"
#include "ControlEndpoints.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "LocationRoles.h"
#include "LocationsPage.h"
#include "MainWindow.h"
#include "TempXdgDirs.h"

#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTabBar>
#include <QThread>
#include <QTreeView>

#include <cstdio>

namespace {

void settle(int ms = 50)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms) {
        QApplication::processEvents();
        QThread::msleep(5);
    }
}

struct Shot
{
    const char *name;
    const char *appearance;
    Qt::LayoutDirection direction;
    const char *search;
    int tab;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tovra-locations-shots OUT_DIR\n");
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(out);
    TempXdgDirs xdg;
    DemoDaemon daemon;
    if (!daemon.start()) {
        std::fprintf(stderr, "demo daemon: %s\n", qPrintable(daemon.errorString()));
        return 1;
    }
    const QString socket = daemon.socketPath();
    const bool free = qEnvironmentVariableIsSet("SHOTS_FREE");
    ControlEndpoints::login(
        socket, free ? QStringLiteral("free@tovra.invalid") : QStringLiteral("demo@tovra.invalid"),
        QStringLiteral("demo"), true, 3000);
    ControlEndpoints::setNodeFavorite(socket, QStringLiteral("1001"), true, 3000);
    ControlEndpoints::setNodeFavorite(socket, QStringLiteral("1060"), true, 3000);
    ControlEndpoints::connectNode(socket, QStringLiteral("1002"), 3000);
    settle(3000); // pings measured, tunnel up

    AppState state;
    state.setRuntime(ControlEndpoints::fetchStatus(socket, 3000));
    state.setUser(ControlEndpoints::fetchUser(socket, 3000));
    state.setNodeGroups(ControlEndpoints::fetchNodeGroups(socket, 3000));
    state.setNodes(ControlEndpoints::fetchNodes(socket, false, 3000));
    AppState nothing;

    const Shot shots[] = {
        {"light-ltr", "light", Qt::LeftToRight, "", 0},
        {"dark-ltr", "dark", Qt::LeftToRight, "", 0},
        {"light-rtl", "light", Qt::RightToLeft, "", 0},
        {"dark-rtl", "dark", Qt::RightToLeft, "", 0},
        {"search-light", "light", Qt::LeftToRight, "new york", 0},
        {"search-dark-rtl", "dark", Qt::RightToLeft, "p2p tok", 0},
        {"favourites-light", "light", Qt::LeftToRight, "", 3},
        {"unavailable-dark", "dark", Qt::LeftToRight, "", 0},
    };
    GuiPreferences preferences;
    for (const Shot &shot : shots) {
        QApplication::setLayoutDirection(shot.direction);
        const bool empty = QByteArray(shot.name).startsWith("unavailable");
        MainWindow window(empty ? &nothing : &state, &preferences);
        window.setAppearancePreference(QString::fromLatin1(shot.appearance));
        window.resize(900, 720);
        window.show();
        window.showPage(MainWindow::LocationsPageIndex);
        auto *page = window.findChild<LocationsPage *>();
        auto *tree = page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
        page->findChild<QTabBar *>(QStringLiteral("TovraLocationsTabs"))->setCurrentIndex(shot.tab);
        if (*shot.search) {
            page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"))
                ->setText(QString::fromLatin1(shot.search));
        } else {
            for (const char *selector : {"continent:eu", "country:de", "city:de:frankfurt"}) {
                tree->expand(page->filterModel()->mapFromSource(
                    page->catalogModel()->indexForSelector(QString::fromLatin1(selector))));
            }
            tree->setCurrentIndex(page->filterModel()->mapFromSource(
                page->catalogModel()->indexForNode(QStringLiteral("1003"))));
            tree->setFocus();
        }
        settle(300); // past the status line's pause after typing
        const QString file = QStringLiteral("%1/%2.png").arg(out, QString::fromLatin1(shot.name));
        window.grab().save(file);
        std::printf("%s\n", qPrintable(file));
    }
    daemon.stop();
    return 0;
}
