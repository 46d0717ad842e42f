#include "DesktopCommandLine.h"

#include <QCoreApplication>

namespace {

struct Option
{
    const char *name;
    DesktopRequest::Command command;
};

constexpr Option kOptions[] = {
    {"--connect", DesktopRequest::Command::Connect},
    {"--disconnect", DesktopRequest::Command::Disconnect},
    {"--toggle-connection", DesktopRequest::Command::ToggleConnection},
    {"--show", DesktopRequest::Command::Show},
};

} // namespace

DesktopCommandLine DesktopCommandLine::parse(const QStringList &arguments)
{
    DesktopCommandLine line;
    QStringList given;
    QStringList location;
    bool inLocation = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const Option *option = nullptr;
        for (const Option &candidate : kOptions) {
            if (argument == QLatin1String(candidate.name))
                option = &candidate;
        }
        if (option) {
            given.append(argument);
            line.m_request.command = option->command;
            inLocation = option->command == DesktopRequest::Command::Connect;
            continue;
        }
        if (inLocation && !argument.startsWith(u'-'))
            location.append(argument);
        else
            inLocation = false;
    }
    if (given.isEmpty())
        return line;
    if (given.size() > 1) {
        line.m_kind = Kind::UsageError;
        line.m_error =
            QCoreApplication::translate("DesktopCommandLine", "tovra: give only one of %1")
                .arg(given.join(QLatin1String(", ")));
        return line;
    }
    line.m_kind = Kind::Command;
    line.m_request.location = location.join(u' ').simplified();
    return line;
}
