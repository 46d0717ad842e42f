#include "KeyboardShortcutsDialog.h"

#include "TovraDialogTitleBarThemer.h"
#include "WindowShortcuts.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

KeyboardShortcutsDialog::KeyboardShortcutsDialog(QWidget *parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("TovraKeyboardShortcutsDialog"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    // Every row without scrolling, and the longest one whole.
    resize(720, 560);

    auto *title = new QLabel(tr("Keyboard shortcuts"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    auto *intro = new QLabel(
        tr("These keys work anywhere in the Tovra window. Tab moves between controls."), this);
    intro->setProperty("tovraRole", QStringLiteral("muted"));
    intro->setWordWrap(true);

    m_list->setObjectName(QStringLiteral("TovraKeyboardShortcutsList"));
    m_list->setAccessibleName(tr("Keyboard shortcuts"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({tr("Keys"), tr("Action")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(true);
    for (const WindowShortcuts::Entry &entry : WindowShortcuts::entries()) {
        auto *row = new QTreeWidgetItem(m_list, {WindowShortcuts::keysText(entry.id), entry.text});
        // A screen reader reads the row as one sentence: what the keys do, then the keys.
        const QString spoken =
            entry.text + QStringLiteral(": ") + entry.keys.toString(QKeySequence::NativeText);
        row->setData(0, Qt::AccessibleTextRole, spoken);
        row->setData(1, Qt::AccessibleTextRole, spoken);
        row->setToolTip(1, entry.text);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    //: Button that closes the keyboard shortcuts list
    buttons->button(QDialogButtonBox::Close)->setText(tr("Close"));
    buttons->button(QDialogButtonBox::Close)->setIcon(QIcon());
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(intro);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    m_list->setFocus();
    TovraDialogTitleBarThemer::attach(this);
}
