#include "FakePortal.h"

#include <QDBusConnection>
#include <QDBusMessage>

FakePortal::FakePortal(uint colorScheme, bool hasReadOne, QObject *parent)
    : QObject(parent)
    , m_colorScheme(colorScheme)
    , m_hasReadOne(hasReadOne)
{}

void FakePortal::change(uint colorScheme)
{
    m_colorScheme = colorScheme;
    Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                          QStringLiteral("color-scheme"), QDBusVariant(colorScheme));
}

bool FakePortal::isColorScheme(const QString &nameSpace, const QString &key)
{
    if (nameSpace == QLatin1String("org.freedesktop.appearance") &&
        key == QLatin1String("color-scheme")) {
        return true;
    }
    sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                   QStringLiteral("Requested setting not found"));
    return false;
}

QDBusVariant FakePortal::ReadOne(const QString &nameSpace, const QString &key)
{
    ++m_readOneCalls;
    if (!m_hasReadOne) {
        // What an older portal answers: the method does not exist.
        sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("No such method ReadOne"));
        return {};
    }
    if (!isColorScheme(nameSpace, key)) {
        return {};
    }
    return QDBusVariant(m_colorScheme);
}

QDBusVariant FakePortal::Read(const QString &nameSpace, const QString &key)
{
    ++m_readCalls;
    if (!isColorScheme(nameSpace, key)) {
        return {};
    }
    // Read wraps the value in a second variant.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_colorScheme)));
}
