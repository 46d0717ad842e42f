#pragma once

#include <Qt>

// Data roles the location delegate reads; catalogue models answer them per row. The name is
// Qt::DisplayRole and the flag Qt::DecorationRole (a QPixmap or QIcon).
enum LocationRole : int {
    LocationNodeIdRole = Qt::UserRole + 100, // QString; empty for a group row
    LocationPingMsRole,                      // int milliseconds, -1 when not measured
    LocationSignalLevelRole,                 // int 0..4, -1 when unknown (then the ping decides)
    LocationFavoriteRole,                    // bool
    LocationTierRole,                        // QString "FREE" or "SVIP", empty for none
    LocationIsGroupRole,                     // bool; groups show no ping, bars or star
    LocationConnectedRole,                   // bool; the node the tunnel uses now
};
