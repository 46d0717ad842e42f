#pragma once

#include "AppState.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "TempXdgDirs.h"
#include "WindowController.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// The window as the shell gets it, in temporary XDG directories: state, preferences and the
// controller that owns the window.
struct WindowFixture
{
    TempXdgDirs dirs;
    AppState state;
    GuiPreferences preferences;
    WindowController controller{&state, &preferences};

    // Shows the window with every page built, as after the first paint.
    MainWindow *show();
    MainWindow *window() const { return controller.window(); }
    template<typename T>
    T *find(const QString &name = QString()) const
    {
        return controller.window()->findChild<T *>(name);
    }
};

// User steps on Settings controls named TovraSettingsNAME under root, split by "|":
// "click:NAME", "choose:NAME=DATA", "type:NAME=TEXT" or "return:NAME". False when a control is
// missing. Inline, so that the shell's tests use it without this library.
inline bool settingsSteps(QWidget *root, const QString &steps)
{
    for (const QString &step : steps.split(u'|')) {
        const QString verb = step.section(u':', 0, 0);
        const QString value = step.section(u'=', 1);
        const QString name = step.section(u':', 1).section(u'=', 0, 0);
        QWidget *control = root->findChild<QWidget *>(QStringLiteral("TovraSettings") + name);
        auto *edit = qobject_cast<QLineEdit *>(control);
        if (auto *button = qobject_cast<QAbstractButton *>(control); button && verb == u"click") {
            button->click();
        } else if (auto *combo = qobject_cast<QComboBox *>(control); combo && verb == u"choose") {
            combo->setCurrentIndex(combo->findData(value));
            Q_EMIT combo->activated(combo->currentIndex());
        } else if (edit && verb == u"type") {
            edit->clear();
            QTest::keyClicks(edit, value);
        } else if (edit && verb == u"return") {
            QTest::keyClick(edit, Qt::Key_Return);
        } else {
            return false;
        }
    }
    return true;
}
