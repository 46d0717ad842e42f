#include "StyleTemplate.h"

#include <QFile>
#include <QtGlobal>

namespace {

QString loadTemplate()
{
    QFile file(QStringLiteral(":/styles/main.qss"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("Could not load the Tovra GUI style template");
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

const QString &StyleTemplate::text()
{
    // A function-local static is initialised once, even with concurrent first callers.
    static const QString cached = loadTemplate();
    return cached;
}
