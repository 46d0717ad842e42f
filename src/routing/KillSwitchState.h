#pragma once

#include "KillSwitchInfo.h"

#include <QString>

// The one word that every surface shows for the kill switch, translated in the caller's context
// (with the shared "KillSwitchConfirm" wording as the fallback).
QString killSwitchStateText(const KillSwitchInfo &record, const char *context);
