#include "QuickEntryModel.h"

#include "BidiText.h"
#include "CatalogFilterModel.h"
#include "Countries.h"
#include "LocationRoles.h"

#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

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

} // namespace

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
    collectMatches(filtered, QModelIndex(), QString(), CatalogFilterModel::tokenize(searchText),
                   entries);
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

void QuickEntryModel::collectMatches(const QSortFilterProxyModel &filtered,
                                     const QModelIndex &parent, const QString &parentName,
                                     const QStringList &tokens, QList<Entry> &out) const
{
    for (int row = 0; row < filtered.rowCount(parent) && out.size() < kMatchLimit; ++row) {
        const QModelIndex index = filtered.index(row, 0, parent);
        const QString name = index.data(Qt::DisplayRole).toString();
        const bool group = index.data(LocationIsGroupRole).toBool();
        Entry entry;
        entry.text = name;
        entry.detail = parentName;
        entry.flagCode = index.data(LocationRegionRole).toString();
        entry.enabled = !index.data(LocationLockedRole).toBool();
        entry.toolTip = index.data(Qt::ToolTipRole).toString();
        if (!group) {
            entry.kind = Kind::Node;
            entry.target = index.data(LocationNodeIdRole).toString();
            if (!entry.target.isEmpty())
                out.append(entry);
            continue;
        }
        if (filtered.rowCount(index) > 0 && matchesItself(filtered.mapToSource(index), tokens)) {
            entry.kind = Kind::Group;
            entry.target = index.data(LocationSelectorRole).toString();
            if (!entry.target.isEmpty())
                out.append(entry);
        }
        collectMatches(filtered, index, name, tokens, out);
    }
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
