#pragma once

#include <QProcess>
#include <QString>

// A D-Bus daemon of the test's own, so that fake desktop services never meet the real session.
class PrivateSessionBus
{
public:
    PrivateSessionBus();
    ~PrivateSessionBus();
    PrivateSessionBus(const PrivateSessionBus &) = delete;
    PrivateSessionBus &operator=(const PrivateSessionBus &) = delete;

    // Starts the daemon and waits for its address; false when dbus-daemon is not available.
    bool start();
    QString address() const { return m_address; }

private:
    QProcess m_process;
    QString m_address;
};
