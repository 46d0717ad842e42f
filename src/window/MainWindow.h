#pragma once

#include "KeyboardShortcutsDialog.h"
#include "ModeInfo.h"
#include "RepairResultInfo.h"
#include "ThemeColors.h"
#include "WindowShortcuts.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>
#include <QUrl>

class AppState;
class DesktopColorScheme;
class GuiPreferences;
class NavigationSidebar;
class NotificationHost;
class QLabel;
class PageStack;
class WindowPages;

// The full interface beside the tray: a sidebar and five pages. It never talks to the daemon;
// every user action leaves as an intent signal and the pages redraw from the state store.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum Page {
        VpnPageIndex = 0,
        LocationsPageIndex,
        ModePageIndex,
        SettingsPageIndex,
        AccountPageIndex,
        PageCount
    };

    static constexpr int ErrorDurationMs = 5000;

    MainWindow(AppState *state, GuiPreferences *preferences, QWidget *parent = nullptr);
    ~MainWindow() override;

    void setHideOnClose(bool hide);
    bool hideOnClose() const { return m_hideOnClose; }
    // Also sets Qt::WA_DeleteOnClose, so an accepted close deletes the window.
    void setDeleteOnClose(bool remove);
    bool deleteOnClose() const { return m_deleteOnClose; }

    void setModeOperationBusy(bool busy);
    void setSettingsOperationBusy(bool busy);
    void setSplitRulesFetchInProgress(bool inProgress);
    void setSplitRulesImportInProgress(bool inProgress);
    void setSettingsNote(const QString &key, const QString &text);
    void setRepairResult(const RepairResultInfo &result);

    void showOperationError(const QString &message);
    void showModeOperationError(const QString &message);
    void showSettingsOperationError(const QString &message);
    void showNotification(const QString &text, const QString &kind, int durationMs);
    // The shell's word on a split rules import, for the Mode page's rule editor.
    void showSplitRulesResult(const QString &text, const QString &kind);
    // The Mode page marks the modes the kill switch can run in.
    void highlightKillSwitchModes();

    // The account page's sign-in/out and renewal state and its message line.
    void setAccountOperationInProgress(bool inProgress);
    void setRenewalOpening(bool opening);
    void showAccountError(const QString &message);
    void clearAccountMessage();
    // Empty while the daemon answers; else its words, shown where an action needs it.
    void setDaemonUnavailableReason(const QString &reason);
    // A connect the shell accepted, with its target (both may be empty), until its answer.
    void setConnectInProgress(bool inProgress, const QString &targetId, const QString &label);

    // "light" and "dark" are kept, anything else means "system".
    static QString normalizedAppearance(const QString &preference);
    void setAppearancePreference(const QString &preference);
    QString appearancePreference() const { return m_appearance; }
    Appearance effectiveAppearance() const;
    // The colours of that appearance, in the desktop's contrast.
    ThemeColors themeColors() const;

    int currentPage() const;
    bool hasUnifiedTitleBar() const { return m_unifiedTitleBar; }
    // The list of keyboard shortcuts (F1): opened, or brought forward when open.
    void showKeyboardShortcuts();
    KeyboardShortcutsDialog *keyboardShortcutsDialog() const { return m_shortcutsDialog; }

public Q_SLOTS:
    void refreshFromState();
    void showPage(int index);

Q_SIGNALS:
    // Once per window, a turn after its first picture reached the screen.
    void firstPainted();
    void hiddenToTray();
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
    void pendingConnectTargetChanged(QString nodeID, QString label);
    void setNodeFavoriteRequested(QString nodeID, bool favorite);
    void openLogsRequested();
    void openExternalURLRequested(QUrl url);
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
    void setProxyListenersRequested(QString socksAddress, QString httpAddress);
    void setSplitDNSLocalRequested(QStringList servers);
    void setSplitDNSPolicyRequested(QString policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    void loginRequested(QString username, QString password, bool rememberMe);
    void logoutRequested();
    void purchaseURLRequested(QString lang);
    void appearancePreferenceChanged();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildContentColumn(QWidget *root);
    void applyTheme();
    void applyPageColors(const ThemeColors &colors);
    void applyTitleBarHooks();
    bool inUnifiedTitleBar(const QMouseEvent *event) const;
    void placeNotificationHost();
    void showError(const QString &message, const QString &fallback);
    void handleShortcut(WindowShortcuts::Id id);

    QPointer<AppState> m_state;
    GuiPreferences *m_preferences;
    QString m_appearance = QStringLiteral("system");
    DesktopColorScheme *m_desktopScheme = nullptr;

    NavigationSidebar *m_sidebar = nullptr;
    QWidget *m_content = nullptr;
    QLabel *m_pageTitle = nullptr;
    PageStack *m_stack = nullptr;
    WindowPages *m_pages = nullptr;
    NotificationHost *m_notifications = nullptr;
    QPointer<KeyboardShortcutsDialog> m_shortcutsDialog;

    bool m_hideOnClose = true;
    bool m_deleteOnClose = false;
    bool m_unifiedTitleBar = false;
    bool m_painted = false;
};
