#pragma once

#include "RepairResultInfo.h"
#include "ThemeColors.h"
#include "WindowPage.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <initializer_list>

class AccountPage;
class AppState;
class DelayedBusyIndicator;
class GuiPreferences;
class LocationsPage;
class MainWindow;
class ModePage;
class PageStack;
class SettingsPage;
class VpnPage;
class QWidget;

// The main window's five pages. The VPN page is built at once, the others on first need; a
// built page is themed, wired to the window's intent signals and drawn from the state store,
// which then keeps it current. What the shell hands down reaches the pages through here, and
// what a page built later must start with (busy states, split-rules progress) waits here.
class WindowPages : public QObject
{
    Q_OBJECT

public:
    // The page stack is made in container; the pages' intents leave as the window's signals.
    WindowPages(MainWindow *window, AppState *state, GuiPreferences *preferences,
                QWidget *container);

    PageStack *stack() const { return m_stack; }
    VpnPage *vpn() const { return m_vpn; }
    // Null until built.
    LocationsPage *locations() const { return m_locations; }
    ModePage *mode() const { return m_mode; }

    // Every built page, the catalogue and mode first: the VPN page's summary reads from them.
    void refreshAll();
    // Pages not built yet take the colours when they are.
    void applyTheme(const ThemeColors &colors);
    // A window about to be deleted stops following the store.
    void disconnectState();

    void setModeOperationBusy(bool busy);
    void setSettingsOperationBusy(bool busy);
    void setSplitRulesFetchInProgress(bool inProgress);
    void setSplitRulesImportInProgress(bool inProgress);
    bool splitRulesBusy() const { return m_splitRulesFetch || m_splitRulesImport; }
    // An answered or failed change leaves every Settings control on the daemon's value.
    void settleSettingsPage();
    void setSettingsNote(const QString &key, const QString &text);
    void setRepairResult(const RepairResultInfo &result);
    void showSplitRulesResult(const QString &text, const QString &kind);
    void highlightKillSwitchModes();
    void setAccountOperationInProgress(bool inProgress);
    void setRenewalOpening(bool opening);
    void showAccountError(const QString &message);
    void clearAccountMessage();
    void setDaemonUnavailableReason(const QString &reason);
    void setConnectInProgress(bool inProgress, const QString &targetId, const QString &label);

private:
    void wirePage(int index, QWidget *built);
    void connectAccountPage(AccountPage *page);
    // The page, built first if it was not yet.
    template<typename T>
    T *builtPage(int index);
    void connectState();
    void refreshReaders(WindowPage::Record record);
    void refreshPages(std::initializer_list<WindowPage *> pages);
    // The pages built so far, in the order they redraw.
    QList<WindowPage *> builtPages() const;
    QString linkLanguage() const;
    QUrl accountLink(const QString &path) const;

    MainWindow *m_window;
    QPointer<AppState> m_state;
    GuiPreferences *m_preferences;
    PageStack *m_stack = nullptr;
    VpnPage *m_vpn = nullptr;
    LocationsPage *m_locations = nullptr;
    ModePage *m_mode = nullptr;
    SettingsPage *m_settings = nullptr;
    AccountPage *m_account = nullptr;
    QString m_daemonUnavailableReason; // for the account page, kept until it is built

    DelayedBusyIndicator *m_modeBusy = nullptr;
    DelayedBusyIndicator *m_settingsBusy = nullptr;
    bool m_splitRulesFetch = false;
    bool m_splitRulesImport = false;
};
