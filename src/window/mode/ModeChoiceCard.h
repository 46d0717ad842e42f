#pragma once

#include "RoutingMode.h"

#include <QFrame>
#include <QMap>

class ModeInlineError;
class ModeOptionButton;
class QLabel;

// The six routing modes as option cards. The card of the mode the daemon reports is checked;
// a click only asks for a mode.
class ModeChoiceCard : public QFrame
{
    Q_OBJECT

public:
    explicit ModeChoiceCard(QWidget *parent = nullptr);

    void refresh(const ModeInfo &mode);
    // The choice the record stands for; false when it is none of the six.
    static bool choiceOf(const ModeInfo &mode, ModeChoice *choice);
    static bool isVpnChoice(ModeChoice choice);

    // Marks Auto, WireGuard and the TovraVPN cards: the modes the kill switch can run in.
    void setVpnModesHighlighted(bool highlighted);
    bool vpnModesHighlighted() const { return m_highlighted; }
    void setChoicesEnabled(bool enabled);
    void setBusy(bool busy);

    ModeOptionButton *option(ModeChoice choice) const { return m_options.value(choice); }
    ModeInlineError *inlineError() const { return m_error; }

Q_SIGNALS:
    void choiceRequested(ModeChoice choice);

private:
    QMap<ModeChoice, ModeOptionButton *> m_options;
    QLabel *m_busy;
    QLabel *m_killSwitchHint;
    QLabel *m_unknown;
    ModeInlineError *m_error;
    bool m_highlighted = false;
};
