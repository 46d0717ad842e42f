#pragma once

#include <QCoreApplication>
#include <QString>

// Every message the shell shows is translated in the "TovraAppShell" context; call sites mark
// their texts with QT_TRANSLATE_NOOP("TovraAppShell", ...) so that lupdate finds them.
inline QString shellText(const char *source)
{
    return QCoreApplication::translate("TovraAppShell", source);
}

// The daemon's own words when it sent any, else the operation's fixed text.
inline QString failureText(const QString &error, const char *fallback)
{
    const QString trimmed = error.trimmed();
    return trimmed.isEmpty() ? shellText(fallback) : trimmed;
}
