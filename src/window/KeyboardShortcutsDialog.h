#pragma once

#include <QDialog>

class QTreeWidget;

// The list of the window's keyboard shortcuts (WindowShortcuts), opened with F1 or from the
// Settings page. Escape or Close closes it.
class KeyboardShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KeyboardShortcutsDialog(QWidget *parent = nullptr);

    QTreeWidget *list() const { return m_list; }

private:
    QTreeWidget *m_list;
};
