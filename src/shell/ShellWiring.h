#pragma once

#include "ShellContext.h"

class SettingsFlow;
class TovraAppShell;

// Connects the workers' answers, the tray's intents and the window's intents to the shell's
// slots: the whole switchboard in one place, so the shell itself stays about behaviour.
class ShellWiring
{
public:
    static void connectWorkers(TovraAppShell *shell, const ShellContext &context);
    // Connect and disconnect answers: before the tray connects its own (see the shell).
    static void connectConnectionAnswers(TovraAppShell *shell, const ShellContext &context);
    static void connectTray(TovraAppShell *shell, const ShellContext &context);
    static void connectWindow(TovraAppShell *shell, const ShellContext &context,
                              SettingsFlow *settings);
};
