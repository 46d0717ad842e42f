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
const QString kSchemeKey = QStringLiteral("color-scheme");
const QString kContrastKey = QStringLiteral("contrast");
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
        m_pending = 0;
        Q_EMIT answered();
        return;
    }
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    read(QStringLiteral("ReadOne"), kSchemeKey);
    read(QStringLiteral("ReadOne"), kContrastKey);
}

void PortalColorScheme::read(const QString &method, const QString &key)
{
    QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
    message << kNamespace << key;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kCallTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, method, key](QDBusPendingCallWatcher *w) { onReadFinished(w, method, key); });
}

void PortalColorScheme::onReadFinished(QDBusPendingCallWatcher *watcher, const QString &method,
                                       const QString &key)
{
    watcher->deleteLater();
    const QDBusPendingReply<QVariant> reply = *watcher;
    if (reply.isError()) {
        // Portals older than version 2 of the interface only know Read.
        if (method == QLatin1String("ReadOne") &&
            reply.error().type() == QDBusError::UnknownMethod) {
            read(QStringLiteral("Read"), key);
            return;
        }
    } else {
        apply(key, unwrap(reply.value()).toUInt());
    }
    if (--m_pending == 0)
        Q_EMIT answered();
}

void PortalColorScheme::onSettingChanged(const QString &nameSpace, const QString &key,
                                         const QDBusVariant &value)
{
    if (nameSpace == kNamespace)
        apply(key, unwrap(value.variant()).toUInt());
}

void PortalColorScheme::apply(const QString &key, uint value)
{
    if (key == kSchemeKey) {
        const DesktopScheme scheme = fromPortalValue(value);
        if (m_scheme != scheme) {
            m_scheme = scheme;
            Q_EMIT schemeChanged(scheme);
        }
    } else if (key == kContrastKey) {
        // 1 asks for higher contrast; 0 and anything unknown is no preference.
        const Contrast contrast = value == 1 ? Contrast::High : Contrast::Normal;
        if (m_contrast != contrast) {
            m_contrast = contrast;
            Q_EMIT contrastChanged(contrast);
        }
    }
}
