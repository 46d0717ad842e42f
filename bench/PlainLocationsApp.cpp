// The floor for the memory of the window on Locations: a bare Qt window the size of the
// client's, with a sidebar-like list and the catalogue the daemon sends shown the plain Qt way
// (PlainCatalog). Once the window is on screen it reads the catalogue, keeps only the model, and
// prints "ready <nodes>" when the window shows it. "TOVRA_GUI_STALL_MS" reports its stalls as
// the client's.
// Usage: tovra-bench-plain-locations SOCKET
#include "ControlEndpoints.h"
#include "GuiStallMonitor.h"
#include "PlainCatalog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QTimer>

#include <cstdio>
#include <memory>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fputs("usage: tovra-bench-plain-locations SOCKET\n", stderr);
        return 2;
    }
    const QString socket = QString::fromLocal8Bit(argv[1]);
    QWidget window;
    window.setWindowTitle(QStringLiteral("plain locations"));
    auto *layout = new QHBoxLayout(&window);
    auto *sidebar = new QListWidget;
    sidebar->addItems({QStringLiteral("VPN"), QStringLiteral("Locations"), QStringLiteral("Mode"),
                       QStringLiteral("Settings"), QStringLiteral("Account")});
    sidebar->setFixedWidth(104);
    layout->addWidget(sidebar);
    auto *catalog = new PlainCatalog;
    layout->addWidget(catalog, 1);
    window.resize(780, 620);
    window.show();
    const std::unique_ptr<GuiStallMonitor> stallMonitor = GuiStallMonitor::fromEnvironment();
    // As the client's catalogue arrives after its first paint.
    QTimer::singleShot(200, [&] {
        int nodes = 0;
        {
            QString error;
            const NodesInfo list = ControlEndpoints::fetchNodes(socket, false, 30000, &error);
            const NodeGroupsInfo groups = ControlEndpoints::fetchNodeGroups(socket, 30000, &error);
            nodes = int(list.nodes.size());
            catalog->setCatalog(groups, list);
        }
        QTimer::singleShot(0, [nodes] {
            std::printf("ready %d\n", nodes);
            std::fflush(stdout);
        });
    });
    return QApplication::exec();
}
