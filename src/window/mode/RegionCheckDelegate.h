#pragma once

#include <QStyledItemDelegate>

// Lets a click anywhere on a checkable row toggle it, not only a click on its small box.
class RegionCheckDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};
