#include "PortalColorScheme.h"
#include "PrivateSessionBus.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

// The desktop portal's Settings interface, answering only the appearance colour scheme.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal(uint colorScheme, bool hasReadOne)
        : m_colorScheme(colorScheme)
        , m_hasReadOne(hasReadOne)
    {}

    void change(uint colorScheme)
    {
        m_colorScheme = colorScheme;
        Q_EMIT SettingChanged(kNamespace, kKey, QDBusVariant(colorScheme));
    }

    int readOneCalls = 0;
    int readCalls = 0;

public Q_SLOTS:
    QDBusVariant ReadOne(const QString &nameSpace, const QString &key)
    {
        ++readOneCalls;
        if (!m_hasReadOne) {
            // What an older portal answers: the method does not exist.
            sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("No such method ReadOne"));
            return {};
        }
        return isColorScheme(nameSpace, key) ? QDBusVariant(m_colorScheme) : QDBusVariant();
    }

    QDBusVariant Read(const QString &nameSpace, const QString &key)
    {
        ++readCalls;
        if (!isColorScheme(nameSpace, key)) {
            return {};
        }
        // Read wraps the value in a second variant.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(m_colorScheme)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    bool isColorScheme(const QString &nameSpace, const QString &key)
    {
        if (nameSpace != kNamespace || key != kKey) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                           QStringLiteral("Requested setting not found"));
            return false;
        }
        return true;
    }

    uint m_colorScheme;
    bool m_hasReadOne;
};

// One fake portal on its own connection, and a separate client connection to the same bus.
struct PortalFixture
{
    PortalFixture(const QString &address, int tag)
        : serverName(QStringLiteral("portal-server-%1").arg(tag))
        , clientName(QStringLiteral("portal-client-%1").arg(tag))
        , address(address)
    {}

    ~PortalFixture()
    {
        portal.reset();
        QDBusConnection::disconnectFromBus(serverName);
        QDBusConnection::disconnectFromBus(clientName);
    }

    bool servePortal(uint scheme, bool hasReadOne)
    {
        QDBusConnection server = QDBusConnection::connectToBus(address, serverName);
        portal = std::make_unique<FakePortal>(scheme, hasReadOne);
        return server.registerObject(
                   QStringLiteral("/org/freedesktop/portal/desktop"), portal.get(),
                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
               server.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    QDBusConnection client() const { return QDBusConnection::connectToBus(address, clientName); }

    QString serverName;
    QString clientName;
    QString address;
    std::unique_ptr<FakePortal> portal;
};

} // namespace

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
    QTest::addColumn<DesktopScheme>("expected");
    QTest::addRow("prefer dark") << 1 << true << DesktopScheme::Dark;
    QTest::addRow("prefer light") << 2 << true << DesktopScheme::Light;
    QTest::addRow("no preference") << 0 << true << DesktopScheme::Unknown;
    QTest::addRow("out of range") << 7 << true << DesktopScheme::Unknown;
    QTest::addRow("old portal, dark through Read") << 1 << false << DesktopScheme::Dark;
    QTest::addRow("old portal, light through Read") << 2 << false << DesktopScheme::Light;
    QTest::addRow("no portal") << -1 << true << DesktopScheme::Unknown;
}

void TestPortalColorScheme::readsScheme()
{
    QFETCH(int, value);
    QFETCH(bool, hasReadOne);
    QFETCH(DesktopScheme, expected);
    PortalFixture fixture(m_bus.address(), ++m_fixtures);
    QVERIFY(value < 0 || fixture.servePortal(uint(value), hasReadOne));

    PortalColorScheme scheme(fixture.client());
    QSignalSpy answered(&scheme, &PortalColorScheme::answered);
    scheme.start();
    QVERIFY(!scheme.hasAnswered());
    QVERIFY(answered.wait());
    QCOMPARE(scheme.scheme(), expected);
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
}

QTEST_GUILESS_MAIN(TestPortalColorScheme)
#include "TestPortalColorScheme.moc"
