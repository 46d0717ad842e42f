#pragma once

#include <QAccessible>
#include <QPushButton>

// A checkable push button that never checks itself: a click (mouse, Space or the accessible
// action) only asks, and the owner checks it once the daemon has answered. Mode cards and
// segments are made of it.
class RequestButton : public QPushButton
{
    Q_OBJECT

public:
    // The role assistive technology announces: a radio button for one choice among several.
    explicit RequestButton(QAccessible::Role role, QWidget *parent = nullptr);

protected:
    void nextCheckState() override;
};
