#pragma once

#include "TrayMenu.h"

class QString;
class QWidget;

// Builds the tray menu, top to bottom, in one of two layouts: submenus (the default) or flat.
// The flat layout is kept so that both stay buildable; nothing in the program selects it.
class TrayMenuBuilder
{
public:
    static bool usesSubmenus();
    // Process-wide; read when a menu is built.
    static void setUsesSubmenus(bool submenus);

    // The returned menu has no parent; the caller owns it.
    static TrayMenu build();

    // "[ %1 ]": a disabled bold line that heads a group of entries.
    static QString sectionText(const QString &title);
};
