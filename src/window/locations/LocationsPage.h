#pragma once

#include "WindowPage.h"

#include <QSet>

class CatalogFilterModel;
class CatalogTreeModel;
class GuiPreferences;
class LocationItemDelegate;
class LocationsEmptyState;
class LocationsToolbar;
class LocationsTreeView;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTimer;
struct UserInfo;

// Page 1: the catalogue of locations with favourites and search.
class LocationsPage : public WindowPage
{
    Q_OBJECT

public:
    explicit LocationsPage(QWidget *parent = nullptr);

    // Where the sort choice is remembered; without it the choice lasts as long as the page.
    void setPreferences(GuiPreferences *preferences);
    void refresh(const AppState &state) override;
    Records reads() const override;
    void applyTheme(const ThemeColors &colors) override;

    // The window calls this each time the page becomes current; with no catalogue yet from a
    // running service, it asks for one (the refresh cooldown keeps that from repeating).
    void pageShown();
    int shownCount() const { return m_shownCount; }

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
    void searchChanged(const QString &text);
    void tabChanged(const QString &tab);
    void activate(const QModelIndex &index);
    void activateFromSearch();
    void toggleFavorite(const QModelIndex &index);
    void showRowMenu(const QModelIndex &index, const QPoint &globalPos);
    void typeIntoSearch(const QString &text);
    void selectFirstMatch();
    void expandResults();
    QSet<QString> expandedSelectors() const;
    void restoreExpansion(const QSet<QString> &selectors);
    void updateEmptyState();
    void updateStatusLine();
    void showHint(const QString &text);
    static QStringList tiersFor(const UserInfo &user);

    CatalogTreeModel *m_model;
    CatalogFilterModel *m_filter;
    LocationItemDelegate *m_delegate;
    LocationsToolbar *m_toolbar = nullptr;
    QLineEdit *m_search = nullptr;
    LocationsTreeView *m_tree = nullptr;
    LocationsEmptyState *m_empty = nullptr;
    QStackedWidget *m_stack = nullptr;
    QLabel *m_status = nullptr;
    QTimer *m_statusTimer = nullptr;
    QAction *m_searchIcon = nullptr;
    GuiPreferences *m_preferences = nullptr;
    QSet<QString> m_expandedBeforeSearch;
    QString m_hint;
    bool m_expandPending = false;
    bool m_serviceKnown = false;
    bool m_catalogueKnown = false;
    bool m_groupsKnown = false;
    int m_cooldown = 0;
    int m_shownCount = 0;
};
