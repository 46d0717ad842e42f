// The floor for the client's start-up figures: a bare Qt 6 tray application with an icon and a
// one-entry menu, nothing else.
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
    menu.addAction(QStringLiteral("Quit"), &app, &QCoreApplication::quit);
    QSystemTrayIcon icon{QIcon(pixmap)};
    icon.setContextMenu(&menu);
    icon.setToolTip(QStringLiteral("bare tray"));
    icon.show();
    return QApplication::exec();
}
