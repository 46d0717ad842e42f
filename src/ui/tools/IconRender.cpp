// Renders the PNG icons from their SVG drawings at build time: tovra-iconrender IN.svg OUT.png SIZE
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: tovra-iconrender IN.svg OUT.png SIZE\n");
        return 2;
    }
    const QString input = QString::fromLocal8Bit(argv[1]);
    const QString output = QString::fromLocal8Bit(argv[2]);
    const int size = QString::fromLocal8Bit(argv[3]).toInt();
    QSvgRenderer renderer(input);
    if (!renderer.isValid() || size <= 0) {
        std::fprintf(stderr, "tovra-iconrender: cannot render %s\n", argv[1]);
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (!image.save(output, "PNG")) {
        std::fprintf(stderr, "tovra-iconrender: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
