#pragma once

#include <QLoggingCategory>

// The tray's log lines ("tovra.tray"), and how long its quick fetches may take: a status, user,
// node list or path answer that takes longer than this is treated as lost and polled again.
Q_DECLARE_LOGGING_CATEGORY(lcTray)

inline constexpr int kTrayFetchTimeoutMs = 1500;
