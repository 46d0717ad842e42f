// Pictures of the X screen for the screenshot scripts, and pixel probes for the end-to-end tests:
// the whole screen as a PNG, or the average colour of a rectangle (to tell the connected tray icon
// from the disconnected one), or how many pixels of a rectangle have a given colour.
#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

QImage grabScreen()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->grabWindow(0).toImage() : QImage();
}

int printAverage(const QImage &image, int x, int y, int width, int height)
{
    long red = 0, green = 0, blue = 0, count = 0;
    for (int row = y; row < y + height && row < image.height(); ++row) {
        for (int column = x; column < x + width && column < image.width(); ++column) {
            const QColor colour = image.pixelColor(column, row);
            red += colour.red();
            green += colour.green();
            blue += colour.blue();
            ++count;
        }
    }
    if (count == 0)
        return 1;
    std::printf("%ld %ld %ld\n", red / count, green / count, blue / count);
    return 0;
}

// How many pixels of a rectangle are within `tolerance` of a colour in every channel: finds a
// small coloured mark (a status dot) whatever the font metrics put it.
int printCount(const QImage &image, const QColor &wanted, int tolerance, const int *rect)
{
    long count = 0;
    for (int row = rect[1]; row < rect[1] + rect[3] && row < image.height(); ++row) {
        for (int column = rect[0]; column < rect[0] + rect[2] && column < image.width(); ++column) {
            const QColor colour = image.pixelColor(column, row);
            if (std::abs(colour.red() - wanted.red()) <= tolerance &&
                std::abs(colour.green() - wanted.green()) <= tolerance &&
                std::abs(colour.blue() - wanted.blue()) <= tolerance)
                ++count;
        }
    }
    std::printf("%ld\n", count);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QImage image = grabScreen();
    if (image.isNull()) {
        std::fprintf(stderr, "could not grab the screen\n");
        return 1;
    }
    if (argc == 6 && std::strcmp(argv[1], "--average") == 0)
        return printAverage(image, std::atoi(argv[2]), std::atoi(argv[3]), std::atoi(argv[4]),
                            std::atoi(argv[5]));
    if (argc == 8 && std::strcmp(argv[1], "--count") == 0) {
        const QColor wanted(QString::fromLatin1(argv[2]));
        const int rect[4] = {std::atoi(argv[4]), std::atoi(argv[5]), std::atoi(argv[6]),
                             std::atoi(argv[7])};
        return wanted.isValid() ? printCount(image, wanted, std::atoi(argv[3]), rect) : 2;
    }
    if (argc != 2 && argc != 6) {
        std::fprintf(stderr, "usage: tovra-shot-grab OUTPUT.png [X Y WIDTH HEIGHT] |"
                             " --average X Y WIDTH HEIGHT |"
                             " --count #RRGGBB TOLERANCE X Y WIDTH HEIGHT\n");
        return 2;
    }
    // With a rectangle, only that part of the screen: a picture of one window for AppStream.
    const QImage picture = argc == 6 ? image.copy(std::atoi(argv[2]), std::atoi(argv[3]),
                                                  std::atoi(argv[4]), std::atoi(argv[5]))
                                     : image;
    if (picture.isNull() || !picture.save(QString::fromLocal8Bit(argv[1]), "PNG")) {
        std::fprintf(stderr, "could not write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
