#include "DesktopColorScheme.h"

#include "PortalColorScheme.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QStyleHints>

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
namespace {

DesktopScheme fromQt(Qt::ColorScheme scheme)
{
    switch (scheme) {
    case Qt::ColorScheme::Dark:
        return DesktopScheme::Dark;
    case Qt::ColorScheme::Light:
        return DesktopScheme::Light;
    default:
        return DesktopScheme::Unknown;
    }
}

} // namespace
#endif

DesktopColorScheme::DesktopColorScheme(QObject *parent)
    : QObject(parent)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            [this](Qt::ColorScheme scheme) { Q_EMIT changed(fromQt(scheme)); });
#else
    m_portal = new PortalColorScheme(QDBusConnection::sessionBus(), this);
    connect(m_portal, &PortalColorScheme::schemeChanged, this, &DesktopColorScheme::changed);
    m_portal->start();
#endif
}

DesktopScheme DesktopColorScheme::scheme() const
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return fromQt(QGuiApplication::styleHints()->colorScheme());
#else
    return m_portal->scheme();
#endif
}
