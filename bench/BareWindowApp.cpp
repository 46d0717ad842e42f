// The floor for the window's start-up figures: a bare Qt 6 Widgets window the size of the
// client's main window, with a sidebar-like list and a few labels, nothing else.
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("bare window"));
    QPalette palette = window.palette();
    palette.setColor(QPalette::Window, QColor(0xf1, 0xf3, 0xf6));
    window.setPalette(palette);
    window.setAutoFillBackground(true);
    auto *layout = new QHBoxLayout(&window);
    auto *sidebar = new QListWidget;
    sidebar->addItems({QStringLiteral("VPN"), QStringLiteral("Locations"), QStringLiteral("Mode"),
                       QStringLiteral("Settings"), QStringLiteral("Account")});
    sidebar->setFixedWidth(104);
    layout->addWidget(sidebar);
    auto *content = new QVBoxLayout;
    content->addWidget(new QLabel(QStringLiteral("Disconnected")));
    content->addWidget(new QLabel(QStringLiteral("Your traffic is not protected.")));
    content->addStretch();
    layout->addLayout(content);
    window.resize(780, 620);
    window.show();
    return QApplication::exec();
}
