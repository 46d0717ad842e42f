#pragma once

#include "SettingsCard.h"

#include <QStringList>

class QLabel;
class QPushButton;
class SettingsChoice;
class SettingsField;
class SettingsRow;

// How traffic meets the desktop: the system proxy, the local network, the daemon's local proxy
// listeners and split DNS (configured and in effect).
class NetworkSection : public SettingsCard
{
    Q_OBJECT

public:
    explicit NetworkSection(QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    // The answer to the last listener change ("saved for reconnect"); empty hides.
    void setListenNote(const QString &text);
    void settle();

Q_SIGNALS:
    void setSystemProxyRequested(QString mode);
    void setLocalNetworkRequested(QString mode);
    void setProxyListenersRequested(QString socksAddress, QString httpAddress);
    void setSplitDNSLocalRequested(QStringList servers);
    void setSplitDNSPolicyRequested(QString policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();

private:
    void applyListeners();
    void applyServers();
    static QString policyLabel(const QString &policy);

    SettingsChoice *m_systemProxy;
    SettingsChoice *m_localNetwork;
    SettingsField *m_socks;
    SettingsField *m_http;
    QPushButton *m_applyListeners;
    QLabel *m_listenNote;
    SettingsChoice *m_dnsPolicy;
    SettingsField *m_dnsServers;
    QPushButton *m_applyServers;
    QPushButton *m_clearServers;
    QPushButton *m_resetDNS;
    SettingsRow *m_dnsRow;
    QLabel *m_dnsEffective;
};
