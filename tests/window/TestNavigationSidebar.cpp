#include "NavigationSidebar.h"
#include "ThemeEngine.h"

#include <QApplication>
#include <QLayout>
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
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                return pixel;
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
    void entries_data();
    void entries();
    void accountSitsBelowStretch();
    void clickRequestsPage_data();
    void clickRequestsPage();
    void iconsFollowTheme_data();
    void iconsFollowTheme();
};

void TestNavigationSidebar::entries_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("objectName");
    QTest::addRow("vpn") << 0 << "VPN"
                         << ":/icons/vpn.svg"
                         << "TovraSidebarVPN";
    QTest::addRow("locations") << 1 << "Locations"
                               << ":/icons/locations.svg"
                               << "TovraSidebarLocations";
    QTest::addRow("mode") << 2 << "Mode"
                          << ":/icons/mode.svg"
                          << "TovraSidebarMode";
    QTest::addRow("settings") << 3 << "Settings"
                              << ":/icons/settings.svg"
                              << "TovraSidebarSettings";
    QTest::addRow("account") << 4 << "Account"
                             << ":/icons/account.svg"
                             << "TovraSidebarAccount";
}

void TestNavigationSidebar::entries()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(QString, icon);
    QFETCH(QString, objectName);
    NavigationSidebar sidebar;
    QCOMPARE(sidebar.objectName(), QStringLiteral("TovraSidebar"));
    QCOMPARE(sidebar.minimumWidth(), 92);
    QCOMPARE(sidebar.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(sidebar.count(), 5);
    QToolButton *button = sidebar.button(index);
    QVERIFY(button);
    QCOMPARE(button->objectName(), objectName);
    QCOMPARE(button->text(), text);
    QCOMPARE(button->accessibleName(), text);
    QCOMPARE(sidebar.entryText(index), text);
    QCOMPARE(button->property("tovraSidebarIcon").toString(), icon);
    QVERIFY(button->isCheckable());
    QVERIFY(!button->autoRaise());
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->iconSize(), QSize(24, 24));
    QCOMPARE(button->minimumHeight(), 72);
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
}

void TestNavigationSidebar::accountSitsBelowStretch()
{
    NavigationSidebar sidebar;
    QLayout *layout = sidebar.layout();
    QCOMPARE(layout->contentsMargins(), QMargins(0, 8, 0, 8));
    QCOMPARE(layout->count(), 6);
    QVERIFY(layout->itemAt(4)->spacerItem());
    QCOMPARE(layout->itemAt(5)->widget(), sidebar.button(4));
}

void TestNavigationSidebar::clickRequestsPage_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 5; ++i) {
        QTest::addRow("entry %d", i) << i;
    }
}

void TestNavigationSidebar::clickRequestsPage()
{
    QFETCH(int, index);
    NavigationSidebar sidebar;
    sidebar.show();
    QSignalSpy requested(&sidebar, &NavigationSidebar::pageRequested);
    QTest::mouseClick(sidebar.button(index), Qt::LeftButton);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0).at(0).toInt(), index);
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
}

QTEST_MAIN(TestNavigationSidebar)
#include "TestNavigationSidebar.moc"
