#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

// The routing mode (transport, policy, split profiles with each family's last choice), the
// system proxy, local network and proxy LAN preferences, and the local proxy listeners.
class RoutingStore
{
public:
    RoutingStore();

    // Each returns the refusal text, empty when applied.
    QString setMode(const QJsonObject &request);
    QString setSystemProxy(const QString &value);
    QString setLocalNetwork(const QString &value);
    QString setProxyLan(const QString &value);
    QString setListeners(const QJsonArray &listeners);

    QString transport() const { return m_transport; }
    QJsonObject modeJson() const;
    QJsonArray listenersJson() const { return m_listeners; }
    QJsonArray accessUrlsJson() const;
    QJsonObject pacStatusJson() const;
    // What the proxy repair reports.
    QString systemProxy() const { return m_systemProxy; }

private:
    QString m_transport = QStringLiteral("auto");
    QString m_policy;
    QString m_region;
    QString m_systemProxy = QStringLiteral("off");
    bool m_proxyLan = false;
    QString m_localNetwork = QStringLiteral("direct");
    QJsonObject m_splitProfile;
    QString m_lastTovravpnPolicy = QStringLiteral("global");
    QJsonObject m_lastTovravpnSplitProfile;
    QJsonObject m_proxySplitProfile;
    QString m_lastProxyPolicy = QStringLiteral("global");
    QJsonObject m_lastProxySplitProfile;
    QJsonArray m_listeners;
};
