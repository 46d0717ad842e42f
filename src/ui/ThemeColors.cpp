#include "ThemeColors.h"

namespace {

struct ColorRow
{
    const char *token;
    const char *light;
    const char *dark;
};

// Dark accent equals dark selected sidebar text, and active equals selected background in both
// variants: the sidebar's selection reads as the same green as the rest of the accent.
constexpr std::array<ColorRow, ThemeColors::Count> kRows{{
    {"@windowBg@", "#f1f3f6", "#10141c"},
    {"@sidebarBg@", "#f6f7f9", "#151a24"},
    {"@sidebarBorder@", "#d9dde5", "#2a3140"},
    {"@sidebarHover@", "#e9edf3", "#222a37"},
    {"@sidebarActive@", "#E6F4EE", "#12372A"},
    {"@sidebarSelectedBg@", "#E6F4EE", "#12372A"},
    {"@sidebarSelectedText@", "#04784B", "#47B96D"},
    {"@surface@", "#ffffff", "#181f2a"},
    {"@surfaceBorder@", "#c2c9d6", "#3d4759"},
    {"", "#f0f2f5", "#303438"},
    {"", "#cbd5e2", "#455365"},
    {"@textPrimary@", "#172033", "#eef3f8"},
    {"@textMuted@", "#5f6673", "#a7b0bd"},
    {"@disabledText@", "#868d9a", "#6f7886"},
    {"@accent@", "#04955A", "#47B96D"},
    {"@accentStrong@", "#037A4B", "#2A7D49"},
    {"@accentHover@", "#02633D", "#236B3E"},
    {"@accentPressed@", "#014E30", "#1D5A34"},
    {"@warning@", "#B45309", "#E0A63C"},
    {"@error@", "#D23B3B", "#E56060"},
    {"@danger@", "#D93520", "#D0351F"},
    {"@dangerHover@", "#C4321C", "#BC2E1A"},
    {"@dangerPressed@", "#B12C19", "#A82A16"},
}};

} // namespace

ThemeColors ThemeColors::forAppearance(Appearance appearance)
{
    ThemeColors colors;
    colors.m_appearance = appearance;
    for (size_t i = 0; i < kRows.size(); ++i) {
        const ColorRow &row = kRows[i];
        colors.m_values[i] =
            QString::fromLatin1(appearance == Appearance::Dark ? row.dark : row.light);
    }
    return colors;
}

QString ThemeColors::token(ThemeColor role)
{
    return QString::fromLatin1(kRows[static_cast<size_t>(role)].token);
}
