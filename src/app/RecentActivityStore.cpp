#include "RecentActivityStore.h"

#include "GuiPreferences.h"

RecentActivityStore::RecentActivityStore(GuiPreferences *preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    // Another store on the same preferences (the shell's, a page's) may be the one that wrote.
    connect(preferences, &GuiPreferences::recentSearchesChanged, this,
            &RecentActivityStore::recentSearchesChanged);
    connect(preferences, &GuiPreferences::recentNodesChanged, this,
            &RecentActivityStore::recentLocationsChanged);
}

QStringList RecentActivityStore::recentSearches() const
{
    const QStringList stored = m_preferences->recentSearches();
    QStringList kept;
    const qsizetype examined = qMin(stored.size(), kSearchesExamined);
    for (qsizetype i = 0; i < examined && kept.size() < kSearchesKept; ++i) {
        const QString text = stored.at(i).trimmed();
        if (!text.isEmpty() && !kept.contains(text))
            kept.append(text);
    }
    return kept;
}

void RecentActivityStore::addSearch(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return;
    QStringList searches = recentSearches();
    if (!searches.isEmpty() && searches.first() == trimmed)
        return;
    searches.removeAll(trimmed);
    searches.prepend(trimmed);
    m_preferences->setRecentSearches(searches.mid(0, kSearchesKept));
}

void RecentActivityStore::clearSearches()
{
    if (m_preferences->recentSearches().isEmpty())
        return;
    m_preferences->setRecentSearches({});
}

QList<RecentLocation> RecentActivityStore::recentLocations() const
{
    QList<RecentLocation> locations = m_preferences->recentNodes(kLocationsKept);
    locations.removeIf([](const RecentLocation &entry) { return entry.id.trimmed().isEmpty(); });
    return locations;
}

void RecentActivityStore::addLocation(const RecentLocation &location)
{
    RecentLocation entry{location.id.trimmed(), location.label.trimmed(),
                         location.flagCode.trimmed()};
    // Without an id the entry could never be connected to again.
    if (entry.id.isEmpty())
        return;
    QList<RecentLocation> locations = recentLocations();
    if (!locations.isEmpty() && locations.first() == entry)
        return;
    locations.removeIf([&entry](const RecentLocation &old) { return old.id == entry.id; });
    locations.prepend(entry);
    m_preferences->setRecentNodes(locations.mid(0, kLocationsKept));
    // The user cleared an old history, not all future ones: a new visit starts a new list.
    if (m_preferences->recentNodesCleared())
        m_preferences->setRecentNodesCleared(false);
}

void RecentActivityStore::clearLocations()
{
    if (!m_preferences->recentNodes(1).isEmpty())
        m_preferences->setRecentNodes({});
    m_preferences->setRecentNodesCleared(true);
}

bool RecentActivityStore::locationsCleared() const
{
    return m_preferences->recentNodesCleared();
}
