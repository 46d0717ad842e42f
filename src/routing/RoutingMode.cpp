#include "RoutingMode.h"

#include <QCoreApplication>

#include <functional>

namespace {

const QString kAuto = QStringLiteral("auto");
const QString kWireGuard = QStringLiteral("wireguard");
const QString kTovraVpn = QStringLiteral("tovravpn");
const QString kProxy = QStringLiteral("proxy");
const QString kGlobal = QStringLiteral("global");
const QString kSplit = QStringLiteral("split");
const QString kGfwList = QStringLiteral("gfwlist");
// The tunnel family sends its "Default: Tunnel" choice with the proxy family's route word.
const QString kRouteProxy = QStringLiteral("proxy");
const QString kRouteDirect = QStringLiteral("direct");

QString effectivePolicy(const QString &policy)
{
    return policy.isEmpty() ? kGlobal : policy;
}

bool isSplitPolicy(const QString &policy)
{
    return policy == kSplit || policy == kGfwList || isRegionPolicy(policy);
}

bool isLegacyPolicy(const QString &policy)
{
    return policy == kGfwList || isRegionPolicy(policy);
}

ModeInfo splitModeWith(const ModeInfo &current, SplitFamily family,
                       const std::function<void(SplitProfileInfo &)> &change)
{
    ModeInfo mode = current;
    mode.valid = true;
    mode.transport = familyTransport(family);
    mode.policy = kSplit;
    // Everything else (region, system proxy, the other family's profile) stays as it is: one
    // option changes one field.
    SplitProfileInfo profile = familySplitProfile(current, family);
    change(profile);
    profile.valid = true;
    if (family == SplitFamily::Tunnel)
        mode.splitProfile = profile;
    else
        mode.proxySplitProfile = profile;
    return mode;
}

} // namespace

bool isRegionPolicy(const QString &policy)
{
    return policy == u"bypass-region" || policy == u"proxy-region" || policy == u"direct-region";
}

bool isTunnelSplit(const ModeInfo &mode)
{
    if (mode.transport != kTovraVpn)
        return false;
    return isSplitPolicy(effectivePolicy(mode.policy));
}

bool isProxySplit(const ModeInfo &mode)
{
    if (mode.transport != kProxy || proxyCountsAsGlobal(mode))
        return false;
    return isSplitPolicy(mode.policy);
}

bool proxyCountsAsGlobal(const ModeInfo &mode)
{
    if (mode.transport != kProxy)
        return false;
    if (mode.policy.isEmpty() || mode.policy == kGlobal)
        return true;
    if (mode.policy != kSplit)
        return false;
    // The daemon keeps the proxy family's own word in the last proxy policy.
    const QString stored = mode.lastProxyPolicy.trimmed().toLower();
    if (stored == kGlobal)
        return true;
    if (stored == kSplit)
        return false;
    // A split profile that sends everything through the proxy is global in all but name.
    const SplitProfileInfo profile = familySplitProfile(mode, SplitFamily::Proxy);
    return profile.defaultRoute == kRouteProxy && profile.directRegions.isEmpty() &&
           profile.proxyRegions.isEmpty() && !profile.gfwlist;
}

QString modeLabel(const ModeInfo &mode)
{
    const QString &transport = mode.transport;
    if (transport == kAuto)
        return QCoreApplication::translate("ModePage", "Auto");
    if (transport == kWireGuard)
        return QCoreApplication::translate("ModePage", "WireGuard");
    if (transport == kTovraVpn) {
        return isTunnelSplit(mode) ? QCoreApplication::translate("ModePage", "TovraVPN Split")
                                   : QCoreApplication::translate("ModePage", "TovraVPN Global");
    }
    if (transport == kProxy) {
        return isProxySplit(mode) ? QCoreApplication::translate("ModePage", "Tovra Proxy Split")
                                  : QCoreApplication::translate("ModePage", "Tovra Proxy Global");
    }
    // A transport this version does not know is shown as the daemon names it.
    return transport;
}

SplitProfileInfo profileFromLegacyPolicy(const QString &policy, const QStringList &regions)
{
    SplitProfileInfo profile;
    const QString word = effectivePolicy(policy);
    if (word == kGfwList) {
        profile.defaultRoute = kRouteDirect;
        profile.gfwlist = true;
    } else if (word == u"bypass-region" || word == u"direct-region") {
        profile.defaultRoute = kRouteProxy;
        profile.directRegions = regions;
    } else if (word == u"proxy-region") {
        // The mirror image: only the listed regions go through, everything else is direct.
        profile.defaultRoute = kRouteDirect;
        profile.proxyRegions = regions;
    } else if (word == kGlobal) {
        profile.defaultRoute = kRouteProxy;
    } else {
        return profile;
    }
    profile.valid = true;
    return profile;
}

QStringList legacyRegions(const QString &region)
{
    QStringList regions;
    const QStringList parts = region.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString trimmed = part.trimmed();
        if (!trimmed.isEmpty())
            regions.append(trimmed);
    }
    return regions;
}

QString familyTransport(SplitFamily family)
{
    return family == SplitFamily::Tunnel ? kTovraVpn : kProxy;
}

SplitProfileInfo familySplitProfile(const ModeInfo &mode, SplitFamily family)
{
    const bool tunnel = family == SplitFamily::Tunnel;
    const SplitProfileInfo &active = tunnel ? mode.splitProfile : mode.proxySplitProfile;
    if (active.hasAnyField())
        return active;
    const SplitProfileInfo &last =
        tunnel ? mode.lastTovravpnSplitProfile : mode.lastProxySplitProfile;
    if (last.hasAnyField())
        return last;
    const bool inFamily = mode.transport == familyTransport(family);
    const QString &lastPolicy = tunnel ? mode.lastTovravpnPolicy : mode.lastProxyPolicy;
    const QString legacy = inFamily && isLegacyPolicy(mode.policy) ? mode.policy : lastPolicy;
    if (isLegacyPolicy(legacy))
        return profileFromLegacyPolicy(legacy, legacyRegions(mode.region));
    return active;
}

ModeInfo modeForChoice(ModeChoice choice)
{
    ModeInfo mode;
    mode.valid = true;
    switch (choice) {
    case ModeChoice::Auto:
        mode.transport = kAuto;
        break;
    case ModeChoice::WireGuard:
        mode.transport = kWireGuard;
        break;
    case ModeChoice::TovraVpnGlobal:
        mode.transport = kTovraVpn;
        mode.policy = kGlobal;
        break;
    case ModeChoice::TovraVpnSplit:
        mode.transport = kTovraVpn;
        mode.policy = kSplit;
        break;
    case ModeChoice::ProxyGlobal:
        mode.transport = kProxy;
        mode.policy = kGlobal;
        break;
    case ModeChoice::ProxySplit:
        mode.transport = kProxy;
        mode.policy = kSplit;
        break;
    }
    return mode;
}

ModeInfo splitModeWithDefaultRoute(const ModeInfo &current, SplitFamily family,
                                   const QString &route)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.defaultRoute = route; });
}

ModeInfo splitModeWithDirectRegions(const ModeInfo &current, SplitFamily family,
                                    const QStringList &regions)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.directRegions = regions; });
}

ModeInfo splitModeWithProxyRegions(const ModeInfo &current, SplitFamily family,
                                   const QStringList &regions)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.proxyRegions = regions; });
}

ModeInfo splitModeWithGfwList(const ModeInfo &current, SplitFamily family, bool enabled)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.gfwlist = enabled; });
}

ModeInfo splitModeWithCustomRules(const ModeInfo &current, SplitFamily family, bool enabled)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.customRules = enabled; });
}

ModeInfo splitModeWithLanRouting(const ModeInfo &current, SplitFamily family,
                                 const QString &lanRouting)
{
    return splitModeWith(current, family, [&](SplitProfileInfo &p) { p.lanRouting = lanRouting; });
}
