#pragma once

#include <QAccessibleWidget>

class QToolButton;

// The sidebar's entries are page navigation, not check boxes: screen readers hear "page tab,
// selected" inside a page tab list, and pressing one shows its page.
class SidebarEntryAccessible : public QAccessibleWidget
{
public:
    explicit SidebarEntryAccessible(QToolButton *button);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    // Answers for the sidebar and its entries; installed once per process.
    static void installFactory();
    // Tells assistive technology that an entry's selection changed.
    static void notifySelectionChanged(QToolButton *button);

private:
    QToolButton *button() const;
};
