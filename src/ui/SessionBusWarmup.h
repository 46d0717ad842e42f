#pragma once

#include <thread>

// Connects to the session bus on another thread while start-up goes on. The window waits for
// the desktop's colour scheme over the bus before its first paint, and connecting is most of
// that wait; Qt hands the same connection to whoever asks next. Made after the application
// object, so the thread does not become Qt's main thread; only where the session names its bus
// (every desktop session does), since finding one means forking.
class SessionBusWarmup
{
public:
    SessionBusWarmup();
    ~SessionBusWarmup();

    SessionBusWarmup(const SessionBusWarmup &) = delete;
    SessionBusWarmup &operator=(const SessionBusWarmup &) = delete;

private:
    std::thread m_thread;
};
