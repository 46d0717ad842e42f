#include "GuiMemLog.h"

#include <cstdio>

bool guiMemLogEnabled()
{
    static const bool enabled = [] {
        bool ok = false;
        const int level = qEnvironmentVariable("TOVRA_GUI_MEM_LOG").trimmed().toInt(&ok);
        return ok && level > 0;
    }();
    return enabled;
}

void guiMemLog(const QString &text)
{
    if (!guiMemLogEnabled())
        return;
    std::fprintf(stderr, "tovra.mem: %s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}
