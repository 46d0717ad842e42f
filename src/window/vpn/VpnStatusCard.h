#pragma once

#include "VpnStatusSummary.h"

#include <QFrame>

class QLabel;
class QPushButton;
class QTimer;
class VpnKillSwitchRow;

// The connection at a glance: a coloured dot and a title, a line in words, where the user
// appears to be, for how long, in which mode, and the one action that fits the moment.
class VpnStatusCard : public QFrame
{
    Q_OBJECT

public:
    explicit VpnStatusCard(QWidget *parent = nullptr);

    void setSummary(const VpnStatusSummary &summary);
    // Text, role ("connect" or "disconnect"), whether it waits ("pending") and is enabled.
    void setPrimaryAction(const QString &text, const QString &role, bool pending, bool enabled);

    QPushButton *primaryAction() const { return m_primary; }
    VpnKillSwitchRow *killSwitchRow() const { return m_killSwitch; }
    bool isTicking() const;

Q_SIGNALS:
    void primaryActionTriggered();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateFacts();
    void updateTicking();

    QLabel *m_dot;
    QLabel *m_title;
    QLabel *m_detail;
    QLabel *m_locationCaption;
    QLabel *m_flag;
    QLabel *m_location;
    QLabel *m_facts;
    QPushButton *m_primary;
    VpnKillSwitchRow *m_killSwitch;
    QTimer *m_tick;
    VpnStatusSummary m_summary;
};
