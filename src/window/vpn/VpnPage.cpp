#include "VpnPage.h"

#include "AppState.h"
#include "CatalogTreeModel.h"
#include "GuiPreferences.h"
#include "GuiTextLog.h"
#include "KillSwitchConfirm.h"
#include "QuickEntryField.h"
#include "RecentActivityStore.h"
#include "ToggleSwitch.h"
#include "VpnKillSwitchRow.h"
#include "VpnRecentLocations.h"
#include "VpnStatusCard.h"

#include <QAction>
#include <QPushButton>

using Phase = VpnStatusSummary::Phase;

VpnPage::VpnPage(GuiPreferences *preferences, QWidget *parent)
    : WindowPage(QStringLiteral("TovraVPNPage"), QString(), QString(), parent)
    , m_recent(preferences ? new RecentActivityStore(preferences, this) : nullptr)
    , m_catalog(new CatalogTreeModel(this))
    , m_status(new VpnStatusCard(this))
    , m_search(new QuickEntryField(m_recent, this, this))
    , m_recentCard(new VpnRecentLocations(this))
    , m_confirm(confirmKillSwitchNeedsVpnMode)
{
    m_search->setCatalogModel(m_catalog);
    // The search's own tree of the catalogue is built once someone searches: until then it
    // would double the catalogue's memory and every rebuild.
    connect(m_search, &QuickEntryField::searchStarted, this, [this] {
        m_catalogLive = true;
        m_catalog->setCatalog(m_groups, m_nodes);
    });
    addContent(m_status);
    addContent(m_search);
    addContent(m_recentCard);
    // Ctrl+F anywhere in the window, while this page shows, goes to the search.
    auto *find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    find->setShortcutContext(Qt::WindowShortcut);
    addAction(find);
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
        m_search->openPopup();
    });
    setTabOrder(m_status->primaryAction(), m_status->killSwitchRow()->toggle());
    setTabOrder(m_status->killSwitchRow()->toggle(), m_search);

    connect(m_status, &VpnStatusCard::primaryActionTriggered, this, &VpnPage::triggerPrimaryAction);
    connect(m_status->killSwitchRow(), &VpnKillSwitchRow::toggleRequested, this,
            &VpnPage::handleKillSwitchToggle);
    connect(m_search, &QuickEntryField::nodeChosen, this,
            [this](const QString &id, const QString &label) { connectTo(id, label, false); });
    connect(m_search, &QuickEntryField::groupChosen, this,
            [this](const QString &selector, const QString &label) {
                connectTo(selector, label, true);
            });
    connect(
        m_recentCard, &VpnRecentLocations::locationChosen, this,
        [this](const RecentLocation &location) { connectTo(location.id, location.label, false); });
    connect(m_recentCard, &VpnRecentLocations::clearRequested, this,
            &VpnPage::clearRecentLocations);
    if (m_recent) {
        connect(m_recent, &RecentActivityStore::recentLocationsChanged, this,
                [this] { m_recentCard->setLocations(m_recent->recentLocations()); });
        m_recentCard->setLocations(m_recent->recentLocations());
    }
    redraw();
}

void VpnPage::refresh(const AppState &state)
{
    m_runtime = state.runtime();
    m_killSwitch = state.killSwitch().valid ? state.killSwitch() : m_runtime.killSwitch;
    // A free plan reaches the free locations only; the rest show, but cannot be picked.
    const bool freePlan =
        state.user().valid &&
        state.user().role.trimmed().compare(QLatin1String("free"), Qt::CaseInsensitive) == 0;
    m_catalog->setAvailableTiers(freePlan ? QStringList{QStringLiteral("FREE")} : QStringList());
    if (state.nodeGroups() != m_groups || state.nodes() != m_nodes) {
        m_groups = state.nodeGroups();
        m_nodes = state.nodes();
        if (m_catalogLive)
            m_catalog->setCatalog(m_groups, m_nodes);
    }
    redraw();
    recordConnection();
    m_refreshed = true;
}

void VpnPage::applyTheme(const ThemeColors &colors)
{
    WindowPage::applyTheme(colors);
    m_search->applyTheme(colors);
}

void VpnPage::redraw()
{
    m_summary =
        VpnStatusSummary::build(m_runtime, m_nodes, m_killSwitch, m_unavailableReason, m_pending);
    m_status->setSummary(m_summary);
    guiTextLog("window.status", m_summary.title + QStringLiteral(" | ") + m_summary.detail);
    updatePrimaryAction();
    updateKillSwitch();
    m_recentCard->setConnectEnabled(m_summary.phase != Phase::Unavailable);
}

void VpnPage::updatePrimaryAction()
{
    const QString connect = QStringLiteral("connect");
    const QString disconnect = QStringLiteral("disconnect");
    switch (m_summary.phase) {
    case Phase::Unavailable:
        m_status->setPrimaryAction(tr("Connect"), connect, false, false);
        break;
    case Phase::SignedOut:
        m_status->setPrimaryAction(tr("Sign In"), connect, false, true);
        break;
    case Phase::Connecting:
        m_status->setPrimaryAction(tr("Cancel"), disconnect, false, true);
        break;
    case Phase::Connected:
        m_status->setPrimaryAction(tr("Disconnect"), disconnect, false, true);
        break;
    case Phase::Disconnecting:
        m_status->setPrimaryAction(tr("Disconnecting\u2026"), disconnect, true, false);
        break;
    case Phase::Disconnected:
        m_status->setPrimaryAction(tr("Connect"), connect, false, true);
        break;
    }
}

void VpnPage::triggerPrimaryAction()
{
    switch (m_summary.phase) {
    case Phase::SignedOut:
        Q_EMIT accountPageRequested();
        break;
    case Phase::Disconnected:
        Q_EMIT connectRuntimeRequested();
        break;
    case Phase::Connecting:
        // The shell can cancel only a connect it started; one the daemon began is undone.
        if (m_pending.active)
            Q_EMIT cancelConnectRequested();
        else
            Q_EMIT disconnectRuntimeRequested();
        break;
    case Phase::Connected:
        Q_EMIT disconnectRuntimeRequested();
        break;
    default:
        break;
    }
}

void VpnPage::connectTo(const QString &target, const QString &label, bool group)
{
    if (target.trimmed().isEmpty() || m_summary.phase == Phase::Unavailable)
        return;
    if (m_summary.phase == Phase::SignedOut) {
        Q_EMIT accountPageRequested();
        return;
    }
    // Named first, so that the shell and the tray call the target what this page calls it.
    Q_EMIT pendingConnectTargetChanged(target, label);
    if (group)
        Q_EMIT connectSmartRequested(target);
    else
        Q_EMIT connectNodeRequested(target, label);
}

void VpnPage::recordConnection()
{
    if (!m_recent)
        return;
    if (m_summary.phase != Phase::Connected || m_summary.locationId.isEmpty()) {
        if (m_summary.phase == Phase::Disconnected)
            m_recordedId.clear();
        return;
    }
    if (m_summary.locationId == m_recordedId)
        return;
    m_recordedId = m_summary.locationId;
    // A new window finding a connection the user already cleared away does not bring it back.
    if (!m_refreshed && m_recent->locationsCleared())
        return;
    m_recent->addLocation({m_summary.locationId, m_summary.locationText, m_summary.flagCode});
}

void VpnPage::clearRecentLocations()
{
    if (m_recent)
        m_recent->clearLocations();
    else
        m_recentCard->setLocations({});
    Q_EMIT recentConnectionsCleared();
}

void VpnPage::updateKillSwitch()
{
    const bool lockdown = m_killSwitch.mode == QLatin1String("lockdown");
    const bool changeable =
        m_summary.phase != Phase::Unavailable && m_killSwitch.valid && !lockdown;
    m_status->killSwitchRow()->setState(
        m_killSwitch.enabled || lockdown,
        m_summary.phase == Phase::Unavailable ? QString() : m_summary.killSwitchWord, changeable);
}

void VpnPage::handleKillSwitchToggle(bool enabled)
{
    // Whatever happens next, the switch shows the record until the daemon says otherwise.
    updateKillSwitch();
    if (!enabled && m_killSwitch.mode == QLatin1String("lockdown"))
        return;
    if (enabled && m_runtime.mode.transport == QLatin1String("proxy")) {
        switch (m_confirm ? m_confirm(this) : 0) {
        case 1:
            Q_EMIT switchToAutoAndEnableKillSwitchRequested();
            break;
        case 2:
            Q_EMIT chooseModeForKillSwitchRequested();
            break;
        default:
            break;
        }
        return;
    }
    Q_EMIT setKillSwitchEnabledRequested(enabled);
}

void VpnPage::setKillSwitchConfirm(std::function<int(QWidget *)> confirm)
{
    m_confirm = std::move(confirm);
}

void VpnPage::closeQuickEntryPopup()
{
    m_search->closePopup();
}

bool VpnPage::isQuickEntryPopupOpen() const
{
    return m_search->isPopupOpen();
}

void VpnPage::setDaemonUnavailableReason(const QString &reason)
{
    if (m_unavailableReason == reason.trimmed())
        return;
    m_unavailableReason = reason.trimmed();
    redraw();
}

void VpnPage::setConnectInProgress(bool inProgress, const QString &targetId, const QString &label)
{
    m_pending = {inProgress, inProgress ? targetId : QString(), inProgress ? label : QString()};
    redraw();
}
