#include "GuiTextLog.h"

#include <QHash>

#include <cstdio>

bool guiTextLogEnabled()
{
    static const bool enabled = [] {
        bool ok = false;
        const int level = qEnvironmentVariable("TOVRA_GUI_TEXT_LOG").trimmed().toInt(&ok);
        return ok && level > 0;
    }();
    return enabled;
}

void guiTextLog(const char *source, const QString &text, bool onChangeOnly)
{
    if (!guiTextLogEnabled())
        return;
    static QHash<QByteArray, QString> last;
    const QByteArray key(source);
    const auto found = last.constFind(key);
    if (onChangeOnly && found != last.constEnd() && *found == text)
        return;
    last.insert(key, text);
    // One line per change, whatever the text holds.
    QString flat = text;
    flat.replace(u'\n', u' ');
    std::fprintf(stderr, "tovra.text: %s: %s\n", source, flat.toUtf8().constData());
    std::fflush(stderr);
}
