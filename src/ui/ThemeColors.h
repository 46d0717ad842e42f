#pragma once

#include "DesktopScheme.h"

#include <QColor>
#include <QString>

#include <array>

// The theme's named colours, in the order the style template replaces them.
enum class ThemeColor {
    WindowBg,
    SidebarBg,
    SidebarBorder,
    SidebarHover,
    SidebarActive,
    SidebarSelectedBg,
    SidebarSelectedText,
    Surface,
    SurfaceBorder,
    SubtleFill,   // no template token; read by painted widgets
    SubtleBorder, // no template token; read by painted widgets
    TextPrimary,
    TextMuted,
    DisabledText,
    Accent,
    AccentStrong,
    AccentHover,
    AccentPressed,
    Warning,
    Error,
    Danger,
    DangerHover,
    DangerPressed,
    FocusRing,
};

enum class Appearance { Light, Dark };

// One variant of the theme: 24 colour strings ("#rrggbb").
class ThemeColors
{
public:
    static constexpr int Count = 24;

    static ThemeColors forAppearance(Appearance appearance, Contrast contrast = Contrast::Normal);

    Appearance appearance() const { return m_appearance; }
    Contrast contrast() const { return m_contrast; }
    // Width of the keyboard focus ring in pixels: wider where the desktop asks for contrast.
    int focusWidth() const { return m_contrast == Contrast::High ? 3 : 2; }
    QString value(ThemeColor role) const { return m_values[static_cast<size_t>(role)]; }
    QColor color(ThemeColor role) const { return QColor(value(role)); }

    // The template token of a colour ("@windowBg@"), empty for the two without one.
    static QString token(ThemeColor role);

private:
    Appearance m_appearance = Appearance::Light;
    Contrast m_contrast = Contrast::Normal;
    std::array<QString, Count> m_values;
};
