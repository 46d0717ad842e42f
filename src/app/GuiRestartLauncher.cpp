#include "GuiRestartLauncher.h"

#include <QCoreApplication>
#include <QProcess>

QStringList guiRestartArguments()
{
    return {QStringLiteral("--tovra-restart-show-window"),
            QStringLiteral("--tovra-language-restart")};
}

bool launchGuiRestart()
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), guiRestartArguments(),
                                   QCoreApplication::applicationDirPath());
}
