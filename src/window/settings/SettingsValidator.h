#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Checks what the user typed before anything is sent: each returns the message to show beside
// the field, empty when the input may go to the daemon.
class SettingsValidator
{
    Q_DECLARE_TR_FUNCTIONS(SettingsValidator)

public:
    // "host:port" or "[v6]:port" with a port from 1 to 65535; empty is allowed (no listener).
    static QString checkListenAddress(const QString &address);
    // An absolute http or https URL with a host.
    static QString checkAPIURL(const QString &url);
    // Every entry an IPv4 or IPv6 address; at least one entry.
    static QString checkDNSServers(const QStringList &servers);
    // The servers of a field, split at commas and white space.
    static QStringList splitServers(const QString &text);
};
