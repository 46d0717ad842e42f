#pragma once

#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

// The desktop portal's Settings interface, answering only the appearance colour scheme.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(uint colorScheme, bool hasReadOne, QObject *parent = nullptr);

    void change(uint colorScheme);
    int readOneCalls() const { return m_readOneCalls; }
    int readCalls() const { return m_readCalls; }

public Q_SLOTS:
    QDBusVariant ReadOne(const QString &nameSpace, const QString &key);
    QDBusVariant Read(const QString &nameSpace, const QString &key);

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    bool isColorScheme(const QString &nameSpace, const QString &key);

    uint m_colorScheme;
    bool m_hasReadOne;
    int m_readOneCalls = 0;
    int m_readCalls = 0;
};
