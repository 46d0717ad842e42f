#include "MainWindow.h"

#include "AppState.h"
#include "DesktopColorScheme.h"
#include "GuiMemLog.h"
#include "GuiPreferences.h"
#include "GuiTextLog.h"
#include "KeyboardShortcutsDialog.h"
#include "LayoutAlignedLabels.h"
#include "LocationsPage.h"
#include "ModePage.h"
#include "NavigationSidebar.h"
#include "NotificationHost.h"
#include "PageStack.h"
#include "PixelRatioWatch.h"
#include "ThemeEngine.h"
#include "UnifiedTitleBar.h"
#include "VpnPage.h"
#include "WindowCloseAccessible.h"
#include "WindowPages.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

const QString kErrorKind = QStringLiteral("error");

} // namespace

MainWindow::MainWindow(AppState *state, GuiPreferences *preferences, QWidget *parent)
    : QMainWindow(parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_desktopScheme(new DesktopColorScheme(this))
{
    if (m_preferences) {
        m_appearance = normalizedAppearance(m_preferences->appearance());
    }

    setWindowTitle(tr("Tovra"));
    setMinimumSize(780, 620);
    // Every label starts where the layout starts, whatever its text's own direction.
    LayoutAlignedLabels::install();
    // Themed before the pages exist: each widget inherits the palette and is polished once,
    // with the sheet, instead of being restyled after construction.
    const ThemeColors colors = themeColors();
    setPalette(ThemeEngine::buildPalette(colors));
    // Polished first: a sheet set on a window not yet polished is read again when it is.
    ensurePolished();
    setStyleSheet(ThemeEngine::renderStyleSheet(colors, layoutDirection()));

    auto *closeAction = new QAction(this);
    closeAction->setObjectName(QStringLiteral("TovraCloseWindowAction"));
    closeAction->setShortcut(QKeySequence::Close);
    closeAction->setShortcutContext(Qt::WindowShortcut);
    addAction(closeAction);
    // Through close(), so the key behaves exactly like the title bar's close button.
    connect(closeAction, &QAction::triggered, this, &QWidget::close);
    connect(new WindowShortcuts(this), &WindowShortcuts::triggered, this,
            &MainWindow::handleShortcut);
    WindowCloseAccessible::installFactory();

    auto *root = new QWidget(this);
    root->setObjectName(QStringLiteral("TovraWindowRoot"));
    auto *rootLayout = new QHBoxLayout(root);
    rootLayout->setContentsMargins(0, 0, 0, 0);
    rootLayout->setSpacing(0);

    m_sidebar = new NavigationSidebar(root);
    connect(m_sidebar, &NavigationSidebar::pageRequested, this, &MainWindow::showPage);
    auto *divider = new QFrame(root);
    divider->setObjectName(QStringLiteral("TovraSidebarDivider"));
    divider->setFixedWidth(1);
    divider->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

    rootLayout->addWidget(m_sidebar);
    rootLayout->addWidget(divider);
    rootLayout->addWidget(buildContentColumn(root), 1);
    setCentralWidget(root);

    applyTitleBarHooks();

    m_notifications = new NotificationHost(m_content);
    m_notifications->hide();

    connect(m_desktopScheme, &DesktopColorScheme::changed, this, [this] {
        // Only the "system" preference follows the desktop.
        if (m_appearance == QLatin1String("system")) {
            applyTheme();
        }
    });
    // Contrast is the desktop's to ask for, whatever the light or dark choice.
    connect(m_desktopScheme, &DesktopColorScheme::contrastChanged, this, &MainWindow::applyTheme);

    applyPageColors(colors);
    // Icons are rendered for one pixel ratio: again on a screen of another.
    connect(new PixelRatioWatch(this), &PixelRatioWatch::changed, this,
            [this] { applyPageColors(themeColors()); });
    showPage(VpnPageIndex);
    refreshFromState();
}

MainWindow::~MainWindow()
{
    guiMemLog(QStringLiteral("MainWindow destroyed"));
}

QWidget *MainWindow::buildContentColumn(QWidget *root)
{
    m_content = new QWidget(root);
    auto *column = new QVBoxLayout(m_content);
    column->setContentsMargins(32, 28, 32, 28);
    column->setSpacing(18);

    m_pageTitle = new QLabel(tr("VPN"), m_content);
    m_pageTitle->setObjectName(QStringLiteral("TovraCurrentPageTitle"));
    column->addWidget(m_pageTitle);

    m_pages = new WindowPages(this, m_state, m_preferences, m_content);
    m_stack = m_pages->stack();
    column->addWidget(m_stack, 1);
    return m_content;
}

void MainWindow::refreshFromState()
{
    m_pages->refreshAll();
}

int MainWindow::currentPage() const
{
    return m_stack ? m_stack->currentIndex() : -1;
}

void MainWindow::showPage(int index)
{
    if (!m_stack || index < 0 || index >= m_stack->count()) {
        return;
    }
    const int previous = m_stack->currentIndex();
    m_stack->page(index);
    m_stack->setCurrentIndex(index);

    if (previous == VpnPageIndex && index != VpnPageIndex) {
        m_pages->vpn()->closeQuickEntryPopup();
    } else if (previous == ModePageIndex && index != ModePageIndex) {
        Q_EMIT modePageLeft();
    }

    m_sidebar->setCurrentIndex(index);
    m_pageTitle->setText(m_sidebar->entryText(index));
    guiTextLog("window.page", m_pageTitle->text());
    // The VPN page carries its own status heading.
    m_pageTitle->setVisible(index != VpnPageIndex);

    switch (index) {
    case SettingsPageIndex:
        Q_EMIT settingsVisibleRequested();
        return;
    case ModePageIndex:
        if (m_state && m_state->splitRules().rules.isEmpty() && !m_pages->splitRulesBusy()) {
            Q_EMIT splitRulesRequested();
        }
        return;
    case LocationsPageIndex:
        m_pages->locations()->pageShown();
        return;
    default:
        return;
    }
}

void MainWindow::handleShortcut(WindowShortcuts::Id id)
{
    using Id = WindowShortcuts::Id;
    if (const int page = WindowShortcuts::pageOf(id); page >= 0) {
        showPage(page);
        return;
    }
    switch (id) {
    case Id::Find:
        // Pages without a search of their own leave the key alone.
        if (currentPage() == VpnPageIndex)
            m_pages->vpn()->focusSearch();
        else if (currentPage() == LocationsPageIndex)
            m_pages->locations()->focusSearch();
        return;
    case Id::RefreshLocations:
        // Like the page's refresh button, which waits out its cooldown.
        if (m_state && m_state->nodesRefreshCooldown() == 0)
            Q_EMIT refreshLocationsRequested();
        return;
    case Id::Quit:
        // exit(), not quit(): a window that hides to the tray would refuse quit()'s close.
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        return;
    case Id::ShowShortcuts:
        showKeyboardShortcuts();
        return;
    default:
        return;
    }
}

void MainWindow::showKeyboardShortcuts()
{
    if (!m_shortcutsDialog) {
        m_shortcutsDialog = new KeyboardShortcutsDialog(this);
        m_shortcutsDialog->setAttribute(Qt::WA_DeleteOnClose);
        ThemeEngine::applyToWindow(m_shortcutsDialog, themeColors());
    }
    m_shortcutsDialog->show();
    m_shortcutsDialog->raise();
    m_shortcutsDialog->activateWindow();
}

void MainWindow::setHideOnClose(bool hide)
{
    m_hideOnClose = hide;
}

void MainWindow::setDeleteOnClose(bool remove)
{
    m_deleteOnClose = remove;
    setAttribute(Qt::WA_DeleteOnClose, remove);
}

void MainWindow::setModeOperationBusy(bool busy)
{
    m_pages->setModeOperationBusy(busy);
}

void MainWindow::setSettingsOperationBusy(bool busy)
{
    m_pages->setSettingsOperationBusy(busy);
}

void MainWindow::setSplitRulesFetchInProgress(bool inProgress)
{
    m_pages->setSplitRulesFetchInProgress(inProgress);
}

void MainWindow::setSplitRulesImportInProgress(bool inProgress)
{
    m_pages->setSplitRulesImportInProgress(inProgress);
}

void MainWindow::setSettingsNote(const QString &key, const QString &text)
{
    m_pages->setSettingsNote(key, text);
}

void MainWindow::setRepairResult(const RepairResultInfo &result)
{
    m_pages->setRepairResult(result);
}

void MainWindow::showError(const QString &message, const QString &fallback)
{
    const QString text = message.trimmed();
    showNotification(text.isEmpty() ? fallback : text, kErrorKind, ErrorDurationMs);
}

void MainWindow::showOperationError(const QString &message)
{
    //: Shown when a request to the Tovra service failed without a reason. Word it as a user would
    //: understand it: "Could not complete the action"
    showError(message, tr("Operation failed"));
}

void MainWindow::showSettingsOperationError(const QString &message)
{
    //: Shown when changing a setting failed without a reason. Word it as a user would understand
    //: it: "Could not change the settings"
    showError(message, tr("Settings operation failed"));
    m_pages->settleSettingsPage();
}

void MainWindow::showModeOperationError(const QString &message)
{
    QString text = message.trimmed();
    if (text.isEmpty()) {
        //: Shown when changing the mode failed without a reason. Word it as a user would understand
        //: it: "Could not change the mode"
        text = tr("Mode operation failed");
    }
    if (!m_pages->mode() || !m_pages->mode()->offerInlineError(text)) {
        showNotification(text, kErrorKind, ErrorDurationMs);
    }
    m_pages->settleSettingsPage();
}

void MainWindow::showNotification(const QString &text, const QString &kind, int durationMs)
{
    m_notifications->showMessage(text, kind, durationMs);
    placeNotificationHost();
    guiTextLog("window.notice", kind + QStringLiteral(": ") + text, false);
}

void MainWindow::setAccountOperationInProgress(bool inProgress)
{
    m_pages->setAccountOperationInProgress(inProgress);
}

void MainWindow::setRenewalOpening(bool opening)
{
    m_pages->setRenewalOpening(opening);
}

void MainWindow::showAccountError(const QString &message)
{
    m_pages->showAccountError(message);
}

void MainWindow::clearAccountMessage()
{
    m_pages->clearAccountMessage();
}

void MainWindow::setDaemonUnavailableReason(const QString &reason)
{
    m_pages->setDaemonUnavailableReason(reason);
}

void MainWindow::setConnectInProgress(bool inProgress, const QString &targetId,
                                      const QString &label)
{
    m_pages->setConnectInProgress(inProgress, targetId, label);
}

void MainWindow::showSplitRulesResult(const QString &text, const QString &kind)
{
    m_pages->showSplitRulesResult(text, kind);
}

void MainWindow::highlightKillSwitchModes()
{
    m_pages->highlightKillSwitchModes();
}

void MainWindow::placeNotificationHost()
{
    if (!m_notifications->isVisible()) {
        return;
    }
    m_notifications->placeIn(m_stack ? m_stack->geometry() : m_content->rect());
}

QString MainWindow::normalizedAppearance(const QString &preference)
{
    if (preference == QLatin1String("light") || preference == QLatin1String("dark")) {
        return preference;
    }
    return QStringLiteral("system");
}

void MainWindow::setAppearancePreference(const QString &preference)
{
    const QString value = normalizedAppearance(preference);
    if (value == m_appearance) {
        return;
    }
    m_appearance = value;
    if (m_preferences) {
        m_preferences->setAppearance(value);
    }
    applyTheme();
    Q_EMIT appearancePreferenceChanged();
}

Appearance MainWindow::effectiveAppearance() const
{
    return ThemeEngine::resolveAppearance(m_appearance, m_desktopScheme->scheme());
}

ThemeColors MainWindow::themeColors() const
{
    return ThemeEngine::buildColors(effectiveAppearance(), m_desktopScheme->contrast());
}

void MainWindow::applyTheme()
{
    const ThemeColors colors = themeColors();
    ThemeEngine::applyPaletteRecursively(this, ThemeEngine::buildPalette(colors));
    setStyleSheet(ThemeEngine::renderStyleSheet(colors, layoutDirection()));
    applyPageColors(colors);
    if (m_shortcutsDialog)
        ThemeEngine::applyToWindow(m_shortcutsDialog, colors);
}

void MainWindow::applyPageColors(const ThemeColors &colors)
{
    m_sidebar->applyTheme(colors);
    m_pages->applyTheme(colors);
    ThemeEngine::applySwitchColors(this, colors);
    ThemeEngine::applyScrollBarColors(this, colors);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_hideOnClose) {
        // Without a tray this window is the only way in: closing it ends the program.
        QMainWindow::closeEvent(event);
        QCoreApplication::quit();
        return;
    }
    m_pages->vpn()->closeQuickEntryPopup();
    if (currentPage() == ModePageIndex) {
        Q_EMIT modePageLeft();
    }
    Q_EMIT hiddenToTray();
    if (!m_deleteOnClose) {
        event->ignore();
        hide();
        return;
    }
    m_pages->disconnectState();
    event->accept();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    placeNotificationHost();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    applyTitleBarHooks();
    if (!m_painted && windowHandle()) {
        windowHandle()->installEventFilter(this);
    }
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // Once the first page is on screen, the others are built in the turns that follow.
    if (watched == windowHandle() && event->type() == QEvent::Expose &&
        windowHandle()->isExposed()) {
        m_painted = true;
        windowHandle()->removeEventFilter(this);
        // Once this expose has painted.
        QTimer::singleShot(0, this, [this] {
            if (guiTextLogEnabled())
                guiTextLog("window.shown", m_pageTitle->text());
            Q_EMIT firstPainted();
        });
        m_stack->buildRemainingPages();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::applyTitleBarHooks()
{
    m_unifiedTitleBar = UnifiedTitleBar::isUnified(this);
}

bool MainWindow::inUnifiedTitleBar(const QMouseEvent *event) const
{
    return m_unifiedTitleBar && event->button() == Qt::LeftButton &&
           event->position().y() < UnifiedTitleBar::height(this);
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (inUnifiedTitleBar(event) && UnifiedTitleBar::startSystemMove(this)) {
        event->accept();
        return;
    }
    QMainWindow::mousePressEvent(event);
}

void MainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (inUnifiedTitleBar(event)) {
        isMaximized() ? showNormal() : showMaximized();
        event->accept();
        return;
    }
    QMainWindow::mouseDoubleClickEvent(event);
}
