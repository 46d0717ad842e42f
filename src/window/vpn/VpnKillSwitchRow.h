#pragma once

#include <QFrame>

class QLabel;
class ToggleSwitch;

// The kill switch's quick toggle on the VPN page: its name, its state word and a switch that
// only asks; the page applies the kill switch rules and the record sets the switch.
class VpnKillSwitchRow : public QFrame
{
    Q_OBJECT

public:
    explicit VpnKillSwitchRow(QWidget *parent = nullptr);

    void setState(bool enabled, const QString &word, bool changeable);
    ToggleSwitch *toggle() const { return m_toggle; }

Q_SIGNALS:
    void toggleRequested(bool enabled);

private:
    QLabel *m_word;
    ToggleSwitch *m_toggle;
};
