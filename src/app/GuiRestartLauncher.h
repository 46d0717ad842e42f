#pragma once

#include <QStringList>

// The switches a restarted GUI is started with, in this order.
QStringList guiRestartArguments();

// Starts a fresh, detached copy of this program to take over after it quits. The current
// arguments are not carried over: the new process only needs to know it is a restart.
bool launchGuiRestart();
