#include "LocationsTreeView.h"

#include "LocationRoles.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

LocationsTreeView::LocationsTreeView(QWidget *parent)
    : QTreeView(parent)
{
    setObjectName(QStringLiteral("TovraLocationsTree"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setRootIsDecorated(true);
    setAnimated(false);
    // The page decides what a double-click does; the branch arrow and the arrow keys fold.
    setExpandsOnDoubleClick(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    setAccessibleName(tr("Locations"));
}

void LocationsTreeView::expandOnly(const QModelIndexList &groups)
{
    collapseAll();
    // With a layout pending, expand() only records the group; one layout follows for all.
    scheduleDelayedItemsLayout();
    for (const QModelIndex &group : groups)
        expand(group);
    executeDelayedItemsLayout();
}

void LocationsTreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                    const QList<int> &roles)
{
    // A ping update touches every node; rows under a folded group are not on screen, and
    // finding where they would be costs the view a search each.
    for (QModelIndex parent = topLeft.parent(); parent.isValid(); parent = parent.parent()) {
        if (!isExpanded(parent))
            return;
    }
    QTreeView::dataChanged(topLeft, bottomRight, roles);
}

void LocationsTreeView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current.isValid()) {
            Q_EMIT rowActivated(current);
            event->accept();
            return;
        }
        break;
    case Qt::Key_Space:
        if (current.isValid() && !current.data(LocationIsGroupRole).toBool()) {
            Q_EMIT favoriteToggled(current);
            event->accept();
            return;
        }
        break;
    default: {
        const QString text = event->text();
        const bool plain =
            !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
        if (plain && !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace()) {
            Q_EMIT textTyped(text);
            event->accept();
            return;
        }
    }
    }
    QTreeView::keyPressEvent(event);
}

void LocationsTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid()) {
        Q_EMIT rowActivated(index);
        event->accept();
        return;
    }
    QTreeView::mouseDoubleClickEvent(event);
}

void LocationsTreeView::contextMenuEvent(QContextMenuEvent *event)
{
    QModelIndex index;
    QPoint at = event->globalPos();
    if (event->reason() == QContextMenuEvent::Mouse) {
        index = indexAt(event->pos());
        if (index.isValid())
            setCurrentIndex(index);
    } else {
        // From the keyboard: the current row, the menu below its name.
        index = currentIndex();
        const QRect row = visualRect(index);
        if (row.isValid()) {
            const int x = isRightToLeft() ? row.right() - 40 : row.left() + 40;
            at = viewport()->mapToGlobal(QPoint(x, row.bottom()));
        }
    }
    if (index.isValid()) {
        Q_EMIT menuRequested(index, at);
        event->accept();
    }
}

void LocationsTreeView::keyboardSearch(const QString &search)
{
    // Typing searches the whole catalogue through the search field instead.
    Q_UNUSED(search);
}
