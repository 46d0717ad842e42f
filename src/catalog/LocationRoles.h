#pragma once

#include <Qt>

// Data roles of the catalogue's rows, read by the location delegate, the filter and the pages.
// The name is Qt::DisplayRole and the flag Qt::DecorationRole (a QPixmap or QIcon).
enum LocationRole : int {
    // Lower-case words the search matches: names, region code, country names, tags, tier.
    LocationSearchTextRole = Qt::UserRole + 6, // 262, fixed: the filter reads it by number
    LocationNodeIdRole = Qt::UserRole + 100,   // QString; empty for a group row
    LocationPingMsRole,                        // int milliseconds, -1 when not measured
    LocationSignalLevelRole,                   // int 0..4, -1 when unknown (then the ping decides)
    LocationFavoriteRole,                      // bool
    LocationTierRole,                          // QString "FREE" or "SVIP", empty for none
    LocationIsGroupRole,                       // bool; groups show no ping, bars or star
    LocationConnectedRole, // bool; the node the tunnel uses now, or a group that holds it
    LocationSelectorRole,  // QString: a node's id, or the group selector for a smart connect
    LocationRegionRole,    // QString: the two-letter code of the row's country, lower case
    LocationSelectedRole,  // bool; the daemon's selected node
    LocationStaleRole,     // bool; the catalogue answer was marked stale
    LocationLockedRole,    // bool; a tier the account does not have
    LocationContinentRole, // bool; a group above the countries: it opens rather than connects
};
