#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class CatalogFilterModel;
class CatalogTreeModel;
class LocationsToolbar;
class LocationsTreeView;
class QLineEdit;

// The search field as the locations tree sees it: the filter follows the text, a search covers
// every tab and opens its results, clearing it gives back the groups that were open before;
// Down moves into the tree, Escape empties the field, letters typed in the tree land here.
class LocationsSearch : public QObject
{
    Q_OBJECT

public:
    LocationsSearch(QLineEdit *field, LocationsTreeView *tree, CatalogFilterModel *filter,
                    CatalogTreeModel *model, LocationsToolbar *toolbar, QObject *parent);

    // Makes the first location (not group) that matches the current row.
    void selectFirstMatch();
    // Text typed while the tree has focus continues in the field.
    void type(const QString &text);

Q_SIGNALS:
    // The filter took the field's new text.
    void filterChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void textChanged(const QString &text);
    void expandResults();
    QSet<QString> expandedSelectors() const;
    void restoreExpansion(const QSet<QString> &selectors);

    QLineEdit *m_field;
    LocationsTreeView *m_tree;
    CatalogFilterModel *m_filter;
    CatalogTreeModel *m_model;
    LocationsToolbar *m_toolbar;
    QSet<QString> m_expandedBeforeSearch;
    bool m_expandPending = false;
};
