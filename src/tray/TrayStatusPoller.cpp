#include "TrayStatusPoller.h"

#include "TrayLog.h"

#include "ControlWorker.h"
#include "TrayOperations.h"
#include "TrayRequestIds.h"

#include <QTimer>

namespace {

using Kind = TrayRequestIds::Kind;

} // namespace

TrayStatusPoller::TrayStatusPoller(ControlWorker *worker, TrayRequestIds *ids,
                                   const TrayOperations *operations, QObject *parent)
    : QObject(parent)
    , m_worker(worker)
    , m_ids(ids)
    , m_operations(operations)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &TrayStatusPoller::fetch);
}

void TrayStatusPoller::setAvailable(bool available)
{
    m_available = available;
    if (!available)
        m_timer->stop();
}

void TrayStatusPoller::fetch()
{
    if (!m_available || m_inFlight)
        return;
    m_inFlight = true;
    const quint64 id = m_ids->take(Kind::Status);
    QMetaObject::invokeMethod(m_worker, "fetchStatus", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kTrayFetchTimeoutMs));
}

void TrayStatusPoller::schedule(int delayMs)
{
    if (m_available)
        m_timer->start(delayMs);
}

void TrayStatusPoller::stop()
{
    m_timer->stop();
}

void TrayStatusPoller::handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                                            const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::Status, requestId))
        return;
    m_inFlight = false;
    // The operation's own completion fetches a fresh status.
    if (m_operations->inFlight())
        return;
    if (m_menuOpen) {
        m_holding = true;
        m_held = info;
        m_heldError = errorMessage;
    } else {
        Q_EMIT statusAnswered(info, errorMessage);
    }
    schedule(kIntervalMs);
}

void TrayStatusPoller::holdAnswers()
{
    m_menuOpen = true;
}

bool TrayStatusPoller::releaseHeld()
{
    m_menuOpen = false;
    if (!m_holding)
        return false;
    m_holding = false;
    const RuntimeInfo held = m_held;
    const QString error = m_heldError;
    m_held = RuntimeInfo();
    m_heldError.clear();
    if (m_operations->inFlight())
        return false;
    Q_EMIT statusAnswered(held, error);
    return true;
}
