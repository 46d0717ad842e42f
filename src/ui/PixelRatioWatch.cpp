#include "PixelRatioWatch.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

PixelRatioWatch::PixelRatioWatch(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_ratio(window->devicePixelRatioF())
{
    window->installEventFilter(this);
}

bool PixelRatioWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return QObject::eventFilter(watched, event);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    if (event->type() == QEvent::DevicePixelRatioChange)
        check();
#else
    // The native window exists from the first show on; its screen and that screen's scale are
    // what the ratio follows.
    if (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange) {
        QWindow *handle = m_window->windowHandle();
        if (handle && handle != m_handle) {
            if (m_handle)
                m_handle->disconnect(this);
            m_handle = handle;
            connect(handle, &QWindow::screenChanged, this, [this](QScreen *screen) {
                follow(screen);
                check();
            });
            follow(handle->screen());
        }
        check();
    }
#endif
    return QObject::eventFilter(watched, event);
}

void PixelRatioWatch::follow(QScreen *screen)
{
    if (screen == m_screen)
        return;
    if (m_screen)
        m_screen->disconnect(this);
    m_screen = screen;
    if (!screen)
        return;
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &PixelRatioWatch::check);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, &PixelRatioWatch::check);
}

void PixelRatioWatch::check()
{
    const qreal ratio = m_window->devicePixelRatioF();
    if (qFuzzyCompare(ratio, m_ratio))
        return;
    m_ratio = ratio;
    Q_EMIT changed();
}
