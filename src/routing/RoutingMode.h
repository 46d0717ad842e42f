#pragma once

#include "ModeInfo.h"
#include "SplitProfileInfo.h"

#include <QString>
#include <QStringList>

// The routing modes as the interface sees them: which modes count as split, the label of a
// mode, and the mode changes that the interface sends.

enum class SplitFamily { Tunnel, Proxy };

enum class ModeChoice { Auto, WireGuard, TovraVpnGlobal, TovraVpnSplit, ProxyGlobal, ProxySplit };

bool isRegionPolicy(const QString &policy);
bool isTunnelSplit(const ModeInfo &mode);
bool isProxySplit(const ModeInfo &mode);
bool proxyCountsAsGlobal(const ModeInfo &mode);

// Translated in the "ModePage" context.
QString modeLabel(const ModeInfo &mode);

// The split profile that an older region-based policy stands for; an invalid profile when the
// policy has no such meaning ("split" or an unknown word).
SplitProfileInfo profileFromLegacyPolicy(const QString &policy, const QStringList &regions);
// The regions of a legacy "region" text: comma-separated, blanks dropped.
QStringList legacyRegions(const QString &region);

QString familyTransport(SplitFamily family);
// The family's split profile as it is in effect: the active one, else the family's last one,
// else the one that its legacy policy stands for.
SplitProfileInfo familySplitProfile(const ModeInfo &mode, SplitFamily family);

ModeInfo modeForChoice(ModeChoice choice);

// A split mode of the family, built from the current one with exactly one profile field changed.
ModeInfo splitModeWithDefaultRoute(const ModeInfo &current, SplitFamily family,
                                   const QString &route);
ModeInfo splitModeWithDirectRegions(const ModeInfo &current, SplitFamily family,
                                    const QStringList &regions);
ModeInfo splitModeWithProxyRegions(const ModeInfo &current, SplitFamily family,
                                   const QStringList &regions);
ModeInfo splitModeWithGfwList(const ModeInfo &current, SplitFamily family, bool enabled);
ModeInfo splitModeWithCustomRules(const ModeInfo &current, SplitFamily family, bool enabled);
ModeInfo splitModeWithLanRouting(const ModeInfo &current, SplitFamily family,
                                 const QString &lanRouting);
