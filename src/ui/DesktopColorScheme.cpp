#include "DesktopColorScheme.h"

#include "PortalColorScheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
#include <QAccessibilityHints>
#endif

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

bool toolkitAsksForContrast()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    return QGuiApplication::styleHints()->accessibility()->contrastPreference() ==
           Qt::ContrastPreference::HighContrast;
#else
    return false;
#endif
}

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent)
    : QObject(parent)
    , m_portal(sharedPortal())
    , m_schemeFromPortal(toolkitScheme() == DesktopScheme::Unknown)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            [this] { Q_EMIT changed(scheme()); });
#endif
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    connect(QGuiApplication::styleHints()->accessibility(),
            &QAccessibilityHints::contrastPreferenceChanged, this,
            [this] { Q_EMIT contrastChanged(contrast()); });
#endif
    // A platform theme that does not know the desktop's choice (Qt before 6.5, or a theme
    // without the portal) leaves the scheme to the portal; the contrast is always asked there,
    // since most platform themes do not pass it on.
    if (m_schemeFromPortal) {
        connect(m_portal, &PortalColorScheme::schemeChanged, this,
                [this] { Q_EMIT changed(scheme()); });
    }
    connect(m_portal, &PortalColorScheme::contrastChanged, this,
            [this] { Q_EMIT contrastChanged(contrast()); });
    connect(m_portal, &PortalColorScheme::answered, this, &DesktopColorScheme::settled);
}

bool DesktopColorScheme::isSettled() const
{
    return m_portal->hasAnswered();
}

DesktopScheme DesktopColorScheme::scheme() const
{
    const DesktopScheme toolkit = toolkitScheme();
    return toolkit != DesktopScheme::Unknown || !m_schemeFromPortal ? toolkit : m_portal->scheme();
}

Contrast DesktopColorScheme::contrast() const
{
    return toolkitAsksForContrast() ? Contrast::High : m_portal->contrast();
}
