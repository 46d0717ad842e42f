#pragma once

#include "KillSwitchInfo.h"
#include "RuntimeInfo.h"
#include "UserInfo.h"

#include <QString>

// The information lines of the tray menu, derived from the records alone. All texts are in the
// "TrayMenuText" context.
class TrayStatusFormatter
{
public:
    // Where the account record stands when the daemon reports a signed-in session.
    enum class UserLookup { Pending, Loaded, Failed };

    static bool isConnected(const RuntimeInfo &runtime);
    static bool isConnecting(const RuntimeInfo &runtime);

    // The state word after "Tovra: ": trimmed, lower-cased, the five known words translated.
    static QString stateWord(const RuntimeInfo &runtime);
    // connectingLabel names the node being connected to, when known.
    static QString statusLine(const RuntimeInfo &runtime, const QString &connectingLabel);
    static QString daemonLine(const RuntimeInfo &runtime);
    static QString accountLine(const RuntimeInfo &runtime, const UserInfo &user, UserLookup lookup);
    static bool isSignedIn(const RuntimeInfo &runtime);
    static QString killSwitchText(const KillSwitchInfo &record);
};
