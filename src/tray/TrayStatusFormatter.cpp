#include "TrayStatusFormatter.h"

#include "AccountSession.h"
#include "BidiText.h"
#include "KillSwitchState.h"
#include "TrayMenuText.h"

#include <QCoreApplication>

namespace {

QString normalized(const QString &word)
{
    return word.trimmed().toLower();
}

} // namespace

bool TrayStatusFormatter::isConnected(const RuntimeInfo &runtime)
{
    return normalized(runtime.tunnelState) == u"connected";
}

bool TrayStatusFormatter::isConnecting(const RuntimeInfo &runtime)
{
    return !isConnected(runtime) && normalized(runtime.tunnelState) == u"connecting";
}

QString TrayStatusFormatter::stateWord(const RuntimeInfo &runtime)
{
    if (isConnected(runtime))
        //: Tunnel state after "Tovra: ": the VPN is connected (not connecting)
        return TrayMenuText::tr("connected");
    QString word = normalized(runtime.tunnelState);
    if (word.isEmpty())
        word = normalized(runtime.daemonState);
    if (word == u"disconnected")
        return TrayMenuText::tr("disconnected");
    if (word == u"connecting")
        return TrayMenuText::tr("connecting");
    if (word == u"disconnecting")
        return TrayMenuText::tr("disconnecting");
    if (word == u"ready")
        return TrayMenuText::tr("ready");
    if (word.isEmpty())
        return TrayMenuText::tr("unknown");
    // A word this version does not know is shown as the daemon wrote it.
    return word;
}

QString TrayStatusFormatter::statusLine(const RuntimeInfo &runtime, const QString &connectingLabel)
{
    if (isConnecting(runtime)) {
        const QString label = connectingLabel.trimmed();
        if (label.isEmpty())
            return TrayMenuText::tr("Tovra: connecting...");
        return TrayMenuText::tr("Tovra: connecting %1...").arg(isolated(label));
    }
    return TrayMenuText::tr("Tovra: %1").arg(stateWord(runtime));
}

QString TrayStatusFormatter::daemonLine(const RuntimeInfo &runtime)
{
    // A daemon that says nothing, or says it runs, reads "running" in the user's language; other
    // words are its own.
    QString word = runtime.daemonState.trimmed();
    if (word.isEmpty() || word.compare(u"running", Qt::CaseInsensitive) == 0)
        word = TrayMenuText::tr("running");
    if (runtime.daemonVersion.trimmed().isEmpty())
        return TrayMenuText::tr("Daemon: %1").arg(word);
    return TrayMenuText::tr("Daemon: %1 (%2)").arg(word, isolated(runtime.daemonVersion.trimmed()));
}

bool TrayStatusFormatter::isSignedIn(const RuntimeInfo &runtime)
{
    return AccountSession::isSignedIn(runtime.authState);
}

QString TrayStatusFormatter::accountLine(const RuntimeInfo &runtime, const UserInfo &user,
                                         UserLookup lookup)
{
    if (!runtime.valid)
        return TrayMenuText::tr("Account: checking...");
    const QString auth = normalized(runtime.authState);
    if (auth == u"cached")
        return TrayMenuText::tr("Account: cached");
    if (auth != u"logged_in")
        return TrayMenuText::tr("Account: Login Required");
    if (user.valid) {
        const QString email = user.email.trimmed();
        const QString identity = email.isEmpty() ? user.userNumber.trimmed() : email;
        if (!identity.isEmpty())
            return TrayMenuText::tr("Account: %1").arg(isolated(identity));
        return TrayMenuText::tr("Account: logged in");
    }
    if (lookup == UserLookup::Pending)
        return TrayMenuText::tr("Account: checking...");
    // Signed in, but the account details could not be read: say what is certain.
    return TrayMenuText::tr("Account: logged in");
}

QString TrayStatusFormatter::killSwitchText(const KillSwitchInfo &record)
{
    if (!record.valid)
        return TrayMenuText::tr("Kill Switch");
    return TrayMenuText::tr("Kill Switch: %1").arg(killSwitchStateText(record, "TrayMenuText"));
}
