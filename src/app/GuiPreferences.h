#pragma once

#include "GuiUpdateBookkeeping.h"
#include "RecentLocation.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

class QSettings;

// The GUI's own per-user settings file. Every write is synced at once; a failed sync is
// logged and the value stays in memory.
class GuiPreferences : public QObject
{
    Q_OBJECT

public:
    explicit GuiPreferences(QObject *parent = nullptr);
    ~GuiPreferences() override;

    QString fileName() const;

    bool showOnLaunch() const;
    void setShowOnLaunch(bool show);
    bool launchAtLogin() const;
    void setLaunchAtLogin(bool enabled);

    // "light", "dark" or "system".
    QString appearance() const;
    void setAppearance(const QString &appearance);

    QString lastEffectiveLanguage() const;
    void setLastEffectiveLanguage(const QString &tag);

    // The raw recent lists; RecentActivityStore applies the limits.
    QList<RecentLocation> recentNodes(qsizetype maxCount) const;
    void setRecentNodes(const QList<RecentLocation> &nodes);
    QStringList recentSearches() const;
    void setRecentSearches(const QStringList &searches);
    bool recentNodesCleared() const;
    void setRecentNodesCleared(bool cleared);

    // The Locations page's sort choice: "service", "name" or "latency".
    QString locationsSort() const;
    void setLocationsSort(const QString &sort);

    // Bookkeeping stored for another GUI version reads as the defaults.
    GuiUpdateBookkeeping updateBookkeeping(const QString &runningVersion) const;
    void setUpdateBookkeeping(const QString &runningVersion, const GuiUpdateBookkeeping &state);

Q_SIGNALS:
    // Whoever wrote them: every reader of the lists hears of every change.
    void recentNodesChanged();
    void recentSearchesChanged();

private:
    bool readBool(const QString &key, bool fallback) const;
    qint64 readInt64(const QString &key) const;
    void write(const QString &key, const QVariant &value);
    void persist();

    QSettings *m_settings;
};
