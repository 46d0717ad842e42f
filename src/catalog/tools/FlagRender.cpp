// Renders the flag PNGs from their SVG drawings at build time, all in one process:
// tovra-flagrender OUT_DIR WIDTH HEIGHT IN.svg[=NAME]...
// Each IN.svg becomes OUT_DIR/NAME.png (NAME defaults to the file's base name).
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool render(const QString &input, const QString &output, const QSize &size)
{
    QSvgRenderer renderer(input);
    if (!renderer.isValid())
        return false;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal radius = size.height() / 10.0;
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(0, 0), QSizeF(size)), radius, radius);
    painter.setClipPath(outline);
    // Fill the width and cut the overflow evenly from top and bottom.
    const QSizeF drawing = renderer.defaultSize();
    const qreal scale = qMax(size.width() / drawing.width(), size.height() / drawing.height());
    const QSizeF scaled = drawing * scale;
    renderer.render(&painter, QRectF(QPointF((size.width() - scaled.width()) / 2,
                                             (size.height() - scaled.height()) / 2),
                                     scaled));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.75, 0.75, -0.75, -0.75),
                            radius, radius);
    painter.end();
    return image.save(output, "PNG");
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 5) {
        std::fprintf(stderr, "usage: tovra-flagrender OUT_DIR WIDTH HEIGHT IN.svg[=NAME]...\n");
        return 2;
    }
    const QString outDir = args.at(1);
    const QSize size(args.at(2).toInt(), args.at(3).toInt());
    if (size.isEmpty()) {
        std::fprintf(stderr, "tovra-flagrender: bad size\n");
        return 2;
    }
    for (const QString &arg : args.mid(4)) {
        const qsizetype equals = arg.indexOf(QLatin1Char('='));
        const QString input = equals < 0 ? arg : arg.left(equals);
        const QString name = equals < 0 ? QFileInfo(input).completeBaseName() : arg.mid(equals + 1);
        const QString output = outDir + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!render(input, output, size)) {
            std::fprintf(stderr, "tovra-flagrender: cannot render %s to %s\n", qPrintable(input),
                         qPrintable(output));
            return 1;
        }
    }
    return 0;
}
