#include "TovraDialogTitleBarThemer.h"

#include <QDialog>
#include <QEvent>

TovraDialogTitleBarThemer *TovraDialogTitleBarThemer::attach(QDialog *dialog)
{
    return dialog ? new TovraDialogTitleBarThemer(dialog) : nullptr;
}

TovraDialogTitleBarThemer::TovraDialogTitleBarThemer(QDialog *dialog)
    : QObject(dialog)
{
    if (dialog) {
        dialog->installEventFilter(this);
    }
}

bool TovraDialogTitleBarThemer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::PaletteChange) {
        if (auto *dialog = qobject_cast<QDialog *>(watched)) {
            apply(dialog);
        }
    }
    return false;
}

void TovraDialogTitleBarThemer::apply(QDialog *dialog)
{
    const QColor background = dialog->palette().color(QPalette::Window);
    const QColor foreground = dialog->palette().color(QPalette::WindowText);
    m_lastDark = background.lightness() < 128;
    ++m_applyCount;
    applyPlatformTitleBar(dialog, background, foreground, m_lastDark);
}

void TovraDialogTitleBarThemer::applyPlatformTitleBar(QDialog *, const QColor &, const QColor &,
                                                      bool)
{}
