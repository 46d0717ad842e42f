#pragma once

// The application id, chosen once: it names the login-startup entry ("<id>.desktop"), is that
// entry's icon name, and (with its last component capitalised) prefixes the single-instance
// server name.
inline constexpr char kTovraAppId[] = "com.tovra.vpn";
inline constexpr char kTovraSingleInstanceId[] = "com.tovra.Vpn";
