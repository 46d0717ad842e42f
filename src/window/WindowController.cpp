#include "WindowController.h"

#include "BidiText.h"
#include "Countries.h"
#include "DesktopColorScheme.h"
#include "GuiMemLog.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ThemeEngine.h"
#include "UpdateDialogHost.h"
#include "WindowIntents.h"

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
    , m_updateDialogs(new UpdateDialogHost(
          [this] {
              return ThemeEngine::buildColors(
                  ThemeEngine::resolveAppearance(appearancePreference(), m_desktopScheme->scheme()),
                  m_desktopScheme->contrast());
          },
          this))
    , m_urlOpener(openWithDesktop)
{
    // The window hides to the tray or quits on purpose; a released window that closes must
    // not end the program as the last window.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(m_desktopScheme, &DesktopColorScheme::changed, this, [this] {
        if (appearancePreference() == QLatin1String("system")) {
            m_updateDialogs->applyTheme();
        }
    });
    connect(m_desktopScheme, &DesktopColorScheme::contrastChanged, m_updateDialogs,
            &UpdateDialogHost::applyTheme);
    connect(m_updateDialogs, &UpdateDialogHost::downloadRequested, this,
            &WindowController::updateDownloadRequested);
    connect(m_updateDialogs, &UpdateDialogHost::cancelDownloadRequested, this,
            &WindowController::updateDownloadCancelRequested);
    connect(m_updateDialogs, &UpdateDialogHost::exitRequested, this,
            &WindowController::forceUpdateExitRequested);
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
    delete m_updateDialogs;
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
    m_replay.replayTo(window);
    // Only the current window stays connected here (a released one is cut off first), so a
    // destroyed window is always the one to forget.
    connect(window, &QObject::destroyed, this, [this] { m_window.clear(); });
    WindowIntents::forward(window, this);
    connect(window, &MainWindow::hiddenToTray, this, &WindowController::handleHiddenToTray);
    connect(window, &MainWindow::firstPainted, this, &WindowController::windowPainted);
    connect(window, &MainWindow::openExternalURLRequested, this,
            &WindowController::openExternalURL);
    connect(window, &MainWindow::appearancePreferenceChanged, m_updateDialogs,
            &UpdateDialogHost::applyTheme);
    connect(window, &MainWindow::pendingConnectTargetChanged, this,
            &WindowController::rememberAnnouncedTarget);
    return window;
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
    m_updateDialogs->returnWithWindow(window);
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
    m_updateDialogs->hideWithWindow();
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
        //: Shown when signing in or out failed without a reason. Word it as a user would understand
        //: it: "Could not complete the account action"
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
    m_updateDialogs->applyTheme();
}

void WindowController::setUpdateDialog(QWidget *dialog)
{
    m_updateDialogs->setThemedDialog(dialog);
}

UpdateDialog *WindowController::updateDialog()
{
    return m_updateDialogs->dialog();
}

void WindowController::showUpdateDialog()
{
    m_updateDialogs->show(m_window);
}

void WindowController::hideUpdateDialog()
{
    m_updateDialogs->hide();
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
