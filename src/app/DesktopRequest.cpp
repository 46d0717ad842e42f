#include "DesktopRequest.h"

#include <QByteArrayList>
#include <QUrl>

namespace {

struct CommandWord
{
    DesktopRequest::Command command;
    const char *word;
};

constexpr CommandWord kWords[] = {
    {DesktopRequest::Command::Activate, "activate"},
    {DesktopRequest::Command::Show, "show"},
    {DesktopRequest::Command::Connect, "connect"},
    {DesktopRequest::Command::Disconnect, "disconnect"},
    {DesktopRequest::Command::ToggleConnection, "toggle-connection"},
};

const char kLocation[] = "location";
const char kToken[] = "xdg-activation-token";
const char kStartupId[] = "desktop-startup-id";

void appendField(QByteArray &line, const char *key, const QString &value)
{
    if (value.isEmpty())
        return;
    line += ' ';
    line += key;
    line += '=';
    line += QUrl::toPercentEncoding(value);
}

} // namespace

QByteArray DesktopRequest::encode() const
{
    QByteArray line;
    for (const CommandWord &entry : kWords) {
        if (entry.command == command)
            line = entry.word;
    }
    appendField(line, kLocation, location);
    appendField(line, kToken, activationToken);
    appendField(line, kStartupId, startupId);
    return line;
}

DesktopRequest DesktopRequest::parse(const QByteArray &line)
{
    DesktopRequest request;
    const QByteArrayList words = line.trimmed().split(' ');
    for (const CommandWord &entry : kWords) {
        if (words.first() == entry.word)
            request.command = entry.command;
    }
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QByteArray &word = words.at(i);
        const qsizetype equals = word.indexOf('=');
        if (equals <= 0)
            continue;
        const QByteArray key = word.left(equals);
        const QString value = QUrl::fromPercentEncoding(word.mid(equals + 1));
        if (key == kLocation)
            request.location = value;
        else if (key == kToken)
            request.activationToken = value;
        else if (key == kStartupId)
            request.startupId = value;
    }
    return request;
}

DesktopRequest DesktopRequest::fromEnvironment(Command command)
{
    DesktopRequest request;
    request.command = command;
    request.activationToken = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    request.startupId = qEnvironmentVariable("DESKTOP_STARTUP_ID");
    return request;
}
