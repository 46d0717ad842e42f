#pragma once

#include "KillSwitchInfo.h"
#include "TrayMenu.h"
#include "TrayStatusFormatter.h"

#include <QIcon>
#include <QString>

class AppState;
class TrayIcon;
class TrayModeActions;
class TrayNodeLoader;
class TrayNodeMenuModel;
class TrayOperations;

// Draws the menu's lines, check marks and enabled states and the icon from the records and
// from what the tray knows beyond them; it sends nothing.
class TrayMenuPainter
{
public:
    // What the tray knows beyond the records.
    struct Situation
    {
        // The shell lets the daemon be used.
        bool available = true;
        // The last status answer was an error.
        bool unreachable = false;
        TrayStatusFormatter::UserLookup userLookup = TrayStatusFormatter::UserLookup::Pending;
    };

    TrayMenuPainter(AppState *state, const TrayMenu &menu, TrayIcon *icon,
                    TrayModeActions *modeActions, TrayNodeMenuModel *nodeModel,
                    TrayNodeLoader *nodeLoader, const TrayOperations *operations);

    // The icon and tooltip before the first status.
    void drawIdleIcon();
    // Everything but the node entries, from a status the daemon answered.
    void draw(const Situation &situation);
    void drawUnavailable(const QString &errorMessage, const Situation &situation);
    void updateEnabledStates(const Situation &situation);
    void updateRefreshNodesEntry(const Situation &situation);
    void updateKillSwitchEntry();

    // The kill-switch record of its own request when there is one, else the status's.
    const KillSwitchInfo &killSwitchRecord() const;

private:
    bool isBusy(const Situation &situation) const;
    void updateStatusLine();
    void updateConnectEntry(const Situation &situation);
    const QIcon &stateIcon(bool connected);

    AppState *m_state;
    TrayMenu m_menu;
    TrayIcon *m_icon;
    TrayModeActions *m_modeActions;
    TrayNodeMenuModel *m_nodeModel;
    TrayNodeLoader *m_nodeLoader;
    const TrayOperations *m_operations;
    // Loaded once, when first shown; the icon flips between them on every status change.
    QIcon m_iconOn;
    QIcon m_iconOff;
};
