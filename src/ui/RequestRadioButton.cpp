#include "RequestRadioButton.h"

#include "AccessibleControl.h"

RequestRadioButton::RequestRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(parent)
{
    AccessibleControl::attach(this, QAccessible::RadioButton);
    setText(text);
}

void RequestRadioButton::nextCheckState()
{
    // The owner's answer checks the option, not the click.
}
