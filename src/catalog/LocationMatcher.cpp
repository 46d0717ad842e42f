#include "LocationMatcher.h"

#include "CatalogFilterModel.h"
#include "LocationRoles.h"

#include <QRegularExpression>

namespace {

// Whether a row matches the search by its own words and its ancestors', the way the filter
// decides, rather than being kept only for something below it.
bool matchesItself(const QModelIndex &sourceIndex, const QStringList &tokens)
{
    QStringList texts;
    for (QModelIndex at = sourceIndex; at.isValid(); at = at.parent())
        texts.prepend(at.data(LocationSearchTextRole).toString());
    const QString joined = texts.join(QLatin1Char(' '));
    static const QRegularExpression plainWord(QStringLiteral("^[a-z0-9]+$"));
    for (const QString &token : tokens) {
        const bool found =
            plainWord.match(token).hasMatch()
                ? QRegularExpression(QStringLiteral("\\b") + QRegularExpression::escape(token))
                      .match(joined)
                      .hasMatch()
                : joined.contains(token);
        if (!found)
            return false;
    }
    return true;
}

void collectBelow(const QSortFilterProxyModel &filtered, const QModelIndex &parent,
                  const QString &parentName, const QStringList &tokens, int limit,
                  QList<LocationMatch> &out)
{
    for (int row = 0; row < filtered.rowCount(parent) && out.size() < limit; ++row) {
        const QModelIndex index = filtered.index(row, 0, parent);
        LocationMatch match = LocationMatcher::matchAt(index);
        match.parentName = parentName;
        if ((!match.group || (filtered.rowCount(index) > 0 &&
                              matchesItself(filtered.mapToSource(index), tokens))) &&
            !match.target.isEmpty())
            out.append(match);
        if (match.group)
            collectBelow(filtered, index, match.name, tokens, limit, out);
    }
}

} // namespace

LocationMatch LocationMatcher::matchAt(const QModelIndex &index)
{
    LocationMatch match;
    match.group = index.data(LocationIsGroupRole).toBool();
    match.name = index.data(Qt::DisplayRole).toString();
    match.parentName = index.parent().data(Qt::DisplayRole).toString();
    match.target = index.data(match.group ? LocationSelectorRole : LocationNodeIdRole).toString();
    match.flagCode = index.data(LocationRegionRole).toString();
    match.locked = index.data(LocationLockedRole).toBool();
    match.toolTip = index.data(Qt::ToolTipRole).toString();
    return match;
}

QList<LocationMatch> LocationMatcher::collect(const QSortFilterProxyModel &filtered,
                                              const QString &searchText, int limit)
{
    QList<LocationMatch> matches;
    collectBelow(filtered, QModelIndex(), QString(), CatalogFilterModel::tokenize(searchText),
                 limit, matches);
    return matches;
}
