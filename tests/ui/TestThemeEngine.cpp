#include "IconTinter.h"
#include "ThemeEngine.h"
#include "TovraDialogTitleBarThemer.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>

class TestThemeEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renderedSheetIsComplete_data();
    void renderedSheetIsComplete();
    void directionTokensPrecedeColours();
    void highContrastPairs_data();
    void highContrastPairs();
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
    QTest::addColumn<Contrast>("contrast");
    QTest::addColumn<QStringList>("fragments");
    const Contrast normal = Contrast::Normal, high = Contrast::High;
    QTest::addRow("light ltr") << Appearance::Light << Qt::LeftToRight << normal
                               << QStringList({QStringLiteral("border-left: 1px solid #c2c9d6"),
                                               QStringLiteral("padding-right: 28px")});
    QTest::addRow("light rtl") << Appearance::Light << Qt::RightToLeft << normal
                               << QStringList({QStringLiteral("border-right: 1px solid #c2c9d6"),
                                               QStringLiteral("padding-left: 28px")});
    QTest::addRow("light auto") << Appearance::Light << Qt::LayoutDirectionAuto << normal
                                << QStringList();
    QTest::addRow("dark ltr") << Appearance::Dark << Qt::LeftToRight << normal << QStringList();
    // The strong variant widens the ring to 3px in the ring's own colour.
    QTest::addRow("high contrast light rtl")
        << Appearance::Light << Qt::RightToLeft << high
        << QStringList({QStringLiteral("border: 3px solid #0040a0")});
    QTest::addRow("high contrast dark ltr")
        << Appearance::Dark << Qt::LeftToRight << high
        << QStringList({QStringLiteral("border: 3px solid #ffd23f")});
}

void TestThemeEngine::renderedSheetIsComplete()
{
    QFETCH(Appearance, appearance);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(Contrast, contrast);
    QFETCH(QStringList, fragments);
    const ThemeColors colors = ThemeEngine::buildColors(appearance, contrast);
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

namespace {

// The contrast ratio of two colours as accessibility guidelines define it.
double contrastRatio(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &c) {
        const auto channel = [](double v) {
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) +
               0.0722 * channel(c.blueF());
    };
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

} // namespace

void TestThemeEngine::highContrastPairs_data()
{
    QTest::addColumn<QColor>("foreground");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<double>("minimum");
    using C = ThemeColor;
    const struct
    {
        const char *name;
        std::optional<ThemeColor> foreground; // none: the white text on filled buttons
        ThemeColor background;
        double minimum;
    } pairs[] = {{"text on window", C::TextPrimary, C::WindowBg, 7},
                 {"text on surface", C::TextPrimary, C::Surface, 7},
                 {"muted on window", C::TextMuted, C::WindowBg, 7},
                 {"muted on hover", C::TextMuted, C::SidebarHover, 7},
                 {"selected text", C::SidebarSelectedText, C::SidebarSelectedBg, 4.5},
                 {"error on surface", C::Error, C::Surface, 4.5},
                 {"border on surface", C::SurfaceBorder, C::Surface, 3},
                 {"separator on window", C::SidebarBorder, C::WindowBg, 3},
                 {"ring on window", C::FocusRing, C::WindowBg, 3},
                 {"ring on surface", C::FocusRing, C::Surface, 3},
                 {"ring on selection", C::FocusRing, C::SidebarSelectedBg, 3},
                 {"white on accent", std::nullopt, C::Accent, 4.5},
                 {"white on strong accent", std::nullopt, C::AccentStrong, 4.5},
                 {"white on danger", std::nullopt, C::Danger, 4.5}};
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        const ThemeColors colors = ThemeEngine::buildColors(appearance, Contrast::High);
        for (const auto &pair : pairs) {
            const QColor foreground =
                pair.foreground ? colors.color(*pair.foreground) : QColor(Qt::white);
            QTest::addRow("%s %s", appearance == Appearance::Dark ? "dark" : "light", pair.name)
                << foreground << colors.color(pair.background) << pair.minimum;
        }
    }
}

void TestThemeEngine::highContrastPairs()
{
    QFETCH(QColor, foreground);
    QFETCH(QColor, background);
    QFETCH(double, minimum);
    const double ratio = contrastRatio(foreground, background);
    QVERIFY2(ratio >= minimum, qPrintable(QStringLiteral("%1 on %2: %3")
                                              .arg(foreground.name(), background.name())
                                              .arg(ratio, 0, 'f', 2)));
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
