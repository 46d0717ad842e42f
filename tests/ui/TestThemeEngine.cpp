#include "IconTinter.h"
#include "ThemeEngine.h"
#include "ThemedScrollBar.h"
#include "ToggleSwitch.h"
#include "TovraDialogTitleBarThemer.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QTest>

namespace {

QStringList g_styleWarnings;

void collectStyleWarnings(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message.contains(QLatin1String("style sheet"), Qt::CaseInsensitive) ||
        message.contains(QLatin1String("stylesheet"), Qt::CaseInsensitive)) {
        g_styleWarnings.append(message);
    }
}

QColor centreColor(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace

class TestThemeEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renderedSheetIsComplete_data();
    void renderedSheetIsComplete();
    void rightToLeftResolvesDividerColour();
    void directionTokensPrecedeColours();
    void intendedCoincidences_data();
    void intendedCoincidences();
    void paletteRoles_data();
    void paletteRoles();
    void resolveAppearance_data();
    void resolveAppearance();
    void pendingPrimaryActionKeepsItsColour_data();
    void pendingPrimaryActionKeepsItsColour();
    void switchAndScrollBarColours();
    void sidebarIconTints_data();
    void sidebarIconTints();
    void titleBarThemerFollowsPalette();
};

void TestThemeEngine::renderedSheetIsComplete_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addRow("light ltr") << Appearance::Light << Qt::LeftToRight;
    QTest::addRow("light rtl") << Appearance::Light << Qt::RightToLeft;
    QTest::addRow("light auto") << Appearance::Light << Qt::LayoutDirectionAuto;
    QTest::addRow("dark ltr") << Appearance::Dark << Qt::LeftToRight;
    QTest::addRow("dark rtl") << Appearance::Dark << Qt::RightToLeft;
    QTest::addRow("dark auto") << Appearance::Dark << Qt::LayoutDirectionAuto;
}

void TestThemeEngine::renderedSheetIsComplete()
{
    QFETCH(Appearance, appearance);
    QFETCH(Qt::LayoutDirection, direction);
    const ThemeColors colors = ThemeEngine::buildColors(appearance);
    const QString sheet = ThemeEngine::renderStyleSheet(colors, direction);

    const QRegularExpressionMatch leftover =
        QRegularExpression(QStringLiteral("@[A-Za-z]+@")).match(sheet);
    QVERIFY2(!leftover.hasMatch(), qPrintable(leftover.captured()));
    QVERIFY(sheet.contains(colors.value(ThemeColor::WindowBg)));

    // The sheet must parse: Qt reports a broken one only as a warning when it is applied.
    g_styleWarnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(collectStyleWarnings);
    QWidget root;
    root.setObjectName(QStringLiteral("TovraWindowRoot"));
    root.setLayoutDirection(direction == Qt::LayoutDirectionAuto ? Qt::LeftToRight : direction);
    auto *button = new QPushButton(QStringLiteral("x"), &root);
    root.setStyleSheet(sheet);
    button->ensurePolished();
    qInstallMessageHandler(previous);
    QVERIFY2(g_styleWarnings.isEmpty(), qPrintable(g_styleWarnings.join(QLatin1Char('\n'))));
}

void TestThemeEngine::rightToLeftResolvesDividerColour()
{
    const ThemeColors colors = ThemeEngine::buildColors(Appearance::Light);
    const QString rtl = ThemeEngine::renderStyleSheet(colors, Qt::RightToLeft);
    QVERIFY(rtl.contains(QStringLiteral("border-right: 1px solid #c2c9d6")));
    QVERIFY(!rtl.contains(QStringLiteral("border-right: 1px solid @")));
    const QString ltr = ThemeEngine::renderStyleSheet(colors, Qt::LeftToRight);
    QVERIFY(ltr.contains(QStringLiteral("border-left: 1px solid #c2c9d6")));
    QVERIFY(ltr.contains(QStringLiteral("padding-right: 28px")));
    QVERIFY(rtl.contains(QStringLiteral("padding-left: 28px")));
}

void TestThemeEngine::directionTokensPrecedeColours()
{
    const ThemeColors dark = ThemeEngine::buildColors(Appearance::Dark);
    const QString rendered = ThemeEngine::renderStyleSheet(
        QStringLiteral("a{@tabStartOuterBorder@;min-width:@sidebarMinWidth@px}"), dark,
        Qt::LeftToRight);
    QCOMPARE(rendered, QStringLiteral("a{border-left: 1px solid #3d4759;min-width:92px}"));
    const QString automatic = ThemeEngine::renderStyleSheet(
        QStringLiteral("a{@segmentDividerBorder@;color:@accent@}"), dark, Qt::LayoutDirectionAuto);
    QCOMPARE(automatic, QStringLiteral("a{;color:#47B96D}"));
}

void TestThemeEngine::intendedCoincidences_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addRow("light") << Appearance::Light;
    QTest::addRow("dark") << Appearance::Dark;
}

void TestThemeEngine::intendedCoincidences()
{
    QFETCH(Appearance, appearance);
    const ThemeColors colors = ThemeEngine::buildColors(appearance);
    QCOMPARE(colors.value(ThemeColor::SidebarActive), colors.value(ThemeColor::SidebarSelectedBg));
    if (appearance == Appearance::Dark) {
        QCOMPARE(colors.value(ThemeColor::Accent), QStringLiteral("#47B96D"));
        QCOMPARE(colors.value(ThemeColor::SidebarSelectedText), QStringLiteral("#47B96D"));
    }
    const QString sheet = ThemeEngine::renderStyleSheet(colors, Qt::LeftToRight);
    QVERIFY(!sheet.contains(colors.value(ThemeColor::SubtleFill)));
}

void TestThemeEngine::paletteRoles_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QColor>("expected");
    const QColor lightBorder(QStringLiteral("#c2c9d6"));
    QTest::addRow("window") << Appearance::Light << QPalette::Active << QPalette::Window
                            << QColor(QStringLiteral("#f1f3f6"));
    QTest::addRow("alternate base") << Appearance::Dark << QPalette::Inactive
                                    << QPalette::AlternateBase << QColor(QStringLiteral("#10141c"));
    QTest::addRow("tooltip text") << Appearance::Dark << QPalette::Active << QPalette::ToolTipText
                                  << QColor(QStringLiteral("#eef3f8"));
    QTest::addRow("midlight") << Appearance::Light << QPalette::Active << QPalette::Midlight
                              << QColor(QStringLiteral("#ffffff"));
    QTest::addRow("light") << Appearance::Dark << QPalette::Active << QPalette::Light
                           << QColor(QStringLiteral("#181f2a")).lighter(115);
    QTest::addRow("dark") << Appearance::Light << QPalette::Active << QPalette::Dark
                          << lightBorder.darker(120);
    QTest::addRow("shadow") << Appearance::Light << QPalette::Active << QPalette::Shadow
                            << lightBorder.darker(140);
    QTest::addRow("highlight") << Appearance::Light << QPalette::Active << QPalette::Highlight
                               << QColor(QStringLiteral("#037A4B"));
    QTest::addRow("highlighted text")
        << Appearance::Dark << QPalette::Active << QPalette::HighlightedText << QColor(Qt::white);
    QTest::addRow("placeholder") << Appearance::Dark << QPalette::Active
                                 << QPalette::PlaceholderText << QColor(QStringLiteral("#a7b0bd"));
    QTest::addRow("disabled text") << Appearance::Light << QPalette::Disabled << QPalette::Text
                                   << QColor(QStringLiteral("#868d9a"));
    QTest::addRow("disabled highlighted text")
        << Appearance::Dark << QPalette::Disabled << QPalette::HighlightedText
        << QColor(QStringLiteral("#6f7886"));
    QTest::addRow("disabled highlight")
        << Appearance::Light << QPalette::Disabled << QPalette::Highlight << lightBorder;
    QTest::addRow("disabled base keeps surface")
        << Appearance::Light << QPalette::Disabled << QPalette::Base << QColor(Qt::white);
}

void TestThemeEngine::paletteRoles()
{
    QFETCH(Appearance, appearance);
    QFETCH(QPalette::ColorGroup, group);
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QColor, expected);
    const QPalette palette = ThemeEngine::buildPalette(ThemeEngine::buildColors(appearance));
    QCOMPARE(palette.color(group, role), expected);
}

void TestThemeEngine::resolveAppearance_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<DesktopScheme>("desktop");
    QTest::addColumn<Appearance>("expected");
    QTest::addRow("light ignores dark desktop")
        << QStringLiteral("light") << DesktopScheme::Dark << Appearance::Light;
    QTest::addRow("dark ignores light desktop")
        << QStringLiteral("dark") << DesktopScheme::Light << Appearance::Dark;
    QTest::addRow("system dark") << QStringLiteral("system") << DesktopScheme::Dark
                                 << Appearance::Dark;
    QTest::addRow("system light") << QStringLiteral("system") << DesktopScheme::Light
                                  << Appearance::Light;
    QTest::addRow("system unknown is light")
        << QStringLiteral("system") << DesktopScheme::Unknown << Appearance::Light;
    QTest::addRow("unknown preference follows desktop")
        << QStringLiteral("Dark ") << DesktopScheme::Dark << Appearance::Dark;
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
    QTest::addRow("connect pending")
        << QStringLiteral("connect") << true << ThemeColor::AccentStrong;
    QTest::addRow("connect idle") << QStringLiteral("connect") << false << ThemeColor::Surface;
    QTest::addRow("disconnect pending")
        << QStringLiteral("disconnect") << true << ThemeColor::Danger;
    QTest::addRow("disconnect idle")
        << QStringLiteral("disconnect") << false << ThemeColor::Surface;
}

void TestThemeEngine::pendingPrimaryActionKeepsItsColour()
{
    QFETCH(QString, role);
    QFETCH(bool, pending);
    QFETCH(ThemeColor, expected);
    QWidget root;
    root.setObjectName(QStringLiteral("TovraWindowRoot"));
    auto *layout = new QHBoxLayout(&root);
    // No text: the sampled centre pixel is the button's fill.
    auto *button = new QPushButton(&root);
    button->setObjectName(QStringLiteral("TovraVPNPrimaryAction"));
    button->setProperty("tovraPrimaryRole", role);
    if (pending) {
        button->setProperty("tovraPrimaryState", QStringLiteral("pending"));
    }
    button->setEnabled(false);
    layout->addWidget(button);
    const ThemeColors colors = ThemeEngine::buildColors(Appearance::Light);
    ThemeEngine::applyToWindow(&root, colors);
    root.resize(200, 80);
    root.show();
    QVERIFY(QTest::qWaitForWindowExposed(&root));
    QCOMPARE(centreColor(button->grab()), colors.color(expected));
}

void TestThemeEngine::switchAndScrollBarColours()
{
    QWidget root;
    auto *toggle = new ToggleSwitch(&root);
    auto *bar = new ThemedScrollBar(Qt::Vertical, new QWidget(&root));
    const ThemeColors colors = ThemeEngine::buildColors(Appearance::Dark);
    ThemeEngine::applySwitchColors(&root, colors);
    ThemeEngine::applyScrollBarColors(&root, colors);
    QCOMPARE(toggle->property("tovraSwitchCheckedTrack").value<QColor>(),
             QColor(QStringLiteral("#47B96D")));
    QCOMPARE(toggle->property("tovraSwitchUncheckedTrack").value<QColor>(),
             QColor(QStringLiteral("#3d4759")));
    QCOMPARE(toggle->property("tovraSwitchThumb").value<QColor>(), QColor(Qt::white));
    QCOMPARE(toggle->property("tovraSwitchThumbBorder").value<QColor>(), QColor(0, 0, 0, 70));
    QCOMPARE(toggle->property("tovraSwitchFocus").value<QColor>(),
             QColor(QStringLiteral("#47B96D")));
    QCOMPARE(bar->handleColor(), QColor(QStringLiteral("#a7b0bd")));
    QCOMPARE(bar->pressedHandleColor(), QColor(QStringLiteral("#eef3f8")));
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
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 255) {
                ++opaque;
                QCOMPARE(pixel.rgb(), colors.color(expected).rgb());
            }
        }
    }
    QVERIFY(opaque > 20);
}

void TestThemeEngine::titleBarThemerFollowsPalette()
{
    QDialog dialog;
    TovraDialogTitleBarThemer *themer = TovraDialogTitleBarThemer::attach(&dialog);
    QCOMPARE(themer->parent(), &dialog);
    dialog.setPalette(ThemeEngine::buildPalette(ThemeEngine::buildColors(Appearance::Dark)));
    QVERIFY(themer->lastDark());
    const int afterDark = themer->applyCount();
    dialog.setPalette(ThemeEngine::buildPalette(ThemeEngine::buildColors(Appearance::Light)));
    QVERIFY(!themer->lastDark());
    QVERIFY(themer->applyCount() > afterDark);
    dialog.show();
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(TestThemeEngine)
#include "TestThemeEngine.moc"
