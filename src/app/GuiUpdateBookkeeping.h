#pragma once

#include <QtGlobal>

// What the update flow remembers between runs; it belongs to one GUI version.
struct GuiUpdateBookkeeping
{
    qint64 lastAttemptAt = 0; // seconds since the epoch
    qint64 lastSuccessfulCheckAt = 0;
    qint64 lastNotifiedAt = 0;
    qint64 lastNotifiedVersionNum = 0;
    bool forceUpgrade = false;
    // "Hide this update": offers up to this version stay quiet until a newer one appears.
    qint64 mutedVersionNum = 0;

    friend bool operator==(const GuiUpdateBookkeeping &, const GuiUpdateBookkeeping &) = default;
};
