#pragma once

#include <QLabel>

// A daemon's error shown next to the control that caused it, until the next attempt.
class ModeInlineError : public QLabel
{
    Q_OBJECT

public:
    explicit ModeInlineError(QWidget *parent = nullptr);

    void showError(const QString &message);
    void clearError();
};
