#pragma once

#include "LocationMatch.h"

#include <QString>
#include <QStringList>

struct NodeGroupsInfo;
struct NodesInfo;
struct UserInfo;

// Turns a location typed by name or code, in the interface language or in English, into what
// to connect to, the way the quick entry's Enter does: the first match the plan includes.
class LocationResolver
{
public:
    enum class Outcome { Found, NoMatch, NotInPlan };

    struct Resolution
    {
        Outcome outcome = Outcome::NoMatch;
        LocationMatch match;
    };

    static Resolution resolve(const NodeGroupsInfo &groups, const NodesInfo &nodes,
                              const QStringList &availableTiers, const QString &text);
    // The tiers a user's plan reaches: a free plan the free locations only; unknown, all.
    static QStringList tiersFor(const UserInfo &user);
};
