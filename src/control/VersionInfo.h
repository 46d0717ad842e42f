#pragma once

#include <QMetaType>
#include <QString>

// The daemon's answer to the compatibility handshake.
struct VersionInfo
{
    bool valid = false;
    bool compatible = false;
    QString daemonVersion;
    QString controlVersion;

    friend bool operator==(const VersionInfo &, const VersionInfo &) = default;
};

Q_DECLARE_METATYPE(VersionInfo)
