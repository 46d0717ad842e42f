#include "VpnStatusCard.h"

#include "Countries.h"
#include "VpnKillSwitchRow.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Text follows the layout's direction even when its words are in a left-to-right script.
void alignToLayout(QLabel *label)
{
    label->setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter |
                        (label->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
}

void setStyleProperty(QWidget *widget, const char *name, const QString &value)
{
    if (widget->property(name).toString() == value)
        return;
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace

VpnStatusCard::VpnStatusCard(QWidget *parent)
    : QFrame(parent)
    , m_dot(new QLabel(this))
    , m_title(new QLabel(this))
    , m_detail(new QLabel(this))
    , m_locationCaption(new QLabel(this))
    , m_flag(new QLabel(this))
    , m_location(new QLabel(this))
    , m_facts(new QLabel(this))
    , m_primary(new QPushButton(this))
    , m_killSwitch(new VpnKillSwitchRow(this))
    , m_tick(new QTimer(this))
{
    setObjectName(QStringLiteral("TovraVPNCard"));
    m_dot->setObjectName(QStringLiteral("TovraVPNStatusDot"));
    m_title->setObjectName(QStringLiteral("TovraVPNStatusTitle"));
    m_detail->setObjectName(QStringLiteral("TovraVPNStatusDetail"));
    m_detail->setWordWrap(true);
    m_locationCaption->setObjectName(QStringLiteral("TovraSectionTitle"));
    m_flag->setObjectName(QStringLiteral("TovraVPNLocationFlag"));
    m_flag->setFixedSize(24, 18);
    m_flag->setScaledContents(false);
    m_location->setObjectName(QStringLiteral("TovraVPNLocationText"));
    m_location->setProperty("tovraCardValue", true);
    m_location->setWordWrap(true);
    m_facts->setObjectName(QStringLiteral("TovraVPNFacts"));
    m_facts->setProperty("tovraRole", QStringLiteral("muted"));
    m_facts->setWordWrap(true);
    m_primary->setObjectName(QStringLiteral("TovraVPNPrimaryAction"));
    m_primary->setMinimumWidth(150);
    m_primary->setAutoDefault(false);
    m_primary->setCursor(Qt::PointingHandCursor);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 18);
    layout->setSpacing(8);

    auto *head = new QGridLayout;
    head->setHorizontalSpacing(10);
    head->setVerticalSpacing(4);
    head->addWidget(m_dot, 0, 0, Qt::AlignVCenter);
    head->addWidget(m_title, 0, 1);
    head->addWidget(m_detail, 1, 1);
    head->addWidget(m_primary, 0, 2, 2, 1, Qt::AlignVCenter);
    head->setColumnStretch(1, 1);
    layout->addLayout(head);

    auto *separator = new QFrame(this);
    separator->setObjectName(QStringLiteral("TovraSeparator"));
    separator->setFixedHeight(1);
    layout->addSpacing(4);
    layout->addWidget(separator);
    layout->addSpacing(2);

    auto *place = new QHBoxLayout;
    place->setSpacing(10);
    place->addWidget(m_flag, 0, Qt::AlignVCenter);
    place->addWidget(m_location, 1);
    layout->addWidget(m_locationCaption);
    layout->addLayout(place);
    layout->addWidget(m_facts);
    layout->addSpacing(4);
    layout->addWidget(m_killSwitch);

    for (QLabel *label : {m_title, m_detail, m_locationCaption, m_location, m_facts})
        alignToLayout(label);
    m_tick->setInterval(1000);
    connect(m_tick, &QTimer::timeout, this, &VpnStatusCard::updateFacts);
    connect(m_primary, &QPushButton::clicked, this, &VpnStatusCard::primaryActionTriggered);
}

void VpnStatusCard::setSummary(const VpnStatusSummary &summary)
{
    m_summary = summary;
    setStyleProperty(m_dot, "tovraStatusState", summary.dotState);
    m_dot->setAccessibleName(summary.title);
    m_title->setText(summary.title);
    m_detail->setText(summary.detail);
    m_detail->setVisible(!summary.detail.isEmpty());

    const bool hasPlace = !summary.locationText.isEmpty();
    m_locationCaption->setText(summary.locationCaption);
    m_locationCaption->setVisible(hasPlace);
    m_location->setText(summary.locationText);
    m_location->setVisible(hasPlace);
    const QPixmap flag =
        hasPlace ? countryFlag(summary.flagCode, m_flag->devicePixelRatioF()) : QPixmap();
    m_flag->setPixmap(flag);
    m_flag->setVisible(!flag.isNull());
    updateFacts();
    updateTicking();
}

void VpnStatusCard::setPrimaryAction(const QString &text, const QString &role, bool pending,
                                     bool enabled)
{
    m_primary->setText(text);
    m_primary->setAccessibleName(text);
    m_primary->setEnabled(enabled);
    setStyleProperty(m_primary, "tovraPrimaryRole", role);
    setStyleProperty(m_primary, "tovraPrimaryState",
                     pending ? QStringLiteral("pending") : QString());
}

void VpnStatusCard::updateFacts()
{
    QStringList facts;
    if (m_summary.connectedSince.isValid()) {
        facts << tr("Connected for %1")
                     .arg(VpnStatusSummary::elapsedText(m_summary.connectedSince,
                                                        QDateTime::currentDateTimeUtc()));
    }
    if (!m_summary.modeLabel.isEmpty())
        facts << tr("Mode: %1").arg(m_summary.modeLabel);
    m_facts->setText(facts.join(QStringLiteral("  \u00b7  ")));
    m_facts->setVisible(!facts.isEmpty());
}

bool VpnStatusCard::isTicking() const
{
    return m_tick->isActive();
}

void VpnStatusCard::updateTicking()
{
    // The clock only moves while someone can see it.
    const bool tick = isVisible() && m_summary.connectedSince.isValid();
    if (tick && !m_tick->isActive())
        m_tick->start();
    else if (!tick)
        m_tick->stop();
}

void VpnStatusCard::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    updateFacts();
    updateTicking();
}

void VpnStatusCard::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    updateTicking();
}
