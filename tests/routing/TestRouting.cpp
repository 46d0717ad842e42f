#include "KillSwitchState.h"
#include "RoutingMode.h"

#include "TranslationManager.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

SplitProfileInfo profile(const char *defaultRoute, const QStringList &direct = {},
                         const QStringList &proxied = {}, bool gfwlist = false,
                         bool customRules = false)
{
    SplitProfileInfo result;
    result.valid = true;
    result.defaultRoute = QString::fromUtf8(defaultRoute);
    result.directRegions = direct;
    result.proxyRegions = proxied;
    result.gfwlist = gfwlist;
    result.customRules = customRules;
    return result;
}

ModeInfo mode(const char *transport, const char *policy = "", const char *lastProxyPolicy = "",
              const SplitProfileInfo &proxyProfile = {})
{
    ModeInfo result;
    result.valid = true;
    result.transport = QString::fromUtf8(transport);
    result.policy = QString::fromUtf8(policy);
    result.lastProxyPolicy = QString::fromUtf8(lastProxyPolicy);
    result.proxySplitProfile = proxyProfile;
    return result;
}

ModeInfo proxySplitWith(const SplitProfileInfo &proxyProfile)
{
    return mode("proxy", "split", "", proxyProfile);
}

KillSwitchInfo record(bool known, bool enabled, const QString &mode = {}, const QString &guard = {})
{
    KillSwitchInfo result;
    result.valid = known;
    result.enabled = enabled;
    result.mode = mode;
    result.guard = guard;
    return result;
}

} // namespace

Q_DECLARE_METATYPE(ModeChoice)

class TestRouting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modeLabel_data()
    {
        QTest::addColumn<ModeInfo>("mode");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("proxySplit");
        const char *tunnelSplit = "TovraVPN Split";
        const char *global = "Tovra Proxy Global";
        const char *split = "Tovra Proxy Split";
        // clang-format off
        QTest::addRow("auto") << mode("auto") << "Auto" << false;
        QTest::addRow("tovravpn proxy-region")
            << mode("tovravpn", "proxy-region") << tunnelSplit << false;
        QTest::addRow("capital Proxy is not proxy") << mode("Proxy", "split") << "Proxy" << false;
        QTest::addRow("proxy empty policy") << mode("proxy") << global << false;
        QTest::addRow("proxy gfwlist") << mode("proxy", "gfwlist") << split << true;
        QTest::addRow("word global")
            << mode("proxy", "split", " Global ", profile("direct")) << global << false;
        QTest::addRow("word split")
            << mode("proxy", "split", "split", profile("proxy")) << split << true;
        QTest::addRow("all-proxy profile") << proxySplitWith(profile("proxy")) << global << false;
        QTest::addRow("custom rules play no part")
            << proxySplitWith(profile("proxy", {}, {}, false, true)) << global << false;
        QTest::addRow("direct regions")
            << proxySplitWith(profile("proxy", {u"cn"_s})) << split << true;
        QTest::addRow("proxied regions")
            << proxySplitWith(profile("proxy", {}, {u"us"_s})) << split << true;
        QTest::addRow("gfwlist profile")
            << proxySplitWith(profile("proxy", {}, {}, true)) << split << true;
        QTest::addRow("legacy gfwlist word") << mode("proxy", "split", "gfwlist") << split << true;
        QTest::addRow("proxy unknown policy") << mode("proxy", "smart") << global << false;
        // clang-format on
    }

    void modeLabel()
    {
        QFETCH(ModeInfo, mode);
        QFETCH(QString, label);
        QFETCH(bool, proxySplit);
        QCOMPARE(::modeLabel(mode), label);
        QCOMPARE(isProxySplit(mode), proxySplit);
    }

    void tunnelSplit_data()
    {
        QTest::addColumn<QString>("transport");
        QTest::addColumn<QString>("policy");
        QTest::addColumn<bool>("split");
        QTest::addColumn<bool>("regionPolicy");
        for (const char *word :
             {"split", "gfwlist", "bypass-region", "direct-region", "proxy-region"})
            QTest::addRow("tovravpn %s", word)
                << "tovravpn" << word << true << QByteArray(word).endsWith("-region");
        // clang-format off
        QTest::addRow("tovravpn global") << "tovravpn" << "global" << false << false;
        QTest::addRow("tovravpn empty") << "tovravpn" << "" << false << false;
        QTest::addRow("tovravpn Split capital") << "tovravpn" << "Split" << false << false;
        QTest::addRow("proxy split is not tunnel") << "proxy" << "split" << false << false;
        // clang-format on
    }

    void tunnelSplit()
    {
        QFETCH(QString, transport);
        QFETCH(QString, policy);
        QFETCH(bool, split);
        QFETCH(bool, regionPolicy);
        ModeInfo info = mode("");
        info.transport = transport;
        info.policy = policy;
        QCOMPARE(isTunnelSplit(info), split);
        QCOMPARE(isRegionPolicy(policy), regionPolicy);
    }

    void legacyProfile_data()
    {
        QTest::addColumn<QString>("policy");
        QTest::addColumn<QString>("region");
        QTest::addColumn<SplitProfileInfo>("expected");
        // clang-format off
        QTest::addRow("gfwlist") << "gfwlist" << "" << profile("direct", {}, {}, true);
        QTest::addRow("bypass-region")
            << "bypass-region" << "cn, ir" << profile("proxy", {u"cn"_s, u"ir"_s});
        QTest::addRow("proxy-region")
            << "proxy-region" << "us,,jp" << profile("direct", {}, {u"us"_s, u"jp"_s});
        QTest::addRow("empty is global") << "" << "" << profile("proxy");
        QTest::addRow("split has no legacy meaning") << "split" << "cn" << SplitProfileInfo();
        // clang-format on
    }

    void legacyProfile()
    {
        QFETCH(QString, policy);
        QFETCH(QString, region);
        QFETCH(SplitProfileInfo, expected);
        QCOMPARE(profileFromLegacyPolicy(policy, legacyRegions(region)), expected);
    }

    void modeChoice_data()
    {
        QTest::addColumn<ModeChoice>("choice");
        QTest::addColumn<ModeInfo>("expected");
        QTest::addColumn<QString>("label");
        // clang-format off
        QTest::addRow("Auto") << ModeChoice::Auto << mode("auto") << "Auto";
        QTest::addRow("WireGuard") << ModeChoice::WireGuard << mode("wireguard") << "WireGuard";
        QTest::addRow("TovraVPN Global")
            << ModeChoice::TovraVpnGlobal << mode("tovravpn", "global") << "TovraVPN Global";
        QTest::addRow("TovraVPN Split")
            << ModeChoice::TovraVpnSplit << mode("tovravpn", "split") << "TovraVPN Split";
        QTest::addRow("Proxy Global")
            << ModeChoice::ProxyGlobal << mode("proxy", "global") << "Tovra Proxy Global";
        QTest::addRow("Proxy Split")
            << ModeChoice::ProxySplit << mode("proxy", "split") << "Tovra Proxy Split";
        // clang-format on
    }

    void modeChoice()
    {
        QFETCH(ModeChoice, choice);
        QFETCH(ModeInfo, expected);
        QFETCH(QString, label);
        const ModeInfo chosen = modeForChoice(choice);
        QCOMPARE(chosen.transport, expected.transport);
        QCOMPARE(chosen.policy, expected.policy);
        QVERIFY(chosen.valid);
        QCOMPARE(::modeLabel(chosen), label);
    }

    void splitOptionChange_data()
    {
        QTest::addColumn<ModeInfo>("current");
        QTest::addColumn<ModeInfo>("changed");
        QTest::addColumn<ModeInfo>("expected");

        ModeInfo current = mode("auto");
        current.region = u"cn"_s;
        current.systemProxy = u"on"_s;
        current.splitProfile = profile("direct", {}, {u"us"_s});
        current.proxySplitProfile = profile("proxy", {u"cn"_s});
        ModeInfo tunnel = current;
        tunnel.transport = u"tovravpn"_s;
        tunnel.policy = u"split"_s;
        ModeInfo proxy = tunnel;
        proxy.transport = u"proxy"_s;
        tunnel.splitProfile.gfwlist = true;
        proxy.proxySplitProfile.defaultRoute = u"direct"_s;
        QTest::addRow("tunnel gfwlist")
            << current << splitModeWithGfwList(current, SplitFamily::Tunnel, true) << tunnel;
        QTest::addRow("proxy default route")
            << current << splitModeWithDefaultRoute(current, SplitFamily::Proxy, u"direct"_s)
            << proxy;

        // With no active profile the family's last one is the starting point.
        ModeInfo restored = mode("proxy", "global");
        restored.lastTovravpnSplitProfile = profile("proxy", {u"ir"_s});
        ModeInfo restoredExpected = restored;
        restoredExpected.transport = u"tovravpn"_s;
        restoredExpected.policy = u"split"_s;
        restoredExpected.splitProfile = profile("proxy", {u"ir"_s}, {}, false, true);
        QTest::addRow("tunnel from last profile")
            << restored << splitModeWithCustomRules(restored, SplitFamily::Tunnel, true)
            << restoredExpected;

        // A legacy region policy turns into the profile it stands for.
        ModeInfo legacy = mode("tovravpn", "bypass-region");
        legacy.region = u"cn"_s;
        ModeInfo legacyExpected = legacy;
        legacyExpected.policy = u"split"_s;
        legacyExpected.splitProfile = profile("proxy", {u"cn"_s, u"ru"_s});
        QTest::addRow("tunnel from legacy policy")
            << legacy << splitModeWithDirectRegions(legacy, SplitFamily::Tunnel, {u"cn"_s, u"ru"_s})
            << legacyExpected;
    }

    void splitOptionChange()
    {
        QFETCH(ModeInfo, current);
        QFETCH(ModeInfo, changed);
        QFETCH(ModeInfo, expected);
        QCOMPARE(changed.splitProfile, expected.splitProfile);
        QCOMPARE(changed.proxySplitProfile, expected.proxySplitProfile);
        QVERIFY(changed == expected);
        QVERIFY(!(changed == current));
    }

    void killSwitchWord_data()
    {
        QTest::addColumn<KillSwitchInfo>("record");
        QTest::addColumn<QString>("word");
        const QString lockdown = u"lockdown"_s;
        const QString active = u"active"_s;
        QTest::addRow("no record") << record(false, true, lockdown, active) << u"Unavailable"_s;
        QTest::addRow("lockdown active, enabled")
            << record(true, true, lockdown, active) << u"Lockdown"_s;
        QTest::addRow("lockdown, Active capital")
            << record(true, true, lockdown, u"Active"_s) << u"Lockdown unavailable"_s;
        QTest::addRow("lockdown with blank")
            << record(true, false, u"lockdown "_s, active) << u"Off"_s;
        QTest::addRow("on") << record(true, true, u"auto"_s) << u"On"_s;
        QTest::addRow("off") << record(true, false, {}, active) << u"Off"_s;
    }

    void killSwitchWord()
    {
        QFETCH(KillSwitchInfo, record);
        QFETCH(QString, word);
        QCOMPARE(killSwitchStateText(record, "TrayMenuText"), word);
    }

    void translated()
    {
        TranslationManager translations;
        QVERIFY(translations.apply(u"ru"_s));
        QCOMPARE(::modeLabel(mode("auto")), u"Авто"_s);
        // The page's context has no entry of its own: the shared wording is used.
        QCOMPARE(killSwitchStateText(record(true, true), "VpnPage"), u"Вкл."_s);
        QCOMPARE(killSwitchStateText(KillSwitchInfo(), nullptr), u"Недоступно"_s);
    }
};

QTEST_GUILESS_MAIN(TestRouting)
#include "TestRouting.moc"
