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
    void clickRequestsPage()
    {
        NavigationSidebar sidebar;
        sidebar.show();
        QSignalSpy requested(&sidebar, &NavigationSidebar::pageRequested);
        for (int index = 0; index < sidebar.count(); ++index) {
            QTest::mouseClick(sidebar.button(index), Qt::LeftButton);
            QCOMPARE(requested.takeFirst().at(0).toInt(), index);
            // Screen readers hear a selected page tab in a page tab list, not a checked check
            // box, named like the entry; its press action asks for the page like a click.
            sidebar.setCurrentIndex(index);
            QAccessibleInterface *entry =
                QAccessible::queryAccessibleInterface(sidebar.button(index));
            QCOMPARE(entry->role(), QAccessible::PageTab);
            QCOMPARE(entry->text(QAccessible::Name), sidebar.entryText(index));
            QVERIFY(entry->state().selected && !entry->state().checkable);
            QCOMPARE(entry->parent()->role(), QAccessible::PageTabList);
            const int next = (index + 1) % sidebar.count();
            QAccessibleInterface *other =
                QAccessible::queryAccessibleInterface(sidebar.button(next));
            QVERIFY(!other->state().selected);
            other->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(requested.takeFirst().at(0).toInt(), next);
        }
    }

    void iconsFollowTheme_data()
    {
        QTest::addColumn<Appearance>("appearance");
        QTest::addRow("light") << Appearance::Light;
        QTest::addRow("dark") << Appearance::Dark;
    }

    void iconsFollowTheme()
    {
        QFETCH(Appearance, appearance);
        const ThemeColors colors = ThemeEngine::buildColors(appearance);
        NavigationSidebar sidebar;
        sidebar.applyTheme(colors);
        const QIcon icon = sidebar.button(2)->icon();
        QCOMPARE(tintOf(icon, QIcon::Normal, QIcon::Off), colors.color(ThemeColor::TextMuted));
        QCOMPARE(tintOf(icon, QIcon::Active, QIcon::Off), colors.color(ThemeColor::TextPrimary));
        QCOMPARE(tintOf(icon, QIcon::Normal, QIcon::On),
                 colors.color(ThemeColor::SidebarSelectedText));
        QCOMPARE(tintOf(icon, QIcon::Disabled, QIcon::On), colors.color(ThemeColor::DisabledText));

        // Under the mouse the entry shows the primary tint in the mode the style really draws.
        QToolButton *entry = sidebar.button(2);
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(entry, &enter);
        QCOMPARE(tintOf(entry->icon(), QIcon::Normal, QIcon::Off),
                 colors.color(ThemeColor::TextPrimary));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(entry, &leave);
        QCOMPARE(tintOf(entry->icon(), QIcon::Normal, QIcon::Off),
                 colors.color(ThemeColor::TextMuted));
    }
};

QTEST_MAIN(TestNavigationSidebar)
#include "TestNavigationSidebar.moc"
