#pragma once

#include "AppState.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "TempXdgDirs.h"
#include "WindowController.h"

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
