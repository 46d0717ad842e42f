#pragma once

#include "RecentLocation.h"

#include <QAbstractListModel>
#include <QColor>
#include <QList>
#include <QStringList>

class QSortFilterProxyModel;

// The rows of the quick-entry popup as one flat list: recent searches and locations while the
// field is empty, else the catalogue's matches. Headings and the empty-state line are rows too,
// but never current: the keyboard steps over them.
class QuickEntryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class Kind { Heading, Notice, Search, Location, Group, Node };
    enum Role { KindRole = Qt::UserRole + 1, TargetRole, LabelRole, FlagCodeRole };

    static constexpr int kMatchLimit = 40;

    explicit QuickEntryModel(QObject *parent = nullptr);

    void showRecent(const QStringList &searches, const QList<RecentLocation> &locations);
    // The filtered catalogue's matches (LocationMatcher), in the tree's order.
    void showMatches(const QSortFilterProxyModel &filtered, const QString &searchText);
    void setMutedColor(const QColor &color);

    bool isSelectable(int row) const;
    // The next row from `from` in direction `step` (+1, -1) that can be current, or -1.
    int nextSelectable(int from, int step) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Entry
    {
        Kind kind = Kind::Notice;
        QString text;
        QString detail;
        QString target;
        QString flagCode;
        bool enabled = true;
        QString toolTip;
    };

    void reset(QList<Entry> entries);

    QList<Entry> m_entries;
    QColor m_muted;
};
