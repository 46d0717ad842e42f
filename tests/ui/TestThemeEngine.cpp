#include "IconTinter.h"
#include "ThemeEngine.h"
#include "TovraDialogTitleBarThemer.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

class TestThemeEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renderedSheetIsComplete_data();
    void renderedSheetIsComplete();
    void directionTokensPrecedeColours();
    void resolveAppearance_data();
    void resolveAppearance();
    void pendingPrimaryActionKeepsItsColour_data();
    void pendingPrimaryActionKeepsItsColour();
    void sidebarIconTints_data();
    void sidebarIconTints();
    void titleBarThemerFollowsPalette();
};

void TestThemeEngine::renderedSheetIsComplete_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QStringList>("fragments");
    QTest::addRow("light ltr") << Appearance::Light << Qt::LeftToRight
                               << QStringList({QStringLiteral("border-left: 1px solid #c2c9d6"),
                                               QStringLiteral("padding-right: 28px")});
    QTest::addRow("light rtl") << Appearance::Light << Qt::RightToLeft
                               << QStringList({QStringLiteral("border-right: 1px solid #c2c9d6"),
                                               QStringLiteral("padding-left: 28px")});
    QTest::addRow("light auto") << Appearance::Light << Qt::LayoutDirectionAuto << QStringList();
    QTest::addRow("dark ltr") << Appearance::Dark << Qt::LeftToRight << QStringList();
    QTest::addRow("dark rtl") << Appearance::Dark << Qt::RightToLeft << QStringList();
    QTest::addRow("dark auto") << Appearance::Dark << Qt::LayoutDirectionAuto << QStringList();
}

void TestThemeEngine::renderedSheetIsComplete()
{
    QFETCH(Appearance, appearance);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QStringList, fragments);
    const ThemeColors colors = ThemeEngine::buildColors(appearance);
    const QString sheet = ThemeEngine::renderStyleSheet(colors, direction);

    const QRegularExpressionMatch leftover =
        QRegularExpression(QStringLiteral("@[A-Za-z]+@")).match(sheet);
    QVERIFY2(!leftover.hasMatch(), qPrintable(leftover.captured()));
    for (const QString &fragment : fragments) {
        QVERIFY2(sheet.contains(fragment), qPrintable(fragment));
    }
    QVERIFY(sheet.contains(colors.value(ThemeColor::WindowBg)));
    // The sidebar shares one colour for active and selected; the subtle fill is palette-only.
    QCOMPARE(colors.value(ThemeColor::SidebarActive), colors.value(ThemeColor::SidebarSelectedBg));
    QVERIFY(!sheet.contains(colors.value(ThemeColor::SubtleFill)));

    // The sheet must parse: Qt reports a broken one only as a warning when it is applied.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("style ?sheet"),
                                            QRegularExpression::CaseInsensitiveOption));
    QWidget root;
    root.setObjectName(QStringLiteral("TovraWindowRoot"));
    root.setLayoutDirection(direction == Qt::LayoutDirectionAuto ? Qt::LeftToRight : direction);
    auto *button = new QPushButton(QStringLiteral("x"), &root);
    root.setStyleSheet(sheet);
    button->ensurePolished();
}

void TestThemeEngine::directionTokensPrecedeColours()
{
    const ThemeColors dark = ThemeEngine::buildColors(Appearance::Dark);
    QCOMPARE(ThemeEngine::renderStyleSheet(
                 QStringLiteral("a{@tabStartOuterBorder@;min-width:@sidebarMinWidth@px}"), dark,
                 Qt::LeftToRight),
             QStringLiteral("a{border-left: 1px solid #3d4759;min-width:92px}"));
    // Without a known direction the divider is left out.
    QCOMPARE(
        ThemeEngine::renderStyleSheet(QStringLiteral("a{@segmentDividerBorder@;color:@accent@}"),
                                      dark, Qt::LayoutDirectionAuto),
        QStringLiteral("a{;color:#47B96D}"));
}

void TestThemeEngine::resolveAppearance_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<DesktopScheme>("desktop");
    QTest::addColumn<Appearance>("expected");
    using D = DesktopScheme;
    const Appearance light = Appearance::Light, dark = Appearance::Dark;
    QTest::addRow("light over dark desktop") << "light" << D::Dark << light;
    QTest::addRow("dark over light desktop") << "dark" << D::Light << dark;
    QTest::addRow("system dark") << "system" << D::Dark << dark;
    QTest::addRow("system light") << "system" << D::Light << light;
    QTest::addRow("system unknown is light") << "system" << D::Unknown << light;
    QTest::addRow("unknown preference follows desktop") << "Dark " << D::Dark << dark;
}

void TestThemeEngine::resolveAppearance()
{
    QFETCH(QString, preference);
    QFETCH(DesktopScheme, desktop);
    QFETCH(Appearance, expected);
    QCOMPARE(ThemeEngine::resolveAppearance(preference, desktop), expected);
}

void TestThemeEngine::pendingPrimaryActionKeepsItsColour_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<ThemeColor>("expected");
    QTest::addRow("connect pending") << "connect" << true << ThemeColor::AccentStrong;
    QTest::addRow("connect idle") << "connect" << false << ThemeColor::Surface;
    QTest::addRow("disconnect pending") << "disconnect" << true << ThemeColor::Danger;
    QTest::addRow("disconnect idle") << "disconnect" << false << ThemeColor::Surface;
}

void TestThemeEngine::pendingPrimaryActionKeepsItsColour()
{
    QFETCH(QString, role);
    QFETCH(bool, pending);
    QFETCH(ThemeColor, expected);
    QWidget root;
    root.setObjectName(QStringLiteral("TovraWindowRoot"));
    // No text: the sampled centre pixel is the button's fill.
    auto *button = new QPushButton(&root);
    button->setObjectName(QStringLiteral("TovraVPNPrimaryAction"));
    button->setProperty("tovraPrimaryRole", role);
    button->setProperty("tovraPrimaryState", pending ? QStringLiteral("pending") : QString());
    button->setEnabled(false);
    button->setGeometry(10, 10, 180, 60);
    const ThemeColors colors = ThemeEngine::buildColors(Appearance::Light);
    ThemeEngine::applyToWindow(&root, colors);
    root.resize(200, 80);
    root.show();
    QVERIFY(QTest::qWaitForWindowExposed(&root));
    const QImage image = button->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), colors.color(expected));
}

void TestThemeEngine::sidebarIconTints_data()
{
    QTest::addColumn<QIcon::Mode>("mode");
    QTest::addColumn<QIcon::State>("state");
    QTest::addColumn<ThemeColor>("expected");
    QTest::addRow("normal") << QIcon::Normal << QIcon::Off << ThemeColor::TextMuted;
    QTest::addRow("hover") << QIcon::Active << QIcon::Off << ThemeColor::TextPrimary;
    QTest::addRow("checked") << QIcon::Normal << QIcon::On << ThemeColor::SidebarSelectedText;
    QTest::addRow("checked hover") << QIcon::Active << QIcon::On << ThemeColor::SidebarSelectedText;
    QTest::addRow("disabled") << QIcon::Disabled << QIcon::Off << ThemeColor::DisabledText;
    QTest::addRow("disabled checked") << QIcon::Disabled << QIcon::On << ThemeColor::DisabledText;
}

void TestThemeEngine::sidebarIconTints()
{
    QFETCH(QIcon::Mode, mode);
    QFETCH(QIcon::State, state);
    QFETCH(ThemeColor, expected);
    const ThemeColors colors = ThemeEngine::buildColors(Appearance::Light);
    const QIcon icon =
        IconTinter::sidebarIcon(QStringLiteral(":/icons/vpn.svg"), colors, QSize(24, 24), 2.0);
    const QPixmap pixmap = icon.pixmap(QSize(24, 24), 2.0, mode, state);
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    // Every fully covered pixel carries the tint and nothing else.
    int opaque = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QColor pixel = image.pixelColor(i % image.width(), i / image.width());
        if (pixel.alpha() == 255) {
            ++opaque;
            QCOMPARE(pixel.rgb(), colors.color(expected).rgb());
        }
    }
    QVERIFY(opaque > 20);
}

void TestThemeEngine::titleBarThemerFollowsPalette()
{
    QDialog dialog;
    TovraDialogTitleBarThemer *themer = TovraDialogTitleBarThemer::attach(&dialog);
    dialog.setPalette(ThemeEngine::buildPalette(ThemeEngine::buildColors(Appearance::Dark)));
    QVERIFY(themer->lastDark());
    dialog.setPalette(ThemeEngine::buildPalette(ThemeEngine::buildColors(Appearance::Light)));
    QVERIFY(!themer->lastDark());
}

QTEST_MAIN(TestThemeEngine)
#include "TestThemeEngine.moc"
