#pragma once

class AppState;
class GuiPreferences;
class RequestLedger;
class ShellNotifier;
class ShellWorkers;
class TovraTrayApp;
class WindowController;

// What the shell's flows share. The shell owns all of it; flows only borrow.
struct ShellContext
{
    RequestLedger *ledger = nullptr;
    ShellWorkers *workers = nullptr;
    AppState *state = nullptr;
    GuiPreferences *preferences = nullptr;
    TovraTrayApp *tray = nullptr;
    WindowController *window = nullptr;
    ShellNotifier *notifier = nullptr;
};
