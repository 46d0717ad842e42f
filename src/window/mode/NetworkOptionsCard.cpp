#include "NetworkOptionsCard.h"

#include "ModeInlineError.h"
#include "ModeSegmentedBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QLabel *mutedLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setProperty("tovraRole", QStringLiteral("muted"));
    label->setWordWrap(true);
    return label;
}

} // namespace

NetworkOptionsCard::NetworkOptionsCard(QWidget *parent)
    : QFrame(parent)
    , m_localNetwork(new ModeSegmentedBar(tr("Local network"), this))
    , m_systemProxy(new ModeSegmentedBar(tr("System proxy"), this))
    , m_error(new ModeInlineError(this))
{
    setObjectName(QStringLiteral("TovraModeCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(10);
    auto *title = new QLabel(tr("Network"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    layout->addWidget(title);

    //: Local network option: devices nearby are reached outside the tunnel
    m_localNetwork->addSegment(QStringLiteral("direct"), tr("Direct"),
                               tr("Printers, shares and other devices on your network stay "
                                  "reachable"));
    //: Local network option: local traffic goes through the tunnel like the rest
    m_localNetwork->addSegment(QStringLiteral("protected"), tr("Protected"),
                               tr("Local network traffic is protected like the rest"));
    //: System proxy option: the desktop proxy settings are left alone
    m_systemProxy->addSegment(QStringLiteral("off"), tr("Off"),
                              tr("The desktop's proxy settings are left alone"));
    //: System proxy option: the desktop proxy settings point at Tovra
    m_systemProxy->addSegment(QStringLiteral("on"), tr("On"),
                              tr("The desktop's proxy settings point at Tovra"));
    //: System proxy option, a state rather than an action: the desktop proxy settings point at
    //: Tovra and other programs cannot change them
    m_systemProxy->addSegment(QStringLiteral("lock"), tr("Lock"),
                              tr("The desktop's proxy settings point at Tovra and are kept so"));

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    grid->addWidget(new QLabel(tr("Local network"), this), 0, 0);
    grid->addWidget(mutedLabel(tr("Whether devices on your local network stay reachable while "
                                  "Tovra routes your traffic."),
                               this),
                    1, 0);
    grid->addWidget(m_localNetwork, 0, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->setRowMinimumHeight(2, 10);
    grid->addWidget(new QLabel(tr("System proxy"), this), 3, 0);
    grid->addWidget(mutedLabel(tr("Point the desktop's proxy settings at Tovra, or also keep "
                                  "other programs from changing them."),
                               this),
                    4, 0);
    grid->addWidget(m_systemProxy, 3, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnStretch(0, 1);
    layout->addLayout(grid);
    layout->addWidget(m_error);

    connect(m_localNetwork, &ModeSegmentedBar::valueRequested, this, [this](const QString &value) {
        if (value != m_localNetwork->currentValue())
            Q_EMIT setLocalNetworkRequested(value);
    });
    connect(m_systemProxy, &ModeSegmentedBar::valueRequested, this, [this](const QString &value) {
        if (value != m_systemProxy->currentValue())
            Q_EMIT setSystemProxyRequested(value);
    });
}

void NetworkOptionsCard::refresh(const ModeInfo &mode)
{
    // Unknown words check no segment rather than a wrong one.
    m_localNetwork->setCurrentValue(mode.valid ? mode.localNetwork : QString());
    const QString proxy =
        mode.systemProxy == u"lock-on" ? QStringLiteral("lock") : mode.systemProxy;
    m_systemProxy->setCurrentValue(proxy);
}

void NetworkOptionsCard::setControlsEnabled(bool enabled)
{
    m_localNetwork->setEnabled(enabled);
    m_systemProxy->setEnabled(enabled);
}
