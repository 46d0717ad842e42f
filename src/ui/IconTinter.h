#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

class ThemeColors;

// Renders monochrome SVG icons in a single theme colour at the screen's pixel density.
class IconTinter
{
public:
    static QPixmap tinted(const QString &svgPath, const QSize &logicalSize, const QColor &color,
                          qreal devicePixelRatio);

    // A sidebar entry's icon: muted at rest, primary on hover, the selected green when checked
    // and the disabled grey when disabled.
    static QIcon sidebarIcon(const QString &svgPath, const ThemeColors &colors,
                             const QSize &logicalSize, qreal devicePixelRatio);
};
