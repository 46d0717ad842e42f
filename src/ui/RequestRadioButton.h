#pragma once

#include <QRadioButton>

// A radio button that never checks itself: a click, an arrow key in its group or the
// accessible action only asks, and the owner checks the option the daemon reports.
class RequestRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit RequestRadioButton(const QString &text, QWidget *parent = nullptr);

protected:
    void nextCheckState() override;
};
