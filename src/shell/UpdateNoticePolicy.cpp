#include "UpdateNoticePolicy.h"

#include <algorithm>

UpdateNoticePolicy::Verdict UpdateNoticePolicy::decide(const GuiUpdateBookkeeping &bookkeeping,
                                                       qint64 versionNum, bool forced,
                                                       bool userAsked, qint64 nowSeconds)
{
    if (forced || userAsked)
        return Verdict::Show;
    if (bookkeeping.mutedVersionNum > 0 && versionNum <= bookkeeping.mutedVersionNum)
        return Verdict::Muted;
    const qint64 since = nowSeconds - bookkeeping.lastNotifiedAt;
    // A clock set back before the last notice counts as a new day rather than a long silence.
    if (bookkeeping.lastNotifiedAt > 0 && versionNum == bookkeeping.lastNotifiedVersionNum &&
        since >= 0 && since < kQuietSeconds)
        return Verdict::ShownRecently;
    return Verdict::Show;
}

void UpdateNoticePolicy::recordShown(GuiUpdateBookkeeping *bookkeeping, qint64 versionNum,
                                     qint64 nowSeconds)
{
    bookkeeping->lastNotifiedAt = nowSeconds;
    bookkeeping->lastNotifiedVersionNum = versionNum;
}

void UpdateNoticePolicy::mute(GuiUpdateBookkeeping *bookkeeping, qint64 versionNum)
{
    bookkeeping->mutedVersionNum = std::max(bookkeeping->mutedVersionNum, versionNum);
}
