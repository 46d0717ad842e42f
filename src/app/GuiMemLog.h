#pragma once

#include <QString>

// Diagnostic lines "tovra.mem: <text>" on standard error, written only when the environment
// variable TOVRA_GUI_MEM_LOG holds an integer above 0 (read once per process).
bool guiMemLogEnabled();
void guiMemLog(const QString &text);
