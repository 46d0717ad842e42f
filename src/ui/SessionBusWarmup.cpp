#include "SessionBusWarmup.h"

#include <QDBusConnection>

SessionBusWarmup::SessionBusWarmup()
    : m_thread([] { QDBusConnection::sessionBus(); })
{}

SessionBusWarmup::~SessionBusWarmup()
{
    m_thread.join();
}
