#include "WindowReplayState.h"

#include "MainWindow.h"

void WindowReplayState::replayTo(MainWindow *window) const
{
    window->setModeOperationBusy(modeBusy);
    window->setSettingsOperationBusy(settingsBusy);
    window->setSplitRulesFetchInProgress(splitRulesFetch);
    window->setSplitRulesImportInProgress(splitRulesImport);
    window->setAccountOperationInProgress(accountBusy);
    window->setRenewalOpening(renewalOpening);
    if (!accountError.isEmpty())
        window->showAccountError(accountError);
    window->setDaemonUnavailableReason(daemonUnavailableReason);
    window->setConnectInProgress(connecting, connectTargetId, connectTargetLabel);
    for (auto note = settingsNotes.cbegin(); note != settingsNotes.cend(); ++note) {
        window->setSettingsNote(note.key(), note.value());
    }
    window->setRepairResult(repairResult);
}
