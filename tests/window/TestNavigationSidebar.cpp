#include "NavigationSidebar.h"
#include "ThemeEngine.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {

// The colour of the first fully opaque pixel: the tint of a monochrome icon.
QColor tintOf(const QIcon &icon, QIcon::Mode mode, QIcon::State state)
{
    const QImage image = icon.pixmap(QSize(24, 24), mode, state).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255) {
                return image.pixelColor(x, y);
            }
        }
    }
    return QColor();
}

} // namespace

class TestNavigationSidebar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickRequestsPage_data();
    void clickRequestsPage();
    void iconsFollowTheme_data();
    void iconsFollowTheme();
};

void TestNavigationSidebar::clickRequestsPage_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addRow("vpn") << 0 << "VPN";
    QTest::addRow("locations") << 1 << "Locations";
    QTest::addRow("mode") << 2 << "Mode";
    QTest::addRow("settings") << 3 << "Settings";
    QTest::addRow("account") << 4 << "Account";
}

void TestNavigationSidebar::clickRequestsPage()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    NavigationSidebar sidebar;
    sidebar.show();
    QCOMPARE(sidebar.count(), 5);
    QCOMPARE(sidebar.button(index)->text(), text);
    QCOMPARE(sidebar.entryText(index), text);
    QSignalSpy requested(&sidebar, &NavigationSidebar::pageRequested);
    QTest::mouseClick(sidebar.button(index), Qt::LeftButton);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0).at(0).toInt(), index);

    // Screen readers hear a selected page tab in a page tab list, not a checked check box.
    sidebar.setCurrentIndex(index);
    QAccessibleInterface *entry = QAccessible::queryAccessibleInterface(sidebar.button(index));
    QVERIFY(entry);
    QCOMPARE(entry->role(), QAccessible::PageTab);
    QCOMPARE(entry->text(QAccessible::Name), text);
    QVERIFY(entry->state().selected);
    QVERIFY(!entry->state().checkable);
    QCOMPARE(entry->parent()->role(), QAccessible::PageTabList);
    QAccessibleInterface *other =
        QAccessible::queryAccessibleInterface(sidebar.button((index + 1) % sidebar.count()));
    QVERIFY(!other->state().selected);
    other->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(requested.count(), 2);
    QCOMPARE(requested.at(1).at(0).toInt(), (index + 1) % sidebar.count());
}

void TestNavigationSidebar::iconsFollowTheme_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addRow("light") << Appearance::Light;
    QTest::addRow("dark") << Appearance::Dark;
}

void TestNavigationSidebar::iconsFollowTheme()
{
    QFETCH(Appearance, appearance);
    const ThemeColors colors = ThemeEngine::buildColors(appearance);
    NavigationSidebar sidebar;
    sidebar.applyTheme(colors);
    const QIcon icon = sidebar.button(2)->icon();
    QCOMPARE(tintOf(icon, QIcon::Normal, QIcon::Off), colors.color(ThemeColor::TextMuted));
    QCOMPARE(tintOf(icon, QIcon::Active, QIcon::Off), colors.color(ThemeColor::TextPrimary));
    QCOMPARE(tintOf(icon, QIcon::Normal, QIcon::On), colors.color(ThemeColor::SidebarSelectedText));
    QCOMPARE(tintOf(icon, QIcon::Disabled, QIcon::On), colors.color(ThemeColor::DisabledText));

    // Under the mouse the entry shows the primary tint in the mode the style really draws.
    QToolButton *entry = sidebar.button(2);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(entry, &enter);
    QCOMPARE(tintOf(entry->icon(), QIcon::Normal, QIcon::Off),
             colors.color(ThemeColor::TextPrimary));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(entry, &leave);
    QCOMPARE(tintOf(entry->icon(), QIcon::Normal, QIcon::Off), colors.color(ThemeColor::TextMuted));
}

QTEST_MAIN(TestNavigationSidebar)
#include "TestNavigationSidebar.moc"
