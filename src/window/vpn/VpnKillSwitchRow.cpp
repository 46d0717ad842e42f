#include "VpnKillSwitchRow.h"

#include "ToggleSwitch.h"

#include <QHBoxLayout>
#include <QLabel>

VpnKillSwitchRow::VpnKillSwitchRow(QWidget *parent)
    : QFrame(parent)
    , m_word(new QLabel(this))
    , m_toggle(new ToggleSwitch(this))
{
    setObjectName(QStringLiteral("TovraVPNKillSwitchRow"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);

    auto *name = new QLabel(tr("Kill Switch"), this);
    name->setObjectName(QStringLiteral("TovraVPNKillSwitchName"));
    m_word->setObjectName(QStringLiteral("TovraVPNKillSwitchWord"));
    m_word->setProperty("tovraRole", QStringLiteral("muted"));
    m_toggle->setObjectName(QStringLiteral("TovraVPNKillSwitch"));
    m_toggle->setAccessibleName(tr("Kill Switch"));
    name->setBuddy(m_toggle);

    layout->addWidget(name);
    layout->addWidget(m_word);
    layout->addStretch(1);
    layout->addWidget(m_toggle);
    connect(m_toggle, &ToggleSwitch::toggleRequested, this, &VpnKillSwitchRow::toggleRequested);
}

void VpnKillSwitchRow::setState(bool enabled, const QString &word, bool changeable)
{
    m_toggle->setChecked(enabled);
    m_toggle->setEnabled(changeable);
    m_toggle->setAccessibleDescription(word);
    m_word->setText(word);
}
