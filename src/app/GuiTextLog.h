#pragma once

#include <QString>

// Diagnostic lines "tovra.text: <source>: <text>" on standard error with the texts the tray and
// the window show (status lines, notices), written only when the environment variable
// TOVRA_GUI_TEXT_LOG holds an integer above 0 (read once per process) and only when a source's
// text changes. Lets scripts and support see what a user saw without a screen reader.
// Interface thread only.
bool guiTextLogEnabled();
// onChangeOnly false: an event (a notice), written every time.
void guiTextLog(const char *source, const QString &text, bool onChangeOnly = true);
