#include "RecentLocationRecorder.h"

#include "AppState.h"
#include "RecentActivityStore.h"
#include "VpnStatusSummary.h"

using Phase = VpnStatusSummary::Phase;

RecentLocationRecorder::RecentLocationRecorder(AppState *state, GuiPreferences *preferences,
                                               QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_recent(new RecentActivityStore(preferences, this))
{
    // The catalogue may be what names the connected node, so it is followed too.
    connect(state, &AppState::runtimeChanged, this, &RecentLocationRecorder::follow);
    connect(state, &AppState::nodesChanged, this, &RecentLocationRecorder::follow);
}

void RecentLocationRecorder::follow()
{
    if (!m_state->runtime().valid)
        return;
    const bool firstStatus = !m_seenStatus;
    m_seenStatus = true;
    // Named as the VPN page names it, so the list reads like the page.
    const VpnStatusSummary summary = VpnStatusSummary::build(m_state->runtime(), m_state->nodes(),
                                                             m_state->killSwitch(), QString(), {});
    if (summary.phase != Phase::Connected || summary.locationId.isEmpty()) {
        if (summary.phase == Phase::Disconnected)
            m_recordedId.clear();
        return;
    }
    const RecentLocation location{summary.locationId, summary.locationText, summary.flagCode};
    if (location.id == m_recordedId) {
        completeEntry(location);
        return;
    }
    m_recordedId = location.id;
    // A connection already up at start that the user cleared away does not come back.
    if (firstStatus && m_recent->locationsCleared())
        return;
    m_recent->addLocation(location);
}

void RecentLocationRecorder::completeEntry(const RecentLocation &location)
{
    // Recorded from the status alone (up at start, or made by another client before the
    // catalogue was known): once the catalogue names the node, the entry takes its country and
    // flag, unless the user cleared it meanwhile.
    if (location.flagCode.isEmpty())
        return;
    const QList<RecentLocation> recent = m_recent->recentLocations();
    for (const RecentLocation &entry : recent) {
        if (entry.id == location.id && entry.flagCode.isEmpty()) {
            m_recent->addLocation(location);
            return;
        }
    }
}
