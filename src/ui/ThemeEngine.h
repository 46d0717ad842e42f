#pragma once

#include "DesktopScheme.h"
#include "ThemeColors.h"

#include <QPalette>
#include <QString>
#include <Qt>

class QWidget;

// Turns a theme variant into a palette, a rendered style sheet and the colour properties of
// painted widgets.
class ThemeEngine
{
public:
    // "light" and "dark" are taken as they are; anything else follows the desktop, and a desktop
    // that reports nothing reads as light.
    static Appearance resolveAppearance(const QString &preference, DesktopScheme desktop);
    static ThemeColors buildColors(Appearance appearance, Contrast contrast = Contrast::Normal);
    static QPalette buildPalette(const ThemeColors &colors);
    static QString renderStyleSheet(const ThemeColors &colors, Qt::LayoutDirection direction);
    static QString renderStyleSheet(const QString &templateText, const ThemeColors &colors,
                                    Qt::LayoutDirection direction);

    static void applyPaletteRecursively(QWidget *widget, const QPalette &palette);
    static void applySwitchColors(QWidget *root, const ThemeColors &colors);
    static void applyScrollBarColors(QWidget *root, const ThemeColors &colors);

    // Palette, style sheet for the window's direction, switch and scroll-bar colours: the whole
    // theme of a top-level window that has no pages of its own to update.
    static void applyToWindow(QWidget *window, const ThemeColors &colors);

    // Appearance of a window that only has palettes to go by (dialogs opened from the tray).
    static Appearance appearanceOf(const QPalette &palette);
};
