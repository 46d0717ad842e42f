#include "LocationsTreeView.h"

#include "LocationItemDelegate.h"
#include "LocationRoles.h"

#include <QContextMenuEvent>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

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

void LocationsTreeView::setArrowColor(const QColor &color)
{
    m_arrowColor = color;
    viewport()->update();
}

bool LocationsTreeView::viewportEvent(QEvent *event)
{
    // The view repaints the rows the pointer enters and leaves; this keeps which one it is on.
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        m_hovered = indexAt(static_cast<QHoverEvent *>(event)->position().toPoint());
        break;
    case QEvent::HoverLeave:
    case QEvent::Leave:
        m_hovered = QPersistentModelIndex();
        break;
    default:
        break;
    }
    return QTreeView::viewportEvent(event);
}

void LocationsTreeView::selectionChanged(const QItemSelection &selected,
                                         const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    // The tint spans the branch column, which the view's own update leaves out in a mirrored
    // tree: the whole rows are painted again.
    for (const QItemSelection &rows : {selected, deselected}) {
        for (const QModelIndex &index : rows.indexes()) {
            const QRect item = visualRect(index);
            if (item.isValid())
                viewport()->update(QRect(0, item.top(), viewport()->width(), item.height()));
        }
    }
}

void LocationsTreeView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    if (const auto *delegate = qobject_cast<LocationItemDelegate *>(itemDelegate())) {
        const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
        const bool hovered = m_hovered.isValid() && m_hovered.row() == index.row() &&
                             m_hovered.parent() == index.parent();
        const bool focused = hasFocus() && index == currentIndex();
        delegate->paintRowBackground(painter, row, selectionModel()->isSelected(index), hovered,
                                     focused, option.palette);
    }
    QTreeView::drawRow(painter, option, index);
}

void LocationsTreeView::drawBranches(QPainter *painter, const QRect &rect,
                                     const QModelIndex &index) const
{
    if (!model()->hasChildren(index))
        return;
    // The arrow sits in the last indentation step, next to the row's flag.
    const int step = indentation();
    const QRectF cell(isRightToLeft() ? rect.left() : rect.right() + 1 - step, rect.top(), step,
                      rect.height());
    const QPointF centre = cell.center() + QPointF(0, 1);
    const qreal half = 3.5;
    QPainterPath chevron;
    if (isExpanded(index)) {
        chevron.moveTo(centre + QPointF(-half, -half / 2));
        chevron.lineTo(centre + QPointF(0, half / 2));
        chevron.lineTo(centre + QPointF(half, -half / 2));
    } else {
        const qreal forward = isRightToLeft() ? -1 : 1;
        chevron.moveTo(centre + QPointF(-forward * half / 2, -half));
        chevron.lineTo(centre + QPointF(forward * half / 2, 0));
        chevron.lineTo(centre + QPointF(-forward * half / 2, half));
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor color = m_arrowColor.isValid() ? m_arrowColor : palette().color(QPalette::Text);
    painter->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(chevron);
    painter->restore();
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
