#include "SessionBusWarmup.h"

#include <QByteArray>
#include <QDBusConnection>

SessionBusWarmup::SessionBusWarmup()
{
    // Without an address libdbus finds the bus by forking a helper, and a child forked from
    // this thread while the main thread runs may inherit a lock held by it; then the main
    // thread connects, as it always did.
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (address.isEmpty() || address.startsWith("autolaunch:"))
        return;
    m_thread = std::thread([] { QDBusConnection::sessionBus(); });
}

SessionBusWarmup::~SessionBusWarmup()
{
    if (m_thread.joinable())
        m_thread.join();
}
