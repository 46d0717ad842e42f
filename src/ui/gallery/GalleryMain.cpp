// tovra-gallery: every custom widget in light and dark, left-to-right and right-to-left, and in
// high contrast. With --screenshot DIR it writes light-ltr.png, light-rtl.png, dark-ltr.png,
// dark-rtl.png, light-hc-ltr.png and dark-hc-ltr.png into DIR and exits; --high-contrast opens
// the window in high contrast.
#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPixmap>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tovra-gallery"));

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write one PNG per variant and exit."),
                                        QStringLiteral("DIR"));
    parser.addOption(screenshot);
    const QCommandLineOption highContrast(QStringLiteral("high-contrast"),
                                          QStringLiteral("Start in high contrast."));
    parser.addOption(highContrast);
    parser.process(app);

    if (!parser.isSet(screenshot)) {
        GalleryWindow window(Appearance::Light, Qt::LeftToRight,
                             parser.isSet(highContrast) ? Contrast::High : Contrast::Normal);
        window.resize(1440, 960);
        window.show();
        return QApplication::exec();
    }

    const QDir dir(parser.value(screenshot));
    if (!dir.exists() && !QDir().mkpath(dir.absolutePath())) {
        std::fprintf(stderr, "tovra-gallery: cannot create %s\n", qPrintable(dir.path()));
        return 1;
    }
    const struct
    {
        const char *name;
        Appearance appearance;
        Qt::LayoutDirection direction;
        Contrast contrast;
    } variants[] = {{"light-ltr", Appearance::Light, Qt::LeftToRight, Contrast::Normal},
                    {"light-rtl", Appearance::Light, Qt::RightToLeft, Contrast::Normal},
                    {"dark-ltr", Appearance::Dark, Qt::LeftToRight, Contrast::Normal},
                    {"dark-rtl", Appearance::Dark, Qt::RightToLeft, Contrast::Normal},
                    {"light-hc-ltr", Appearance::Light, Qt::LeftToRight, Contrast::High},
                    {"dark-hc-ltr", Appearance::Dark, Qt::LeftToRight, Contrast::High}};
    for (const auto &variant : variants) {
        GalleryWindow window(variant.appearance, variant.direction, variant.contrast);
        window.resize(1440, 960);
        window.show();
        QApplication::processEvents();
        const QString path =
            dir.filePath(QString::fromLatin1(variant.name) + QStringLiteral(".png"));
        if (!window.grab().save(path)) {
            std::fprintf(stderr, "tovra-gallery: cannot write %s\n", qPrintable(path));
            return 1;
        }
        std::printf("%s\n", qPrintable(path));
    }
    return 0;
}
