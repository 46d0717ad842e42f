#include "WindowController.h"

#include "BidiText.h"
#include "Countries.h"
#include "DesktopColorScheme.h"
#include "GuiMemLog.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ThemeEngine.h"
#include "UpdateDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QTimer>

namespace {

// How long a first show waits for the desktop portal before showing in the light theme.
constexpr int kSchemeWaitMs = 250;

bool openWithDesktop(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

} // namespace

WindowController::WindowController(AppState *state, GuiPreferences *preferences, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_desktopScheme(new DesktopColorScheme(this))
    , m_urlOpener(openWithDesktop)
{
    // The window hides to the tray or quits on purpose; a released window that closes must
    // not end the program as the last window.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(m_desktopScheme, &DesktopColorScheme::changed, this, [this] {
        if (appearancePreference() == QLatin1String("system")) {
            applyUpdateDialogTheme();
        }
    });
    connect(m_desktopScheme, &DesktopColorScheme::settled, this, [this] {
        if (m_showPending) {
            finishShow();
        }
    });
}

WindowController::~WindowController()
{
    delete m_window.data();
    // The flags were drawn for the window; the tray shows none.
    clearFlagCache();
    delete m_ownUpdateDialog.data();
}

MainWindow *WindowController::window() const
{
    return m_window.data();
}

MainWindow *WindowController::ensureWindow()
{
    if (m_window) {
        return m_window;
    }
    auto *window = new MainWindow(m_state, m_preferences);
    m_window = window;
    ++m_windowsCreated;
    window->setHideOnClose(effectiveHideOnClose());
    window->setDeleteOnClose(m_releaseOnHide);
    replayTo(window);
    // Only the current window stays connected here (a released one is cut off first), so a
    // destroyed window is always the one to forget.
    connect(window, &QObject::destroyed, this, [this] { m_window.clear(); });
    forwardIntents(window);
    connect(window, &MainWindow::hiddenToTray, this, &WindowController::handleHiddenToTray);
    connect(window, &MainWindow::openExternalURLRequested, this,
            &WindowController::openExternalURL);
    connect(window, &MainWindow::appearancePreferenceChanged, this,
            &WindowController::applyUpdateDialogTheme);
    connect(window, &MainWindow::pendingConnectTargetChanged, this,
            &WindowController::rememberAnnouncedTarget);
    return window;
}

void WindowController::replayTo(MainWindow *window) const
{
    window->setModeOperationBusy(m_replay.modeBusy);
    window->setSettingsOperationBusy(m_replay.settingsBusy);
    window->setSplitRulesFetchInProgress(m_replay.splitRulesFetch);
    window->setSplitRulesImportInProgress(m_replay.splitRulesImport);
    window->setAccountOperationInProgress(m_replay.accountBusy);
    window->setRenewalOpening(m_replay.renewalOpening);
    if (!m_replay.accountError.isEmpty())
        window->showAccountError(m_replay.accountError);
    window->setDaemonUnavailableReason(m_replay.daemonUnavailableReason);
    window->setConnectInProgress(m_replay.connecting, m_replay.connectTargetId,
                                 m_replay.connectTargetLabel);
    for (auto note = m_replay.settingsNotes.cbegin(); note != m_replay.settingsNotes.cend();
         ++note) {
        window->setSettingsNote(note.key(), note.value());
    }
    window->setRepairResult(m_replay.repairResult);
}

void WindowController::forwardIntents(MainWindow *window)
{
    connect(window, &MainWindow::connectRuntimeRequested, this,
            &WindowController::connectRuntimeRequested);
    connect(window, &MainWindow::cancelConnectRequested, this,
            &WindowController::cancelConnectRequested);
    connect(window, &MainWindow::disconnectRuntimeRequested, this,
            &WindowController::disconnectRuntimeRequested);
    connect(window, &MainWindow::setModeRequested, this, &WindowController::setModeRequested);
    connect(window, &MainWindow::splitRulesRequested, this, &WindowController::splitRulesRequested);
    connect(window, &MainWindow::importSplitRulesRequested, this,
            &WindowController::importSplitRulesRequested);
    connect(window, &MainWindow::setLocalNetworkRequested, this,
            &WindowController::setLocalNetworkRequested);
    connect(window, &MainWindow::refreshLocationsRequested, this,
            &WindowController::refreshLocationsRequested);
    connect(window, &MainWindow::connectNodeRequested, this,
            &WindowController::connectNodeRequested);
    connect(window, &MainWindow::recentConnectionsCleared, this,
            &WindowController::recentConnectionsCleared);
    connect(window, &MainWindow::connectSmartRequested, this,
            &WindowController::connectSmartRequested);
    connect(window, &MainWindow::setNodeFavoriteRequested, this,
            &WindowController::setNodeFavoriteRequested);
    connect(window, &MainWindow::openLogsRequested, this, &WindowController::openLogsRequested);
    connect(window, &MainWindow::settingsVisibleRequested, this,
            &WindowController::settingsVisibleRequested);
    connect(window, &MainWindow::setKillSwitchEnabledRequested, this,
            &WindowController::setKillSwitchEnabledRequested);
    connect(window, &MainWindow::setKillSwitchModeRequested, this,
            &WindowController::setKillSwitchModeRequested);
    connect(window, &MainWindow::switchToAutoAndEnableKillSwitchRequested, this,
            &WindowController::switchToAutoAndEnableKillSwitchRequested);
    connect(window, &MainWindow::chooseModeForKillSwitchRequested, this,
            &WindowController::chooseModeForKillSwitchRequested);
    connect(window, &MainWindow::modePageLeft, this, &WindowController::modePageLeft);
    connect(window, &MainWindow::setSystemProxyRequested, this,
            &WindowController::setSystemProxyRequested);
    connect(window, &MainWindow::setAPIURLRequested, this, &WindowController::setAPIURLRequested);
    connect(window, &MainWindow::resetAPIURLRequested, this,
            &WindowController::resetAPIURLRequested);
    connect(window, &MainWindow::setAutoConnectRequested, this,
            &WindowController::setAutoConnectRequested);
    connect(window, &MainWindow::setLanguageRequested, this,
            &WindowController::setLanguageRequested);
    connect(window, &MainWindow::checkUpdateRequested, this,
            &WindowController::checkUpdateRequested);
    connect(window, &MainWindow::setProxyListenersRequested, this,
            &WindowController::setProxyListenersRequested);
    connect(window, &MainWindow::setSplitDNSLocalRequested, this,
            &WindowController::setSplitDNSLocalRequested);
    connect(window, &MainWindow::setSplitDNSPolicyRequested, this,
            &WindowController::setSplitDNSPolicyRequested);
    connect(window, &MainWindow::clearSplitDNSLocalRequested, this,
            &WindowController::clearSplitDNSLocalRequested);
    connect(window, &MainWindow::resetSplitDNSRequested, this,
            &WindowController::resetSplitDNSRequested);
    connect(window, &MainWindow::repairDiagnosticsRequested, this,
            &WindowController::repairDiagnosticsRequested);
    connect(window, &MainWindow::loginRequested, this, &WindowController::loginRequested);
    connect(window, &MainWindow::logoutRequested, this, &WindowController::logoutRequested);
    connect(window, &MainWindow::purchaseURLRequested, this,
            &WindowController::purchaseURLRequested);
}

void WindowController::showOrRaise()
{
    ensureWindow();
    if (!m_desktopScheme->isSettled() && appearancePreference() == QLatin1String("system")) {
        // The window re-themes itself when the answer arrives, before it is first painted.
        if (!m_showPending) {
            m_showPending = true;
            QTimer::singleShot(kSchemeWaitMs, this, [this] {
                if (m_showPending) {
                    finishShow();
                }
            });
        }
        return;
    }
    finishShow();
}

void WindowController::finishShow()
{
    m_showPending = false;
    MainWindow *window = m_window;
    if (!window) {
        return;
    }
    if (window->isMinimized()) {
        window->showNormal();
    } else {
        window->show();
    }
    window->raise();
    window->activateWindow();
    if (m_replay.updateDialogShown) {
        m_replay.updateDialogShown = false;
        showUpdateDialog();
    }
}

void WindowController::showPageOfWindow(int index)
{
    showOrRaise();
    m_window->showPage(index);
}

void WindowController::showAccount()
{
    showPageOfWindow(MainWindow::AccountPageIndex);
}

void WindowController::showLocations()
{
    showPageOfWindow(MainWindow::LocationsPageIndex);
}

void WindowController::showModePage()
{
    showPageOfWindow(MainWindow::ModePageIndex);
}

void WindowController::showModePageForKillSwitch()
{
    showModePage();
    m_window->highlightKillSwitchModes();
}

void WindowController::activateFromApplication()
{
    showOrRaise();
}

bool WindowController::effectiveHideOnClose() const
{
    return m_hideOnClose && m_systemTrayAvailable;
}

void WindowController::setHideOnClose(bool hide)
{
    m_hideOnClose = hide;
    if (m_window) {
        m_window->setHideOnClose(effectiveHideOnClose());
    }
}

void WindowController::setSystemTrayAvailable(bool available)
{
    m_systemTrayAvailable = available;
    if (m_window) {
        m_window->setHideOnClose(effectiveHideOnClose());
    }
}

void WindowController::setReleaseOnHide(bool release)
{
    m_releaseOnHide = release;
    if (m_window) {
        m_window->setDeleteOnClose(release);
    }
}

void WindowController::setUrlOpener(UrlOpener opener)
{
    m_urlOpener = opener ? std::move(opener) : UrlOpener(openWithDesktop);
}

void WindowController::handleHiddenToTray()
{
    if (m_ownUpdateDialog && m_ownUpdateDialog->isVisible()) {
        m_ownUpdateDialog->hide();
        m_replay.updateDialogShown = true;
    }
    if (!m_releaseOnHide) {
        return;
    }
    guiMemLog(QStringLiteral("MainWindow QPointer cleared on hide-to-tray (created=%1)")
                  .arg(m_windowsCreated));
    // The window deletes itself once its close event is accepted.
    disconnect(m_window, &QObject::destroyed, this, nullptr);
    m_window.clear();
}

void WindowController::setModeOperationBusy(bool busy)
{
    m_replay.modeBusy = busy;
    if (m_window) {
        m_window->setModeOperationBusy(busy);
    }
}

void WindowController::setSettingsOperationBusy(bool busy)
{
    m_replay.settingsBusy = busy;
    if (m_window) {
        m_window->setSettingsOperationBusy(busy);
    }
}

void WindowController::setSettingsNote(const QString &key, const QString &text)
{
    if (text.isEmpty()) {
        m_replay.settingsNotes.remove(key);
    } else {
        m_replay.settingsNotes.insert(key, text);
    }
    if (m_window) {
        m_window->setSettingsNote(key, text);
    }
}

void WindowController::setRepairResult(const RepairResultInfo &result)
{
    m_replay.repairResult = result;
    if (m_window) {
        m_window->setRepairResult(result);
    }
}

void WindowController::setSplitRulesFetchInProgress(bool inProgress)
{
    m_replay.splitRulesFetch = inProgress;
    if (m_window) {
        m_window->setSplitRulesFetchInProgress(inProgress);
    }
}

void WindowController::setSplitRulesImportInProgress(bool inProgress)
{
    m_replay.splitRulesImport = inProgress;
    if (m_window) {
        m_window->setSplitRulesImportInProgress(inProgress);
    }
}

void WindowController::setAccountOperationInProgress(bool inProgress)
{
    m_replay.accountBusy = inProgress;
    if (m_window)
        m_window->setAccountOperationInProgress(inProgress);
}

void WindowController::setRenewalOpening(bool opening)
{
    m_replay.renewalOpening = opening;
    if (m_window)
        m_window->setRenewalOpening(opening);
}

void WindowController::showAccountError(const QString &message)
{
    m_replay.accountError =
        message.trimmed().isEmpty() ? tr("Account operation failed") : message.trimmed();
    if (m_window)
        m_window->showAccountError(m_replay.accountError);
}

void WindowController::clearAccountMessage()
{
    m_replay.accountError.clear();
    if (m_window)
        m_window->clearAccountMessage();
}

void WindowController::setDaemonUnavailableReason(const QString &reason)
{
    m_replay.daemonUnavailableReason = reason.trimmed();
    if (m_window)
        m_window->setDaemonUnavailableReason(m_replay.daemonUnavailableReason);
}

void WindowController::setConnectInProgress(bool inProgress, const QString &targetId,
                                            const QString &label)
{
    m_replay.connecting = inProgress;
    m_replay.connectTargetId = inProgress ? targetId : QString();
    m_replay.connectTargetLabel = inProgress ? label : QString();
    if (!inProgress) {
        m_announcedTargetId.clear();
        m_announcedTargetLabel.clear();
    }
    if (m_window)
        m_window->setConnectInProgress(inProgress, m_replay.connectTargetId,
                                       m_replay.connectTargetLabel);
}

void WindowController::rememberAnnouncedTarget(const QString &targetId, const QString &label)
{
    m_announcedTargetId = targetId.trimmed();
    m_announcedTargetLabel = label.trimmed();
}

QString WindowController::announcedTargetLabel(const QString &targetId) const
{
    const QString id = targetId.trimmed();
    return !id.isEmpty() && id == m_announcedTargetId ? m_announcedTargetLabel : QString();
}

void WindowController::showOperationError(const QString &message)
{
    if (m_window) {
        m_window->showOperationError(message);
    }
}

void WindowController::showModeOperationError(const QString &message)
{
    if (m_window) {
        m_window->showModeOperationError(message);
    }
}

void WindowController::showSettingsOperationError(const QString &message)
{
    if (m_window) {
        m_window->showSettingsOperationError(message);
    }
}

void WindowController::showNotification(const QString &text, const QString &kind, int durationMs)
{
    if (m_window) {
        m_window->showNotification(text, kind, durationMs);
    }
}

void WindowController::showSplitRulesResult(const QString &text, const QString &kind)
{
    if (m_window) {
        m_window->showSplitRulesResult(text, kind);
    }
}

void WindowController::showErrorNotification(const QString &text)
{
    showNotification(text, QStringLiteral("error"), MainWindow::ErrorDurationMs);
}

QString WindowController::appearancePreference() const
{
    if (m_window) {
        return m_window->appearancePreference();
    }
    return MainWindow::normalizedAppearance(m_preferences ? m_preferences->appearance()
                                                          : QString());
}

void WindowController::setAppearancePreference(const QString &preference)
{
    if (m_window) {
        // The window stores it and tells us through appearancePreferenceChanged.
        m_window->setAppearancePreference(preference);
        return;
    }
    const QString value = MainWindow::normalizedAppearance(preference);
    if (value == appearancePreference()) {
        return;
    }
    if (m_preferences) {
        m_preferences->setAppearance(value);
    }
    applyUpdateDialogTheme();
}

void WindowController::setUpdateDialog(QWidget *dialog)
{
    m_updateDialog = dialog;
    applyUpdateDialogTheme();
}

UpdateDialog *WindowController::updateDialog()
{
    if (m_ownUpdateDialog) {
        return m_ownUpdateDialog;
    }
    // No parent: a window that is released on hide must not take the dialog with it.
    auto *dialog = new UpdateDialog;
    m_ownUpdateDialog = dialog;
    connect(dialog, &UpdateDialog::downloadRequested, this,
            &WindowController::updateDownloadRequested);
    connect(dialog, &UpdateDialog::cancelDownloadRequested, this,
            &WindowController::updateDownloadCancelRequested);
    connect(dialog, &UpdateDialog::exitRequested, this,
            &WindowController::forceUpdateExitRequested);
    setUpdateDialog(dialog);
    return dialog;
}

void WindowController::showUpdateDialog()
{
    UpdateDialog *dialog = updateDialog();
    m_replay.updateDialogShown = false;
    if (!dialog->isVisible() && m_window && m_window->isVisible()) {
        // It has no parent to be placed by: open it over the window.
        dialog->adjustSize();
        dialog->move(m_window->frameGeometry().center() - dialog->rect().center());
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void WindowController::hideUpdateDialog()
{
    m_replay.updateDialogShown = false;
    if (m_ownUpdateDialog) {
        m_ownUpdateDialog->hide();
    }
}

void WindowController::applyUpdateDialogTheme()
{
    if (!m_updateDialog) {
        return;
    }
    const Appearance appearance =
        ThemeEngine::resolveAppearance(appearancePreference(), m_desktopScheme->scheme());
    ThemeEngine::applyToWindow(m_updateDialog, ThemeEngine::buildColors(appearance));
}

bool WindowController::openExternalURL(const QUrl &url)
{
    if (url.isValid() && m_urlOpener(url)) {
        return true;
    }
    showErrorNotification(tr("Could not open link"));
    return false;
}

bool WindowController::openLogDirectory(const QString &path)
{
    if (path.trimmed().isEmpty()) {
        showErrorNotification(tr("Log directory is unavailable"));
        return false;
    }
    if (!QFileInfo::exists(path)) {
        showErrorNotification(tr("Log directory does not exist: %1").arg(isolated(path)));
        return false;
    }
    if (!m_urlOpener(QUrl::fromLocalFile(path))) {
        showErrorNotification(tr("Could not open log directory: %1").arg(isolated(path)));
        return false;
    }
    return true;
}
