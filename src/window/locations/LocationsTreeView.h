#pragma once

#include <QColor>
#include <QPersistentModelIndex>
#include <QTreeView>

// The locations tree as the keyboard sees it: one Tab stop; arrows move, Enter and a
// double-click activate the row, Space stars a node, letters go to the search field, the menu
// key and a right click open the row's menu.
class LocationsTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit LocationsTreeView(QWidget *parent = nullptr);

    // Exactly these groups open, everything else folded, in one layout pass.
    void expandOnly(const QModelIndexList &groups);
    // The colour of the branch arrows (the theme's muted text).
    void setArrowColor(const QColor &color);

Q_SIGNALS:
    void rowActivated(QModelIndex index);
    void favoriteToggled(QModelIndex index);
    void menuRequested(QModelIndex index, QPoint globalPos);
    // Printable text typed while the tree has focus; the search field takes it.
    void textTyped(QString text);

protected:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = {}) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyboardSearch(const QString &search) override;
    bool viewportEvent(QEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    // The row's hover and selection span the branch column, under the arrow; the arrows are
    // drawn here rather than by the style, whose style-sheet branch rules drop them on
    // selected and hovered rows.
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;

private:
    QPersistentModelIndex m_hovered;
    QColor m_arrowColor;
};
