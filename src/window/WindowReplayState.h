#pragma once

#include "RepairResultInfo.h"

#include <QMap>
#include <QString>

class MainWindow;

// What the shell passed down that a window created later must start with. The controller keeps
// one of these and replays it whole to each new window; add a field here, and to replayTo, not
// a loose member.
struct WindowReplayState
{
    bool modeBusy = false;
    bool settingsBusy = false;
    bool splitRulesFetch = false;
    bool splitRulesImport = false;
    bool accountBusy = false;
    bool renewalOpening = false;
    // The account page's message line; empty when cleared.
    QString accountError;
    QString daemonUnavailableReason;
    bool connecting = false;
    QString connectTargetId;
    QString connectTargetLabel;
    // Lines the Settings page shows beside its sections, by note key (SettingsNotes.h).
    QMap<QString, QString> settingsNotes;
    RepairResultInfo repairResult;

    // Hands every value to a new window.
    void replayTo(MainWindow *window) const;
};
