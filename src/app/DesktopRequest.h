#pragma once

#include <QByteArray>
#include <QString>

// One request of a later launch to the running client, as one line on the single-instance
// socket: a command word, then optional "key=value" fields with percent-encoded values.
//   activate [xdg-activation-token=T] [desktop-startup-id=S]
//   show | connect [location=L] | disconnect | toggle-connection   (same optional fields)
// A plain launch sends "activate"; a word the receiver does not know means "activate" as well,
// so clients of different versions keep waking each other.
struct DesktopRequest
{
    enum class Command { Activate, Show, Connect, Disconnect, ToggleConnection };

    static constexpr int kMaxLineBytes = 4096;

    Command command = Command::Activate;
    QString location;
    // What the launching process was given to come to the front: the Wayland activation token
    // and the X11 startup notification id.
    QString activationToken;
    QString startupId;

    // Only what wakes the window: plain activation or "show".
    bool isActivation() const { return command == Command::Activate || command == Command::Show; }

    // The line without its newline; fields that are empty are left out.
    QByteArray encode() const;
    // A line (with or without its newline); anything unreadable is an activation.
    static DesktopRequest parse(const QByteArray &line);
    // The tokens of this process's own launch, read from its environment.
    static DesktopRequest fromEnvironment(Command command);
};
