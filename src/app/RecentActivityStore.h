#pragma once

#include "RecentLocation.h"

#include <QList>
#include <QObject>
#include <QStringList>

class GuiPreferences;

// The user's recent searches and locations, kept in the preferences file with fixed limits.
class RecentActivityStore : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype kSearchesExamined = 32;
    static constexpr qsizetype kSearchesKept = 8;
    static constexpr qsizetype kLocationsKept = 20;

    explicit RecentActivityStore(GuiPreferences *preferences, QObject *parent = nullptr);

    QStringList recentSearches() const;
    // Newest first; an equal earlier entry moves to the front.
    void addSearch(const QString &text);
    void clearSearches();

    QList<RecentLocation> recentLocations() const;
    // Newest first; an earlier entry with the same id is replaced.
    void addLocation(const RecentLocation &location);
    void clearLocations();
    bool locationsCleared() const;

Q_SIGNALS:
    void recentSearchesChanged();
    void recentLocationsChanged();

private:
    GuiPreferences *m_preferences;
};
