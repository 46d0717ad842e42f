#include "IconTinter.h"

#include "ThemeColors.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

QPixmap IconTinter::tinted(const QString &svgPath, const QSize &logicalSize, const QColor &color,
                           qreal devicePixelRatio)
{
    const qreal dpr = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    QImage image(logicalSize * dpr, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(svgPath);
    if (!renderer.isValid()) {
        return QPixmap();
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    // Keep the icon's shape and coverage, replace its colour.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(dpr);
    return pixmap;
}

QIcon IconTinter::sidebarIcon(const QString &svgPath, const ThemeColors &colors,
                              const QSize &logicalSize, qreal devicePixelRatio)
{
    const auto render = [&](ThemeColor role) {
        return tinted(svgPath, logicalSize, colors.color(role), devicePixelRatio);
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
