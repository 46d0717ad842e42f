#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

#include <memory>
#include <optional>

// The desktop portal's Settings interface, answering only the appearance colour scheme and
// contrast.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal(uint colorScheme, bool hasReadOne, uint contrast = 0);

    void change(uint colorScheme);
    void changeContrast(uint contrast);

    // Reads of the colour scheme, whatever else is read next to it.
    int readOneCalls = 0;
    int readCalls = 0;

public Q_SLOTS:
    QDBusVariant ReadOne(const QString &nameSpace, const QString &key);
    QDBusVariant Read(const QString &nameSpace, const QString &key);

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    // The value of a known setting; a NotFound error reply and nothing otherwise.
    std::optional<uint> value(const QString &nameSpace, const QString &key);

    uint m_colorScheme;
    uint m_contrast;
    bool m_hasReadOne;
};

// One fake portal on its own connection, and a separate client connection to the same bus.
struct PortalFixture
{
    PortalFixture(const QString &address, int tag);
    ~PortalFixture();

    bool servePortal(uint scheme, bool hasReadOne, uint contrast = 0);
    QDBusConnection client() const;

    QString serverName;
    QString clientName;
    QString address;
    std::unique_ptr<FakePortal> portal;
};
