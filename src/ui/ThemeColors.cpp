#include "ThemeColors.h"

namespace {

struct ColorRow
{
    const char *token;
    const char *light;
    const char *dark;
    const char *strongLight;
    const char *strongDark;
};

// Dark accent equals dark selected sidebar text, and active equals selected background in both
// variants: the sidebar's selection reads as the same green as the rest of the accent.
// The strong (high-contrast) variants keep text at 7:1 or more, borders at 3:1 or more against
// their background, white text on the accent fills at 4.5:1 or more, and ring the focus in a
// hue of its own so that it is never taken for a selection.
constexpr std::array<ColorRow, ThemeColors::Count> kRows{{
    {"@windowBg@", "#f1f3f6", "#10141c", "#ffffff", "#0a0a0a"},
    {"@sidebarBg@", "#f6f7f9", "#151a24", "#f5f5f5", "#121212"},
    {"@sidebarBorder@", "#d9dde5", "#2a3140", "#6b6b6b", "#9a9a9a"},
    {"@sidebarHover@", "#e9edf3", "#222a37", "#e6e6e6", "#262626"},
    {"@sidebarActive@", "#E6F4EE", "#12372A", "#d6efe0", "#0d3b24"},
    {"@sidebarSelectedBg@", "#E6F4EE", "#12372A", "#d6efe0", "#0d3b24"},
    {"@sidebarSelectedText@", "#04784B", "#47B96D", "#00592e", "#7ee2a3"},
    {"@surface@", "#ffffff", "#181f2a", "#ffffff", "#121212"},
    {"@surfaceBorder@", "#c2c9d6", "#3d4759", "#6b6b6b", "#9a9a9a"},
    {"", "#f0f2f5", "#303438", "#ebebeb", "#2b2b2b"},
    {"", "#cbd5e2", "#455365", "#767676", "#8a8a8a"},
    {"@textPrimary@", "#172033", "#eef3f8", "#0a0a0a", "#ffffff"},
    {"@textMuted@", "#5f6673", "#a7b0bd", "#4a4a4a", "#c8c8c8"},
    {"@disabledText@", "#868d9a", "#6f7886", "#6e6e6e", "#8f8f8f"},
    {"@accent@", "#04955A", "#47B96D", "#00703c", "#187a42"},
    {"@accentStrong@", "#037A4B", "#2A7D49", "#005c31", "#146b3a"},
    {"@accentHover@", "#02633D", "#236B3E", "#004d29", "#105c32"},
    {"@accentPressed@", "#014E30", "#1D5A34", "#003d20", "#0c4d29"},
    {"@warning@", "#B45309", "#E0A63C", "#7a4200", "#ffc266"},
    {"@error@", "#D23B3B", "#E56060", "#b00020", "#ff8080"},
    {"@danger@", "#D93520", "#D0351F", "#b3261e", "#c62828"},
    {"@dangerHover@", "#C4321C", "#BC2E1A", "#9c1f18", "#ad1f1f"},
    {"@dangerPressed@", "#B12C19", "#A82A16", "#85180f", "#941a1a"},
    {"@focusRing@", "#04955A", "#47B96D", "#0040a0", "#ffd23f"},
}};

} // namespace

ThemeColors ThemeColors::forAppearance(Appearance appearance, Contrast contrast)
{
    ThemeColors colors;
    colors.m_appearance = appearance;
    colors.m_contrast = contrast;
    const bool dark = appearance == Appearance::Dark;
    const bool strong = contrast == Contrast::High;
    for (size_t i = 0; i < kRows.size(); ++i) {
        const ColorRow &row = kRows[i];
        const char *value =
            strong ? (dark ? row.strongDark : row.strongLight) : (dark ? row.dark : row.light);
        colors.m_values[i] = QString::fromLatin1(value);
    }
    return colors;
}

QString ThemeColors::token(ThemeColor role)
{
    return QString::fromLatin1(kRows[static_cast<size_t>(role)].token);
}
