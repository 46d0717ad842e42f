#include "IconTinter.h"

#include "ThemeColors.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

// The drawing's coverage at the pixel size, in any colour; null when the file is no SVG.
QImage coverage(const QString &svgPath, const QSize &logicalSize, qreal dpr)
{
    QSvgRenderer renderer(svgPath);
    if (!renderer.isValid())
        return {};
    QImage image(logicalSize * dpr, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

// Keeps the icon's shape and coverage, replaces its colour.
QPixmap recoloured(QImage image, const QColor &color, qreal dpr)
{
    if (image.isNull())
        return {};
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(dpr);
    return pixmap;
}

} // namespace

QPixmap IconTinter::tinted(const QString &svgPath, const QSize &logicalSize, const QColor &color,
                           qreal devicePixelRatio)
{
    const qreal dpr = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    return recoloured(coverage(svgPath, logicalSize, dpr), color, dpr);
}

QIcon IconTinter::sidebarIcon(const QString &svgPath, const ThemeColors &colors,
                              const QSize &logicalSize, qreal devicePixelRatio)
{
    // Drawn once, coloured four times.
    const qreal dpr = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const QImage drawing = coverage(svgPath, logicalSize, dpr);
    const auto render = [&](ThemeColor role) {
        return recoloured(drawing, colors.color(role), dpr);
    };
    const QPixmap muted = render(ThemeColor::TextMuted);
    const QPixmap primary = render(ThemeColor::TextPrimary);
    const QPixmap selected = render(ThemeColor::SidebarSelectedText);
    const QPixmap disabled = render(ThemeColor::DisabledText);

    QIcon icon;
    icon.addPixmap(muted, QIcon::Normal, QIcon::Off);
    icon.addPixmap(primary, QIcon::Active, QIcon::Off);
    icon.addPixmap(selected, QIcon::Normal, QIcon::On);
    icon.addPixmap(selected, QIcon::Active, QIcon::On);
    icon.addPixmap(disabled, QIcon::Disabled, QIcon::Off);
    icon.addPixmap(disabled, QIcon::Disabled, QIcon::On);
    return icon;
}
