#pragma once

#include <QAccessibleWidget>

class QAction;

// The main window as assistive technology sees it, with its close command as an action beside
// its key binding. Where no key can be synthesised (Wayland), this is how a voice-control or
// scripting tool closes the window; it goes through the same action as the key.
class WindowCloseAccessible : public QAccessibleWidget
{
public:
    static constexpr char kActionObjectName[] = "TovraCloseWindowAction";
    static constexpr char kCloseActionName[] = "close";

    explicit WindowCloseAccessible(QWidget *window);

    QStringList actionNames() const override;
    QStringList keyBindingsForAction(const QString &actionName) const override;
    void doAction(const QString &actionName) override;

    // Answers for every window that carries an action named kActionObjectName; installed once
    // per process.
    static void installFactory();

private:
    QAction *closeAction() const;
};
