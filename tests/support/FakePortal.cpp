#include "FakePortal.h"

namespace {

const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
const QString kContrastKey = QStringLiteral("contrast");

} // namespace

FakePortal::FakePortal(uint colorScheme, bool hasReadOne, uint contrast)
    : m_colorScheme(colorScheme)
    , m_contrast(contrast)
    , m_hasReadOne(hasReadOne)
{}

void FakePortal::change(uint colorScheme)
{
    m_colorScheme = colorScheme;
    Q_EMIT SettingChanged(kNamespace, kKey, QDBusVariant(colorScheme));
}

void FakePortal::changeContrast(uint contrast)
{
    m_contrast = contrast;
    Q_EMIT SettingChanged(kNamespace, kContrastKey, QDBusVariant(contrast));
}

QDBusVariant FakePortal::ReadOne(const QString &nameSpace, const QString &key)
{
    if (key == kKey)
        ++readOneCalls;
    if (!m_hasReadOne) {
        // What an older portal answers: the method does not exist.
        sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("No such method ReadOne"));
        return {};
    }
    const std::optional<uint> found = value(nameSpace, key);
    return found ? QDBusVariant(*found) : QDBusVariant();
}

QDBusVariant FakePortal::Read(const QString &nameSpace, const QString &key)
{
    if (key == kKey)
        ++readCalls;
    const std::optional<uint> found = value(nameSpace, key);
    if (!found) {
        return {};
    }
    // Read wraps the value in a second variant.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(*found)));
}

std::optional<uint> FakePortal::value(const QString &nameSpace, const QString &key)
{
    if (nameSpace == kNamespace && key == kKey)
        return m_colorScheme;
    if (nameSpace == kNamespace && key == kContrastKey)
        return m_contrast;
    sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                   QStringLiteral("Requested setting not found"));
    return std::nullopt;
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

bool PortalFixture::servePortal(uint scheme, bool hasReadOne, uint contrast)
{
    QDBusConnection server = QDBusConnection::connectToBus(address, serverName);
    portal = std::make_unique<FakePortal>(scheme, hasReadOne, contrast);
    return server.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), portal.get(),
                                 QDBusConnection::ExportAllSlots |
                                     QDBusConnection::ExportAllSignals) &&
           server.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

QDBusConnection PortalFixture::client() const
{
    return QDBusConnection::connectToBus(address, clientName);
}
