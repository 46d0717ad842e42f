#pragma once

#include "ShellContext.h"

// Tells the window which of its two delayed busy indicators stand, from the requests in
// flight: mode operations (mode, local network, system proxy) and settings operations (kill
// switch, API URL, auto connect, proxy listeners, split DNS, repair).
class WindowBusyState
{
public:
    static void showModeBusy(const ShellContext &context);
    static void showSettingsBusy(const ShellContext &context);
};
