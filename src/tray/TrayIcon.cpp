#include "TrayIcon.h"

#include "StatusNotifierHostWatcher.h"
#include "XEmbedTrayWatcher.h"

#include <QDBusConnection>
#include <QMenu>

TrayIcon::TrayIcon(QObject *parent)
    : QObject(parent)
    , m_statusNotifierHosts(new StatusNotifierHostWatcher(QDBusConnection::sessionBus(), this))
    , m_xembedTray(new XEmbedTrayWatcher(this))
{
    connect(m_statusNotifierHosts, &StatusNotifierHostWatcher::presentChanged, this,
            [this](bool present) {
                // Qt tells a watcher that comes back about the icon only once, as soon as its
                // name shows, which a watcher still starting up can miss; shown again, the
                // icon registers with the watcher that now has a host.
                if (present && m_platformIcon && m_platformIcon->isVisible()) {
                    m_platformIcon->hide();
                    m_platformIcon->show();
                }
                handleHostChange();
            });
    connect(m_xembedTray, &XEmbedTrayWatcher::presentChanged, this, &TrayIcon::handleHostChange);
}

void TrayIcon::watchHosts(HostLook look)
{
    if (m_watching)
        return;
    m_watching = true;
    m_statusNotifierHosts->start(look == HostLook::Settled ? kFirstLookTimeoutMs : 0);
    m_xembedTray->start();
}

TrayIcon::~TrayIcon()
{
    // The icon must let go of the menu before the menu goes.
    if (m_platformIcon)
        m_platformIcon->setContextMenu(nullptr);
}

bool TrayIcon::hostPresent() const
{
    return m_statusNotifierHosts->present() || m_xembedTray->present();
}

// The tray redraws on every status; an unchanged icon or tool tip is not sent again, which a
// StatusNotifierItem host would answer by fetching every pixmap anew.
void TrayIcon::setIcon(const QIcon &icon)
{
    if (icon.cacheKey() == m_icon.cacheKey())
        return;
    m_icon = icon;
    if (m_platformIcon)
        m_platformIcon->setIcon(icon);
}

void TrayIcon::setToolTip(const QString &toolTip)
{
    if (toolTip == m_toolTip)
        return;
    m_toolTip = toolTip;
    if (m_platformIcon)
        m_platformIcon->setToolTip(toolTip);
}

void TrayIcon::setContextMenu(QMenu *menu)
{
    m_menu = menu;
    if (m_platformIcon)
        m_platformIcon->setContextMenu(menu);
}

void TrayIcon::show()
{
    m_shown = true;
    handleHostChange();
}

bool TrayIcon::isVisible() const
{
    return m_platformIcon && m_platformIcon->isVisible() && hostPresent();
}

void TrayIcon::showMessage(const QString &title, const QString &message,
                           QSystemTrayIcon::MessageIcon kind, int durationMs)
{
    if (m_platformIcon)
        m_platformIcon->showMessage(title, message, kind, durationMs);
}

void TrayIcon::handleHostChange()
{
    const bool present = hostPresent();
    if (present && m_shown && !m_platformIcon) {
        m_platformIcon = new QSystemTrayIcon(m_icon, this);
        m_platformIcon->setToolTip(m_toolTip);
        m_platformIcon->setContextMenu(m_menu);
        connect(m_platformIcon, &QSystemTrayIcon::activated, this, &TrayIcon::activated);
        m_platformIcon->show();
    }
    if (present == m_hostPresent)
        return;
    m_hostPresent = present;
    Q_EMIT hostPresentChanged(present);
}
