#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

#include <memory>

// The desktop portal's Settings interface, answering only the appearance colour scheme.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal(uint colorScheme, bool hasReadOne);

    void change(uint colorScheme);

    int readOneCalls = 0;
    int readCalls = 0;

public Q_SLOTS:
    QDBusVariant ReadOne(const QString &nameSpace, const QString &key);
    QDBusVariant Read(const QString &nameSpace, const QString &key);

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    bool isColorScheme(const QString &nameSpace, const QString &key);

    uint m_colorScheme;
    bool m_hasReadOne;
};

// One fake portal on its own connection, and a separate client connection to the same bus.
struct PortalFixture
{
    PortalFixture(const QString &address, int tag);
    ~PortalFixture();

    bool servePortal(uint scheme, bool hasReadOne);
    QDBusConnection client() const;

    QString serverName;
    QString clientName;
    QString address;
    std::unique_ptr<FakePortal> portal;
};
