#include "WindowCloseAccessible.h"

#include <QAction>
#include <QWidget>

namespace {

QAction *closeActionOf(const QWidget *window)
{
    return window->findChild<QAction *>(QLatin1String(WindowCloseAccessible::kActionObjectName),
                                        Qt::FindDirectChildrenOnly);
}

QAccessibleInterface *windowFactory(const QString &, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    if (widget->isWindow() && closeActionOf(widget))
        return new WindowCloseAccessible(widget);
    return nullptr;
}

} // namespace

WindowCloseAccessible::WindowCloseAccessible(QWidget *window)
    : QAccessibleWidget(window, QAccessible::Window)
{}

QAction *WindowCloseAccessible::closeAction() const
{
    return closeActionOf(widget());
}

QStringList WindowCloseAccessible::actionNames() const
{
    return QAccessibleWidget::actionNames() << QLatin1String(kCloseActionName);
}

QStringList WindowCloseAccessible::keyBindingsForAction(const QString &actionName) const
{
    if (actionName != QLatin1String(kCloseActionName))
        return QAccessibleWidget::keyBindingsForAction(actionName);
    QAction *action = closeAction();
    return action ? QStringList{action->shortcut().toString(QKeySequence::NativeText)}
                  : QStringList();
}

void WindowCloseAccessible::doAction(const QString &actionName)
{
    if (actionName != QLatin1String(kCloseActionName)) {
        QAccessibleWidget::doAction(actionName);
        return;
    }
    if (QAction *action = closeAction())
        action->trigger();
}

void WindowCloseAccessible::installFactory()
{
    static bool installed = false;
    if (!installed) {
        installed = true;
        QAccessible::installFactory(windowFactory);
    }
}
