#pragma once

#include "DesktopRequest.h"

#include <QString>
#include <QStringList>

// The desktop actions on the command line: "--connect [LOCATION]", "--disconnect",
// "--toggle-connection" and "--show". LOCATION is every word after "--connect" up to the next
// option, so "--connect New York" needs no quotes. Other arguments are left to the start-up;
// the activation tokens are the caller's to add.
class DesktopCommandLine
{
public:
    enum class Kind { PlainLaunch, Command, UsageError };

    static DesktopCommandLine parse(const QStringList &arguments);

    Kind kind() const { return m_kind; }
    const DesktopRequest &request() const { return m_request; }
    // For a usage error: the line for stderr, translated.
    QString error() const { return m_error; }

private:
    Kind m_kind = Kind::PlainLaunch;
    DesktopRequest m_request;
    QString m_error;
};
