#pragma once

#include "DesktopScheme.h"

#include <QDBusConnection>
#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

// The desktop's colour scheme as the XDG desktop portal reports it. Every call is
// asynchronous, so a slow or missing portal never holds up the interface.
class PortalColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit PortalColorScheme(const QDBusConnection &bus, QObject *parent = nullptr);

    // Subscribes to changes and asks for the current value.
    void start();

    DesktopScheme scheme() const { return m_scheme; }
    // True once the portal has answered, with a value or an error.
    bool hasAnswered() const { return m_answered; }

    // The portal's number: 1 prefers dark, 2 prefers light, anything else no preference.
    static DesktopScheme fromPortalValue(uint value);

Q_SIGNALS:
    void schemeChanged(DesktopScheme scheme);
    void answered();

private Q_SLOTS:
    void onSettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    void read(const QString &method);
    void onReadFinished(QDBusPendingCallWatcher *watcher, const QString &method);
    void setScheme(DesktopScheme scheme);

    QDBusConnection m_bus;
    DesktopScheme m_scheme = DesktopScheme::Unknown;
    bool m_answered = false;
};
