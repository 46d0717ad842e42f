#include "DesktopColorScheme.h"

#include "PortalColorScheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>

namespace {

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

// What the toolkit's platform theme knows (from Qt 6.5 on); Unknown where it does not.
DesktopScheme toolkitScheme()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    switch (QGuiApplication::styleHints()->colorScheme()) {
    case Qt::ColorScheme::Dark:
        return DesktopScheme::Dark;
    case Qt::ColorScheme::Light:
        return DesktopScheme::Light;
    default:
        break;
    }
#endif
    return DesktopScheme::Unknown;
}

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent)
    : QObject(parent)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            [this] { Q_EMIT changed(scheme()); });
#endif
    // A platform theme that does not know the desktop's choice (Qt before 6.5, or a theme
    // without the portal) leaves it to the portal.
    if (toolkitScheme() != DesktopScheme::Unknown)
        return;
    m_portal = sharedPortal();
    connect(m_portal, &PortalColorScheme::schemeChanged, this,
            [this] { Q_EMIT changed(scheme()); });
    connect(m_portal, &PortalColorScheme::answered, this, &DesktopColorScheme::settled);
}

bool DesktopColorScheme::isSettled() const
{
    return toolkitScheme() != DesktopScheme::Unknown || !m_portal || m_portal->hasAnswered();
}

DesktopScheme DesktopColorScheme::scheme() const
{
    const DesktopScheme toolkit = toolkitScheme();
    return toolkit != DesktopScheme::Unknown || !m_portal ? toolkit : m_portal->scheme();
}
