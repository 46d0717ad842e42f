#include "SidebarEntryAccessible.h"

#include <QToolButton>

namespace {

const char kEntryProperty[] = "tovraSidebarEntry";

QAccessibleInterface *sidebarFactory(const QString &className, QObject *object)
{
    Q_UNUSED(className)
    if (!object || !object->isWidgetType()) {
        return nullptr;
    }
    auto *widget = static_cast<QWidget *>(object);
    if (auto *button = qobject_cast<QToolButton *>(object);
        button && button->property(kEntryProperty).toBool()) {
        return new SidebarEntryAccessible(button);
    }
    if (object->objectName() == QLatin1String("TovraSidebar")) {
        return new QAccessibleWidget(widget, QAccessible::PageTabList);
    }
    return nullptr;
}

} // namespace

SidebarEntryAccessible::SidebarEntryAccessible(QToolButton *button)
    : QAccessibleWidget(button, QAccessible::PageTab)
{}

QToolButton *SidebarEntryAccessible::button() const
{
    return static_cast<QToolButton *>(widget());
}

QAccessible::State SidebarEntryAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = false;
    state.checked = false;
    state.selectable = true;
    state.selected = button()->isChecked();
    return state;
}

QStringList SidebarEntryAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (button()->isEnabled()) {
        names.prepend(pressAction());
    }
    return names;
}

void SidebarEntryAccessible::doAction(const QString &actionName)
{
    if (actionName == pressAction() && button()->isEnabled()) {
        button()->click();
        return;
    }
    QAccessibleWidget::doAction(actionName);
}

void SidebarEntryAccessible::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(sidebarFactory);
        return true;
    }();
    Q_UNUSED(installed)
}

void SidebarEntryAccessible::notifySelectionChanged(QToolButton *button)
{
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}
