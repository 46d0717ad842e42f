#include "LocationResolver.h"

#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "LocationMatcher.h"
#include "UserInfo.h"

namespace {

// Enough to find one the plan includes behind a few it does not.
constexpr int kMatchLimit = 40;

} // namespace

LocationResolver::Resolution LocationResolver::resolve(const NodeGroupsInfo &groups,
                                                       const NodesInfo &nodes,
                                                       const QStringList &availableTiers,
                                                       const QString &text)
{
    Resolution resolution;
    if (CatalogFilterModel::tokenize(text).isEmpty())
        return resolution;
    CatalogTreeModel catalog;
    catalog.setAvailableTiers(availableTiers);
    catalog.setCatalog(groups, nodes);
    CatalogFilterModel filtered;
    filtered.setSourceModel(&catalog);
    filtered.setFilterText(text);
    const auto verdict = [](const LocationMatch &match) {
        return Resolution{match.locked ? Outcome::NotInPlan : Outcome::Found, match};
    };
    // A code, selector or node id names one row outright ("fr" is France, not Frankfurt).
    if (const QModelIndex named = catalog.indexForSelector(text.trimmed()); named.isValid())
        return verdict(LocationMatcher::matchAt(named));
    const QList<LocationMatch> matches = LocationMatcher::collect(filtered, text, kMatchLimit);
    // Then a whole name ("Paris"), then the first match the plan includes, as Enter picks it.
    for (const LocationMatch &match : matches) {
        if (match.name.compare(text.simplified(), Qt::CaseInsensitive) == 0)
            return verdict(match);
    }
    for (const LocationMatch &match : matches) {
        if (!match.locked)
            return {Outcome::Found, match};
    }
    if (!matches.isEmpty())
        resolution = {Outcome::NotInPlan, matches.first()};
    return resolution;
}

QStringList LocationResolver::tiersFor(const UserInfo &user)
{
    const bool freePlan =
        user.valid && user.role.trimmed().compare(QLatin1String("free"), Qt::CaseInsensitive) == 0;
    return freePlan ? QStringList{QStringLiteral("FREE")} : QStringList();
}
