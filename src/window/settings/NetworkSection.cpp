#include "NetworkSection.h"

#include "AppState.h"
#include "BidiText.h"
#include "SettingsChoice.h"
#include "SettingsField.h"
#include "SettingsRow.h"
#include "SettingsValidator.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString listenerAddress(const QList<ProxyListenerInfo> &listeners, const QString &name,
                        const QString &scheme)
{
    for (const ProxyListenerInfo &listener : listeners) {
        if (listener.name == name || listener.scheme == scheme)
            return listener.address;
    }
    return {};
}

QWidget *buttonBar(QWidget *parent, std::initializer_list<QPushButton *> buttons)
{
    auto *bar = new QWidget(parent);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (QPushButton *button : buttons)
        layout->addWidget(button);
    layout->addStretch(1);
    return bar;
}

} // namespace

NetworkSection::NetworkSection(QWidget *parent)
    : SettingsCard(tr("Network"), parent)
    , m_systemProxy(new SettingsChoice(QStringLiteral("TovraSettingsSystemProxy"), this))
    , m_localNetwork(new SettingsChoice(QStringLiteral("TovraSettingsLocalNetwork"), this))
    , m_socks(new SettingsField(QStringLiteral("TovraSettingsSocksListen"), tr("SOCKS5 listener"),
                                QStringLiteral("127.0.0.1:1080"), this))
    , m_http(new SettingsField(QStringLiteral("TovraSettingsHttpListen"), tr("HTTP listener"),
                               QStringLiteral("127.0.0.1:8080"), this))
    //: Button that applies the SOCKS5 and HTTP listen addresses typed above
    , m_applyListeners(new QPushButton(tr("Apply listeners"), this))
    , m_listenNote(new QLabel(this))
    , m_dnsPolicy(new SettingsChoice(QStringLiteral("TovraSettingsDNSPolicy"), this))
    , m_dnsServers(new SettingsField(QStringLiteral("TovraSettingsDNSServers"),
                                     tr("Local DNS servers"), tr("For example 192.168.1.1, ::1"),
                                     this))
    //: Button that saves the local DNS servers typed in the field
    , m_applyServers(new QPushButton(tr("Save servers"), this))
    //: Button that empties the list of local DNS servers
    , m_clearServers(new QPushButton(tr("Clear servers"), this))
    //: Button that puts the split DNS settings back to their defaults
    , m_resetDNS(new QPushButton(tr("Reset split DNS"), this))
    , m_dnsEffective(new QLabel(this))
{
    //: System proxy choice: the desktop proxy settings are left alone
    m_systemProxy->addChoice(QStringLiteral("off"), tr("Off"));
    //: System proxy choice: the desktop proxy settings point at Tovra
    m_systemProxy->addChoice(QStringLiteral("on"), tr("On"));
    m_systemProxy->addChoice(QStringLiteral("lock"), tr("On and locked"));
    addRow(tr("System proxy"),
           tr("Points the desktop's proxy settings at Tovra; locked keeps other programs from "
              "changing them."),
           m_systemProxy);
    connect(m_systemProxy, &SettingsChoice::choiceRequested, this,
            &NetworkSection::setSystemProxyRequested);

    //: Local network choice: devices nearby are reached outside the tunnel
    m_localNetwork->addChoice(QStringLiteral("direct"), tr("Direct"));
    //: Local network choice: local traffic goes through the tunnel like the rest
    m_localNetwork->addChoice(QStringLiteral("protected"), tr("Protected"));
    addRow(tr("Local network"),
           tr("Direct reaches devices nearby outside the tunnel; protected sends everything "
              "through it."),
           m_localNetwork);
    connect(m_localNetwork, &SettingsChoice::choiceRequested, this,
            &NetworkSection::setLocalNetworkRequested);

    auto *listeners = new QWidget(this);
    auto *grid = new QGridLayout(listeners);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    auto *socksLabel = new QLabel(tr("SOCKS5"), listeners);
    socksLabel->setBuddy(m_socks->lineEdit());
    auto *httpLabel = new QLabel(tr("HTTP"), listeners);
    httpLabel->setBuddy(m_http->lineEdit());
    grid->addWidget(socksLabel, 0, 0, Qt::AlignVCenter);
    grid->addWidget(m_socks, 0, 1);
    grid->addWidget(httpLabel, 1, 0, Qt::AlignVCenter);
    grid->addWidget(m_http, 1, 1);
    grid->setColumnStretch(1, 1);
    m_applyListeners->setObjectName(QStringLiteral("TovraSettingsApplyListeners"));
    m_listenNote->setObjectName(QStringLiteral("TovraSettingsHint"));
    m_listenNote->setWordWrap(true);
    m_listenNote->hide();
    grid->addWidget(buttonBar(listeners, {m_applyListeners}), 2, 1);
    grid->addWidget(m_listenNote, 3, 1);
    SettingsRow *listenRow =
        addRow(tr("Local proxy listeners"),
               tr("Addresses where the daemon accepts proxy connections, as host:port. Leave a "
                  "field empty to close that listener."),
               nullptr);
    listenRow->addBelow(listeners);
    connect(m_applyListeners, &QPushButton::clicked, this, &NetworkSection::applyListeners);
    connect(m_socks, &SettingsField::submitted, this, &NetworkSection::applyListeners);
    connect(m_http, &SettingsField::submitted, this, &NetworkSection::applyListeners);

    m_dnsPolicy->addChoice(QStringLiteral("auto"), tr("Automatic"));
    m_dnsPolicy->addChoice(QStringLiteral("local"), tr("Local DNS"));
    m_dnsPolicy->addChoice(QStringLiteral("remote"), tr("Remote DNS"));
    m_dnsRow =
        addRow(tr("Split DNS"),
               tr("Which resolver answers for names that stay outside the tunnel."), m_dnsPolicy);
    connect(m_dnsPolicy, &SettingsChoice::choiceRequested, this,
            &NetworkSection::setSplitDNSPolicyRequested);

    auto *dns = new QWidget(this);
    auto *dnsLayout = new QVBoxLayout(dns);
    dnsLayout->setContentsMargins(0, 0, 0, 0);
    dnsLayout->setSpacing(6);
    m_applyServers->setObjectName(QStringLiteral("TovraSettingsSaveDNS"));
    m_clearServers->setObjectName(QStringLiteral("TovraSettingsClearDNS"));
    m_resetDNS->setObjectName(QStringLiteral("TovraSettingsResetDNS"));
    m_dnsEffective->setObjectName(QStringLiteral("TovraSettingsHint"));
    m_dnsEffective->setWordWrap(true);
    m_dnsEffective->setTextInteractionFlags(Qt::TextSelectableByMouse);
    dnsLayout->addWidget(m_dnsServers);
    dnsLayout->addWidget(buttonBar(dns, {m_applyServers, m_clearServers, m_resetDNS}));
    dnsLayout->addWidget(m_dnsEffective);
    SettingsRow *serversRow =
        addRow(tr("Local DNS servers"),
               tr("IP addresses of the resolvers for local names, separated by commas."), nullptr);
    serversRow->addBelow(dns);
    connect(m_applyServers, &QPushButton::clicked, this, &NetworkSection::applyServers);
    connect(m_dnsServers, &SettingsField::submitted, this, &NetworkSection::applyServers);
    connect(m_clearServers, &QPushButton::clicked, this, [this] {
        m_dnsServers->markSubmitted();
        Q_EMIT clearSplitDNSLocalRequested();
    });
    connect(m_resetDNS, &QPushButton::clicked, this, [this] {
        m_dnsServers->markSubmitted();
        Q_EMIT resetSplitDNSRequested();
    });
}

void NetworkSection::refresh(const AppState &state, bool available)
{
    const RuntimeInfo &runtime = state.runtime();
    const bool modeKnown = available && runtime.mode.valid;
    m_systemProxy->setDaemonValue(modeKnown ? runtime.mode.systemProxy : QString());
    m_localNetwork->setDaemonValue(modeKnown ? runtime.mode.localNetwork : QString());
    m_systemProxy->setEnabled(modeKnown);
    m_localNetwork->setEnabled(modeKnown);

    m_socks->setDaemonValue(available ? listenerAddress(runtime.proxyListeners,
                                                        QStringLiteral("local-socks"),
                                                        QStringLiteral("socks5"))
                                      : QString());
    m_http->setDaemonValue(available ? listenerAddress(runtime.proxyListeners,
                                                       QStringLiteral("local-http"),
                                                       QStringLiteral("http"))
                                     : QString());
    for (QWidget *widget : {static_cast<QWidget *>(m_socks), static_cast<QWidget *>(m_http),
                            static_cast<QWidget *>(m_applyListeners)})
        widget->setEnabled(available);

    const SplitDNSInfo &dns = state.splitDNS();
    const bool dnsKnown = available && dns.valid;
    m_dnsPolicy->setDaemonValue(dnsKnown ? dns.configuredPolicy : QString());
    m_dnsServers->setDaemonValue(dnsKnown ? dns.configuredLocalDirectDns.join(QStringLiteral(", "))
                                          : QString());
    for (QWidget *widget :
         {static_cast<QWidget *>(m_dnsPolicy), static_cast<QWidget *>(m_dnsServers),
          static_cast<QWidget *>(m_applyServers), static_cast<QWidget *>(m_clearServers),
          static_cast<QWidget *>(m_resetDNS)})
        widget->setEnabled(dnsKnown);
    if (!dnsKnown) {
        m_dnsEffective->setText(tr("In effect: %1").arg(unknownText()));
        return;
    }
    const QString servers = dns.effectiveLocalDirectDns.isEmpty()
                                ? tr("none")
                                : dns.effectiveLocalDirectDns.join(QStringLiteral(", "));
    QString effective =
        tr("In effect: %1, servers %2").arg(policyLabel(dns.effectivePolicy), isolated(servers));
    // The daemon's two known sources are worded; any other is named as it came.
    if (dns.localDnsSource == u"system")
        effective += QLatin1Char(' ') + tr("(from the system settings)");
    else if (dns.localDnsSource == u"config")
        effective += QLatin1Char(' ') + tr("(from your list)");
    else if (!dns.localDnsSource.isEmpty())
        effective += QLatin1Char(' ') + tr("(from %1)").arg(dns.localDnsSource);
    if (!dns.runtimeWarning.isEmpty())
        effective += QLatin1Char('\n') + dns.runtimeWarning;
    m_dnsEffective->setText(effective);
}

QString NetworkSection::policyLabel(const QString &policy)
{
    if (policy == QLatin1String("auto"))
        return tr("Automatic");
    if (policy == QLatin1String("local"))
        return tr("Local DNS");
    if (policy == QLatin1String("remote"))
        return tr("Remote DNS");
    return policy.isEmpty() ? tr("Unknown") : policy;
}

void NetworkSection::applyListeners()
{
    const QString socksError = SettingsValidator::checkListenAddress(m_socks->text());
    const QString httpError = SettingsValidator::checkListenAddress(m_http->text());
    m_socks->showError(socksError);
    m_http->showError(httpError);
    if (!socksError.isEmpty() || !httpError.isEmpty())
        return;
    setListenNote(QString());
    m_socks->markSubmitted();
    m_http->markSubmitted();
    Q_EMIT setProxyListenersRequested(m_socks->text(), m_http->text());
}

void NetworkSection::applyServers()
{
    const QStringList servers = SettingsValidator::splitServers(m_dnsServers->text());
    const QString error = SettingsValidator::checkDNSServers(servers);
    m_dnsServers->showError(error);
    if (!error.isEmpty())
        return;
    m_dnsServers->markSubmitted();
    Q_EMIT setSplitDNSLocalRequested(servers);
}

void NetworkSection::setListenNote(const QString &text)
{
    m_listenNote->setText(text);
    m_listenNote->setVisible(!text.isEmpty());
}

void NetworkSection::settle()
{
    m_systemProxy->settle();
    m_localNetwork->settle();
    m_socks->settle();
    m_http->settle();
    m_dnsPolicy->settle();
    m_dnsServers->settle();
}
