#include "FontConfigWarmup.h"

#include <QLibrary>

FontConfigWarmup::FontConfigWarmup()
    : m_thread([] {
        using Init = int (*)();
        // Qt's own font database has loaded the library already; this only looks it up.
        if (const auto init = reinterpret_cast<Init>(
                QLibrary::resolve(QStringLiteral("fontconfig"), 1, "FcInit")))
            init();
    })
{}

FontConfigWarmup::~FontConfigWarmup()
{
    m_thread.join();
}
