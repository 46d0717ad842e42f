#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

class QCoreApplication;

// The daemon's command line: where to listen, what to simulate and which faults to inject.
struct DemoOptions
{
    struct Failure
    {
        int status = 500;
        QByteArray body;
    };

    QString socketPath;
    QString dataDir; // empty: a temporary directory removed at exit
    QString vendorHost;
    int latencyMs = 0;
    int connectMs = 1500;
    int catalogSize = 0; // 0: the fixed 154-node catalogue
    bool chunked = false;
    bool incompatible = false;
    bool noKillSwitchMode = false;
    bool lockdown = false;
    bool forceUpgrade = false;
    bool flakyDownload = false;
    QString rememberedAccount;        // signed in from the start, "cached"
    QHash<QString, Failure> failures; // by request path, "*" for every path
    QSet<QString> truncatePaths;
    QSet<QString> hangPaths;
    QSet<QString> garbagePaths;

    // Parses the process arguments; on a usage error prints it and returns false.
    static bool parse(const QCoreApplication &app, DemoOptions *options);
    static QString defaultSocketPath();

    // The injected failure for a path, or nullptr.
    const Failure *failureFor(const QString &path) const;
    static bool matches(const QSet<QString> &paths, const QString &path);
};
