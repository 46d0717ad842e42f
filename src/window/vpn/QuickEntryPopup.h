#pragma once

#include <QFrame>

class QListView;
class QuickEntryModel;

// The list that drops down under the quick-entry field. It never takes the focus: the field
// keeps it, and drives the current row from the keyboard.
class QuickEntryPopup : public QFrame
{
    Q_OBJECT

public:
    QuickEntryPopup(QuickEntryModel *model, QWidget *parent);

    int currentRow() const;
    void setCurrentRow(int row);
    // Right under `anchor`, as wide as it, as tall as its rows need and `bottomLimit` allows
    // (both in the parent's coordinates).
    void placeUnder(const QWidget *anchor, int bottomLimit);
    QListView *view() const { return m_view; }

Q_SIGNALS:
    void rowActivated(int row);

private:
    QuickEntryModel *m_model;
    QListView *m_view;
};
