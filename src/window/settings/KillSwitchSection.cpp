#include "KillSwitchSection.h"

#include "AppState.h"
#include "KillSwitchConfirm.h"
#include "KillSwitchState.h"
#include "RequestRadioButton.h"
#include "SettingsRow.h"
#include "ToggleSwitch.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

const QString kLockdown = QStringLiteral("lockdown");
const QString kProxy = QStringLiteral("proxy");

} // namespace

KillSwitchSection::KillSwitchSection(QWidget *parent)
    : SettingsCard(tr("Kill Switch"), parent)
    , m_switch(new ToggleSwitch(this))
    , m_modes(new QButtonGroup(this))
    , m_modeNote(new QLabel(this))
    , m_lan(new QLabel(this))
    , m_confirm(confirmKillSwitchNeedsVpnMode)
{
    m_switch->setObjectName(QStringLiteral("TovraSettingsKillSwitch"));
    m_switchRow = addRow(tr("Block traffic outside the tunnel"), QString(), m_switch);
    m_switch->setAccessibleName(tr("Kill Switch"));
    connect(m_switch, &ToggleSwitch::toggleRequested, this, &KillSwitchSection::toggleRequested);

    auto *box = new QWidget(this);
    auto *boxLayout = new QVBoxLayout(box);
    boxLayout->setContentsMargins(0, 0, 0, 0);
    boxLayout->setSpacing(6);
    addModeOption(box, QStringLiteral("auto"), tr("Auto"),
                  tr("Blocks traffic outside the tunnel while Tovra is connected or connecting."));
    addModeOption(box, QStringLiteral("always"), tr("Always"),
                  tr("Blocks traffic outside the tunnel whenever Kill Switch is on, even while "
                     "disconnected."));
    addModeOption(box, kLockdown, tr("Lockdown"),
                  tr("Set by the Tovra service: traffic outside the tunnel stays blocked and Kill "
                     "Switch cannot be turned off here."));
    m_modeNote->setObjectName(QStringLiteral("TovraSettingsKillSwitchModeNote"));
    m_modeNote->setProperty("tovraRole", QStringLiteral("error"));
    m_modeNote->setWordWrap(true);
    m_modeNote->hide();
    boxLayout->addWidget(m_modeNote);
    SettingsRow *modeRow = addRow(tr("Mode"), tr("When Kill Switch blocks traffic."), nullptr);
    modeRow->addBelow(box);

    m_lan->setObjectName(QStringLiteral("TovraSettingsKillSwitchLAN"));
    m_lan->setProperty("tovraCardValue", true);
    addRow(tr("Local network"),
           tr("Whether printers, shares and other devices nearby stay reachable while traffic "
              "is blocked."),
           m_lan);
}

QRadioButton *KillSwitchSection::addModeOption(QWidget *box, const QString &mode,
                                               const QString &label, const QString &description)
{
    auto *option = new RequestRadioButton(label, box);
    option->setObjectName(QStringLiteral("TovraSettingsKillSwitchMode_") + mode);
    option->setProperty("tovraKillSwitchMode", mode);
    option->setAccessibleName(tr("Kill Switch mode: %1").arg(label));
    option->setAccessibleDescription(description);
    auto *text = new QLabel(description, box);
    text->setObjectName(QStringLiteral("TovraSettingsHint"));
    text->setWordWrap(true);
    m_modes->addButton(option);
    // The description sits under the option's text, past the indicator, on either side.
    auto *described = new QHBoxLayout;
    described->setContentsMargins(0, 0, 0, 0);
    described->addSpacing(30);
    described->addWidget(text, 1);
    auto *layout = static_cast<QVBoxLayout *>(box->layout());
    // As wide as its text, so that its focus ring hugs it.
    layout->addWidget(option, 0, Qt::AlignLeading);
    layout->addLayout(described);
    connect(option, &QRadioButton::clicked, this, [this, mode] { modeClicked(mode); });
    return option;
}

void KillSwitchSection::refresh(const AppState &state, bool available)
{
    // The kill-switch record when one was fetched, else the copy inside the status.
    const KillSwitchInfo record =
        state.killSwitch().valid ? state.killSwitch() : state.runtime().killSwitch;
    const bool known = available && record.valid;
    m_mode = record.mode;
    m_enabled = record.enabled;
    m_transport = state.runtime().mode.transport;
    const bool lockdown = known && record.mode == kLockdown;

    m_switch->setChecked(known && record.enabled);
    m_switch->setEnabled(known && !lockdown);
    QString hint =
        known ? tr("Now: %1").arg(killSwitchStateText(record, "KillSwitchSection")) : unknownText();
    if (lockdown)
        hint = tr("%1. The Tovra service holds Kill Switch on; it cannot be turned off here.")
                   .arg(killSwitchStateText(record, "KillSwitchSection"));
    else if (known && m_transport == kProxy && !record.enabled)
        hint += QLatin1Char('\n') + tr("Tovra Proxy is in use: Kill Switch needs a VPN mode.");
    if (known && !record.lastError.isEmpty())
        hint += QLatin1Char('\n') + record.lastError;
    m_switchRow->setHint(hint);

    // The options never check themselves: they show the daemon's mode, before and after a change.
    showMode(known ? record.mode : QString());
    for (QAbstractButton *option : m_modes->buttons()) {
        const QString mode = option->property("tovraKillSwitchMode").toString();
        // Lockdown is the service's to set and to lift; the others are not while it holds.
        option->setEnabled(known && !lockdown && mode != kLockdown);
    }

    if (!known)
        m_lan->setText(unknownText());
    else
        m_lan->setText(record.allowLan ? tr("Reachable") : tr("Blocked"));
}

void KillSwitchSection::showMode(const QString &mode)
{
    m_modes->setExclusive(false);
    for (QAbstractButton *option : m_modes->buttons())
        option->setChecked(option->property("tovraKillSwitchMode").toString() == mode);
    m_modes->setExclusive(true);
}

void KillSwitchSection::toggleRequested(bool enabled)
{
    if (!enabled && m_mode == kLockdown) {
        // Lockdown is never lifted from here; the switch stays as the daemon has it.
        m_switch->setChecked(m_enabled);
        return;
    }
    if (enabled && m_transport == kProxy) {
        switch (m_confirm(window())) {
        case 1:
            Q_EMIT switchToAutoAndEnableKillSwitchRequested();
            return;
        case 2:
            Q_EMIT chooseModeForKillSwitchRequested();
            return;
        default:
            return;
        }
    }
    Q_EMIT setKillSwitchEnabledRequested(enabled);
}

void KillSwitchSection::modeClicked(const QString &mode)
{
    if (mode == m_mode || m_mode == kLockdown || mode == kLockdown) {
        showMode(m_mode);
        return;
    }
    setModeNote(QString());
    Q_EMIT setKillSwitchModeRequested(mode);
}

void KillSwitchSection::setModeNote(const QString &text)
{
    m_modeNote->setText(text);
    m_modeNote->setVisible(!text.isEmpty());
}

void KillSwitchSection::settle()
{
    showMode(m_mode);
}
