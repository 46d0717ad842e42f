#include "RegionCheckDelegate.h"

#include <QEvent>
#include <QMouseEvent>

bool RegionCheckDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                      const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool checkable = index.flags().testFlag(Qt::ItemIsUserCheckable) &&
                           index.flags().testFlag(Qt::ItemIsEnabled);
    if (!checkable)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // The view selects the row; the release toggles it.
        return false;
    case QEvent::MouseButtonDblClick:
        // A double click is two clicks already; the extra event toggles nothing.
        return static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
    case QEvent::MouseButtonRelease: {
        if (static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton ||
            !option.rect.contains(static_cast<QMouseEvent *>(event)->position().toPoint()))
            return false;
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
    default:
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
}
