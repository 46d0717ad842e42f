#pragma once

#include "ModeInfo.h"
#include "WindowReplayState.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>

#include <functional>

class AppState;
class DesktopColorScheme;
class GuiPreferences;
class MainWindow;
class QWidget;
class UpdateDialog;
class UpdateDialogHost;

// Creates the main window when it is first needed, may let it go when it hides to the tray,
// and keeps every value the shell passed down so that a new window starts where the old one
// left off. The shell talks to this object only, never to the window.
class WindowController : public QObject
{
    Q_OBJECT

public:
    // Opens a URL with the desktop; returns false when nothing could open it.
    using UrlOpener = std::function<bool(const QUrl &)>;

    WindowController(AppState *state, GuiPreferences *preferences, QObject *parent = nullptr);
    ~WindowController() override;

    // The live window, or nullptr when none exists.
    MainWindow *window() const;
    int windowsCreated() const { return m_windowsCreated; }

    void setHideOnClose(bool hide);
    bool hideOnClose() const { return m_hideOnClose; }
    // Without a tray the window is the only way in, so closing it quits.
    void setSystemTrayAvailable(bool available);
    bool systemTrayAvailable() const { return m_systemTrayAvailable; }
    // Deletes the window when it hides to the tray; the next show builds a new one.
    void setReleaseOnHide(bool release);
    bool releaseOnHide() const { return m_releaseOnHide; }
    // An empty opener restores QDesktopServices::openUrl.
    void setUrlOpener(UrlOpener opener);

    const WindowReplayState &replayState() const { return m_replay; }

    void setModeOperationBusy(bool busy);
    void setSettingsOperationBusy(bool busy);
    void setSplitRulesFetchInProgress(bool inProgress);
    void setSplitRulesImportInProgress(bool inProgress);
    void setAccountOperationInProgress(bool inProgress);
    void setRenewalOpening(bool opening);
    // The account page's message line; kept so that a new window shows it too.
    void showAccountError(const QString &message);
    void clearAccountMessage();
    void setDaemonUnavailableReason(const QString &reason);
    // Marks the window as connecting (to the target, when there is one); false clears it.
    void setConnectInProgress(bool inProgress, const QString &targetId = QString(),
                              const QString &label = QString());
    // The label a page gave the target it is about to connect to, or empty for another one.
    QString announcedTargetLabel(const QString &targetId) const;
    // A line the Settings page shows beside a section (a failed load, a check's outcome), by
    // note key (SettingsNotes.h); an empty text removes it.
    void setSettingsNote(const QString &key, const QString &text);
    void setRepairResult(const RepairResultInfo &result);

    // Shown in the window when one exists; without a window there is nowhere to show them.
    void showOperationError(const QString &message);
    void showModeOperationError(const QString &message);
    void showSettingsOperationError(const QString &message);
    void showNotification(const QString &text, const QString &kind, int durationMs);
    void showSplitRulesResult(const QString &text, const QString &kind);

    void setAppearancePreference(const QString &preference);
    QString appearancePreference() const;

    // Each returns false on failure, after telling the user in the window.
    bool openExternalURL(const QUrl &url);
    bool openLogDirectory(const QString &path);

    // Themes the update dialog like the window, now and on every change of appearance.
    void setUpdateDialog(QWidget *dialog);
    // The update dialog, made on first use. It outlives every window, so a download's progress
    // survives the window closing; it hides with the window and comes back with it.
    UpdateDialog *updateDialog();
    void showUpdateDialog();
    // Hides it for good: it does not come back with the window.
    void hideUpdateDialog();

public Q_SLOTS:
    void showOrRaise();
    void showAccount();
    void showLocations();
    void showModePage();
    // The Mode page with the modes the kill switch can run in marked.
    void showModePageForKillSwitch();
    void activateFromApplication();

Q_SIGNALS:
    // A window's first picture is on screen.
    void windowPainted();
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void setModeRequested(ModeInfo mode);
    void splitRulesRequested();
    void importSplitRulesRequested(QString kind, QString content);
    void setLocalNetworkRequested(QString mode);
    void refreshLocationsRequested();
    void connectNodeRequested(QString nodeID, QString label);
    void recentConnectionsCleared();
    void connectSmartRequested(QString selector);
    void setNodeFavoriteRequested(QString nodeID, bool favorite);
    void openLogsRequested();
    void settingsVisibleRequested();
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(QString mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void modePageLeft();
    void setSystemProxyRequested(QString mode);
    void setAPIURLRequested(QString apiURL);
    void resetAPIURLRequested();
    void setAutoConnectRequested(QString value);
    void setLanguageRequested(QString source, QString language);
    void checkUpdateRequested();
    void updateDownloadRequested();
    void updateDownloadCancelRequested();
    void setProxyListenersRequested(QString socksAddress, QString httpAddress);
    void setSplitDNSLocalRequested(QStringList servers);
    void setSplitDNSPolicyRequested(QString policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    void loginRequested(QString username, QString password, bool rememberMe);
    void logoutRequested();
    void purchaseURLRequested(QString lang);
    void forceUpdateExitRequested();

private:
    MainWindow *ensureWindow();
    // Shows and raises the current window; the second half of showOrRaise.
    void finishShow();
    void showPageOfWindow(int index);
    bool effectiveHideOnClose() const;
    void handleHiddenToTray();
    void rememberAnnouncedTarget(const QString &targetId, const QString &label);
    void showErrorNotification(const QString &text);

    AppState *m_state;
    GuiPreferences *m_preferences;
    DesktopColorScheme *m_desktopScheme;
    QPointer<MainWindow> m_window;
    UpdateDialogHost *m_updateDialogs;
    UrlOpener m_urlOpener;
    int m_windowsCreated = 0;

    bool m_hideOnClose = true;
    bool m_systemTrayAvailable = true;
    bool m_releaseOnHide = false;
    // A show waits for the desktop's light or dark answer, so the window never flashes light.
    bool m_showPending = false;

    // Replayed to every new window.
    WindowReplayState m_replay;
    // What a page named the target it was about to connect to; only the shell reads it.
    QString m_announcedTargetId;
    QString m_announcedTargetLabel;
};
