#include "FieldClearButton.h"

#include <QAction>
#include <QLineEdit>

void FieldClearButton::enable(QLineEdit *field, Kind kind)
{
    const QString name = kind == Kind::Search ? tr("Clear search") : tr("Clear text");
    field->setClearButtonEnabled(true);
    // Qt's private name for the action behind the button; the button is its only widget.
    auto *action = field->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction"));
    if (!action)
        return;
    action->setToolTip(name);
    for (QObject *object : action->associatedObjects()) {
        if (object != field && object->isWidgetType())
            static_cast<QWidget *>(object)->setAccessibleName(name);
    }
}
