#include "RequestLedger.h"

quint64 RequestLedger::issue(Kind kind)
{
    const quint64 id = m_nextId++;
    m_latest.insert(kind, id);
    m_inFlight.insert(kind);
    return id;
}

bool RequestLedger::isLatest(Kind kind, quint64 id) const
{
    return id != 0 && m_latest.value(kind) == id;
}

bool RequestLedger::accept(Kind kind, quint64 id)
{
    if (!isLatest(kind, id))
        return false;
    m_inFlight.remove(kind);
    return true;
}

bool RequestLedger::inFlight(Kind kind) const
{
    return m_inFlight.contains(kind);
}

quint64 RequestLedger::latest(Kind kind) const
{
    return m_latest.value(kind);
}
