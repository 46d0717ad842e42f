// The floor for the client's tray figures: a bare Qt 6 tray application with an icon and a menu
// of the same rows as the client's (status lines, actions, a location submenu of five nodes),
// and nothing behind them.
#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(4, 4, 14, 14, Qt::darkGreen);
    QMenu menu;
    const auto line = [&menu](const char *text) {
        menu.addAction(QString::fromLatin1(text))->setEnabled(false);
    };
    line("Bare: disconnected");
    line("Daemon: running");
    menu.addSeparator();
    menu.addAction(QStringLiteral("Open..."));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Connect"));
    line("Disconnect");
    QMenu *locations = menu.addMenu(QStringLiteral("Node / Location"));
    locations->addAction(QStringLiteral("Refresh Nodes"));
    for (int i = 1; i <= 5; ++i)
        locations->addAction(QStringLiteral("Country - Node %1").arg(i));
    locations->addSeparator();
    locations->addAction(QStringLiteral("Locations"));
    menu.addSeparator();
    for (const char *text : {"Mode", "System Proxy", "Local Network"})
        menu.addMenu(QString::fromLatin1(text))->addAction(QStringLiteral("Off"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Kill Switch"))->setCheckable(true);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Refresh Status"));
    menu.addAction(QStringLiteral("Open Logs"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Account"));
    menu.addAction(QStringLiteral("Logout"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Quit"), &app, &QCoreApplication::quit);
    QSystemTrayIcon icon{QIcon(pixmap)};
    icon.setContextMenu(&menu);
    icon.setToolTip(QStringLiteral("bare tray"));
    icon.show();
    return QApplication::exec();
}
