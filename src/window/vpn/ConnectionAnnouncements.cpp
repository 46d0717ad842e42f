#include "ConnectionAnnouncements.h"

#include "BidiText.h"

#include <QCoreApplication>

namespace {

// Spoken for the VPN page, so translated in its context.
class VpnPageText
{
    Q_DECLARE_TR_FUNCTIONS(VpnPage)
};

using Phase = VpnStatusSummary::Phase;

} // namespace

ConnectionAnnouncements::Line ConnectionAnnouncements::next(const VpnStatusSummary &summary,
                                                            const QString &lastError)
{
    const Phase before = m_phase;
    const QString placeBefore = m_place;
    const bool started = m_started;
    m_started = true;
    m_phase = summary.phase;
    m_place = summary.phase == Phase::Connecting ? summary.connectingTo : summary.locationText;
    // A new place in the same phase (the target of a connect becomes known, a switch of
    // location) is news too.
    const bool placed = summary.phase == Phase::Connecting || summary.phase == Phase::Connected;
    if (!started || (before == summary.phase && (!placed || placeBefore == m_place)))
        return {};

    switch (summary.phase) {
    case Phase::Connecting:
        return {summary.connectingTo.isEmpty()
                    ? summary.title
                    : VpnPageText::tr("Connecting to %1").arg(isolated(summary.connectingTo)),
                false};
    case Phase::Connected:
        return {m_place.isEmpty() ? summary.title
                                  : VpnPageText::tr("Connected to %1").arg(isolated(m_place)),
                false};
    case Phase::Disconnected:
        // A tunnel that never came up, with the service's reason, is a failure.
        if (before == Phase::Connecting && !lastError.trimmed().isEmpty())
            return {VpnPageText::tr("Connection failed: %1").arg(lastError.trimmed()), true};
        return {summary.title, false};
    case Phase::Disconnecting:
        return {};
    case Phase::SignedOut:
        return {summary.title, before != Phase::Unavailable};
    case Phase::Unavailable:
        return {summary.detail, true};
    }
    return {};
}
