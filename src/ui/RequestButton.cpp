#include "RequestButton.h"

#include "AccessibleControl.h"

RequestButton::RequestButton(QAccessible::Role role, QWidget *parent)
    : QPushButton(parent)
{
    AccessibleControl::attach(this, role);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
}

void RequestButton::nextCheckState()
{
    // The owner's answer checks the button, not the click.
}
