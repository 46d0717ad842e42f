#pragma once

#include <QJsonObject>
#include <QString>

// The kill switch: on or off, its mode ("auto", "always" or the daemon-held "lockdown"), and
// whether the local network stays reachable.
class KillSwitchStore
{
public:
    explicit KillSwitchStore(bool lockdown);

    // Each returns the refusal text, empty when applied.
    QString setEnabled(bool enabled);
    QString setMode(const QString &mode);
    void setAllowLan(bool allow) { m_allowLan = allow; }

    bool enabled() const { return m_enabled; }
    QJsonObject json() const;

private:
    bool m_enabled = false;
    QString m_mode = QStringLiteral("auto");
    bool m_allowLan = true;
};
