#pragma once

#include "RepairResultInfo.h"

#include <QString>

#include <atomic>

// The daemon's three repairs (kill switch, proxy, VPN), run in that order: each answer becomes
// one line of the result, a failed one also a failed line; an unreachable daemon or a cancel
// stops the run, since the repairs left would fail the same way. Blocking: worker threads only.
class DiagnosticsRepair
{
public:
    static RepairResultInfo run(const QString &socketPath, int timeoutMs, QString *errorOut,
                                const std::atomic_bool *cancel);
};
