#include "WindowPages.h"

#include "AccountPage.h"
#include "AppState.h"
#include "DelayedBusyIndicator.h"
#include "LocationsPage.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "PageSignals.h"
#include "PageStack.h"
#include "SettingsPage.h"
#include "ThemeEngine.h"
#include "TranslationManager.h"
#include "VpnPage.h"

#include <QUrlQuery>

template<typename T>
T *WindowPages::builtPage(int index)
{
    return static_cast<T *>(m_stack->page(index));
}

WindowPages::WindowPages(MainWindow *window, AppState *state, GuiPreferences *preferences,
                         QWidget *container)
    : QObject(window)
    , m_window(window)
    , m_state(state)
    , m_preferences(preferences)
{
    m_stack = new PageStack(container);
    // The order is the meaning of the page index everywhere. The first page is built now; the
    // others when first needed, or once the window has painted (see MainWindow::showEvent).
    m_vpn = new VpnPage(m_preferences, m_stack);
    m_stack->addWidget(m_vpn);
    m_stack->addPage([](QWidget *parent) { return new LocationsPage(parent); });
    m_stack->addPage([](QWidget *parent) { return new ModePage(parent); });
    m_stack->addPage([preferences = m_preferences](QWidget *parent) {
        return new SettingsPage(preferences, parent);
    });
    m_stack->addPage([](QWidget *parent) { return new AccountPage(parent); });
    connect(m_stack, &PageStack::pageBuilt, this, &WindowPages::wirePage);
    PageSignals::forward(m_vpn, m_window);

    m_modeBusy = new DelayedBusyIndicator(
        [this](bool shown) {
            if (m_mode)
                m_mode->setModeBusy(shown);
        },
        this);
    m_settingsBusy = new DelayedBusyIndicator(
        [this](bool shown) {
            if (m_settings)
                m_settings->setBusy(shown);
            if (m_mode)
                m_mode->setSettingsBusy(shown);
        },
        this);
    connectState();
}

void WindowPages::wirePage(int index, QWidget *built)
{
    const ThemeColors colors = m_window->themeColors();
    switch (index) {
    case MainWindow::LocationsPageIndex:
        m_locations = static_cast<LocationsPage *>(built);
        m_locations->setPreferences(m_preferences);
        m_locations->applyTheme(colors);
        PageSignals::forward(m_locations, m_window);
        break;
    case MainWindow::ModePageIndex:
        m_mode = static_cast<ModePage *>(built);
        m_mode->applyTheme(colors);
        m_mode->setModeBusy(m_modeBusy->isShown());
        m_mode->setSettingsBusy(m_settingsBusy->isShown());
        m_mode->setSplitRulesFetchInProgress(m_splitRulesFetch);
        m_mode->setSplitRulesImportInProgress(m_splitRulesImport);
        PageSignals::forward(m_mode, m_window);
        break;
    case MainWindow::SettingsPageIndex:
        m_settings = static_cast<SettingsPage *>(built);
        m_settings->applyTheme(colors);
        m_settings->setBusy(m_settingsBusy->isShown());
        PageSignals::forward(m_settings, m_window);
        connect(m_settings, &SettingsPage::keyboardShortcutsRequested, m_window,
                &MainWindow::showKeyboardShortcuts);
        break;
    case MainWindow::AccountPageIndex:
        m_account = static_cast<AccountPage *>(built);
        m_account->setDaemonUnavailableReason(m_daemonUnavailableReason);
        connectAccountPage(m_account);
        break;
    default:
        return;
    }
    ThemeEngine::applySwitchColors(built, colors);
    ThemeEngine::applyScrollBarColors(built, colors);
    refreshPages({static_cast<WindowPage *>(built)});
}

void WindowPages::connectAccountPage(AccountPage *page)
{
    connect(page, &AccountPage::loginRequested, m_window, &MainWindow::loginRequested);
    connect(page, &AccountPage::logoutRequested, m_window, &MainWindow::logoutRequested);
    connect(page, &AccountPage::renewRequested, m_window,
            [this] { Q_EMIT m_window->purchaseURLRequested(linkLanguage()); });
    connect(page, &AccountPage::signUpRequested, m_window, [this] {
        Q_EMIT m_window->openExternalURLRequested(accountLink(QStringLiteral("/signup")));
    });
    connect(page, &AccountPage::forgotPasswordRequested, m_window, [this] {
        Q_EMIT m_window->openExternalURLRequested(accountLink(QStringLiteral("/password-reset")));
    });
}

void WindowPages::connectState()
{
    if (!m_state) {
        return;
    }
    // Each change reaches exactly the pages whose refresh reads the record: a record a page
    // reads but does not hear of leaves it drawing from an older store.
    using R = WindowPage::Record;
    const auto follow = [this](auto changed, R record) {
        connect(m_state, changed, this, [this, record] { refreshReaders(record); });
    };
    follow(&AppState::runtimeChanged, R::Runtime);
    follow(&AppState::userChanged, R::User);
    follow(&AppState::nodesChanged, R::Nodes);
    follow(&AppState::nodesFetchErrorChanged, R::Nodes);
    follow(&AppState::nodeGroupsChanged, R::NodeGroups);
    follow(&AppState::nodesRefreshCooldownChanged, R::RefreshCooldown);
    follow(&AppState::killSwitchChanged, R::KillSwitch);
    follow(&AppState::splitRulesChanged, R::SplitRules);
    follow(&AppState::configPathsChanged, R::ConfigPaths);
    follow(&AppState::versionChanged, R::Version);
    follow(&AppState::apiURLConfigChanged, R::APIURLConfig);
    follow(&AppState::languageConfigChanged, R::LanguageConfig);
    follow(&AppState::updateChanged, R::Update);
    follow(&AppState::splitDNSChanged, R::SplitDNS);
}

void WindowPages::refreshReaders(WindowPage::Record record)
{
    for (WindowPage *page : builtPages()) {
        if (page->reads().testFlag(record))
            page->refresh(*m_state);
    }
}

void WindowPages::disconnectState()
{
    if (m_state) {
        disconnect(m_state, nullptr, this, nullptr);
    }
}

void WindowPages::refreshPages(std::initializer_list<WindowPage *> pages)
{
    if (!m_state) {
        return;
    }
    for (WindowPage *page : pages) {
        if (page) // not built yet: it reads the state when it is
            page->refresh(*m_state);
    }
}

QList<WindowPage *> WindowPages::builtPages() const
{
    // The catalogue and mode first: the VPN page's summary reads from them.
    QList<WindowPage *> pages;
    for (WindowPage *page :
         {static_cast<WindowPage *>(m_locations), static_cast<WindowPage *>(m_mode),
          static_cast<WindowPage *>(m_vpn), static_cast<WindowPage *>(m_settings),
          static_cast<WindowPage *>(m_account)}) {
        if (page)
            pages.append(page);
    }
    return pages;
}

void WindowPages::refreshAll()
{
    if (!m_state)
        return;
    for (WindowPage *page : builtPages())
        page->refresh(*m_state);
}

void WindowPages::applyTheme(const ThemeColors &colors)
{
    m_vpn->applyTheme(colors);
    if (m_locations)
        m_locations->applyTheme(colors);
    if (m_mode)
        m_mode->applyTheme(colors);
    if (m_settings)
        m_settings->applyTheme(colors);
}

void WindowPages::setModeOperationBusy(bool busy)
{
    m_modeBusy->setBusy(busy);
    if (!busy) {
        // Settings shows the system proxy and local network too.
        settleSettingsPage();
    }
}

void WindowPages::setSettingsOperationBusy(bool busy)
{
    m_settingsBusy->setBusy(busy);
    if (!busy) {
        settleSettingsPage();
    }
}

void WindowPages::settleSettingsPage()
{
    if (!m_settings) {
        return;
    }
    m_settings->settle();
    refreshPages({m_settings});
}

void WindowPages::setSplitRulesFetchInProgress(bool inProgress)
{
    if (m_splitRulesFetch == inProgress) {
        return;
    }
    m_splitRulesFetch = inProgress;
    if (m_mode) {
        m_mode->setSplitRulesFetchInProgress(inProgress);
    }
}

void WindowPages::setSplitRulesImportInProgress(bool inProgress)
{
    if (m_splitRulesImport == inProgress) {
        return;
    }
    m_splitRulesImport = inProgress;
    if (m_mode) {
        m_mode->setSplitRulesImportInProgress(inProgress);
    }
}

void WindowPages::setSettingsNote(const QString &key, const QString &text)
{
    builtPage<SettingsPage>(MainWindow::SettingsPageIndex)->setNote(key, text);
}

void WindowPages::setRepairResult(const RepairResultInfo &result)
{
    // A page built later starts from the defaults: a default value needs no page built for it.
    if (m_settings || result != RepairResultInfo()) {
        builtPage<SettingsPage>(MainWindow::SettingsPageIndex)->setRepairResult(result);
    }
}

void WindowPages::showSplitRulesResult(const QString &text, const QString &kind)
{
    builtPage<ModePage>(MainWindow::ModePageIndex)->showSplitRulesResult(text, kind);
}

void WindowPages::highlightKillSwitchModes()
{
    builtPage<ModePage>(MainWindow::ModePageIndex)->highlightKillSwitchModes();
}

void WindowPages::setAccountOperationInProgress(bool inProgress)
{
    if (m_account || inProgress) {
        builtPage<AccountPage>(MainWindow::AccountPageIndex)
            ->setAccountOperationInProgress(inProgress);
    }
}

void WindowPages::setRenewalOpening(bool opening)
{
    if (m_account || opening) {
        builtPage<AccountPage>(MainWindow::AccountPageIndex)->setRenewalOpening(opening);
    }
}

void WindowPages::showAccountError(const QString &message)
{
    builtPage<AccountPage>(MainWindow::AccountPageIndex)->showError(message);
}

void WindowPages::clearAccountMessage()
{
    if (m_account) {
        m_account->clearMessage();
    }
}

void WindowPages::setDaemonUnavailableReason(const QString &reason)
{
    m_daemonUnavailableReason = reason; // for the account page when it is built
    if (m_account)
        m_account->setDaemonUnavailableReason(reason);
    m_vpn->setDaemonUnavailableReason(reason);
}

void WindowPages::setConnectInProgress(bool inProgress, const QString &targetId,
                                       const QString &label)
{
    m_vpn->setConnectInProgress(inProgress, targetId, label);
}

QString WindowPages::linkLanguage() const
{
    const QString effective = m_state ? m_state->runtime().effectiveLanguage : QString();
    return TranslationManager::normalize(effective.isEmpty() ? TranslationManager::systemLanguage()
                                                             : effective);
}

QUrl WindowPages::accountLink(const QString &path) const
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
