#include "FakePortal.h"
#include "PrivateSessionBus.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QTest>

namespace {

// Records the window colour of the palette each time the watched window is shown.
class ShowWatcher : public QObject
{
public:
    QList<QColor> shownWith;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            shownWith.append(static_cast<QWidget *>(watched)->palette().color(QPalette::Window));
        }
        return false;
    }
};

} // namespace

// On a dark desktop a window under the "system" appearance is dark from its first paint, and
// the desktop is asked once per process, not once per window. The offscreen platform's theme
// knows no colour scheme on any Qt, so the portal is the one asked here on Qt 6.8 as on 6.4.
class TestSystemAppearanceWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstShowWaitsForTheDesktop();
};

void TestSystemAppearanceWindow::firstShowWaitsForTheDesktop()
{
    PrivateSessionBus bus;
    if (!bus.start()) {
        QSKIP("dbus-daemon is not available");
    }
    PortalFixture fixture(bus.address(), 1);
    QVERIFY(fixture.servePortal(1, true));
    // The process's session bus is opened on first use, which is the controller's.
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());

    WindowFixture f;
    WindowController &controller = f.controller;
    controller.setReleaseOnHide(true);
    // The first window waits, hidden, for the answer and shows dark.
    controller.showOrRaise();
    MainWindow *window = controller.window();
    QVERIFY(window);
    QVERIFY(!window->isVisible());
    ShowWatcher watcher;
    window->installEventFilter(&watcher);
    QTRY_VERIFY(window->isVisible());
    QCOMPARE(watcher.shownWith.size(), 1);
    QVERIFY2(watcher.shownWith.constFirst().lightness() < 128,
             qPrintable(watcher.shownWith.constFirst().name()));
    window->removeEventFilter(&watcher);
    window->close(); // released: the next show builds a new window
    QTRY_VERIFY(!controller.window());

    // A window built later knows the answer at once: shown straight away, dark.
    controller.showOrRaise();
    window = controller.window();
    QVERIFY(window && window->isVisible());
    QCOMPARE(window->effectiveAppearance(), Appearance::Dark);
    QVERIFY(window->palette().color(QPalette::Window).lightness() < 128);
    QCOMPARE(fixture.portal->readOneCalls, 1);
}

QTEST_MAIN(TestSystemAppearanceWindow)
#include "TestSystemAppearanceWindow.moc"
