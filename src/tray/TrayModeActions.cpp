#include "TrayModeActions.h"

#include "TrayMenuBuilder.h"
#include "TrayMenuText.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

#include <algorithm>

namespace {

const QString kDirect = QStringLiteral("direct");

bool defaultsDirect(const SplitProfileInfo &profile)
{
    return profile.defaultRoute == kDirect;
}

// The list whose regions leave the default route: proxied regions when the default is direct.
const QStringList &exemptRegions(const SplitProfileInfo &profile)
{
    return defaultsDirect(profile) ? profile.proxyRegions : profile.directRegions;
}

QString systemProxyWord(const QString &value)
{
    const QString word = value.trimmed().toLower();
    if (word == u"off")
        return TrayMenuText::tr("Off");
    if (word == u"on")
        return TrayMenuText::tr("On");
    if (word == u"lock" || word == u"lock-on")
        return TrayMenuText::tr("Lock");
    return value.trimmed();
}

QString localNetworkWord(const QString &value)
{
    const QString word = value.trimmed().toLower();
    if (word == u"direct")
        return TrayMenuText::tr("Direct");
    if (word == u"protected")
        return TrayMenuText::tr("Protected");
    return value.trimmed();
}

} // namespace

TrayModeActions::TrayModeActions(const TrayMenu &menu, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
{
    connectChoice(m_menu.autoMode, ModeChoice::Auto,
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching to auto..."));
    connectChoice(m_menu.wireGuard, ModeChoice::WireGuard,
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching to WireGuard..."));
    connectChoice(m_menu.tunnelGlobal, ModeChoice::TovraVpnGlobal,
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching to TovraVPN..."));
    connectChoice(m_menu.tunnelSplit, ModeChoice::TovraVpnSplit,
                  //: Switching to the TovraVPN Split mode; name the mode as the Mode page does
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching TovraVPN split..."));
    connectChoice(m_menu.proxyGlobal, ModeChoice::ProxyGlobal,
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching to Tovra Proxy..."));
    connectChoice(m_menu.proxySplit, ModeChoice::ProxySplit,
                  QT_TRANSLATE_NOOP("TrayMenuText", "Tovra: switching to Tovra Proxy Split..."));

    // Each choice re-applies the record first, so the mark the click toggled is put back until
    // the daemon's answer says otherwise.
    const auto on = [this](QAction *action, auto emitter) {
        connect(action, &QAction::triggered, this, [this, emitter](bool checked) {
            apply(m_mode);
            emitter(checked);
        });
    };
    on(m_menu.tunnelDefaultTunnel,
       [this](bool) { Q_EMIT tovraSplitDefaultRouteRequested(QStringLiteral("proxy")); });
    on(m_menu.tunnelDefaultDirect,
       [this](bool) { Q_EMIT tovraSplitDefaultRouteRequested(kDirect); });
    on(m_menu.tunnelGfwList, [this](bool c) { Q_EMIT tovraSplitGFWListRequested(c); });
    on(m_menu.tunnelCustomRules, [this](bool c) { Q_EMIT tovraSplitCustomRulesRequested(c); });
    on(m_menu.proxyDefaultProxy,
       [this](bool) { Q_EMIT proxyRoutingDefaultRequested(QStringLiteral("proxy")); });
    on(m_menu.proxyDefaultDirect, [this](bool) { Q_EMIT proxyRoutingDefaultRequested(kDirect); });
    on(m_menu.proxyGfwList, [this](bool c) { Q_EMIT proxyRoutingGFWListRequested(c); });
    on(m_menu.systemProxyOff, [this](bool) { Q_EMIT systemProxyRequested(QStringLiteral("off")); });
    on(m_menu.systemProxyOn, [this](bool) { Q_EMIT systemProxyRequested(QStringLiteral("on")); });
    on(m_menu.systemProxyLock,
       [this](bool) { Q_EMIT systemProxyRequested(QStringLiteral("lock")); });
    on(m_menu.localDirect, [this](bool) { Q_EMIT localNetworkRequested(kDirect); });
    on(m_menu.localProtected,
       [this](bool) { Q_EMIT localNetworkRequested(QStringLiteral("protected")); });
    // The split submenus' own entries are checkable for the mark only; choosing one opens it.
    for (QMenu *submenu : {m_menu.tunnelSplitMenu, m_menu.proxySplitMenu})
        on(submenu->menuAction(), [](bool) {});
}

void TrayModeActions::connectChoice(QAction *action, ModeChoice choice, const char *statusText)
{
    connect(action, &QAction::triggered, this, [this, choice, statusText] {
        apply(m_mode);
        Q_EMIT modeRequested(modeForChoice(choice),
                             QCoreApplication::translate("TrayMenuText", statusText));
    });
}

void TrayModeActions::apply(const ModeInfo &mode)
{
    m_mode = mode;
    const bool tunnelSplit = isTunnelSplit(mode);
    const bool proxySplit = isProxySplit(mode);
    m_menu.autoMode->setChecked(mode.transport == u"auto");
    m_menu.wireGuard->setChecked(mode.transport == u"wireguard");
    m_menu.tunnelGlobal->setChecked(mode.transport == familyTransport(SplitFamily::Tunnel) &&
                                    !tunnelSplit);
    m_menu.tunnelSplit->setChecked(tunnelSplit);
    m_menu.proxyGlobal->setChecked(mode.transport == familyTransport(SplitFamily::Proxy) &&
                                   !proxySplit);
    m_menu.proxySplit->setChecked(proxySplit);

    m_menu.tunnelSplitMenu->menuAction()->setChecked(tunnelSplit);
    m_menu.proxySplitMenu->menuAction()->setChecked(proxySplit);
    if (m_menu.submenus) {
        m_menu.tunnelSplitMenu->menuAction()->setVisible(tunnelSplit);
        m_menu.proxySplitMenu->menuAction()->setVisible(proxySplit);
    }

    const SplitProfileInfo tunnel = familySplitProfile(mode, SplitFamily::Tunnel);
    m_menu.tunnelDefaultDirect->setChecked(defaultsDirect(tunnel));
    m_menu.tunnelDefaultTunnel->setChecked(!defaultsDirect(tunnel));
    m_menu.tunnelGfwList->setChecked(tunnel.gfwlist);
    m_menu.tunnelCustomRules->setChecked(tunnel.customRules);
    m_menu.tunnelRegionsMenu->setTitle(regionsTitle(tunnel, SplitFamily::Tunnel));

    const SplitProfileInfo proxy = familySplitProfile(mode, SplitFamily::Proxy);
    m_menu.proxyDefaultDirect->setChecked(defaultsDirect(proxy));
    m_menu.proxyDefaultProxy->setChecked(!defaultsDirect(proxy));
    m_menu.proxyGfwList->setChecked(proxy.gfwlist);
    m_menu.proxyRegionsMenu->setTitle(regionsTitle(proxy, SplitFamily::Proxy));

    const QString proxyValue = mode.systemProxy.trimmed().toLower();
    m_menu.systemProxyOff->setChecked(proxyValue == u"off");
    m_menu.systemProxyOn->setChecked(proxyValue == u"on");
    m_menu.systemProxyLock->setChecked(proxyValue == u"lock" || proxyValue == u"lock-on");
    const QString localValue = mode.localNetwork.trimmed().toLower();
    m_menu.localDirect->setChecked(localValue == u"direct");
    m_menu.localProtected->setChecked(localValue == u"protected");

    const QString modeTitle = QCoreApplication::translate("NavigationSidebar", "Mode");
    const QString label = mode.valid ? modeLabel(mode) : QString();
    const QString title =
        label.isEmpty() ? modeTitle : TrayMenuText::tr("%1: %2").arg(modeTitle, label);
    m_menu.modeTitle->setText(m_menu.submenus ? title : TrayMenuBuilder::sectionText(title));

    const QString proxyWord = mode.valid ? systemProxyWord(mode.systemProxy) : QString();
    m_menu.systemProxyMenu->setTitle(proxyWord.isEmpty()
                                         ? TrayMenuText::tr("System Proxy")
                                         : TrayMenuText::tr("System Proxy: %1").arg(proxyWord));
    if (m_menu.localNetworkMenu) {
        const QString localWord = mode.valid ? localNetworkWord(mode.localNetwork) : QString();
        m_menu.localNetworkMenu->setTitle(
            localWord.isEmpty() ? TrayMenuText::tr("Local Network")
                                : TrayMenuText::tr("Local Network: %1").arg(localWord));
    }
}

void TrayModeActions::setEnabled(bool enabled)
{
    for (QAction *action :
         {m_menu.autoMode, m_menu.wireGuard, m_menu.tunnelGlobal, m_menu.tunnelSplit,
          m_menu.tunnelSplitMenu->menuAction(), m_menu.proxyGlobal, m_menu.proxySplit,
          m_menu.proxySplitMenu->menuAction(), m_menu.systemProxyMenu->menuAction(),
          m_menu.systemProxyOff, m_menu.systemProxyOn, m_menu.systemProxyLock, m_menu.localDirect,
          m_menu.localProtected})
        action->setEnabled(enabled);
    if (m_menu.modeMenu)
        m_menu.modeMenu->menuAction()->setEnabled(enabled);
    if (m_menu.localNetworkMenu)
        m_menu.localNetworkMenu->menuAction()->setEnabled(enabled);
}

QMenu *TrayModeActions::regionsMenu(SplitFamily family) const
{
    return family == SplitFamily::Tunnel ? m_menu.tunnelRegionsMenu : m_menu.proxyRegionsMenu;
}

int TrayModeActions::fillRegions(SplitFamily family, const ModeInfo &mode,
                                 const QStringList &catalogRegions)
{
    releaseRegions(family);
    const SplitProfileInfo profile = familySplitProfile(mode, family);
    QStringList codes = profile.directRegions + profile.proxyRegions;
    for (const QString &code : catalogRegions)
        codes.append(code.trimmed().toUpper());
    codes.removeAll(QString());
    std::sort(codes.begin(), codes.end());
    codes.erase(std::unique(codes.begin(), codes.end()), codes.end());

    QMenu *menu = regionsMenu(family);
    const QStringList &exempt = exemptRegions(profile);
    for (const QString &code : std::as_const(codes)) {
        QAction *action = menu->addAction(code);
        action->setCheckable(true);
        action->setChecked(exempt.contains(code));
        connect(action, &QAction::triggered, this, [this, family, code, action] {
            action->setChecked(!action->isChecked());
            if (family == SplitFamily::Tunnel)
                Q_EMIT tovraSplitRegionRequested(code);
            else
                Q_EMIT proxyRoutingRegionRequested(code);
        });
    }
    return int(codes.size());
}

int TrayModeActions::releaseRegions(SplitFamily family)
{
    QMenu *menu = regionsMenu(family);
    const QList<QAction *> actions = menu->actions();
    menu->clear();
    return int(actions.size());
}

int TrayModeActions::regionCount(SplitFamily family) const
{
    return int(regionsMenu(family)->actions().size());
}

ModeInfo TrayModeActions::withRegionToggled(const ModeInfo &current, SplitFamily family,
                                            const QString &region)
{
    const SplitProfileInfo profile = familySplitProfile(current, family);
    QStringList regions = exemptRegions(profile);
    if (regions.contains(region))
        regions.removeAll(region);
    else
        regions.append(region);
    return defaultsDirect(profile) ? splitModeWithProxyRegions(current, family, regions)
                                   : splitModeWithDirectRegions(current, family, regions);
}

QString TrayModeActions::regionsTitle(const SplitProfileInfo &profile, SplitFamily family)
{
    const QString passing =
        family == SplitFamily::Tunnel ? TrayMenuText::tr("Tunnel") : TrayMenuText::tr("Proxy");
    QStringList regions = exemptRegions(profile);
    QString route = defaultsDirect(profile) ? passing : TrayMenuText::tr("Direct");
    if (regions.isEmpty()) {
        // A profile may list regions on the default route's own side; name them all the same.
        regions = defaultsDirect(profile) ? profile.directRegions : profile.proxyRegions;
        route = defaultsDirect(profile) ? TrayMenuText::tr("Direct") : passing;
    }
    if (regions.isEmpty())
        return TrayMenuText::tr("Regions");
    return TrayMenuText::tr("Regions use %1: %2").arg(route, regions.join(QStringLiteral(", ")));
}
