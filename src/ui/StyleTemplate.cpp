#include "StyleTemplate.h"

#include <QFile>
#include <QtGlobal>

namespace {

QString loadTemplate(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("Could not load the Tovra GUI style template");
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

const QString &StyleTemplate::text(Contrast contrast)
{
    // Function-local statics are initialised once, even with concurrent first callers.
    static const QString normal = loadTemplate(QStringLiteral(":/styles/main.qss"));
    if (contrast == Contrast::Normal)
        return normal;
    static const QString strong = normal + loadTemplate(QStringLiteral(":/styles/contrast.qss"));
    return strong;
}
