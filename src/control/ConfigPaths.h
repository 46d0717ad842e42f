#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// The daemon's own paths.
struct ConfigPaths
{
    bool valid = false;
    QString configDir;
    QString runtimeDir;
    QString logDir;
    QString stateFile;
    QString credentialsKeyFile;
    QString historyFile;
    QString profilesDir;
    QString socketPath;
    QString pidFile;
    QString controlAddr;

    static ConfigPaths parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const ConfigPaths &, const ConfigPaths &) = default;
};

Q_DECLARE_METATYPE(ConfigPaths)
