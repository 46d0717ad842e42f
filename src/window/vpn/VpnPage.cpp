#include "VpnPage.h"

#include "AccessibleAnnouncer.h"
#include "AppState.h"
#include "CatalogTreeModel.h"
#include "GuiPreferences.h"
#include "GuiTextLog.h"
#include "KillSwitchConfirm.h"
#include "LocationResolver.h"
#include "QuickEntryField.h"
#include "RecentActivityStore.h"
#include "ToggleSwitch.h"
#include "VpnKillSwitchRow.h"
#include "VpnRecentLocations.h"
#include "VpnStatusCard.h"

#include <QPushButton>
#include <QTimer>

using Phase = VpnStatusSummary::Phase;

VpnPage::VpnPage(GuiPreferences *preferences, QWidget *parent)
    : WindowPage(QStringLiteral("TovraVPNPage"), QString(), QString(), parent)
    , m_recent(preferences ? new RecentActivityStore(preferences, this) : nullptr)
    , m_catalog(new CatalogTreeModel(this))
    , m_status(new VpnStatusCard(this))
    , m_search(new QuickEntryField(m_recent, this, this))
    , m_recentCard(new VpnRecentLocations(this))
    // Inside the status card: the region whose changes it speaks.
    , m_announcer(new AccessibleAnnouncer(m_status))
    , m_announceDelay(new QTimer(this))
    , m_confirm(confirmKillSwitchNeedsVpnMode)
{
    m_announceDelay->setSingleShot(true);
    m_announceDelay->setInterval(300);
    connect(m_announceDelay, &QTimer::timeout, this, &VpnPage::speakPendingLine);
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

void VpnPage::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
    m_search->openPopup();
}

WindowPage::Records VpnPage::reads() const
{
    return Record::Runtime | Record::User | Record::Nodes | Record::NodeGroups | Record::KillSwitch;
}

void VpnPage::refresh(const AppState &state)
{
    m_runtime = state.runtime();
    m_killSwitch = state.killSwitch().valid ? state.killSwitch() : m_runtime.killSwitch;
    // Locations the plan does not reach show, but cannot be picked.
    m_catalog->setAvailableTiers(LocationResolver::tiersFor(state.user()));
    if (state.nodeGroups() != m_groups || state.nodes() != m_nodes) {
        m_groups = state.nodeGroups();
        m_nodes = state.nodes();
        if (m_catalogLive)
            m_catalog->setCatalog(m_groups, m_nodes);
    }
    redraw();
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
    // Until the first refresh the page shows no state of the daemon's: nothing to speak of.
    const ConnectionAnnouncements::Line line = m_announcements.next(m_summary, m_runtime.lastError);
    if (!m_refreshed && !line.text.isEmpty()) {
        m_spokenText = line.text; // what the window opens on is read with the window
    } else if (!line.text.isEmpty()) {
        // A connect passes through a moment of "disconnected" between the shell's answer and
        // the new status: only the state that holds is spoken.
        m_pendingLine = line;
        m_announceDelay->start();
    }
    updatePrimaryAction();
    updateKillSwitch();
    m_recentCard->setConnectEnabled(m_summary.phase != Phase::Unavailable);
}

bool VpnPage::hasPendingAnnouncement() const
{
    return m_announceDelay->isActive();
}

void VpnPage::speakPendingLine()
{
    // Back where it was before the moment passed: nothing new to say.
    if (m_pendingLine.text == m_spokenText)
        return;
    m_spokenText = m_pendingLine.text;
    m_announcer->announce(m_pendingLine.text, m_pendingLine.assertive
                                                  ? AccessibleAnnouncer::Politeness::Assertive
                                                  : AccessibleAnnouncer::Politeness::Polite);
    guiTextLog("window.announce", m_pendingLine.text);
}

void VpnPage::updatePrimaryAction()
{
    const QString connect = QStringLiteral("connect");
    const QString disconnect = QStringLiteral("disconnect");
    switch (m_summary.phase) {
    case Phase::Unavailable:
        //: Button that connects the VPN
        m_status->setPrimaryAction(tr("Connect"), connect, false, false);
        break;
    case Phase::SignedOut:
        //: Button that opens the account page to sign in
        m_status->setPrimaryAction(tr("Sign In"), connect, false, true);
        break;
    case Phase::Connecting:
        //: Button that stops a connection attempt
        m_status->setPrimaryAction(tr("Cancel"), disconnect, false, true);
        break;
    case Phase::Connected:
        //: Button that disconnects the VPN
        m_status->setPrimaryAction(tr("Disconnect"), disconnect, false, true);
        break;
    case Phase::Disconnecting:
        //: Button while the VPN disconnects
        m_status->setPrimaryAction(tr("Disconnecting\u2026"), disconnect, true, false);
        break;
    case Phase::Disconnected:
        //: Button that connects the VPN
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
