#include "FakePortal.h"
#include "PortalColorScheme.h"
#include "PrivateSessionBus.h"

#include <QSignalSpy>
#include <QTest>

class TestPortalColorScheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsScheme_data();
    void readsScheme();
    void followsChanges();

private:
    PrivateSessionBus m_bus;
    int m_fixtures = 0;
};

void TestPortalColorScheme::initTestCase()
{
    if (!m_bus.start()) {
        QSKIP("dbus-daemon is not available");
    }
}

void TestPortalColorScheme::readsScheme_data()
{
    // A negative value serves no portal at all.
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("hasReadOne");
    QTest::addColumn<uint>("contrast");
    QTest::addColumn<DesktopScheme>("expected");
    QTest::addColumn<Contrast>("expectedContrast");
    const Contrast normal = Contrast::Normal, high = Contrast::High;
    QTest::addRow("prefer dark") << 1 << true << 0u << DesktopScheme::Dark << normal;
    QTest::addRow("prefer light, high contrast") << 2 << true << 1u << DesktopScheme::Light << high;
    QTest::addRow("no preference") << 0 << true << 0u << DesktopScheme::Unknown << normal;
    QTest::addRow("out of range") << 7 << true << 7u << DesktopScheme::Unknown << normal;
    QTest::addRow("old portal, dark through Read")
        << 1 << false << 0u << DesktopScheme::Dark << normal;
    QTest::addRow("old portal, high contrast through Read")
        << 2 << false << 1u << DesktopScheme::Light << high;
    QTest::addRow("no portal") << -1 << true << 0u << DesktopScheme::Unknown << normal;
}

void TestPortalColorScheme::readsScheme()
{
    QFETCH(int, value);
    QFETCH(bool, hasReadOne);
    QFETCH(uint, contrast);
    QFETCH(DesktopScheme, expected);
    QFETCH(Contrast, expectedContrast);
    PortalFixture fixture(m_bus.address(), ++m_fixtures);
    QVERIFY(value < 0 || fixture.servePortal(uint(value), hasReadOne, contrast));

    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    scheme.start();
    QVERIFY(!scheme.hasAnswered());
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), expected);
    QCOMPARE(scheme.contrast(), expectedContrast);
    if (fixture.portal) {
        QCOMPARE(fixture.portal->readOneCalls, 1);
        QCOMPARE(fixture.portal->readCalls, hasReadOne ? 0 : 1);
    }
}

void TestPortalColorScheme::followsChanges()
{
    PortalFixture fixture(m_bus.address(), ++m_fixtures);
    QVERIFY(fixture.servePortal(2, true));
    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    QSignalSpy changed(&scheme, &PortalColorScheme::schemeChanged);
    scheme.start();
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), DesktopScheme::Light);
    changed.clear();

    fixture.portal->change(1);
    QVERIFY(changed.wait());
    QCOMPARE(changed.first().first().value<DesktopScheme>(), DesktopScheme::Dark);
    QCOMPARE(scheme.scheme(), DesktopScheme::Dark);

    // The same value again is no change.
    fixture.portal->change(1);
    fixture.portal->change(0);
    QVERIFY(changed.wait());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(scheme.scheme(), DesktopScheme::Unknown);

    // Contrast is followed on its own, and back to no preference turns it off.
    QSignalSpy contrast(&scheme, &PortalColorScheme::contrastChanged);
    fixture.portal->changeContrast(1);
    QVERIFY(contrast.wait());
    QCOMPARE(scheme.contrast(), Contrast::High);
    fixture.portal->changeContrast(0);
    QVERIFY(contrast.wait());
    QCOMPARE(contrast.count(), 2);
    QCOMPARE(scheme.contrast(), Contrast::Normal);
    QCOMPARE(changed.count(), 2);
}

QTEST_GUILESS_MAIN(TestPortalColorScheme)
#include "TestPortalColorScheme.moc"
