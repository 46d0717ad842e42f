#include "LocationsPage.h"

#include "BidiText.h"
#include "GuiTextLog.h"
#include "LocationsEmptyState.h"
#include "LocationsToolbar.h"
#include "LocationsTreeView.h"

#include "AppState.h"
#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "GuiPreferences.h"
#include "IconTinter.h"
#include "LocationItemDelegate.h"
#include "LocationRoles.h"
#include "ThemedScrollBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStackedWidget>
#include <QTimer>

namespace {

// Calls visit(index) for every row of the model, parents before children, until it returns
// false; returns false when it was stopped.
template<typename Visit>
bool forEachRow(const QAbstractItemModel *model, const QModelIndex &parent, Visit &&visit)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (!visit(index))
            return false;
        // Asked first, so that a proxy sets up no row table for each childless node.
        if (model->hasChildren(index) && !forEachRow(model, index, visit))
            return false;
    }
    return true;
}

// Calls visit(index) for every group of the model (a row with rows below it), parents first.
template<typename Visit>
void forEachGroup(const QAbstractItemModel *model, const QModelIndex &parent, Visit &&visit)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (model->hasChildren(index)) {
            visit(index);
            forEachGroup(model, index, visit);
        }
    }
}

// Down moves from the search field into the tree; Escape empties the field.
class SearchKeys : public QObject
{
public:
    SearchKeys(QLineEdit *field, std::function<void()> down)
        : QObject(field)
        , m_field(field)
        , m_down(std::move(down))
    {
        field->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_field && event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Down) {
                m_down();
                return true;
            }
            if (key == Qt::Key_Escape && !m_field->text().isEmpty()) {
                m_field->clear();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QLineEdit *m_field;
    std::function<void()> m_down;
};

} // namespace

LocationsPage::LocationsPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraLocationsPage"), tr("All locations"),
                 tr("Double-click a location to connect to it, or a country or city to connect "
                    "to its fastest location."),
                 parent)
    , m_model(new CatalogTreeModel(this))
    , m_filter(new CatalogFilterModel(this))
    , m_delegate(new LocationItemDelegate(this))
{
    m_filter->setSourceModel(m_model);
    QWidget *content = buildContent();
    addContent(content);
    // The tree takes the page's height rather than the closing stretch.
    if (auto *box = qobject_cast<QBoxLayout *>(layout())) {
        box->setStretch(box->count() - 1, 0);
        box->setStretchFactor(content, 1);
    }
    updateEmptyState();
    updateStatusLine();
}

QWidget *LocationsPage::buildContent()
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);

    m_toolbar = new LocationsToolbar(content);
    column->addWidget(m_toolbar);

    m_search = new QLineEdit(content);
    m_search->setObjectName(QStringLiteral("TovraLocationsSearch"));
    m_search->setPlaceholderText(tr("Search countries, cities, locations or P2P"));
    m_search->setAccessibleName(tr("Search locations"));
    m_search->setClearButtonEnabled(true);
    m_searchIcon = m_search->addAction(QIcon(), QLineEdit::LeadingPosition);
    column->addWidget(m_search);

    m_stack = new QStackedWidget(content);
    m_tree = new LocationsTreeView(m_stack);
    m_tree->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, m_tree));
    m_tree->setModel(m_filter);
    m_tree->setItemDelegate(m_delegate);
    m_empty = new LocationsEmptyState(m_stack);
    m_stack->addWidget(m_tree);
    m_stack->addWidget(m_empty);
    column->addWidget(m_stack, 1);

    m_statusTimer = new QTimer(this);
    m_statusTimer->setSingleShot(true);
    m_statusTimer->setInterval(150);
    connect(m_statusTimer, &QTimer::timeout, this, &LocationsPage::updateStatusLine);
    m_status = new QLabel(content);
    m_status->setProperty("tovraRole", QStringLiteral("muted"));
    m_status->setWordWrap(true);
    column->addWidget(m_status);

    connect(m_toolbar, &LocationsToolbar::tabChanged, this, &LocationsPage::tabChanged);
    connect(m_toolbar, &LocationsToolbar::sortChanged, this, [this](CatalogSort sort) {
        m_model->setSortOrder(sort);
        const QString key = LocationsToolbar::sortKey(sort);
        if (m_preferences && m_preferences->locationsSort() != key)
            m_preferences->setLocationsSort(key);
    });
    connect(m_toolbar, &LocationsToolbar::refreshRequested, this,
            &LocationsPage::refreshLocationsRequested);
    connect(m_search, &QLineEdit::textChanged, this, &LocationsPage::searchChanged);
    connect(m_search, &QLineEdit::returnPressed, this, &LocationsPage::activateFromSearch);
    new SearchKeys(m_search, [this] {
        if (m_stack->currentWidget() != m_tree)
            return;
        if (!m_tree->currentIndex().isValid())
            m_tree->setCurrentIndex(m_filter->index(0, 0));
        m_tree->setFocus(Qt::TabFocusReason);
    });
    connect(m_tree, &LocationsTreeView::rowActivated, this, &LocationsPage::activate);
    connect(m_tree, &LocationsTreeView::favoriteToggled, this, &LocationsPage::toggleFavorite);
    connect(m_tree, &LocationsTreeView::menuRequested, this, &LocationsPage::showRowMenu);
    connect(m_tree, &LocationsTreeView::textTyped, this, &LocationsPage::typeIntoSearch);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!m_hint.isEmpty()) {
            m_hint.clear();
            updateStatusLine();
        }
    });
    connect(m_delegate, &LocationItemDelegate::favoriteToggleRequested, this,
            &LocationsPage::setNodeFavoriteRequested);
    for (const auto signal :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_filter, signal, this, [this] { updateEmptyState(); });
    }
    connect(m_filter, &QAbstractItemModel::modelReset, this, [this] { updateEmptyState(); });
    connect(m_filter, &QAbstractItemModel::layoutChanged, this, [this] { updateEmptyState(); });
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
    return content;
}

void LocationsPage::setPreferences(GuiPreferences *preferences)
{
    m_preferences = preferences;
    if (m_preferences)
        m_toolbar->setSort(LocationsToolbar::sortFromKey(m_preferences->locationsSort()));
}

QStringList LocationsPage::tiersFor(const UserInfo &user)
{
    const QString role = user.role.trimmed().toUpper();
    if (!user.valid || role.isEmpty())
        return {}; // no account known: nothing reads as locked
    if (role == QLatin1String("SVIP"))
        return {QStringLiteral("FREE"), QStringLiteral("SVIP")};
    QStringList tiers{QStringLiteral("FREE")};
    if (role != tiers.first())
        tiers.append(role);
    return tiers;
}

void LocationsPage::refresh(const AppState &state)
{
    m_serviceKnown = state.runtime().valid;
    m_catalogueKnown = state.nodes().valid;
    m_groupsKnown = state.nodeGroups().valid;
    m_model->setAvailableTiers(tiersFor(state.user()));
    m_model->setCatalog(state.nodeGroups(), state.nodes());
    m_cooldown = state.nodesRefreshCooldown();
    m_toolbar->setCooldown(m_cooldown);
    updateEmptyState();
    // Counting the nodes indexes the whole tree: in an event of its own, not on top of a rebuild.
    if (!m_statusTimer->isActive())
        m_statusTimer->start();
}

void LocationsPage::applyTheme(const ThemeColors &colors)
{
    WindowPage::applyTheme(colors);
    m_delegate->setThemeColors(colors);
    m_toolbar->applyTheme(colors);
    const qreal ratio = devicePixelRatioF();
    m_searchIcon->setIcon(IconTinter::tinted(QStringLiteral(":/icons/search.svg"), QSize(16, 16),
                                             colors.color(ThemeColor::TextMuted), ratio));
    // Continents get a globe in the flag's 24 x 16 box, so the row keeps its rhythm.
    QPixmap box(QSize(24, 16) * ratio);
    box.setDevicePixelRatio(ratio);
    box.fill(Qt::transparent);
    QPainter painter(&box);
    painter.drawPixmap(QPoint(4, 0),
                       IconTinter::tinted(QStringLiteral(":/icons/locations.svg"), QSize(16, 16),
                                          colors.color(ThemeColor::TextMuted), ratio));
    painter.end();
    m_model->setRegionlessIcon(QIcon(box));
    m_tree->viewport()->update();
}

void LocationsPage::pageShown()
{
    ++m_shownCount;
    if (m_serviceKnown && !m_catalogueKnown && m_cooldown == 0)
        Q_EMIT refreshLocationsRequested();
}

void LocationsPage::tabChanged(const QString &tab)
{
    // A search covers every tab; the tab applies again once the search is cleared.
    if (!m_filter->isSearching())
        m_model->setTab(tab);
    updateEmptyState();
    updateStatusLine();
}

void LocationsPage::searchChanged(const QString &text)
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
    updateEmptyState();
    // Counting the matches walks every row: once typing pauses, not on each key.
    m_statusTimer->start();
}

void LocationsPage::expandResults()
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

void LocationsPage::selectFirstMatch()
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

void LocationsPage::activateFromSearch()
{
    QModelIndex target = m_tree->currentIndex();
    if (!target.isValid() && m_filter->isSearching()) {
        selectFirstMatch();
        target = m_tree->currentIndex();
    }
    activate(target);
}

void LocationsPage::activate(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const QString label = index.data(Qt::DisplayRole).toString();
    const bool group = index.data(LocationIsGroupRole).toBool();
    if (index.data(LocationLockedRole).toBool()) {
        showHint(
            group ? tr("None of the locations in %1 is included in your plan.").arg(isolated(label))
                  : tr("%1 is not included in your plan. Upgrade to use it.").arg(isolated(label)));
        return;
    }
    if (group) {
        const QString selector = index.data(LocationSelectorRole).toString();
        if (!selector.isEmpty())
            Q_EMIT connectSmartRequested(selector);
        return;
    }
    const QString id = index.data(LocationNodeIdRole).toString();
    Q_EMIT pendingConnectTargetChanged(id, label);
    Q_EMIT connectNodeRequested(id, label);
}

void LocationsPage::toggleFavorite(const QModelIndex &index)
{
    if (!index.isValid() || index.data(LocationIsGroupRole).toBool())
        return;
    Q_EMIT setNodeFavoriteRequested(index.data(LocationNodeIdRole).toString(),
                                    !index.data(LocationFavoriteRole).toBool());
}

void LocationsPage::showRowMenu(const QModelIndex &index, const QPoint &globalPos)
{
    const QPersistentModelIndex row(index);
    const bool group = index.data(LocationIsGroupRole).toBool();
    const bool locked = index.data(LocationLockedRole).toBool();
    QMenu menu(this);
    menu.setAccessibleName(tr("Location actions"));
    QAction *connectAction =
        menu.addAction(group ? tr("Connect to the fastest location") : tr("Connect"));
    connectAction->setEnabled(!locked);
    connect(connectAction, &QAction::triggered, this, [this, row] { activate(row); });
    if (group) {
        const bool expanded = m_tree->isExpanded(index);
        QAction *fold = menu.addAction(expanded ? tr("Collapse") : tr("Expand"));
        connect(fold, &QAction::triggered, this,
                [this, row, expanded] { m_tree->setExpanded(row, !expanded); });
    } else {
        const bool favorite = index.data(LocationFavoriteRole).toBool();
        QAction *star =
            menu.addAction(favorite ? tr("Remove from favourites") : tr("Add to favourites"));
        connect(star, &QAction::triggered, this, [this, row] { toggleFavorite(row); });
    }
    menu.exec(globalPos);
}

void LocationsPage::typeIntoSearch(const QString &text)
{
    m_search->setFocus(Qt::OtherFocusReason);
    m_search->insert(text);
}

// Both walk the catalogue's groups in the source model: through the filter, every group and
// node would get a row table of its own.
QSet<QString> LocationsPage::expandedSelectors() const
{
    QSet<QString> selectors;
    forEachGroup(m_model, {}, [&](const QModelIndex &group) {
        if (m_tree->isExpanded(m_filter->mapFromSource(group)))
            selectors.insert(group.data(LocationSelectorRole).toString());
    });
    return selectors;
}

void LocationsPage::restoreExpansion(const QSet<QString> &selectors)
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

void LocationsPage::updateEmptyState()
{
    using Reason = LocationsEmptyState::Reason;
    Reason reason = Reason::None;
    if (m_filter->rowCount() == 0) {
        if (!m_catalogueKnown)
            reason = m_serviceKnown ? Reason::Loading : Reason::ServiceUnavailable;
        else if (m_model->nodes().nodes.isEmpty())
            reason = Reason::EmptyCatalogue;
        else if (m_filter->isSearching())
            reason = Reason::NoMatch;
        else if (m_toolbar->tab() == QLatin1String("favorite"))
            reason = Reason::NoFavorites;
        else
            reason = Reason::EmptyTab;
    }
    m_empty->setReason(reason, m_search->text());
    QWidget *shown = reason == Reason::None ? static_cast<QWidget *>(m_tree) : m_empty;
    if (m_stack->currentWidget() != shown) {
        const bool hadFocus = m_tree->hasFocus();
        m_stack->setCurrentWidget(shown);
        if (hadFocus)
            m_search->setFocus(Qt::OtherFocusReason);
    }
}

void LocationsPage::showHint(const QString &text)
{
    m_hint = text;
    updateStatusLine();
}

void LocationsPage::updateStatusLine()
{
    QStringList parts;
    if (!m_hint.isEmpty()) {
        parts << m_hint;
    } else if (m_catalogueKnown) {
        if (m_filter->isSearching()) {
            int matches = 0;
            forEachRow(m_filter, {}, [&matches](const QModelIndex &index) {
                matches += index.data(LocationIsGroupRole).toBool() ? 0 : 1;
                return true;
            });
            parts << tr("Matches in every tab: %1").arg(matches);
        } else {
            parts << tr("Locations: %1").arg(m_model->nodeCount());
        }
        if (m_model->nodes().pingRunning)
            parts << tr("Measuring latency...");
        if (m_model->nodes().stale || m_model->nodeGroups().stale)
            parts << tr("This list may be out of date; Refresh fetches a new one.");
        else if (!m_groupsKnown)
            parts << tr("Grouping by region until the service's groups arrive.");
    }
    m_status->setText(parts.join(QStringLiteral(" \u00b7 ")));
    guiTextLog("window.locations", m_status->text());
    m_status->setVisible(!parts.isEmpty());
}
