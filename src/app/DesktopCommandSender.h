#pragma once

#include "DesktopAnswer.h"
#include "DesktopRequest.h"

#include <QCoreApplication>
#include <QString>

// Hands a desktop command to the running client and waits for its answer; with none running
// it starts one (a plain launch, in the background) and hands the command to that one.
class DesktopCommandSender
{
    Q_DECLARE_TR_FUNCTIONS(DesktopCommandSender)

public:
    // The running client may first wait for the service and then for the daemon's answer.
    static constexpr int kAnswerTimeoutMs = 70000;
    static constexpr int kStartTimeoutMs = 15000;

    DesktopCommandSender(const QString &serverName, const QString &clientProgram);

    DesktopAnswer send(const DesktopRequest &request);

private:
    QString m_serverName;
    QString m_clientProgram;
};
