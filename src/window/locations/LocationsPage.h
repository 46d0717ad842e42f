#pragma once

#include "WindowPage.h"

#include "NodeEntry.h"

class CatalogFilterModel;
class CatalogTreeModel;
class GuiPreferences;
class LocationItemDelegate;
class LocationsEmptyState;
class LocationsSearch;
class LocationsStatusLine;
class LocationsToolbar;
class LocationsTreeView;
class QLineEdit;
class QStackedWidget;

// Page 1: the catalogue of locations with favourites and search.
class LocationsPage : public WindowPage
{
    Q_OBJECT

public:
    explicit LocationsPage(QWidget *parent = nullptr);

    // Where the tab and sort choices are remembered; without it they last as long as the page.
    void setPreferences(GuiPreferences *preferences);
    void refresh(const AppState &state) override;
    Records reads() const override;
    void applyTheme(const ThemeColors &colors) override;

    // The window calls this each time the page becomes current; with no catalogue yet from a
    // running service, it asks for one (the refresh cooldown keeps that from repeating).
    void pageShown();
    int shownCount() const { return m_shownCount; }
    // The window's search key: into the search field, its text selected.
    void focusSearch();

    CatalogTreeModel *catalogModel() const { return m_model; }
    CatalogFilterModel *filterModel() const { return m_filter; }

Q_SIGNALS:
    void refreshLocationsRequested();
    void connectNodeRequested(QString nodeID, QString label);
    void connectSmartRequested(QString selector);
    void setNodeFavoriteRequested(QString nodeID, bool favorite);
    void pendingConnectTargetChanged(QString nodeID, QString label);

private:
    QWidget *buildContent();
    void connectParts();
    void tabChanged(const QString &tab);
    void activate(const QModelIndex &index);
    // A double-click or Enter: continents open and close, other rows connect.
    void openOrActivate(const QModelIndex &index);
    void activateFromSearch();
    void toggleFavorite(const QModelIndex &index);
    void showRowMenu(const QModelIndex &index, const QPoint &globalPos);
    void updateEmptyState();
    // The node the tunnel uses, when it is up.
    static NodeEntry connectedNode(const AppState &state);

    CatalogTreeModel *m_model;
    CatalogFilterModel *m_filter;
    LocationItemDelegate *m_delegate;
    LocationsToolbar *m_toolbar = nullptr;
    QLineEdit *m_search = nullptr;
    LocationsSearch *m_searchDriver = nullptr;
    LocationsTreeView *m_tree = nullptr;
    LocationsEmptyState *m_empty = nullptr;
    QStackedWidget *m_stack = nullptr;
    LocationsStatusLine *m_status = nullptr;
    QAction *m_searchIcon = nullptr;
    GuiPreferences *m_preferences = nullptr;
    QString m_fetchError; // why the catalogue could not be fetched; empty while none failed
    bool m_serviceKnown = false;
    bool m_catalogueKnown = false;
    int m_cooldown = 0;
    int m_shownCount = 0;
};
