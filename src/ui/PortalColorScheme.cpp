#include "PortalColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
constexpr int kCallTimeoutMs = 3000;

// Read wraps the value in one more variant than ReadOne does; unwrap whatever arrives.
QVariant unwrap(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

PortalColorScheme::PortalColorScheme(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{}

DesktopScheme PortalColorScheme::fromPortalValue(uint value)
{
    switch (value) {
    case 1:
        return DesktopScheme::Dark;
    case 2:
        return DesktopScheme::Light;
    default:
        return DesktopScheme::Unknown;
    }
}

void PortalColorScheme::start()
{
    if (!m_bus.isConnected()) {
        m_answered = true;
        Q_EMIT answered();
        return;
    }
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    read(QStringLiteral("ReadOne"));
}

void PortalColorScheme::read(const QString &method)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
    message << kNamespace << kKey;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kCallTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, method](QDBusPendingCallWatcher *w) { onReadFinished(w, method); });
}

void PortalColorScheme::onReadFinished(QDBusPendingCallWatcher *watcher, const QString &method)
{
    watcher->deleteLater();
    const QDBusPendingReply<QVariant> reply = *watcher;
    if (reply.isError()) {
        // Portals older than version 2 of the interface only know Read.
        if (method == QLatin1String("ReadOne") &&
            reply.error().type() == QDBusError::UnknownMethod) {
            read(QStringLiteral("Read"));
            return;
        }
    } else {
        setScheme(fromPortalValue(unwrap(reply.value()).toUInt()));
    }
    m_answered = true;
    Q_EMIT answered();
}

void PortalColorScheme::onSettingChanged(const QString &nameSpace, const QString &key,
                                         const QDBusVariant &value)
{
    if (nameSpace == kNamespace && key == kKey) {
        setScheme(fromPortalValue(unwrap(value.variant()).toUInt()));
    }
}

void PortalColorScheme::setScheme(DesktopScheme scheme)
{
    if (m_scheme == scheme) {
        return;
    }
    m_scheme = scheme;
    Q_EMIT schemeChanged(scheme);
}
