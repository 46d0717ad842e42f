#include "TrayRequestIds.h"

quint64 TrayRequestIds::take(Kind kind)
{
    const quint64 id = m_nextId++;
    m_latest[std::size_t(kind)] = id;
    return id;
}

void TrayRequestIds::adopt(Kind kind, quint64 requestId)
{
    m_latest[std::size_t(kind)] = requestId;
}

bool TrayRequestIds::isLatest(Kind kind, quint64 requestId) const
{
    return requestId != 0 && m_latest[std::size_t(kind)] == requestId;
}

quint64 TrayRequestIds::latest(Kind kind) const
{
    return m_latest[std::size_t(kind)];
}
