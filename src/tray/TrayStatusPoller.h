#pragma once

#include "RuntimeInfo.h"

#include <QObject>
#include <QString>

class ControlWorker;
class QTimer;
class TrayOperations;
class TrayRequestIds;

// Asks the worker for the daemon's status on a timer and hands the latest answer on. While an
// operation runs its answers are dropped (the operation's end asks again); while the menu is
// open the last one is held until it closes, so nothing changes under the pointer.
class TrayStatusPoller : public QObject
{
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 10000;

    TrayStatusPoller(ControlWorker *worker, TrayRequestIds *ids, const TrayOperations *operations,
                     QObject *parent = nullptr);

    // Unavailable: no requests and no timer.
    void setAvailable(bool available);
    bool isFetching() const { return m_inFlight; }

    void fetch();
    // The next fetch in delayMs, when available.
    void schedule(int delayMs);
    void stop();

    void handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage);

    // The menu opened: answers wait from now on.
    void holdAnswers();
    // The menu closed: hands on the answer that waited, unless an operation started since;
    // true when it did.
    bool releaseHeld();

Q_SIGNALS:
    void statusAnswered(const RuntimeInfo &info, const QString &errorMessage);

private:
    ControlWorker *m_worker;
    TrayRequestIds *m_ids;
    const TrayOperations *m_operations;
    QTimer *m_timer;

    bool m_available = true;
    bool m_inFlight = false;
    bool m_menuOpen = false;
    bool m_holding = false;
    RuntimeInfo m_held;
    QString m_heldError;
};
