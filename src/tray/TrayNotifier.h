#pragma once

#include <QString>

class QAction;
class TrayIcon;

// Completion messages: a balloon where the desktop shows them, and always the daemon line.
class TrayNotifier
{
public:
    TrayNotifier(TrayIcon *icon, QAction *daemonLine);

    void notify(const QString &message);
    // "Error: %1" with the worker's message, or with the operation's fallback when it is empty.
    void notifyFailure(const QString &errorMessage, const QString &fallback);

    QString lastMessage() const { return m_lastMessage; }

private:
    TrayIcon *m_icon;
    QAction *m_daemonLine;
    QString m_lastMessage;
};
