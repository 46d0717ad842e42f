#pragma once

#include "CatalogTreeBuilder.h"

#include <QWidget>

class LocationsFavoriteButton;
class QBoxLayout;
class QComboBox;
class QPushButton;
class QTabBar;
class ThemeColors;

// The row above the locations tree: the tabs (All, Free, Premium, Favourites), the sort
// choice, the refresh button with its cooldown and the current row's favourite star.
class LocationsToolbar : public QWidget
{
    Q_OBJECT

public:
    explicit LocationsToolbar(QWidget *parent = nullptr);

    // The daemon's tab word of the chosen tab: "all", "free", "svip" or "favorite".
    QString tab() const;
    void setTab(const QString &tab);
    CatalogSort sort() const;
    void setSort(CatalogSort sort);
    // While a search covers every tab, the chosen tab is drawn as not chosen.
    void setSearchGlobal(bool global);
    // Seconds until another refresh may be asked for; 0 enables the button.
    void setCooldown(int seconds);
    void applyTheme(const ThemeColors &colors);
    LocationsFavoriteButton *favoriteButton() const { return m_favorite; }

    static QString sortKey(CatalogSort sort);
    static CatalogSort sortFromKey(const QString &key);

Q_SIGNALS:
    void tabChanged(QString tab);
    void sortChanged(CatalogSort sort);
    void refreshRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitActions();

    QTabBar *m_tabs;
    QComboBox *m_sort;
    QPushButton *m_refresh;
    LocationsFavoriteButton *m_favorite;
    QBoxLayout *m_rows; // the tab row, and the actions' own row when they do not fit beside
    QBoxLayout *m_tabRow;
    QBoxLayout *m_actions; // sort, refresh, favourite
    bool m_actionsBeside = true;
    int m_cooldown = 0;
};
