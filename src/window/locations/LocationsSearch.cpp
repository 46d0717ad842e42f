#include "LocationsSearch.h"

#include "LocationsToolbar.h"
#include "LocationsTreeView.h"
#include "ModelRows.h"

#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "LocationRoles.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

LocationsSearch::LocationsSearch(QLineEdit *field, LocationsTreeView *tree,
                                 CatalogFilterModel *filter, CatalogTreeModel *model,
                                 LocationsToolbar *toolbar, QObject *parent)
    : QObject(parent)
    , m_field(field)
    , m_tree(tree)
    , m_filter(filter)
    , m_model(model)
    , m_toolbar(toolbar)
{
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, &LocationsSearch::textChanged);
    // Rows that arrive during a search open like the rest of the results, once per batch.
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, [this] {
        if (!m_filter->isSearching() || m_expandPending)
            return;
        m_expandPending = true;
        QTimer::singleShot(0, this, [this] {
            m_expandPending = false;
            if (m_filter->isSearching())
                expandResults();
        });
    });
}

bool LocationsSearch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Down) {
            // Into the tree, unless the empty state stands in its place.
            if (m_filter->rowCount() > 0) {
                if (!m_tree->currentIndex().isValid())
                    m_tree->setCurrentIndex(m_filter->index(0, 0));
                m_tree->setFocus(Qt::TabFocusReason);
            }
            return true;
        }
        if (key == Qt::Key_Escape && !m_field->text().isEmpty()) {
            m_field->clear();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void LocationsSearch::type(const QString &text)
{
    m_field->setFocus(Qt::OtherFocusReason);
    m_field->insert(text);
}

void LocationsSearch::textChanged(const QString &text)
{
    const QStringList before = m_filter->tokens();
    const bool wasSearching = !before.isEmpty();
    const bool searching = !CatalogFilterModel::tokenize(text).isEmpty();
    if (searching && !wasSearching)
        m_expandedBeforeSearch = expandedSelectors();
    m_filter->setFilterText(text);
    if (searching != wasSearching) {
        m_model->setTab(searching ? QString() : m_toolbar->tab());
        m_toolbar->setSearchGlobal(searching);
    }
    if (!searching && wasSearching) {
        restoreExpansion(m_expandedBeforeSearch);
        m_expandedBeforeSearch.clear();
        m_tree->scrollTo(m_tree->currentIndex());
    } else if (searching && m_filter->tokens() != before) {
        expandResults();
        selectFirstMatch();
    }
    Q_EMIT filterChanged();
}

void LocationsSearch::expandResults()
{
    // Level by level while the opened rows still fit a few screens: a narrow search opens down
    // to its nodes, a one-letter one opens its groups without laying out the whole catalogue.
    constexpr int kMaxOpenRows = 400;
    QModelIndexList groups;
    int open = m_filter->rowCount();
    QModelIndexList level;
    for (int row = 0; row < m_filter->rowCount(); ++row)
        level.append(m_filter->index(row, 0));
    while (!level.isEmpty() && open < kMaxOpenRows) {
        QModelIndexList next;
        for (const QModelIndex &group : std::as_const(level)) {
            const int rows = m_filter->rowCount(group);
            if (rows == 0 || open + rows > kMaxOpenRows)
                continue;
            groups.append(group);
            open += rows;
            for (int row = 0; row < rows; ++row)
                next.append(m_filter->index(row, 0, group));
        }
        level = next;
    }
    m_tree->expandOnly(groups);
}

void LocationsSearch::selectFirstMatch()
{
    QModelIndex first;
    forEachRow(m_filter, {}, [&first](const QModelIndex &index) {
        if (index.data(LocationIsGroupRole).toBool())
            return true;
        first = index;
        return false;
    });
    if (first.isValid())
        m_tree->setCurrentIndex(first);
}

// Both walk the catalogue's groups in the source model: through the filter, every group and
// node would get a row table of its own.
QSet<QString> LocationsSearch::expandedSelectors() const
{
    QSet<QString> selectors;
    forEachGroup(m_model, {}, [&](const QModelIndex &group) {
        if (m_tree->isExpanded(m_filter->mapFromSource(group)))
            selectors.insert(group.data(LocationSelectorRole).toString());
    });
    return selectors;
}

void LocationsSearch::restoreExpansion(const QSet<QString> &selectors)
{
    QModelIndexList groups;
    if (!selectors.isEmpty()) {
        forEachGroup(m_model, {}, [&](const QModelIndex &group) {
            if (selectors.contains(group.data(LocationSelectorRole).toString()))
                groups.append(m_filter->mapFromSource(group));
        });
    }
    m_tree->expandOnly(groups);
}
