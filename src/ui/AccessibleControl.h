#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

// The one accessible face of our controls whose click only asks for a change (switches, mode
// cards, segments, option rows, page tabs). Assistive tools act through the accessible press or
// toggle; both take the very same click path as the mouse and Space, so the owner's request goes
// out, and the state is read live from the widget, so a refused change reads as unchanged.
class AccessibleControl : public QAccessibleWidget
{
public:
    AccessibleControl(QAbstractButton *button, QAccessible::Role role);

    QString text(QAccessible::Text t) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    // Gives the button this role and this face. Call it first in the button's set-up: the first
    // accessible event settles the face for good.
    static void attach(QAbstractButton *button, QAccessible::Role role);
    // Only a role, for a container (a page tab list, a group of options).
    static void setRole(QWidget *widget, QAccessible::Role role);

private:
    QAbstractButton *button() const;
};
