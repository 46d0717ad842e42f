#include "TunnelStore.h"

namespace {

constexpr int DisconnectMs = 300;

} // namespace

TunnelStore::TunnelStore(int connectMs, QObject *parent)
    : QObject(parent)
    , m_connectMs(connectMs)
{
    m_timer.setSingleShot(true);
}

bool TunnelStore::active() const
{
    return m_state == QLatin1String("connecting") || m_state == QLatin1String("connected");
}

void TunnelStore::connectTo(qint64 nodeId, const QString &source, const QString &target,
                            const QString &kind)
{
    m_timer.stop();
    m_timer.disconnect();
    m_selectedNode = nodeId;
    m_connectedNode = 0;
    m_source = source;
    m_target = target;
    m_kind = kind;
    m_reason = QStringLiteral("user_request");
    m_state = QStringLiteral("connecting");
    m_since = {};
    connect(&m_timer, &QTimer::timeout, this, &TunnelStore::finishConnect);
    m_timer.start(m_connectMs);
}

void TunnelStore::finishConnect()
{
    m_state = QStringLiteral("connected");
    m_connectedNode = m_selectedNode;
    m_reason.clear();
    m_since = QDateTime::currentDateTimeUtc();
}

void TunnelStore::disconnect(const QString &reason)
{
    m_timer.stop();
    m_timer.disconnect();
    m_reason = reason;
    if (m_state == QLatin1String("disconnected"))
        return;
    m_state = QStringLiteral("disconnecting");
    connect(&m_timer, &QTimer::timeout, this, &TunnelStore::finishDisconnect);
    m_timer.start(DisconnectMs);
}

void TunnelStore::finishDisconnect()
{
    m_state = QStringLiteral("disconnected");
    m_connectedNode = 0;
    m_since = {};
}

QString TunnelStore::connectedSince() const
{
    return m_since.isValid() ? m_since.toString(Qt::ISODate) : QString();
}
