#pragma once

#include <QString>

// The compiled-in style template, read once per process and kept.
class StyleTemplate
{
public:
    // The template text; a missing resource stops the program.
    static const QString &text();
};
