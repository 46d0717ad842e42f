#include "AccessibleControl.h"

#include <QAbstractButton>

namespace {

const char kRoleProperty[] = "tovraAccessibleRole";
const char kControlProperty[] = "tovraAccessibleControl";

QAccessibleInterface *controlFactory(const QString &className, QObject *object)
{
    Q_UNUSED(className)
    if (!object || !object->isWidgetType())
        return nullptr;
    const QVariant role = object->property(kRoleProperty);
    if (!role.isValid())
        return nullptr;
    const auto accessibleRole = QAccessible::Role(role.toInt());
    if (auto *button = qobject_cast<QAbstractButton *>(object);
        button && object->property(kControlProperty).toBool())
        return new AccessibleControl(button, accessibleRole);
    return new QAccessibleWidget(static_cast<QWidget *>(object), accessibleRole);
}

void installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(controlFactory);
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace

AccessibleControl::AccessibleControl(QAbstractButton *button, QAccessible::Role role)
    : QAccessibleWidget(button, role)
{}

QAbstractButton *AccessibleControl::button() const
{
    return static_cast<QAbstractButton *>(widget());
}

QString AccessibleControl::text(QAccessible::Text t) const
{
    QString text = QAccessibleWidget::text(t);
    if (t == QAccessible::Name && text.isEmpty())
        text = button()->text().remove(QLatin1Char('&'));
    return text;
}

QAccessible::State AccessibleControl::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (role() == QAccessible::PageTab) {
        // Navigation, not a check box: "page tab, selected".
        state.selectable = true;
        state.selected = button()->isChecked();
    } else if (button()->isCheckable()) {
        state.checkable = true;
        state.checked = button()->isChecked();
    }
    state.pressed = button()->isDown();
    return state;
}

QStringList AccessibleControl::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        if (button()->isCheckable() && role() != QAccessible::PageTab)
            names << toggleAction();
        names << pressAction();
    }
    return names + QAccessibleWidget::actionNames();
}

void AccessibleControl::doAction(const QString &actionName)
{
    if (actionName == pressAction() || actionName == toggleAction()) {
        // The click path: the owner hears the request and decides what the state becomes.
        if (button()->isEnabled())
            button()->click();
        return;
    }
    QAccessibleWidget::doAction(actionName);
}

void AccessibleControl::attach(QAbstractButton *button, QAccessible::Role role)
{
    installFactory();
    button->setProperty(kControlProperty, true);
    button->setProperty(kRoleProperty, int(role));
    if (role != QAccessible::PageTab)
        return; // Qt tells of a change of the checked state itself
    // A page tab reads its checked state as "selected", which Qt does not tell of.
    QObject::connect(button, &QAbstractButton::toggled, button, [button] {
        if (!QAccessible::isActive())
            return;
        QAccessible::State changed;
        changed.selected = true;
        QAccessibleStateChangeEvent event(button, changed);
        QAccessible::updateAccessibility(&event);
    });
}

void AccessibleControl::setRole(QWidget *widget, QAccessible::Role role)
{
    installFactory();
    widget->setProperty(kRoleProperty, int(role));
}
