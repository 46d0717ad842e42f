#include "FakePortal.h"

namespace {

const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

} // namespace

FakePortal::FakePortal(uint colorScheme, bool hasReadOne)
    : m_colorScheme(colorScheme)
    , m_hasReadOne(hasReadOne)
{}

void FakePortal::change(uint colorScheme)
{
    m_colorScheme = colorScheme;
    Q_EMIT SettingChanged(kNamespace, kKey, QDBusVariant(colorScheme));
}

QDBusVariant FakePortal::ReadOne(const QString &nameSpace, const QString &key)
{
    ++readOneCalls;
    if (!m_hasReadOne) {
        // What an older portal answers: the method does not exist.
        sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("No such method ReadOne"));
        return {};
    }
    return isColorScheme(nameSpace, key) ? QDBusVariant(m_colorScheme) : QDBusVariant();
}

QDBusVariant FakePortal::Read(const QString &nameSpace, const QString &key)
{
    ++readCalls;
    if (!isColorScheme(nameSpace, key)) {
        return {};
    }
    // Read wraps the value in a second variant.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_colorScheme)));
}

bool FakePortal::isColorScheme(const QString &nameSpace, const QString &key)
{
    if (nameSpace != kNamespace || key != kKey) {
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                       QStringLiteral("Requested setting not found"));
        return false;
    }
    return true;
}

PortalFixture::PortalFixture(const QString &address, int tag)
    : serverName(QStringLiteral("portal-server-%1").arg(tag))
    , clientName(QStringLiteral("portal-client-%1").arg(tag))
    , address(address)
{}

PortalFixture::~PortalFixture()
{
    portal.reset();
    QDBusConnection::disconnectFromBus(serverName);
    QDBusConnection::disconnectFromBus(clientName);
}

bool PortalFixture::servePortal(uint scheme, bool hasReadOne)
{
    QDBusConnection server = QDBusConnection::connectToBus(address, serverName);
    portal = std::make_unique<FakePortal>(scheme, hasReadOne);
    return server.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), portal.get(),
                                 QDBusConnection::ExportAllSlots |
                                     QDBusConnection::ExportAllSignals) &&
           server.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

QDBusConnection PortalFixture::client() const
{
    return QDBusConnection::connectToBus(address, clientName);
}
