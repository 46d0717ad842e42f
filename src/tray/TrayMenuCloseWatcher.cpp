#include "TrayMenuCloseWatcher.h"

#include <QApplication>
#include <QMenu>
#include <QTimer>

TrayMenuCloseWatcher::TrayMenuCloseWatcher(QMenu *mainMenu, const QList<QMenu *> &watched,
                                           QObject *parent)
    : QObject(parent)
    , m_mainMenu(mainMenu)
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(kIntervalMs);
    connect(m_timer, &QTimer::timeout, this, &TrayMenuCloseWatcher::check);
    for (QMenu *menu : watched) {
        if (!menu)
            continue;
        m_watched.append(menu);
        // A submenu reached through the flat layout opens without its parent's aboutToShow.
        connect(menu, &QMenu::aboutToShow, this, [this] {
            m_timer->stop();
            if (!m_open) {
                m_open = true;
                Q_EMIT menuOpened();
            }
        });
        connect(menu, &QMenu::aboutToHide, m_timer, qOverload<>(&QTimer::start));
    }
    connect(mainMenu, &QMenu::aboutToShow, this, [this] {
        m_timer->stop();
        if (!m_open) {
            m_open = true;
            Q_EMIT menuOpened();
        }
    });
    connect(mainMenu, &QMenu::aboutToHide, m_timer, qOverload<>(&QTimer::start));
}

bool TrayMenuCloseWatcher::isWatching() const
{
    return m_timer->isActive();
}

bool TrayMenuCloseWatcher::anyShown() const
{
    if (QApplication::activePopupWidget())
        return true;
    if (m_mainMenu && m_mainMenu->isVisible())
        return true;
    for (const QPointer<QMenu> &menu : m_watched) {
        if (menu && menu->isVisible())
            return true;
    }
    return false;
}

void TrayMenuCloseWatcher::check()
{
    if (anyShown())
        return;
    m_timer->stop();
    if (!m_open)
        return;
    m_open = false;
    Q_EMIT menuClosed();
}
