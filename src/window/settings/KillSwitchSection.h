#pragma once

#include "SettingsCard.h"

#include <functional>

class QButtonGroup;
class QLabel;
class QRadioButton;
class SettingsRow;
class ToggleSwitch;

// The kill switch: on and off under the kill switch rules (a VPN mode first in Tovra Proxy,
// never off in lockdown), its mode with what each one does, and whether the local network
// stays reachable while traffic is blocked.
class KillSwitchSection : public SettingsCard
{
    Q_OBJECT

public:
    // Asks which way to go when the kill switch is wanted in Tovra Proxy: 1 switch to Auto and
    // enable, 2 choose a mode, 0 neither. Replaceable so that tests need no modal dialog.
    using VpnModeConfirm = std::function<int(QWidget *parent)>;

    explicit KillSwitchSection(QWidget *parent = nullptr);

    void refresh(const AppState &state, bool available) override;
    void setConfirm(VpnModeConfirm confirm) { m_confirm = std::move(confirm); }
    // Why the last mode change failed (a daemon too old for modes says so here); empty hides.
    void setModeNote(const QString &text);
    void settle();

Q_SIGNALS:
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(QString mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();

private:
    void toggleRequested(bool enabled);
    void modeClicked(const QString &mode);
    void showMode(const QString &mode);
    QRadioButton *addModeOption(QWidget *box, const QString &mode, const QString &label,
                                const QString &description);

    ToggleSwitch *m_switch;
    SettingsRow *m_switchRow;
    QButtonGroup *m_modes;
    QLabel *m_modeNote;
    QLabel *m_lan;
    VpnModeConfirm m_confirm;
    QString m_mode;
    QString m_transport;
    bool m_enabled = false;
};
