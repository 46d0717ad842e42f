#pragma once

#include <QAbstractItemModel>

// Calls visit(index) for every row of the model, parents before children, until it returns
// false; returns false when it was stopped.
template<typename Visit>
bool forEachRow(const QAbstractItemModel *model, const QModelIndex &parent, Visit &&visit)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (!visit(index))
            return false;
        // Asked first, so that a proxy sets up no row table for each childless node.
        if (model->hasChildren(index) && !forEachRow(model, index, visit))
            return false;
    }
    return true;
}

// Calls visit(index) for every group of the model (a row with rows below it), parents first.
template<typename Visit>
void forEachGroup(const QAbstractItemModel *model, const QModelIndex &parent, Visit &&visit)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (model->hasChildren(index)) {
            visit(index);
            forEachGroup(model, index, visit);
        }
    }
}
