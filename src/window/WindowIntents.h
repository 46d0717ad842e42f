#pragma once

class MainWindow;
class WindowController;

// Hands a window's intents on as the controller's signals of the same name, so the shell
// connects once to the controller and never to a window that may be re-created.
class WindowIntents
{
public:
    static void forward(MainWindow *window, WindowController *controller);
};
