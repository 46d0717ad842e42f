#pragma once

#include "GuiUpdateBookkeeping.h"

#include <QtGlobal>

// Decides whether an offered update is put in front of the user. An automatic check shows a
// version once a day at most and never a version the user hid, until a newer one appears; a
// check the user asked for and a required update always show.
class UpdateNoticePolicy
{
public:
    static constexpr qint64 kQuietSeconds = 86400;

    enum class Verdict { Show, Muted, ShownRecently };

    static Verdict decide(const GuiUpdateBookkeeping &bookkeeping, qint64 versionNum, bool forced,
                          bool userAsked, qint64 nowSeconds);
    static void recordShown(GuiUpdateBookkeeping *bookkeeping, qint64 versionNum,
                            qint64 nowSeconds);
    static void mute(GuiUpdateBookkeeping *bookkeeping, qint64 versionNum);
};
