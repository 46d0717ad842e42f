#pragma once

#include "LocationMatch.h"

#include <QList>
#include <QString>

class QModelIndex;
class QSortFilterProxyModel;

// Walks a catalogue narrowed by CatalogFilterModel and lists what the search found, in the
// tree's order: the quick entry's rows and the command line's choice come from here.
class LocationMatcher
{
public:
    static QList<LocationMatch> collect(const QSortFilterProxyModel &filtered,
                                        const QString &searchText, int limit);
    // The row of a catalogue model (filtered or not) as a match.
    static LocationMatch matchAt(const QModelIndex &index);
};
