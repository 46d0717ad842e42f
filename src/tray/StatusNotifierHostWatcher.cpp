#include "StatusNotifierHostWatcher.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace {

const QString kService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int kAskTimeoutMs = 2000;
constexpr int kFirstRetryMs = 2000;
constexpr int kLongestRetryMs = 60000;

} // namespace

StatusNotifierHostWatcher::StatusNotifierHostWatcher(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_retryMs(kFirstRetryMs)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &StatusNotifierHostWatcher::ask);
}

void StatusNotifierHostWatcher::start(int firstLookTimeoutMs)
{
    if (!m_bus.isConnected())
        return;
    auto *owner =
        new QDBusServiceWatcher(kService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &StatusNotifierHostWatcher::ask);
    for (const char *signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(kService, kPath, kService, QLatin1String(signal), this, SLOT(ask()));
    if (firstLookTimeoutMs > 0)
        apply(m_bus.call(question(), QDBus::Block, firstLookTimeoutMs));
    else
        ask();
}

QDBusMessage StatusNotifierHostWatcher::question() const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        kService, kPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << kService << QStringLiteral("IsStatusNotifierHostRegistered");
    // No watcher is started on our behalf: a desktop without one has no tray.
    message.setAutoStartService(false);
    return message;
}

void StatusNotifierHostWatcher::ask()
{
    m_retry.stop();
    const quint64 asked = ++m_asked;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question(), kAskTimeoutMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this, asked](QDBusPendingCallWatcher *w) {
                w->deleteLater();
                if (asked == m_asked)
                    apply(w->reply());
            });
}

void StatusNotifierHostWatcher::apply(const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ErrorMessage &&
        reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply")) {
        m_retry.start(m_retryMs);
        m_retryMs = qMin(m_retryMs * 2, kLongestRetryMs);
    } else {
        m_retryMs = kFirstRetryMs;
    }
    bool present = false;
    if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().size() == 1) {
        const QVariant value = reply.arguments().constFirst().value<QDBusVariant>().variant();
        present = value.typeId() == QMetaType::Bool && value.toBool();
    }
    if (present == m_present)
        return;
    m_present = present;
    Q_EMIT presentChanged(present);
}
