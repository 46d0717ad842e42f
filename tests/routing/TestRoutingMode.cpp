#include "RoutingMode.h"

#include "TranslationManager.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

SplitProfileInfo profile(const QString &defaultRoute, const QStringList &direct = {},
                         const QStringList &proxied = {}, bool gfwlist = false,
                         bool customRules = false)
{
    SplitProfileInfo result;
    result.valid = true;
    result.defaultRoute = defaultRoute;
    result.directRegions = direct;
    result.proxyRegions = proxied;
    result.gfwlist = gfwlist;
    result.customRules = customRules;
    return result;
}

ModeInfo mode(const QString &transport, const QString &policy, const QString &lastProxyPolicy = {},
              const SplitProfileInfo &proxyProfile = {})
{
    ModeInfo result;
    result.valid = true;
    result.transport = transport;
    result.policy = policy;
    result.lastProxyPolicy = lastProxyPolicy;
    result.proxySplitProfile = proxyProfile;
    return result;
}

} // namespace

Q_DECLARE_METATYPE(ModeChoice)

class TestRoutingMode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modeLabel_data();
    void modeLabel();
    void labelIsTranslated();
    void tunnelSplit_data();
    void tunnelSplit();
    void legacyProfile_data();
    void legacyProfile();
    void modeChoice_data();
    void modeChoice();
    void splitOptionChange_data();
    void splitOptionChange();
};

void TestRoutingMode::modeLabel_data()
{
    QTest::addColumn<ModeInfo>("mode");
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("proxySplit");

    QTest::addRow("auto") << mode(u"auto"_s, {}) << "Auto" << false;
    QTest::addRow("wireguard") << mode(u"wireguard"_s, u"split"_s) << "WireGuard" << false;
    QTest::addRow("tovravpn empty policy") << mode(u"tovravpn"_s, {}) << "TovraVPN Global" << false;
    QTest::addRow("tovravpn proxy-region")
        << mode(u"tovravpn"_s, u"proxy-region"_s) << "TovraVPN Split" << false;
    QTest::addRow("tovravpn unknown word")
        << mode(u"tovravpn"_s, u"smart"_s) << "TovraVPN Global" << false;
    QTest::addRow("capital Proxy is not proxy") << mode(u"Proxy"_s, u"split"_s) << "Proxy" << false;
    QTest::addRow("unknown transport as is") << mode(u"shadow"_s, {}) << "shadow" << false;
    QTest::addRow("empty transport") << mode({}, u"split"_s) << "" << false;
    QTest::addRow("proxy empty policy") << mode(u"proxy"_s, {}) << "Tovra Proxy Global" << false;
    QTest::addRow("proxy gfwlist") << mode(u"proxy"_s, u"gfwlist"_s) << "Tovra Proxy Split" << true;
    QTest::addRow("proxy bypass-region")
        << mode(u"proxy"_s, u"bypass-region"_s) << "Tovra Proxy Split" << true;
    QTest::addRow("proxy split, stored word global")
        << mode(u"proxy"_s, u"split"_s, u" Global "_s, profile(u"direct"_s)) << "Tovra Proxy Global"
        << false;
    QTest::addRow("proxy split, stored word split")
        << mode(u"proxy"_s, u"split"_s, u"split"_s, profile(u"proxy"_s)) << "Tovra Proxy Split"
        << true;
    QTest::addRow("proxy split, all-proxy profile")
        << mode(u"proxy"_s, u"split"_s, {}, profile(u"proxy"_s)) << "Tovra Proxy Global" << false;
    QTest::addRow("proxy split, custom rules play no part")
        << mode(u"proxy"_s, u"split"_s, {}, profile(u"proxy"_s, {}, {}, false, true))
        << "Tovra Proxy Global" << false;
    QTest::addRow("proxy split, direct regions")
        << mode(u"proxy"_s, u"split"_s, {}, profile(u"proxy"_s, {u"cn"_s})) << "Tovra Proxy Split"
        << true;
    QTest::addRow("proxy split, proxied regions")
        << mode(u"proxy"_s, u"split"_s, {}, profile(u"proxy"_s, {}, {u"us"_s}))
        << "Tovra Proxy Split" << true;
    QTest::addRow("proxy split, gfwlist profile")
        << mode(u"proxy"_s, u"split"_s, {}, profile(u"proxy"_s, {}, {}, true))
        << "Tovra Proxy Split" << true;
    QTest::addRow("proxy split, legacy gfwlist word converts")
        << mode(u"proxy"_s, u"split"_s, u"gfwlist"_s) << "Tovra Proxy Split" << true;
    QTest::addRow("proxy unknown policy")
        << mode(u"proxy"_s, u"smart"_s) << "Tovra Proxy Global" << false;
}

void TestRoutingMode::modeLabel()
{
    QFETCH(ModeInfo, mode);
    QFETCH(QString, label);
    QFETCH(bool, proxySplit);
    QCOMPARE(::modeLabel(mode), label);
    QCOMPARE(isProxySplit(mode), proxySplit);
}

void TestRoutingMode::labelIsTranslated()
{
    TranslationManager translations;
    QVERIFY(translations.apply(u"de"_s));
    QCOMPARE(::modeLabel(mode(u"auto"_s, {})), u"Automatisch"_s);
    QVERIFY(translations.apply(u"en"_s));
    QCOMPARE(::modeLabel(mode(u"auto"_s, {})), u"Auto"_s);
}

void TestRoutingMode::tunnelSplit_data()
{
    QTest::addColumn<QString>("transport");
    QTest::addColumn<QString>("policy");
    QTest::addColumn<bool>("split");
    QTest::addColumn<bool>("regionPolicy");
    const QStringList splitWords{u"split"_s, u"gfwlist"_s, u"bypass-region"_s, u"direct-region"_s,
                                 u"proxy-region"_s};
    for (const QString &word : splitWords)
        QTest::addRow("tovravpn %s", qPrintable(word))
            << "tovravpn" << word << true << word.endsWith(u"-region");
    QTest::addRow("tovravpn global") << "tovravpn"
                                     << "global" << false << false;
    QTest::addRow("tovravpn empty") << "tovravpn"
                                    << "" << false << false;
    QTest::addRow("tovravpn Split capital") << "tovravpn"
                                            << "Split" << false << false;
    QTest::addRow("proxy split is not tunnel") << "proxy"
                                               << "split" << false << false;
    QTest::addRow("TovraVPN capital") << "TovraVPN"
                                      << "split" << false << false;
}

void TestRoutingMode::tunnelSplit()
{
    QFETCH(QString, transport);
    QFETCH(QString, policy);
    QFETCH(bool, split);
    QFETCH(bool, regionPolicy);
    QCOMPARE(isTunnelSplit(mode(transport, policy)), split);
    QCOMPARE(isRegionPolicy(policy), regionPolicy);
}

void TestRoutingMode::legacyProfile_data()
{
    QTest::addColumn<QString>("policy");
    QTest::addColumn<QString>("region");
    QTest::addColumn<SplitProfileInfo>("expected");
    QTest::addRow("gfwlist") << "gfwlist"
                             << "" << profile(u"direct"_s, {}, {}, true);
    QTest::addRow("bypass-region") << "bypass-region"
                                   << "cn, ir" << profile(u"proxy"_s, {u"cn"_s, u"ir"_s});
    QTest::addRow("direct-region") << "direct-region"
                                   << "cn" << profile(u"proxy"_s, {u"cn"_s});
    QTest::addRow("proxy-region") << "proxy-region"
                                  << "us,,jp" << profile(u"direct"_s, {}, {u"us"_s, u"jp"_s});
    QTest::addRow("empty is global") << ""
                                     << "" << profile(u"proxy"_s);
    QTest::addRow("split has no legacy meaning") << "split"
                                                 << "cn" << SplitProfileInfo();
}

void TestRoutingMode::legacyProfile()
{
    QFETCH(QString, policy);
    QFETCH(QString, region);
    QFETCH(SplitProfileInfo, expected);
    QCOMPARE(profileFromLegacyPolicy(policy, legacyRegions(region)), expected);
}

void TestRoutingMode::modeChoice_data()
{
    QTest::addColumn<ModeChoice>("choice");
    QTest::addColumn<QString>("transport");
    QTest::addColumn<QString>("policy");
    QTest::addColumn<QString>("label");
    QTest::addRow("Auto") << ModeChoice::Auto << "auto"
                          << ""
                          << "Auto";
    QTest::addRow("WireGuard") << ModeChoice::WireGuard << "wireguard"
                               << ""
                               << "WireGuard";
    QTest::addRow("TovraVPN Global") << ModeChoice::TovraVpnGlobal << "tovravpn"
                                     << "global"
                                     << "TovraVPN Global";
    QTest::addRow("TovraVPN Split") << ModeChoice::TovraVpnSplit << "tovravpn"
                                    << "split"
                                    << "TovraVPN Split";
    QTest::addRow("Proxy Global") << ModeChoice::ProxyGlobal << "proxy"
                                  << "global"
                                  << "Tovra Proxy Global";
    QTest::addRow("Proxy Split") << ModeChoice::ProxySplit << "proxy"
                                 << "split"
                                 << "Tovra Proxy Split";
}

void TestRoutingMode::modeChoice()
{
    QFETCH(ModeChoice, choice);
    QFETCH(QString, transport);
    QFETCH(QString, policy);
    QFETCH(QString, label);
    const ModeInfo chosen = modeForChoice(choice);
    QVERIFY(chosen.valid);
    QCOMPARE(chosen.transport, transport);
    QCOMPARE(chosen.policy, policy);
    QCOMPARE(::modeLabel(chosen), label);
}

void TestRoutingMode::splitOptionChange_data()
{
    QTest::addColumn<ModeInfo>("current");
    QTest::addColumn<ModeInfo>("changed");
    QTest::addColumn<ModeInfo>("expected");

    ModeInfo current = mode(u"auto"_s, {});
    current.region = u"cn"_s;
    current.systemProxy = u"on"_s;
    current.splitProfile = profile(u"direct"_s, {}, {u"us"_s});
    current.proxySplitProfile = profile(u"proxy"_s, {u"cn"_s});

    ModeInfo tunnel = current;
    tunnel.transport = u"tovravpn"_s;
    tunnel.policy = u"split"_s;
    tunnel.region.clear();
    tunnel.splitProfile.gfwlist = true;
    QTest::addRow("tunnel gfwlist")
        << current << splitModeWithGfwList(current, SplitFamily::Tunnel, true) << tunnel;

    ModeInfo proxy = current;
    proxy.transport = u"proxy"_s;
    proxy.policy = u"split"_s;
    proxy.region.clear();
    proxy.proxySplitProfile.defaultRoute = u"direct"_s;
    QTest::addRow("proxy default route")
        << current << splitModeWithDefaultRoute(current, SplitFamily::Proxy, u"direct"_s) << proxy;

    // With no active profile the family's last one is the starting point.
    ModeInfo restored = mode(u"proxy"_s, u"global"_s);
    restored.lastTovravpnSplitProfile = profile(u"proxy"_s, {u"ir"_s});
    ModeInfo restoredExpected = restored;
    restoredExpected.transport = u"tovravpn"_s;
    restoredExpected.policy = u"split"_s;
    restoredExpected.splitProfile = profile(u"proxy"_s, {u"ir"_s}, {}, false, true);
    QTest::addRow("tunnel from last profile")
        << restored << splitModeWithCustomRules(restored, SplitFamily::Tunnel, true)
        << restoredExpected;

    // A legacy region policy turns into the profile it stands for.
    ModeInfo legacy = mode(u"tovravpn"_s, u"bypass-region"_s);
    legacy.region = u"cn"_s;
    ModeInfo legacyExpected = legacy;
    legacyExpected.policy = u"split"_s;
    legacyExpected.region.clear();
    legacyExpected.splitProfile = profile(u"proxy"_s, {u"cn"_s, u"ru"_s});
    QTest::addRow("tunnel from legacy policy")
        << legacy << splitModeWithDirectRegions(legacy, SplitFamily::Tunnel, {u"cn"_s, u"ru"_s})
        << legacyExpected;
}

void TestRoutingMode::splitOptionChange()
{
    QFETCH(ModeInfo, current);
    QFETCH(ModeInfo, changed);
    QFETCH(ModeInfo, expected);
    QCOMPARE(changed.transport, expected.transport);
    QCOMPARE(changed.policy, expected.policy);
    QCOMPARE(changed.splitProfile, expected.splitProfile);
    QCOMPARE(changed.proxySplitProfile, expected.proxySplitProfile);
    QVERIFY(changed == expected);
    QVERIFY(!(changed == current));
}

QTEST_GUILESS_MAIN(TestRoutingMode)
#include "TestRoutingMode.moc"
