#pragma once

#include "ThemeColors.h"

#include <QString>

// The compiled-in style template, read once per process and kept.
class StyleTemplate
{
public:
    // The template text, with the high-contrast additions after it where asked; a missing
    // resource stops the program.
    static const QString &text(Contrast contrast = Contrast::Normal);
};
