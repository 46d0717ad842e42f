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
    if (summary.locationId == m_recordedId)
        return;
    m_recordedId = summary.locationId;
    // A connection already up at start that the user cleared away does not come back.
    if (firstStatus && m_recent->locationsCleared())
        return;
    m_recent->addLocation({summary.locationId, summary.locationText, summary.flagCode});
}
