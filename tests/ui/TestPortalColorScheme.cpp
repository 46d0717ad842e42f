#include "FakePortal.h"
#include "PortalColorScheme.h"
#include "PrivateSessionBus.h"
#include "ThemeEngine.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");

// One fake portal on its own connection, and a separate client connection to the same bus.
class PortalFixture
{
public:
    PortalFixture(const QString &address, const QString &tag)
        : m_serverName(QStringLiteral("portal-server-") + tag)
        , m_clientName(QStringLiteral("portal-client-") + tag)
        , m_address(address)
    {}

    ~PortalFixture()
    {
        m_portal.reset();
        QDBusConnection::disconnectFromBus(m_serverName);
        QDBusConnection::disconnectFromBus(m_clientName);
    }

    bool servePortal(uint scheme, bool hasReadOne)
    {
        QDBusConnection server = QDBusConnection::connectToBus(m_address, m_serverName);
        m_portal = std::make_unique<FakePortal>(scheme, hasReadOne);
        return server.registerObject(kPath, m_portal.get(),
                                     QDBusConnection::ExportAllSlots |
                                         QDBusConnection::ExportAllSignals) &&
               server.registerService(kService);
    }

    QDBusConnection client() const
    {
        return QDBusConnection::connectToBus(m_address, m_clientName);
    }
    FakePortal *portal() const { return m_portal.get(); }

private:
    QString m_serverName;
    QString m_clientName;
    QString m_address;
    std::unique_ptr<FakePortal> m_portal;
};

} // namespace

class TestPortalColorScheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsScheme_data();
    void readsScheme();
    void missingPortalMeansLight();
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
    QTest::addColumn<uint>("value");
    QTest::addColumn<bool>("hasReadOne");
    QTest::addColumn<DesktopScheme>("expected");
    QTest::addRow("prefer dark") << 1u << true << DesktopScheme::Dark;
    QTest::addRow("prefer light") << 2u << true << DesktopScheme::Light;
    QTest::addRow("no preference") << 0u << true << DesktopScheme::Unknown;
    QTest::addRow("out of range") << 7u << true << DesktopScheme::Unknown;
    QTest::addRow("old portal, dark through Read") << 1u << false << DesktopScheme::Dark;
    QTest::addRow("old portal, light through Read") << 2u << false << DesktopScheme::Light;
}

void TestPortalColorScheme::readsScheme()
{
    QFETCH(uint, value);
    QFETCH(bool, hasReadOne);
    QFETCH(DesktopScheme, expected);
    PortalFixture fixture(m_bus.address(), QString::number(++m_fixtures));
    QVERIFY(fixture.servePortal(value, hasReadOne));

    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    scheme.start();
    QVERIFY(!scheme.hasAnswered());
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), expected);
    QCOMPARE(fixture.portal()->readOneCalls(), 1);
    QCOMPARE(fixture.portal()->readCalls(), hasReadOne ? 0 : 1);
}

void TestPortalColorScheme::missingPortalMeansLight()
{
    PortalFixture fixture(m_bus.address(), QString::number(++m_fixtures));
    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    scheme.start();
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), DesktopScheme::Unknown);
    QCOMPARE(ThemeEngine::resolveAppearance(QStringLiteral("system"), scheme.scheme()),
             Appearance::Light);
}

void TestPortalColorScheme::followsChanges()
{
    PortalFixture fixture(m_bus.address(), QString::number(++m_fixtures));
    QVERIFY(fixture.servePortal(2, true));
    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    QSignalSpy changed(&scheme, &PortalColorScheme::schemeChanged);
    scheme.start();
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), DesktopScheme::Light);
    changed.clear();

    fixture.portal()->change(1);
    QVERIFY(changed.wait());
    QCOMPARE(changed.first().first().value<DesktopScheme>(), DesktopScheme::Dark);
    QCOMPARE(scheme.scheme(), DesktopScheme::Dark);

    // The same value again is no change.
    fixture.portal()->change(1);
    fixture.portal()->change(0);
    QVERIFY(changed.wait());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(scheme.scheme(), DesktopScheme::Unknown);
}

QTEST_GUILESS_MAIN(TestPortalColorScheme)
#include "TestPortalColorScheme.moc"
