#pragma once

#include <QString>

// Keys of the lines the shell hands the Settings page to show beside a section: a load that
// failed, a change refused where it was made, or the outcome of a check.
namespace SettingsNotes {

inline const QString Status = QStringLiteral("status");
inline const QString KillSwitch = QStringLiteral("killSwitch");
inline const QString KillSwitchMode = QStringLiteral("killSwitchMode");
inline const QString APIURL = QStringLiteral("apiURL");
inline const QString Language = QStringLiteral("language");
inline const QString SplitDNS = QStringLiteral("splitDNS");
inline const QString ConfigPaths = QStringLiteral("configPaths");
inline const QString ProxyListen = QStringLiteral("proxyListen");
inline const QString UpdateCheck = QStringLiteral("updateCheck");

} // namespace SettingsNotes
