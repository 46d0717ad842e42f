#include "UnifiedTitleBar.h"

#include <QWidget>

bool UnifiedTitleBar::isUnified(const QWidget *window)
{
    Q_UNUSED(window)
    return false;
}

int UnifiedTitleBar::height(const QWidget *window)
{
    Q_UNUSED(window)
    return 0;
}

bool UnifiedTitleBar::startSystemMove(QWidget *window)
{
    Q_UNUSED(window)
    return false;
}
