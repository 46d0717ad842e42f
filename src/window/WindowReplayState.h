#pragma once

// What the shell passed down that a window created later must start with. The controller keeps
// one of these and replays it whole to each new window; add a field here, not a loose member.
struct WindowReplayState
{
    bool modeBusy = false;
    bool settingsBusy = false;
    bool splitRulesFetch = false;
    bool splitRulesImport = false;
    // The update dialog was on screen when the window hid; it comes back with the window.
    bool updateDialogShown = false;
};
