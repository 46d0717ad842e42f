#include "TrayStatusFormatter.h"

#include "KillSwitchState.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("TrayMenuText", source);
}

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
        return text("connected");
    QString word = normalized(runtime.tunnelState);
    if (word.isEmpty())
        word = normalized(runtime.daemonState);
    if (word == u"disconnected")
        return text("disconnected");
    if (word == u"connecting")
        return text("connecting");
    if (word == u"disconnecting")
        return text("disconnecting");
    if (word == u"ready")
        return text("ready");
    if (word.isEmpty())
        return text("unknown");
    // A word this version does not know is shown as the daemon wrote it.
    return word;
}

QString TrayStatusFormatter::statusLine(const RuntimeInfo &runtime, const QString &connectingLabel)
{
    if (isConnecting(runtime)) {
        const QString label = connectingLabel.trimmed();
        if (label.isEmpty())
            return text("Tovra: connecting...");
        return text("Tovra: connecting %1...").arg(label);
    }
    return text("Tovra: %1").arg(stateWord(runtime));
}

QString TrayStatusFormatter::daemonLine(const RuntimeInfo &runtime)
{
    QString word = runtime.daemonState.trimmed();
    if (word.isEmpty())
        word = text("running");
    if (runtime.daemonVersion.trimmed().isEmpty())
        return text("Daemon: %1").arg(word);
    return text("Daemon: %1 (%2)").arg(word, runtime.daemonVersion.trimmed());
}

bool TrayStatusFormatter::isSignedIn(const RuntimeInfo &runtime)
{
    return normalized(runtime.authState) == u"logged_in";
}

QString TrayStatusFormatter::accountLine(const RuntimeInfo &runtime, const UserInfo &user,
                                         UserLookup lookup)
{
    if (!runtime.valid)
        return text("Account: checking...");
    const QString auth = normalized(runtime.authState);
    if (auth == u"cached")
        return text("Account: cached");
    if (auth != u"logged_in")
        return text("Account: Login Required");
    if (user.valid) {
        const QString email = user.email.trimmed();
        const QString identity = email.isEmpty() ? user.userNumber.trimmed() : email;
        if (!identity.isEmpty())
            return text("Account: %1").arg(identity);
        return text("Account: logged in");
    }
    if (lookup == UserLookup::Pending)
        return text("Account: checking...");
    // Signed in, but the account details could not be read: say what is certain.
    return text("Account: logged in");
}

QString TrayStatusFormatter::killSwitchText(const KillSwitchInfo &record)
{
    if (!record.valid)
        return text("Kill Switch");
    return text("Kill Switch: %1").arg(killSwitchStateText(record, "TrayMenuText"));
}
