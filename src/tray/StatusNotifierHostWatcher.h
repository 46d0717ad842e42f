#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

class QDBusMessage;

// Whether a StatusNotifierItem host (KDE's panel, GNOME's AppIndicator extension, most Wayland
// panels) is registered with the watcher on the session bus, followed as hosts and watchers come
// and go. A watcher that does not answer in time, or answers anything but a boolean, counts as
// no host: the interface never waits on it for long. One that did not answer is asked again,
// less and less often, in case it was only busy.
class StatusNotifierHostWatcher : public QObject
{
    Q_OBJECT

public:
    explicit StatusNotifierHostWatcher(const QDBusConnection &bus, QObject *parent = nullptr);

    // Follows hosts from now on. The first look blocks for at most firstLookTimeoutMs; with 0
    // its answer comes later, as every change does.
    void start(int firstLookTimeoutMs);
    bool present() const { return m_present; }

Q_SIGNALS:
    void presentChanged(bool present);

private Q_SLOTS:
    void ask();

private:
    QDBusMessage question() const;
    void apply(const QDBusMessage &reply);

    QDBusConnection m_bus;
    QTimer m_retry;
    int m_retryMs;
    bool m_present = false;
    // Only the answer to the latest question counts.
    quint64 m_asked = 0;
};
