#include "ThemeEngine.h"

#include "LayoutAlignedLabels.h"
#include "StyleTemplate.h"
#include "ThemedScrollBar.h"
#include "ToggleSwitch.h"

#include <QHash>
#include <QWidget>

#include <array>

namespace {

struct DirectionRow
{
    const char *token;
    const char *leftToRight;
    const char *rightToLeft;
};

// Replaced before the colours: several values name @surfaceBorder@ themselves.
constexpr std::array<DirectionRow, 16> kDirectionRows{{
    {"@segmentDividerBorder@", "border-left: 1px solid @surfaceBorder@",
     "border-right: 1px solid @surfaceBorder@"},
    {"@segmentStartNoDivider@", "border-left: 0", "border-right: 0"},
    {"@segmentStartTopRadius@", "border-top-left-radius: 6px", "border-top-right-radius: 6px"},
    {"@segmentStartBottomRadius@", "border-bottom-left-radius: 6px",
     "border-bottom-right-radius: 6px"},
    {"@segmentEndTopRadius@", "border-top-right-radius: 6px", "border-top-left-radius: 6px"},
    {"@segmentEndBottomRadius@", "border-bottom-right-radius: 6px",
     "border-bottom-left-radius: 6px"},
    {"@attachedStartBottomRadius@", "border-bottom-left-radius: 0px",
     "border-bottom-right-radius: 0px"},
    {"@attachedEndBottomRadius@", "border-bottom-right-radius: 0px",
     "border-bottom-left-radius: 0px"},
    {"@chevronPadding@", "padding-right: 28px", "padding-left: 28px"},
    {"@searchClearPadding@", "padding-right: 32px", "padding-left: 32px"},
    {"@tabInnerDividerClear@", "border-left: 0px", "border-right: 0px"},
    {"@tabStartOuterBorder@", "border-left: 1px solid @surfaceBorder@",
     "border-right: 1px solid @surfaceBorder@"},
    {"@tabStartTopRadius@", "border-top-left-radius: 6px", "border-top-right-radius: 6px"},
    {"@tabStartBottomRadius@", "border-bottom-left-radius: 0px", "border-bottom-right-radius: 0px"},
    {"@tabEndTopRadius@", "border-top-right-radius: 6px", "border-top-left-radius: 6px"},
    {"@tabEndBottomRadius@", "border-bottom-right-radius: 0px", "border-bottom-left-radius: 0px"},
}};

constexpr std::array<std::pair<const char *, const char *>, 3> kMetricRows{{
    {"@sidebarMinWidth@", "92"},
    {"@sidebarButtonMinHeight@", "72"},
    {"@sidebarLabelFontPx@", "12"},
}};

// Appends text with every "@name@" token that values knows replaced; depth levels of values are
// expanded in turn.
void expandTokens(QString &out, QStringView text, const QHash<QString, QString> &values, int depth)
{
    qsizetype from = 0;
    for (qsizetype open = text.indexOf(u'@'); open >= 0; open = text.indexOf(u'@', from)) {
        const qsizetype close = text.indexOf(u'@', open + 1);
        if (close < 0)
            break;
        const auto found = values.constFind(text.sliced(open, close - open + 1).toString());
        if (found == values.cend()) {
            out += text.sliced(from, open + 1 - from);
            from = open + 1;
            continue;
        }
        out += text.sliced(from, open - from);
        if (depth > 0)
            expandTokens(out, found.value(), values, depth - 1);
        else
            out += found.value();
        from = close + 1;
    }
    out += text.sliced(from);
}

} // namespace

Appearance ThemeEngine::resolveAppearance(const QString &preference, DesktopScheme desktop)
{
    if (preference == QLatin1String("light")) {
        return Appearance::Light;
    }
    if (preference == QLatin1String("dark")) {
        return Appearance::Dark;
    }
    return desktop == DesktopScheme::Dark ? Appearance::Dark : Appearance::Light;
}

ThemeColors ThemeEngine::buildColors(Appearance appearance, Contrast contrast)
{
    return ThemeColors::forAppearance(appearance, contrast);
}

QPalette ThemeEngine::buildPalette(const ThemeColors &colors)
{
    const QColor windowBg = colors.color(ThemeColor::WindowBg);
    const QColor text = colors.color(ThemeColor::TextPrimary);
    const QColor surface = colors.color(ThemeColor::Surface);
    const QColor border = colors.color(ThemeColor::SurfaceBorder);
    const QColor disabled = colors.color(ThemeColor::DisabledText);

    QPalette palette;
    palette.setColor(QPalette::Window, windowBg);
    palette.setColor(QPalette::AlternateBase, windowBg);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                     QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
    }
    for (QPalette::ColorRole role :
         {QPalette::Base, QPalette::Button, QPalette::Midlight, QPalette::ToolTipBase}) {
        palette.setColor(role, surface);
    }
    palette.setColor(QPalette::Light, surface.lighter(115));
    palette.setColor(QPalette::Mid, border);
    palette.setColor(QPalette::Dark, border.darker(120));
    palette.setColor(QPalette::Shadow, border.darker(140));
    palette.setColor(QPalette::Highlight, colors.color(ThemeColor::AccentStrong));
    palette.setColor(QPalette::HighlightedText, QColor(Qt::white));
    palette.setColor(QPalette::PlaceholderText, colors.color(ThemeColor::TextMuted));
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    palette.setColor(QPalette::Accent, colors.color(ThemeColor::Accent));
    palette.setColor(QPalette::Disabled, QPalette::Accent, disabled);
#endif
    for (QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, border);
    return palette;
}

QString ThemeEngine::renderStyleSheet(const ThemeColors &colors, Qt::LayoutDirection direction)
{
    return renderStyleSheet(StyleTemplate::text(colors.contrast()), colors, direction);
}

QString ThemeEngine::renderStyleSheet(const QString &templateText, const ThemeColors &colors,
                                      Qt::LayoutDirection direction)
{
    QHash<QString, QString> values;
    for (const DirectionRow &row : kDirectionRows) {
        const char *value = direction == Qt::LeftToRight   ? row.leftToRight
                            : direction == Qt::RightToLeft ? row.rightToLeft
                                                           : "";
        values.insert(QString::fromLatin1(row.token), QString::fromLatin1(value));
    }
    for (int i = 0; i < ThemeColors::Count; ++i) {
        const auto role = static_cast<ThemeColor>(i);
        const QString token = ThemeColors::token(role);
        if (!token.isEmpty())
            values.insert(token, colors.value(role));
    }
    for (const auto &[token, value] : kMetricRows)
        values.insert(QString::fromLatin1(token), QString::fromLatin1(value));
    // One pass over the template instead of one per token; the direction values' own colour
    // tokens are expanded where they land.
    QString sheet;
    sheet.reserve(templateText.size() + templateText.size() / 8);
    expandTokens(sheet, templateText, values, 1);
    return sheet;
}

void ThemeEngine::applyPaletteRecursively(QWidget *widget, const QPalette &palette)
{
    if (!widget) {
        return;
    }
    widget->setPalette(palette);
    const QList<QWidget *> children = widget->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        applyPaletteRecursively(child, palette);
    }
}

void ThemeEngine::applySwitchColors(QWidget *root, const ThemeColors &colors)
{
    if (!root) {
        return;
    }
    const QList<ToggleSwitch *> switches = root->findChildren<ToggleSwitch *>();
    for (ToggleSwitch *toggle : switches) {
        toggle->setProperty("tovraSwitchCheckedTrack", colors.color(ThemeColor::Accent));
        toggle->setProperty("tovraSwitchUncheckedTrack", colors.color(ThemeColor::SurfaceBorder));
        toggle->setProperty("tovraSwitchThumb", QColor(0xff, 0xff, 0xff));
        toggle->setProperty("tovraSwitchThumbBorder", QColor(0, 0, 0, 70));
        toggle->setProperty("tovraSwitchFocus", colors.color(ThemeColor::FocusRing));
        toggle->setProperty("tovraSwitchFocusWidth", colors.focusWidth());
        toggle->update();
    }
}

void ThemeEngine::applyScrollBarColors(QWidget *root, const ThemeColors &colors)
{
    if (!root) {
        return;
    }
    const QList<ThemedScrollBar *> bars = root->findChildren<ThemedScrollBar *>();
    for (ThemedScrollBar *bar : bars) {
        bar->setHandleColors(colors.color(ThemeColor::TextMuted),
                             colors.color(ThemeColor::TextPrimary));
    }
}

void ThemeEngine::applyToWindow(QWidget *window, const ThemeColors &colors)
{
    if (!window) {
        return;
    }
    // The themed look follows the layout's direction, the labels' alignment included.
    LayoutAlignedLabels::install();
    applyPaletteRecursively(window, buildPalette(colors));
    window->setStyleSheet(renderStyleSheet(colors, window->layoutDirection()));
    applySwitchColors(window, colors);
    applyScrollBarColors(window, colors);
}

Appearance ThemeEngine::appearanceOf(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? Appearance::Dark : Appearance::Light;
}
