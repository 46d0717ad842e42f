#pragma once

#include "VpnStatusSummary.h"

// What a screen reader hears when the connection changes: connecting to a place, connected to
// it, disconnected, a failure with its reason, signed out, the service gone. Fed every summary
// the VPN page builds; the first one says nothing, since the window is read as it opens.
class ConnectionAnnouncements
{
public:
    struct Line
    {
        QString text; // empty: nothing to say
        bool assertive = false;
    };

    Line next(const VpnStatusSummary &summary, const QString &lastError);

private:
    bool m_started = false;
    VpnStatusSummary::Phase m_phase = VpnStatusSummary::Phase::Unavailable;
    QString m_place; // where the connection goes or is
};
