#pragma once

class LocationsPage;
class MainWindow;
class ModePage;
class SettingsPage;
class VpnPage;

// Hands each page's intents on as the window's signals, so that the window's users see one set
// of intents whichever page a request came from.
class PageSignals
{
public:
    static void forward(VpnPage *page, MainWindow *window);
    static void forward(LocationsPage *page, MainWindow *window);
    static void forward(ModePage *page, MainWindow *window);
    static void forward(SettingsPage *page, MainWindow *window);
};
