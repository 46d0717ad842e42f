#pragma once

#include "RoutingMode.h"

#include <QFrame>

class ModeInlineError;
class ModeSegmentedBar;
class QLabel;
class QPushButton;
class ToggleSwitch;

// The options of the split mode in effect: default route, regions, GFWList and custom rules.
// Each change is a whole mode record rebuilt from the current one with one field changed.
class SplitOptionsCard : public QFrame
{
    Q_OBJECT

public:
    explicit SplitOptionsCard(QWidget *parent = nullptr);

    // ruleCount: the custom rules the daemon holds, -1 while unknown.
    void refresh(const ModeInfo &mode, int ruleCount);
    // False when no split mode is in effect and the card only explains where the options are.
    bool hasFamily() const { return m_hasFamily; }
    SplitFamily family() const { return m_family; }
    // The profile the options read: the family's, as it is in effect.
    SplitProfileInfo profile() const;
    // The regions the picker edits: the ones that leave the default route.
    QStringList regions() const;
    bool regionsGoDirect() const;
    void setControlsEnabled(bool enabled);

    ModeSegmentedBar *defaultRouteBar() const { return m_route; }
    ToggleSwitch *gfwListSwitch() const { return m_gfwList; }
    ToggleSwitch *customRulesSwitch() const { return m_customRules; }
    QPushButton *chooseRegionsButton() const { return m_chooseRegions; }
    QPushButton *editRulesButton() const { return m_editRules; }
    ModeInlineError *inlineError() const { return m_error; }

Q_SIGNALS:
    void setModeRequested(ModeInfo mode);
    void chooseRegionsRequested();
    void editRulesRequested();

private:
    QWidget *buildOptions();
    QWidget *row(QWidget *parent, QLabel *title, QLabel *detail, QWidget *control,
                 QWidget *extra = nullptr);

    ModeInfo m_mode;
    SplitFamily m_family = SplitFamily::Tunnel;
    bool m_hasFamily = false;

    QLabel *m_title;
    // Only one shows: the options, or the note on where they come from.
    QLabel *m_none;
    QWidget *m_options = nullptr;
    ModeSegmentedBar *m_route = nullptr;
    QLabel *m_routeDetail = nullptr;
    QLabel *m_regionsDetail = nullptr;
    QPushButton *m_chooseRegions = nullptr;
    QLabel *m_gfwListTitle = nullptr;
    QLabel *m_gfwListDetail = nullptr;
    ToggleSwitch *m_gfwList = nullptr;
    QLabel *m_customRulesDetail = nullptr;
    ToggleSwitch *m_customRules = nullptr;
    QPushButton *m_editRules = nullptr;
    ModeInlineError *m_error;
};
