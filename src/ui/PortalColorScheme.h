#pragma once

#include "DesktopScheme.h"

#include <QDBusConnection>
#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

// The desktop's colour scheme and contrast as the XDG desktop portal reports them. Every call
// is asynchronous, so a slow or missing portal never holds up the interface.
class PortalColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit PortalColorScheme(const QDBusConnection &bus, QObject *parent = nullptr);

    // Subscribes to changes and asks for the current values.
    void start();

    DesktopScheme scheme() const { return m_scheme; }
    Contrast contrast() const { return m_contrast; }
    // True once the portal has answered both, with a value or an error.
    bool hasAnswered() const { return m_pending == 0; }

    // The portal's number: 1 prefers dark, 2 prefers light, anything else no preference.
    static DesktopScheme fromPortalValue(uint value);

Q_SIGNALS:
    void schemeChanged(DesktopScheme scheme);
    void contrastChanged(Contrast contrast);
    void answered();

private Q_SLOTS:
    void onSettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    void read(const QString &method, const QString &key);
    void onReadFinished(QDBusPendingCallWatcher *watcher, const QString &method,
                        const QString &key);
    void apply(const QString &key, uint value);

    QDBusConnection m_bus;
    DesktopScheme m_scheme = DesktopScheme::Unknown;
    Contrast m_contrast = Contrast::Normal;
    // Reads still to answer; none before start() means not yet asked.
    int m_pending = 2;
};
