#include "DelayedBusyIndicator.h"

#include <QTimer>

DelayedBusyIndicator::DelayedBusyIndicator(std::function<void(bool)> callback, QObject *parent,
                                           int delayMs)
    : QObject(parent)
    , m_callback(std::move(callback))
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(delayMs);
    connect(m_timer, &QTimer::timeout, this, &DelayedBusyIndicator::onDelayElapsed);
}

void DelayedBusyIndicator::setBusy(bool busy)
{
    if (busy == m_busy) {
        return;
    }
    m_busy = busy;
    if (busy) {
        m_timer->start();
        return;
    }
    m_timer->stop();
    if (m_shown) {
        m_shown = false;
        m_callback(false);
    }
}

bool DelayedBusyIndicator::isPending() const
{
    return m_timer->isActive();
}

void DelayedBusyIndicator::onDelayElapsed()
{
    if (!m_busy || m_shown) {
        return;
    }
    m_shown = true;
    m_callback(true);
}
