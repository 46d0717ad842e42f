#include "ModeInlineError.h"

ModeInlineError::ModeInlineError(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("TovraModeInlineError"));
    setProperty("tovraRole", QStringLiteral("error"));
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    hide();
}

void ModeInlineError::showError(const QString &message)
{
    setText(message);
    setAccessibleName(message);
    show();
}

void ModeInlineError::clearError()
{
    clear();
    hide();
}
