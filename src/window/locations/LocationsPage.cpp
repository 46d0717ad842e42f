#include "LocationsPage.h"

#include "AccessibleControl.h"
#include "BidiText.h"
#include "FieldClearButton.h"
#include "LocationsEmptyState.h"
#include "LocationsFavoriteButton.h"
#include "LocationsSearch.h"
#include "LocationsStatusLine.h"
#include "LocationsToolbar.h"
#include "LocationsTreeView.h"
#include "WindowShortcuts.h"

#include "AppState.h"
#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "GuiPreferences.h"
#include "IconTinter.h"
#include "LocationItemDelegate.h"
#include "LocationResolver.h"
#include "LocationRoles.h"
#include "ThemedScrollBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QStackedWidget>

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
    connectParts();
    updateEmptyState();
    m_status->refresh();
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
    m_search->setToolTip(
        WindowShortcuts::toolTip(m_search->accessibleName(), WindowShortcuts::Id::Find));
    FieldClearButton::enable(m_search, FieldClearButton::Kind::Search);
    m_searchIcon = m_search->addAction(QIcon(), QLineEdit::LeadingPosition);
    // The magnifier only decorates: a picture to assistive technology, not a button.
    for (QObject *object : m_searchIcon->associatedObjects()) {
        if (object != m_search && object->isWidgetType()) {
            AccessibleControl::setRole(static_cast<QWidget *>(object), QAccessible::Graphic);
            static_cast<QWidget *>(object)->setAccessibleName(m_search->accessibleName());
        }
    }
    column->addWidget(m_search);

    m_stack = new QStackedWidget(content);
    m_tree = new LocationsTreeView(m_stack);
    m_tree->setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, m_tree));
    m_tree->setModel(m_filter);
    m_tree->setItemDelegate(m_delegate);
    m_delegate->setPaintsRowBackground(false); // the tree paints it across its branch column
    m_empty = new LocationsEmptyState(m_stack);
    m_stack->addWidget(m_tree);
    m_stack->addWidget(m_empty);
    column->addWidget(m_stack, 1);

    m_status = new LocationsStatusLine(m_model, m_filter, content);
    column->addWidget(m_status);
    m_searchDriver = new LocationsSearch(m_search, m_tree, m_filter, m_model, m_toolbar, this);
    return content;
}

void LocationsPage::connectParts()
{
    connect(m_toolbar, &LocationsToolbar::tabChanged, this, &LocationsPage::tabChanged);
    connect(m_toolbar, &LocationsToolbar::sortChanged, this, [this](CatalogSort sort) {
        m_model->setSortOrder(sort);
        const QString key = LocationsToolbar::sortKey(sort);
        if (m_preferences && m_preferences->locationsSort() != key)
            m_preferences->setLocationsSort(key);
    });
    connect(m_toolbar, &LocationsToolbar::refreshRequested, this,
            &LocationsPage::refreshLocationsRequested);
    connect(m_searchDriver, &LocationsSearch::filterChanged, this, [this] {
        updateEmptyState();
        m_status->refreshSoon();
    });
    connect(m_search, &QLineEdit::returnPressed, this, &LocationsPage::activateFromSearch);
    connect(m_tree, &LocationsTreeView::rowActivated, this, &LocationsPage::openOrActivate);
    connect(m_tree, &LocationsTreeView::favoriteToggled, this, &LocationsPage::toggleFavorite);
    connect(m_tree, &LocationsTreeView::menuRequested, this, &LocationsPage::showRowMenu);
    connect(m_tree, &LocationsTreeView::textTyped, m_searchDriver, &LocationsSearch::type);
    LocationsFavoriteButton *star = m_toolbar->favoriteButton();
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, star](const QModelIndex &current) {
                m_status->clearHint();
                star->setRow(current);
            });
    connect(star, &LocationsFavoriteButton::favoriteRequested, this,
            &LocationsPage::setNodeFavoriteRequested);
    connect(m_delegate, &LocationItemDelegate::favoriteToggleRequested, this,
            &LocationsPage::setNodeFavoriteRequested);
    // The empty state and the star read the rows again whenever they may have changed.
    connect(m_filter, &QAbstractItemModel::dataChanged, star, &LocationsFavoriteButton::refresh);
    const auto rowsChanged = [this, star] {
        updateEmptyState();
        star->refresh();
    };
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, rowsChanged);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, rowsChanged);
    connect(m_filter, &QAbstractItemModel::modelReset, this, rowsChanged);
    connect(m_filter, &QAbstractItemModel::layoutChanged, this, rowsChanged);
}

void LocationsPage::setPreferences(GuiPreferences *preferences)
{
    m_preferences = preferences;
    if (!m_preferences)
        return;
    m_toolbar->setSort(LocationsToolbar::sortFromKey(m_preferences->locationsSort()));
    m_toolbar->setTab(m_preferences->locationsTab());
}

void LocationsPage::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

WindowPage::Records LocationsPage::reads() const
{
    return Record::Runtime | Record::User | Record::Nodes | Record::NodeGroups |
           Record::RefreshCooldown;
}

NodeEntry LocationsPage::connectedNode(const AppState &state)
{
    // The status record is newer than the nodes record, which is fetched less often: its
    // "[id] [region] name" text decides where the tunnel is.
    const RuntimeInfo &runtime = state.runtime();
    if (runtime.tunnelState.trimmed().compare(QLatin1String("connected"), Qt::CaseInsensitive))
        return {};
    static const QRegularExpression idPattern(QStringLiteral("^\\[([^\\]]+)\\]"));
    const QString id = idPattern.match(runtime.connectedNode.trimmed()).captured(1).trimmed();
    const NodesInfo &nodes = state.nodes();
    if (id.isEmpty() || (nodes.connected.valid && nodes.connected.id == id))
        return nodes.connected;
    for (const NodeEntry &node : nodes.nodes) {
        if (node.id == id)
            return node;
    }
    NodeEntry unknown;
    unknown.valid = true;
    unknown.id = id;
    return unknown;
}

void LocationsPage::refresh(const AppState &state)
{
    m_serviceKnown = state.runtime().valid;
    m_catalogueKnown = state.nodes().valid;
    m_fetchError = state.nodesFetchError();
    const NodeEntry connected = connectedNode(state);
    NodesInfo nodes = state.nodes();
    nodes.connected = connected;
    m_model->setAvailableTiers(LocationResolver::tiersFor(state.user()));
    m_model->setCatalog(state.nodeGroups(), nodes);
    m_cooldown = state.nodesRefreshCooldown();
    m_toolbar->setCooldown(m_cooldown);
    updateEmptyState();
    m_status->setCatalogue(m_catalogueKnown, state.nodeGroups().valid, connected);
}

void LocationsPage::applyTheme(const ThemeColors &colors)
{
    WindowPage::applyTheme(colors);
    m_delegate->setThemeColors(colors);
    m_tree->setArrowColor(colors.color(ThemeColor::TextMuted));
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
    if (m_preferences && m_preferences->locationsTab() != tab)
        m_preferences->setLocationsTab(tab);
    // A search covers every tab; the tab applies again once the search is cleared.
    if (!m_filter->isSearching())
        m_model->setTab(tab);
    updateEmptyState();
    m_status->refresh();
}

void LocationsPage::activateFromSearch()
{
    if (!m_tree->currentIndex().isValid() && m_filter->isSearching())
        m_searchDriver->selectFirstMatch();
    openOrActivate(m_tree->currentIndex());
}

void LocationsPage::openOrActivate(const QModelIndex &index)
{
    // A continent is too wide to mean one connection: it opens like a folder. Its menu still
    // offers the fastest location.
    if (index.data(LocationContinentRole).toBool()) {
        m_tree->setExpanded(index, !m_tree->isExpanded(index));
        return;
    }
    activate(index);
}

void LocationsPage::activate(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const QString label = index.data(Qt::DisplayRole).toString();
    const bool group = index.data(LocationIsGroupRole).toBool();
    if (index.data(LocationLockedRole).toBool()) {
        m_status->showHint(
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

void LocationsPage::updateEmptyState()
{
    using Reason = LocationsEmptyState::Reason;
    Reason reason = Reason::None;
    if (m_filter->rowCount() == 0) {
        if (!m_catalogueKnown && !m_serviceKnown)
            reason = Reason::ServiceUnavailable;
        else if (!m_catalogueKnown)
            reason = m_fetchError.isEmpty() ? Reason::Loading : Reason::LoadFailed;
        else if (m_model->nodes().nodes.isEmpty())
            reason = Reason::EmptyCatalogue;
        else if (m_filter->isSearching())
            reason = Reason::NoMatch;
        else if (m_toolbar->tab() == QLatin1String("favorite"))
            reason = Reason::NoFavorites;
        else
            reason = Reason::EmptyTab;
    }
    m_empty->setReason(reason, reason == Reason::LoadFailed ? m_fetchError : m_search->text());
    QWidget *shown = reason == Reason::None ? static_cast<QWidget *>(m_tree) : m_empty;
    if (m_stack->currentWidget() != shown) {
        const bool hadFocus = m_tree->hasFocus();
        m_stack->setCurrentWidget(shown);
        if (hadFocus)
            m_search->setFocus(Qt::OtherFocusReason);
    }
}
