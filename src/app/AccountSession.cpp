#include "AccountSession.h"

bool AccountSession::isSignedIn(const QString &authState)
{
    const QString state = authState.trimmed().toLower();
    return state == QLatin1String("logged_in") || state == QLatin1String("cached");
}
