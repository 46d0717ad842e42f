#include "KillSwitchStore.h"

#include <QJsonArray>

KillSwitchStore::KillSwitchStore(bool lockdown)
{
    if (lockdown) {
        m_enabled = true;
        m_mode = QStringLiteral("lockdown");
    }
}

QString KillSwitchStore::setEnabled(bool enabled)
{
    if (!enabled && m_mode == QLatin1String("lockdown"))
        return QStringLiteral("Kill Switch is in lockdown and cannot be turned off.");
    m_enabled = enabled;
    return {};
}

QString KillSwitchStore::setMode(const QString &mode)
{
    if (mode != QLatin1String("auto") && mode != QLatin1String("always") &&
        mode != QLatin1String("lockdown"))
        return QStringLiteral("unknown kill switch mode \"%1\"").arg(mode);
    m_mode = mode;
    if (mode == QLatin1String("lockdown"))
        m_enabled = true;
    return {};
}

QJsonObject KillSwitchStore::json() const
{
    QJsonArray discovery;
    if (m_allowLan)
        discovery = {QStringLiteral("mdns"), QStringLiteral("ssdp"), QStringLiteral("dhcp")};
    return {{QStringLiteral("enabled"), m_enabled},
            {QStringLiteral("mode"), m_mode},
            {QStringLiteral("guard"),
             m_enabled ? QStringLiteral("active") : QStringLiteral("inactive")},
            {QStringLiteral("platform"), QStringLiteral("nftables")},
            {QStringLiteral("block_mode"), QStringLiteral("reject")},
            {QStringLiteral("allow_lan"), m_allowLan},
            {QStringLiteral("lan_policy"),
             m_allowLan ? QStringLiteral("allow") : QStringLiteral("block")},
            {QStringLiteral("lan_discovery"), discovery},
            {QStringLiteral("last_error"), QString()}};
}
