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

    // Shown in the window when one exists; without a window there is nowhere to show them.
    void showOperationError(const QString &message);
    void showModeOperationError(const QString &message);
    void showSettingsOperationError(const QString &message);
    void showNotification(const QString &text, const QString &kind, int durationMs);

    void setAppearancePreference(const QString &preference);
    QString appearancePreference() const;

    // Each returns false on failure, after telling the user in the window.
    bool openExternalURL(const QUrl &url);
    bool openLogDirectory(const QString &path);

    // Themes the update dialog like the window, now and on every change of appearance.
    void setUpdateDialog(QWidget *dialog);

public Q_SLOTS:
    void showOrRaise();
    void showAccount();
    void showLocations();
    void showModePage();
    void activateFromApplication();

Q_SIGNALS:
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
    void replayTo(MainWindow *window) const;
    void forwardIntents(MainWindow *window);
    void showPageOfWindow(int index);
    bool effectiveHideOnClose() const;
    void handleHiddenToTray();
    void applyUpdateDialogTheme();
    void showErrorNotification(const QString &text);

    AppState *m_state;
    GuiPreferences *m_preferences;
    DesktopColorScheme *m_desktopScheme;
    QPointer<MainWindow> m_window;
    QPointer<QWidget> m_updateDialog;
    UrlOpener m_urlOpener;
    int m_windowsCreated = 0;

    bool m_hideOnClose = true;
    bool m_systemTrayAvailable = true;
    bool m_releaseOnHide = false;

    // Replayed to every new window.
    WindowReplayState m_replay;
};
