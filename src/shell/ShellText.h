#pragma once

#include <QCoreApplication>
#include <QString>

// Every message the shell shows is translated in the "TovraAppShell" context, whichever flow
// shows it.
class ShellText
{
    Q_DECLARE_TR_FUNCTIONS(TovraAppShell)
};

// The daemon's own words when it sent any, else the operation's fixed text (marked with
// QT_TRANSLATE_NOOP("TovraAppShell", ...) at the call site).
inline QString failureText(const QString &error, const char *fallback)
{
    const QString trimmed = error.trimmed();
    return trimmed.isEmpty() ? QCoreApplication::translate("TovraAppShell", fallback) : trimmed;
}
