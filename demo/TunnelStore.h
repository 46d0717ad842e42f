#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

// The tunnel's life: disconnected -> connecting -> connected, and back through disconnecting.
class TunnelStore : public QObject
{
    Q_OBJECT

public:
    explicit TunnelStore(int connectMs, QObject *parent = nullptr);

    // source: "last", "node" or "smart"; target: the node id or the smart selector.
    void connectTo(qint64 nodeId, const QString &source, const QString &target,
                   const QString &kind);
    void disconnect(const QString &reason);

    QString state() const { return m_state; }
    bool connected() const { return m_state == QLatin1String("connected"); }
    // Connecting or connected: traffic is meant to go through the tunnel.
    bool active() const;
    qint64 selectedNode() const { return m_selectedNode; }
    qint64 connectedNode() const { return m_connectedNode; }
    QString source() const { return m_source; }
    QString target() const { return m_target; }
    QString kind() const { return m_kind; }
    QString reason() const { return m_reason; }
    // ISO 8601 UTC, empty unless connected.
    QString connectedSince() const;

private:
    void finishConnect();
    void finishDisconnect();

    int m_connectMs;
    QTimer m_timer;
    QString m_state = QStringLiteral("disconnected");
    qint64 m_selectedNode = 0;
    qint64 m_connectedNode = 0;
    QString m_source;
    QString m_target;
    QString m_kind;
    QString m_reason;
    QDateTime m_since;
};
