#include "DesktopCommandSender.h"

#include "GuiSingleInstance.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <signal.h>

namespace {

constexpr int kConnectTimeoutMs = 500;
constexpr int kStartPollMs = 100;

DesktopAnswer failed(const QString &detail)
{
    return {DesktopAnswer::Result::Failed, detail};
}

} // namespace

DesktopCommandSender::DesktopCommandSender(const QString &serverName, const QString &clientProgram)
    : m_serverName(serverName)
    , m_clientProgram(clientProgram)
{}

DesktopAnswer DesktopCommandSender::send(const DesktopRequest &request)
{
    GuiSingleInstance instance(m_serverName);
    if (const QString foreign = instance.foreignOwnerText(); !foreign.isEmpty())
        return failed(foreign);
    DesktopAnswer answer;
    GuiSingleInstance::Delivery delivery =
        instance.sendRequest(request, kConnectTimeoutMs, kAnswerTimeoutMs, &answer);
    if (delivery == GuiSingleInstance::Delivery::NotReached) {
        // None runs (or a crashed one left its socket): start one and wait until it listens.
        QProcess client;
        client.setProgram(m_clientProgram);
        client.setStandardOutputFile(QProcess::nullDevice());
        client.setStandardErrorFile(QProcess::nullDevice());
        qint64 pid = 0;
        if (!client.startDetached(&pid))
            return failed(tr("could not start Tovra"));
        const QDeadlineTimer deadline(kStartTimeoutMs);
        while (delivery == GuiSingleInstance::Delivery::NotReached) {
            if (deadline.hasExpired() || ::kill(pid_t(pid), 0) != 0)
                return failed(tr("Tovra did not start"));
            QThread::msleep(kStartPollMs);
            delivery = instance.sendRequest(request, kConnectTimeoutMs, kAnswerTimeoutMs, &answer);
        }
    }
    switch (delivery) {
    case GuiSingleInstance::Delivery::Answered:
        return answer;
    case GuiSingleInstance::Delivery::HungUp:
        // A client from before answers existed: it came to the front and did nothing else.
        if (request.isActivation())
            return {};
        return failed(tr("the running Tovra is an older version: it came to "
                         "the front but did not act on the request; quit it "
                         "and try again"));
    case GuiSingleInstance::Delivery::NoAnswer:
    case GuiSingleInstance::Delivery::NotReached:
        break;
    }
    return failed(tr("the running Tovra did not answer"));
}
