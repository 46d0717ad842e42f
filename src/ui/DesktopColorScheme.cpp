#include "DesktopColorScheme.h"

#include "PortalColorScheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
// One reader for the whole process, owned by the application, asked once at first use.
PortalColorScheme *sharedPortal()
{
    static QPointer<PortalColorScheme> portal;
    if (!portal) {
        portal = new PortalColorScheme(QDBusConnection::sessionBus(), QCoreApplication::instance());
        portal->start();
    }
    return portal;
}
#else

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
#endif

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent)
    : QObject(parent)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            [this](Qt::ColorScheme scheme) { Q_EMIT changed(fromQt(scheme)); });
#else
    m_portal = sharedPortal();
    connect(m_portal, &PortalColorScheme::schemeChanged, this, &DesktopColorScheme::changed);
    connect(m_portal, &PortalColorScheme::answered, this, &DesktopColorScheme::settled);
#endif
}

bool DesktopColorScheme::isSettled() const
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return true;
#else
    return m_portal->hasAnswered();
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
