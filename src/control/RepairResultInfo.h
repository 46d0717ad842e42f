#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

// Outcome of the three repairs, run in the order kill switch, proxy, VPN. Each repair gives one
// line "name: words": the name is "kill-switch", "proxy" or "vpn"; the words are the daemon's
// "result", "state" and "reason" texts that are not empty, joined with ", " ("ok" when it sent
// none), or for a failed repair its error text. An HTTP error does not stop the rest; a repair
// that gets no answer at all (daemon unreachable, cancelled) does, since the others would fail
// the same way. The error text is then that transport error alone; otherwise it is the failed
// lines joined with newlines, and empty when all three succeeded.
struct RepairResultInfo
{
    bool valid = false;      // at least one repair was answered with success
    QStringList lines;       // every repair that ran, in order
    QStringList failedLines; // the lines of the repairs that failed

    friend bool operator==(const RepairResultInfo &, const RepairResultInfo &) = default;
};

Q_DECLARE_METATYPE(RepairResultInfo)
