#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

class QTimer;

// Reports how late the interface thread's event loop runs. A precise timer on that thread beats
// every few milliseconds; a beat that comes later than the threshold is a stall, written as
// "tovra.stall: <ms> ms (<receiver>, <event>)" with the event that was being delivered while the
// thread was stuck. A watchdog thread takes that snapshot during the stall, because once the
// loop runs again newer events have replaced it.
//
// Off unless "TOVRA_GUI_STALL_MS" holds a positive integer: fromEnvironment() then returns a
// monitor, else nothing, so that a normal run has no thread, no timer and no event filter.
class GuiStallMonitor : public QObject
{
    Q_OBJECT

public:
    using Sink = std::function<void(const QByteArray &line)>;

    // The threshold from the environment, or 0 when the monitor is off.
    static int thresholdFromEnvironment();
    // A started monitor writing to standard error, or null when the environment leaves it off.
    static std::unique_ptr<GuiStallMonitor> fromEnvironment();

    // Lines go to the sink (standard error when none is given). Call on the interface thread.
    explicit GuiStallMonitor(int thresholdMs, Sink sink = {}, QObject *parent = nullptr);
    ~GuiStallMonitor() override;

    // Writes the "watching" line and begins measuring once the event loop runs.
    void start();
    int thresholdMs() const { return m_thresholdMs; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Clock = std::chrono::steady_clock;

    void beat();
    void watch();
    void write(const QByteArray &line);

    const int m_thresholdMs;
    const std::chrono::milliseconds m_interval;
    Sink m_sink;
    QTimer *m_timer = nullptr;
    Clock::time_point m_lastBeat;

    // Written by the interface thread, read by the watchdog.
    std::atomic<Clock::rep> m_lastBeatTicks{0};
    std::atomic<quint64> m_beatCount{0};
    std::atomic<const char *> m_receiverClass{nullptr};
    std::atomic<int> m_eventType{0};

    // The watchdog's snapshot of the stalled beat: which beat, and what was being delivered.
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stopping = false;
    quint64 m_snapshotBeat = 0;
    std::string m_snapshot;
    std::thread m_watchdog;
};
