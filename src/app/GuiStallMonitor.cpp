#include "GuiStallMonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaEnum>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

constexpr char kStallEnv[] = "TOVRA_GUI_STALL_MS";

QByteArray eventName(int type)
{
    const char *key = QMetaEnum::fromType<QEvent::Type>().valueToKey(type);
    return key ? QByteArray(key) : QByteArray::number(type);
}

} // namespace

int GuiStallMonitor::thresholdFromEnvironment()
{
    bool ok = false;
    const int threshold = qEnvironmentVariable(kStallEnv).trimmed().toInt(&ok);
    return ok && threshold > 0 ? threshold : 0;
}

std::unique_ptr<GuiStallMonitor> GuiStallMonitor::fromEnvironment()
{
    const int threshold = thresholdFromEnvironment();
    if (threshold <= 0)
        return nullptr;
    auto monitor = std::make_unique<GuiStallMonitor>(threshold);
    monitor->start();
    return monitor;
}

// A beat every half threshold (at most 100 ms, at least 5 ms) keeps the measuring error well
// below the threshold without waking the thread needlessly.
GuiStallMonitor::GuiStallMonitor(int thresholdMs, Sink sink, QObject *parent)
    : QObject(parent)
    , m_thresholdMs(std::max(1, thresholdMs))
    , m_interval(std::clamp(m_thresholdMs / 2, 5, 100))
    , m_sink(std::move(sink))
{}

GuiStallMonitor::~GuiStallMonitor()
{
    if (QCoreApplication *app = QCoreApplication::instance())
        app->removeEventFilter(this);
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_all();
    if (m_watchdog.joinable())
        m_watchdog.join();
}

void GuiStallMonitor::start()
{
    if (m_timer)
        return;
    m_timer = new QTimer(this);
    m_timer->setTimerType(Qt::PreciseTimer);
    m_timer->setInterval(m_interval);
    connect(m_timer, &QTimer::timeout, this, &GuiStallMonitor::beat);
    // The first beat comes from the running loop, so that start-up work before it (the language
    // probe, building the shell) is not counted as a stall.
    QTimer::singleShot(0, this, [this] {
        write(QByteArrayLiteral("tovra.stall: watching, threshold ") +
              QByteArray::number(m_thresholdMs) + QByteArrayLiteral(" ms"));
        if (QCoreApplication *app = QCoreApplication::instance())
            app->installEventFilter(this);
        m_lastBeat = Clock::now();
        m_lastBeatTicks.store(m_lastBeat.time_since_epoch().count(), std::memory_order_relaxed);
        m_timer->start();
        m_watchdog = std::thread([this] { watch(); });
    });
}

bool GuiStallMonitor::eventFilter(QObject *watched, QEvent *event)
{
    // Only a pointer to static class-name data and an integer: cheap on every event.
    m_receiverClass.store(watched->metaObject()->className(), std::memory_order_relaxed);
    m_eventType.store(int(event->type()), std::memory_order_relaxed);
    return false;
}

void GuiStallMonitor::beat()
{
    const Clock::time_point now = Clock::now();
    const auto late =
        std::chrono::duration_cast<std::chrono::milliseconds>(now - m_lastBeat - m_interval);
    const quint64 stalledBeat = m_beatCount.load(std::memory_order_relaxed);
    m_lastBeat = now;
    m_lastBeatTicks.store(now.time_since_epoch().count(), std::memory_order_relaxed);
    m_beatCount.fetch_add(1, std::memory_order_relaxed);
    if (late.count() <= m_thresholdMs)
        return;

    QByteArray line = QByteArrayLiteral("tovra.stall: ") +
                      QByteArray::number(qint64(late.count())) + QByteArrayLiteral(" ms");
    {
        const std::lock_guard lock(m_mutex);
        if (m_snapshotBeat == stalledBeat + 1 && !m_snapshot.empty())
            line += QByteArrayLiteral(" (") + QByteArray::fromStdString(m_snapshot) + ')';
        m_snapshot.clear();
    }
    write(line);
}

// The watchdog: looks a few times per threshold and, when the last beat is older than the
// threshold, remembers what the interface thread was delivering (once per stalled beat).
void GuiStallMonitor::watch()
{
    const auto threshold = std::chrono::milliseconds(m_thresholdMs);
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        m_wake.wait_for(lock, m_interval);
        if (m_stopping)
            break;
        const quint64 beat = m_beatCount.load(std::memory_order_relaxed) + 1;
        const Clock::time_point last{
            Clock::duration(m_lastBeatTicks.load(std::memory_order_relaxed))};
        if (beat == m_snapshotBeat || Clock::now() - last <= threshold)
            continue;
        const char *receiver = m_receiverClass.load(std::memory_order_relaxed);
        m_snapshotBeat = beat;
        m_snapshot = (receiver ? std::string(receiver) : std::string("?")) + ", " +
                     eventName(m_eventType.load(std::memory_order_relaxed)).toStdString();
    }
}

void GuiStallMonitor::write(const QByteArray &line)
{
    if (m_sink) {
        m_sink(line);
        return;
    }
    std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
}
