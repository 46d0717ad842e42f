#pragma once

#include "KillSwitchInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"

#include <QDateTime>
#include <QString>

// What the VPN page's status card says, worked out from the state store alone so that every
// state reads the same wherever it comes from (a poll, a connect answer, a new window).
struct VpnStatusSummary
{
    enum class Phase { Unavailable, SignedOut, Disconnected, Connecting, Connected, Disconnecting };

    // The connect the shell started, before the daemon reports it.
    struct PendingConnect
    {
        bool active = false;
        QString targetId;
        QString label;
    };

    Phase phase = Phase::Unavailable;
    QString dotState; // "connected", "disconnected" or "unavailable", for the style template
    QString title;
    QString detail;
    QString locationCaption; // "Location" or "Last location"; empty without a location
    QString locationId;      // the node's id, when known
    QString locationText;    // country and node name
    QString connectingTo;    // what a connect in progress goes to, when known
    QString flagCode;
    QString modeLabel;
    QString killSwitchWord;
    QDateTime connectedSince; // invalid unless connected and the daemon said since when

    // The kill switch record is the store's own when it holds one, else the status record's.
    static VpnStatusSummary build(const RuntimeInfo &runtime, const NodesInfo &nodes,
                                  const KillSwitchInfo &killSwitch,
                                  const QString &unavailableReason, const PendingConnect &pending);
    static bool isSignedIn(const QString &authState);
    // "1:02:03" or "2:03" for the time since a moment.
    static QString elapsedText(const QDateTime &since, const QDateTime &now);
};
