#pragma once

#include <QObject>

#include <functional>

class QTimer;

// Shows a busy state only once an operation has run longer than the delay, so that quick
// answers never make the interface flash.
class DelayedBusyIndicator : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultDelayMs = 200;

    explicit DelayedBusyIndicator(std::function<void(bool)> callback, QObject *parent = nullptr,
                                  int delayMs = DefaultDelayMs);

    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }
    // True once the delay has passed while busy, until busy clears.
    bool isShown() const { return m_shown; }
    // True while the delay runs and the busy state is not shown yet.
    bool isPending() const;

private:
    void onDelayElapsed();

    std::function<void(bool)> m_callback;
    QTimer *m_timer;
    bool m_busy = false;
    bool m_shown = false;
};
