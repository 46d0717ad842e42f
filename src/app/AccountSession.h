#pragma once

#include <QString>

// The daemon's session states, read the same way by every view and flow.
class AccountSession
{
public:
    // "logged_in", or "cached": a remembered session counts as signed in.
    static bool isSignedIn(const QString &authState);
};
