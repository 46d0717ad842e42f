#include "PixelRatioWatch.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWindow>

// Runs on three offscreen screens, the last at twice the pixel ratio of the others.
class TestWindowPixelRatio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void iconsFollowTheScreen();
};

void TestWindowPixelRatio::iconsFollowTheScreen()
{
    QScreen *middle = nullptr;
    QScreen *right = nullptr;
    for (QScreen *screen : QGuiApplication::screens()) {
        if (screen->name() == u"middle")
            middle = screen;
        else if (screen->name() == u"right")
            right = screen;
    }
    QVERIFY(middle && right);
    WindowFixture f;
    MainWindow &window = *f.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *watch = window.findChild<PixelRatioWatch *>();
    QSignalSpy changes(watch, &PixelRatioWatch::changed);
    auto *tab = window.findChild<QToolButton *>(QStringLiteral("TovraSidebarVPN"));
    const auto iconPixels = [tab] { return tab->icon().availableSizes().value(0); };
    QCOMPARE(iconPixels(), QSize(24, 24));

    // Dragged onto another screen of the same ratio: nothing to render again.
    window.move(middle->geometry().topLeft() + QPoint(100, 100));
    QTRY_COMPARE(window.screen(), middle);
    QCOMPARE(changes.size(), 0);
    window.move(right->geometry().topLeft() + QPoint(100, 100));
    QTRY_COMPARE(window.screen(), right);
    // Newer Qt's offscreen platform leaves every window at ratio 1, whatever its screen.
    if (!qFuzzyCompare(window.devicePixelRatioF(), right->devicePixelRatio()))
        QSKIP("this Qt's offscreen platform gives windows no ratio of their screen");
    QTRY_COMPARE(changes.size(), 1);
    QCOMPARE(iconPixels(), QSize(48, 48));
}

QTEST_MAIN(TestWindowPixelRatio)
#include "TestWindowPixelRatio.moc"
