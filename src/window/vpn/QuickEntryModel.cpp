#include "QuickEntryModel.h"

#include "BidiText.h"
#include "CatalogFilterModel.h"
#include "Countries.h"
#include "LocationMatcher.h"

#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QSortFilterProxyModel>

QuickEntryModel::QuickEntryModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void QuickEntryModel::reset(QList<Entry> entries)
{
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
}

void QuickEntryModel::showRecent(const QStringList &searches,
                                 const QList<RecentLocation> &locations)
{
    QList<Entry> entries;
    if (!searches.isEmpty()) {
        entries.append({Kind::Heading, tr("Recent searches"), {}, {}, {}, false, {}});
        for (const QString &search : searches)
            entries.append({Kind::Search, search, {}, search, {}, true, {}});
    }
    if (!locations.isEmpty()) {
        entries.append({Kind::Heading, tr("Recent locations"), {}, {}, {}, false, {}});
        for (const RecentLocation &location : locations)
            entries.append(
                {Kind::Location, location.label, {}, location.id, location.flagCode, true, {}});
    }
    if (entries.isEmpty())
        entries.append(
            {Kind::Notice, tr("Type a country, city or location name"), {}, {}, {}, false, {}});
    reset(std::move(entries));
}

void QuickEntryModel::showMatches(const QSortFilterProxyModel &filtered, const QString &searchText)
{
    QList<Entry> entries;
    for (const LocationMatch &match : LocationMatcher::collect(filtered, searchText, kMatchLimit))
        entries.append({match.group ? Kind::Group : Kind::Node, match.name, match.parentName,
                        match.target, match.flagCode, !match.locked, match.toolTip});
    if (entries.isEmpty())
        entries.append({Kind::Notice,
                        tr("No locations match \u201c%1\u201d").arg(isolated(searchText.trimmed())),
                        {},
                        {},
                        {},
                        false,
                        {}});
    reset(std::move(entries));
}

void QuickEntryModel::setMutedColor(const QColor &color)
{
    m_muted = color;
    if (!m_entries.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_entries.size()) - 1), {Qt::ForegroundRole});
}

bool QuickEntryModel::isSelectable(int row) const
{
    if (row < 0 || row >= m_entries.size())
        return false;
    const Entry &entry = m_entries.at(row);
    return entry.enabled && entry.kind != Kind::Heading && entry.kind != Kind::Notice;
}

int QuickEntryModel::nextSelectable(int from, int step) const
{
    for (int row = from + step; row >= 0 && row < m_entries.size(); row += step) {
        if (isSelectable(row))
            return row;
    }
    return -1;
}

int QuickEntryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant QuickEntryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.parent().isValid() || index.row() >= m_entries.size())
        return {};
    const Entry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return entry.detail.isEmpty() ? entry.text
                                      : tr("%1  \u00b7  %2").arg(entry.text, entry.detail);
    case Qt::DecorationRole: {
        const QPixmap flag = countryFlag(entry.flagCode);
        if (flag.isNull())
            return {};
        // The same picture when selected: a flag tinted by the selection reads as another flag.
        QIcon icon;
        icon.addPixmap(flag, QIcon::Normal);
        icon.addPixmap(flag, QIcon::Selected);
        return icon;
    }
    case Qt::ToolTipRole:
        return entry.toolTip.isEmpty() ? QVariant() : QVariant(entry.toolTip);
    case Qt::ForegroundRole:
        if ((entry.kind == Kind::Heading || entry.kind == Kind::Notice || !entry.enabled) &&
            m_muted.isValid())
            return m_muted;
        return {};
    case Qt::FontRole:
        if (entry.kind == Kind::Heading) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case KindRole:
        return int(entry.kind);
    case TargetRole:
        return entry.target;
    case LabelRole:
        return entry.text;
    case FlagCodeRole:
        return entry.flagCode;
    default:
        return {};
    }
}

Qt::ItemFlags QuickEntryModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.parent().isValid() || index.row() >= m_entries.size())
        return Qt::NoItemFlags;
    return isSelectable(index.row()) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemIsEnabled;
}
