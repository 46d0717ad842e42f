#include "MainWindow.h"

#include "AccountPage.h"
#include "AppState.h"
#include "DelayedBusyIndicator.h"
#include "DesktopColorScheme.h"
#include "GuiMemLog.h"
#include "GuiPreferences.h"
#include "GuiTextLog.h"
#include "LocationsPage.h"
#include "ModePage.h"
#include "NavigationSidebar.h"
#include "NotificationHost.h"
#include "PageSignals.h"
#include "PageStack.h"
#include "SettingsPage.h"
#include "ThemeEngine.h"
#include "TranslationManager.h"
#include "UnifiedTitleBar.h"
#include "VpnPage.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <QUrlQuery>
#include <QVBoxLayout>
#include <QWindow>

namespace {

const QString kErrorKind = QStringLiteral("error");

} // namespace

template<typename T>
T *MainWindow::builtPage(int index)
{
    return static_cast<T *>(m_stack->page(index));
}

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
    // Themed before the pages exist: each widget inherits the palette and is polished once,
    // with the sheet, instead of being restyled after construction.
    const ThemeColors colors = ThemeEngine::buildColors(effectiveAppearance());
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

    PageSignals::forward(m_vpnPage, this);
    applyTitleBarHooks();

    m_notifications = new NotificationHost(m_content);
    m_notifications->hide();

    m_modeBusy = new DelayedBusyIndicator(
        [this](bool shown) {
            if (m_modePage)
                m_modePage->setModeBusy(shown);
        },
        this);
    m_settingsBusy = new DelayedBusyIndicator(
        [this](bool shown) {
            if (m_settingsPage)
                m_settingsPage->setBusy(shown);
            if (m_modePage)
                m_modePage->setSettingsBusy(shown);
        },
        this);

    connectState();
    connect(m_desktopScheme, &DesktopColorScheme::changed, this, [this] {
        // Only the "system" preference follows the desktop.
        if (m_appearance == QLatin1String("system")) {
            applyTheme();
        }
    });

    applyPageColors(colors);
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

    m_stack = new PageStack(m_content);
    // The order is the meaning of the page index everywhere. The first page is built now; the
    // others when first needed, or once the window has painted (see showEvent).
    m_vpnPage = new VpnPage(m_preferences, m_stack);
    m_stack->addWidget(m_vpnPage);
    m_stack->addPage([](QWidget *parent) { return new LocationsPage(parent); });
    m_stack->addPage([](QWidget *parent) { return new ModePage(parent); });
    m_stack->addPage([preferences = m_preferences](QWidget *parent) {
        return new SettingsPage(preferences, parent);
    });
    m_stack->addPage([](QWidget *parent) { return new AccountPage(parent); });
    connect(m_stack, &PageStack::pageBuilt, this, &MainWindow::wirePage);
    column->addWidget(m_stack, 1);
    return m_content;
}

void MainWindow::wirePage(int index, QWidget *built)
{
    const ThemeColors colors = ThemeEngine::buildColors(effectiveAppearance());
    switch (index) {
    case LocationsPageIndex:
        m_locationsPage = static_cast<LocationsPage *>(built);
        m_locationsPage->setPreferences(m_preferences);
        m_locationsPage->applyTheme(colors);
        PageSignals::forward(m_locationsPage, this);
        break;
    case ModePageIndex:
        m_modePage = static_cast<ModePage *>(built);
        m_modePage->applyTheme(colors);
        m_modePage->setModeBusy(m_modeBusy->isShown());
        m_modePage->setSettingsBusy(m_settingsBusy->isShown());
        m_modePage->setSplitRulesFetchInProgress(m_splitRulesFetch);
        m_modePage->setSplitRulesImportInProgress(m_splitRulesImport);
        PageSignals::forward(m_modePage, this);
        break;
    case SettingsPageIndex:
        m_settingsPage = static_cast<SettingsPage *>(built);
        m_settingsPage->applyTheme(colors);
        m_settingsPage->setBusy(m_settingsBusy->isShown());
        PageSignals::forward(m_settingsPage, this);
        break;
    case AccountPageIndex:
        m_accountPage = static_cast<AccountPage *>(built);
        m_accountPage->setDaemonUnavailableReason(m_daemonUnavailableReason);
        connectAccountPage(m_accountPage);
        break;
    default:
        return;
    }
    ThemeEngine::applySwitchColors(built, colors);
    ThemeEngine::applyScrollBarColors(built, colors);
    refreshPages({static_cast<WindowPage *>(built)});
}

void MainWindow::connectAccountPage(AccountPage *page)
{
    connect(page, &AccountPage::loginRequested, this, &MainWindow::loginRequested);
    connect(page, &AccountPage::logoutRequested, this, &MainWindow::logoutRequested);
    connect(page, &AccountPage::renewRequested, this,
            [this] { Q_EMIT purchaseURLRequested(linkLanguage()); });
    connect(page, &AccountPage::signUpRequested, this,
            [this] { Q_EMIT openExternalURLRequested(accountLink(QStringLiteral("/signup"))); });
    connect(page, &AccountPage::forgotPasswordRequested, this, [this] {
        Q_EMIT openExternalURLRequested(accountLink(QStringLiteral("/password-reset")));
    });
}

void MainWindow::connectState()
{
    if (!m_state) {
        return;
    }
    AppState *state = m_state;
    const auto all = [this] {
        refreshPages({m_locationsPage, m_modePage, m_vpnPage, m_settingsPage, m_accountPage});
    };
    const auto catalogue = [this] { refreshPages({m_locationsPage, m_vpnPage}); };
    const auto settings = [this] { refreshPages({m_settingsPage}); };
    connect(state, &AppState::runtimeChanged, this, all);
    connect(state, &AppState::userChanged, this, [this] {
        refreshPages({m_vpnPage, m_accountPage});
    });
    connect(state, &AppState::nodesChanged, this, catalogue);
    connect(state, &AppState::nodeGroupsChanged, this, catalogue);
    connect(state, &AppState::nodesRefreshCooldownChanged, this, catalogue);
    connect(state, &AppState::killSwitchChanged, this, [this] {
        refreshPages({m_modePage, m_vpnPage, m_settingsPage});
    });
    connect(state, &AppState::splitRulesChanged, this, [this] { refreshPages({m_modePage}); });
    connect(state, &AppState::configPathsChanged, this, settings);
    connect(state, &AppState::versionChanged, this, settings);
    connect(state, &AppState::apiURLConfigChanged, this, settings);
    connect(state, &AppState::languageConfigChanged, this, settings);
    connect(state, &AppState::updateChanged, this, settings);
    connect(state, &AppState::splitDNSChanged, this, settings);
}

void MainWindow::refreshPages(std::initializer_list<WindowPage *> pages)
{
    if (!m_state) {
        return;
    }
    for (WindowPage *page : pages) {
        if (page) // not built yet: it reads the state when it is
            page->refresh(*m_state);
    }
}

void MainWindow::refreshFromState()
{
    // The catalogue and mode first: the VPN page's summary reads from them.
    refreshPages({m_locationsPage, m_modePage, m_vpnPage, m_settingsPage, m_accountPage});
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
        m_vpnPage->closeQuickEntryPopup();
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
        if (m_state && m_state->splitRules().rules.isEmpty() && !m_splitRulesFetch &&
            !m_splitRulesImport) {
            Q_EMIT splitRulesRequested();
        }
        return;
    case LocationsPageIndex:
        m_locationsPage->pageShown();
        return;
    default:
        return;
    }
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
    m_modeBusy->setBusy(busy);
    if (!busy) {
        // Settings shows the system proxy and local network too.
        settleSettingsPage();
    }
}

void MainWindow::setSettingsOperationBusy(bool busy)
{
    m_settingsBusy->setBusy(busy);
    if (!busy) {
        settleSettingsPage();
    }
}

void MainWindow::settleSettingsPage()
{
    // An answered or failed change leaves every Settings control on the daemon's value.
    if (!m_settingsPage) {
        return;
    }
    m_settingsPage->settle();
    refreshPages({m_settingsPage});
}

void MainWindow::setSettingsNote(const QString &key, const QString &text)
{
    builtPage<SettingsPage>(SettingsPageIndex)->setNote(key, text);
}

void MainWindow::setRepairResult(const RepairResultInfo &result)
{
    // A page built later starts from the defaults: a default value needs no page built for it.
    if (m_settingsPage || result != RepairResultInfo()) {
        builtPage<SettingsPage>(SettingsPageIndex)->setRepairResult(result);
    }
}

void MainWindow::setSplitRulesFetchInProgress(bool inProgress)
{
    if (m_splitRulesFetch == inProgress) {
        return;
    }
    m_splitRulesFetch = inProgress;
    if (m_modePage) {
        m_modePage->setSplitRulesFetchInProgress(inProgress);
    }
}

void MainWindow::setSplitRulesImportInProgress(bool inProgress)
{
    if (m_splitRulesImport == inProgress) {
        return;
    }
    m_splitRulesImport = inProgress;
    if (m_modePage) {
        m_modePage->setSplitRulesImportInProgress(inProgress);
    }
}

void MainWindow::showError(const QString &message, const QString &fallback)
{
    const QString text = message.trimmed();
    showNotification(text.isEmpty() ? fallback : text, kErrorKind, ErrorDurationMs);
}

void MainWindow::showOperationError(const QString &message)
{
    showError(message, tr("Operation failed"));
}

void MainWindow::showSettingsOperationError(const QString &message)
{
    showError(message, tr("Settings operation failed"));
    settleSettingsPage();
}

void MainWindow::showModeOperationError(const QString &message)
{
    QString text = message.trimmed();
    if (text.isEmpty()) {
        text = tr("Mode operation failed");
    }
    if (!m_modePage || !m_modePage->offerInlineError(text)) {
        showNotification(text, kErrorKind, ErrorDurationMs);
    }
    settleSettingsPage();
}

void MainWindow::showNotification(const QString &text, const QString &kind, int durationMs)
{
    m_notifications->showMessage(text, kind, durationMs);
    placeNotificationHost();
    guiTextLog("window.notice", kind + QStringLiteral(": ") + text, false);
}

void MainWindow::setAccountOperationInProgress(bool inProgress)
{
    if (m_accountPage || inProgress) {
        builtPage<AccountPage>(AccountPageIndex)->setAccountOperationInProgress(inProgress);
    }
}

void MainWindow::setRenewalOpening(bool opening)
{
    if (m_accountPage || opening) {
        builtPage<AccountPage>(AccountPageIndex)->setRenewalOpening(opening);
    }
}

void MainWindow::showAccountError(const QString &message)
{
    builtPage<AccountPage>(AccountPageIndex)->showError(message);
}

void MainWindow::clearAccountMessage()
{
    if (m_accountPage) {
        m_accountPage->clearMessage();
    }
}

void MainWindow::setDaemonUnavailableReason(const QString &reason)
{
    m_daemonUnavailableReason = reason; // for the account page when it is built
    if (m_accountPage)
        m_accountPage->setDaemonUnavailableReason(reason);
    m_vpnPage->setDaemonUnavailableReason(reason);
}

void MainWindow::setConnectInProgress(bool inProgress, const QString &targetId,
                                      const QString &label)
{
    m_vpnPage->setConnectInProgress(inProgress, targetId, label);
}

void MainWindow::showSplitRulesResult(const QString &text, const QString &kind)
{
    builtPage<ModePage>(ModePageIndex)->showSplitRulesResult(text, kind);
}

void MainWindow::highlightKillSwitchModes()
{
    builtPage<ModePage>(ModePageIndex)->highlightKillSwitchModes();
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

void MainWindow::applyTheme()
{
    const ThemeColors colors = ThemeEngine::buildColors(effectiveAppearance());
    ThemeEngine::applyPaletteRecursively(this, ThemeEngine::buildPalette(colors));
    setStyleSheet(ThemeEngine::renderStyleSheet(colors, layoutDirection()));
    applyPageColors(colors);
}

void MainWindow::applyPageColors(const ThemeColors &colors)
{
    m_vpnPage->applyTheme(colors);
    m_sidebar->applyTheme(colors);
    // Pages not built yet take the colours when they are.
    if (m_locationsPage)
        m_locationsPage->applyTheme(colors);
    if (m_modePage)
        m_modePage->applyTheme(colors);
    if (m_settingsPage)
        m_settingsPage->applyTheme(colors);
    ThemeEngine::applySwitchColors(this, colors);
    ThemeEngine::applyScrollBarColors(this, colors);
}

QString MainWindow::linkLanguage() const
{
    const QString effective = m_state ? m_state->runtime().effectiveLanguage : QString();
    return TranslationManager::normalize(effective.isEmpty() ? TranslationManager::systemLanguage()
                                                             : effective);
}

QUrl MainWindow::accountLink(const QString &path) const
{
    QUrl url;
    url.setScheme(QStringLiteral("https"));
    url.setHost(QStringLiteral(TOVRA_VENDOR_HOST));
    url.setPath(path);
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("lang"), linkLanguage());
    url.setQuery(query);
    return url;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_hideOnClose) {
        // Without a tray this window is the only way in: closing it ends the program.
        QMainWindow::closeEvent(event);
        QCoreApplication::quit();
        return;
    }
    m_vpnPage->closeQuickEntryPopup();
    if (currentPage() == ModePageIndex) {
        Q_EMIT modePageLeft();
    }
    Q_EMIT hiddenToTray();
    if (!m_deleteOnClose) {
        event->ignore();
        hide();
        return;
    }
    if (m_state) {
        disconnect(m_state, nullptr, this, nullptr);
    }
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
    if (!m_stack->allBuilt() && windowHandle()) {
        windowHandle()->installEventFilter(this);
    }
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    // Once the first page is on screen, the others are built in the turns that follow.
    if (watched == windowHandle() && event->type() == QEvent::Expose &&
        windowHandle()->isExposed()) {
        windowHandle()->removeEventFilter(this);
        if (guiTextLogEnabled()) // the first picture, once this expose has painted it
            QTimer::singleShot(0, this,
                               [this] { guiTextLog("window.shown", m_pageTitle->text()); });
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
