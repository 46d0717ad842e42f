#include "SplitStore.h"

#include <QFile>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QStringList Kinds{QStringLiteral("direct"), QStringLiteral("proxy"), QStringLiteral("block")};
const QStringList SystemDns{QStringLiteral("192.168.1.1")};

} // namespace

SplitStore::SplitStore(const QString &configDir)
    : m_configDir(configDir)
{
    for (const QString &kind : Kinds) {
        m_rules.insert(kind, {});
        QFile file(ruleFile(kind));
        if (!file.exists() && file.open(QIODevice::WriteOnly))
            file.write("# " + kind.toUtf8() + " rules, one domain, address or CIDR per line\n");
    }
    writeDnsConfig();
}

QString SplitStore::ruleFile(const QString &kind) const
{
    return m_configDir + QStringLiteral("/rules/") + kind + QStringLiteral(".list");
}

void SplitStore::writeDnsConfig() const
{
    QFile file(m_configDir + QStringLiteral("/split-dns.json"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    file.write(QJsonDocument(QJsonObject{{QStringLiteral("policy"), m_dnsPolicy},
                                         {QStringLiteral("local_direct_dns"),
                                          QJsonArray::fromStringList(m_dnsLocal)}})
                   .toJson());
}

void SplitStore::noteDnsChange(bool changed, bool runtimeActive)
{
    m_dnsChanged = changed;
    m_dnsReloaded = changed && runtimeActive;
    if (changed)
        writeDnsConfig();
}

QString SplitStore::setDnsLocal(const QStringList &servers, bool runtimeActive)
{
    QStringList cleaned;
    for (const QString &server : servers) {
        const QString trimmed = server.trimmed();
        if (QHostAddress(trimmed).isNull())
            return QStringLiteral("\"%1\" is not an IP address").arg(server);
        if (!cleaned.contains(trimmed))
            cleaned.append(trimmed);
    }
    if (cleaned.isEmpty())
        return QStringLiteral("give at least one DNS server, or clear the list");
    const bool changed = cleaned != m_dnsLocal;
    m_dnsLocal = cleaned;
    noteDnsChange(changed, runtimeActive);
    return {};
}

QString SplitStore::setDnsPolicy(const QString &policy, bool runtimeActive)
{
    if (policy != QLatin1String("auto") && policy != QLatin1String("local") &&
        policy != QLatin1String("remote"))
        return QStringLiteral("split DNS policy must be \"auto\", \"local\" or \"remote\"");
    const bool changed = policy != m_dnsPolicy;
    m_dnsPolicy = policy;
    noteDnsChange(changed, runtimeActive);
    return {};
}

void SplitStore::clearDnsLocal(bool runtimeActive)
{
    const bool changed = !m_dnsLocal.isEmpty();
    m_dnsLocal.clear();
    noteDnsChange(changed, runtimeActive);
}

void SplitStore::resetDns(bool runtimeActive)
{
    const bool changed = !m_dnsLocal.isEmpty() || m_dnsPolicy != QLatin1String("auto");
    m_dnsLocal.clear();
    m_dnsPolicy = QStringLiteral("auto");
    noteDnsChange(changed, runtimeActive);
}

QJsonObject SplitStore::dnsJson() const
{
    const bool fromConfig = !m_dnsLocal.isEmpty();
    const QString effective =
        m_dnsPolicy == QLatin1String("auto") ? QStringLiteral("local") : m_dnsPolicy;
    return {{QStringLiteral("config"),
             QJsonObject{
                 {QStringLiteral("path"), QString(m_configDir + QStringLiteral("/split-dns.json"))},
                 {QStringLiteral("policy"), m_dnsPolicy},
                 {QStringLiteral("local_direct_dns"), QJsonArray::fromStringList(m_dnsLocal)}}},
            {QStringLiteral("effective"),
             QJsonObject{{QStringLiteral("policy"), effective},
                         {QStringLiteral("local_direct_dns"),
                          QJsonArray::fromStringList(fromConfig ? m_dnsLocal : SystemDns)},
                         {QStringLiteral("local_dns_source"),
                          fromConfig ? QStringLiteral("config") : QStringLiteral("system")},
                         {QStringLiteral("auto_cn_default"), m_dnsPolicy == QLatin1String("auto")},
                         {QStringLiteral("fake_ip_enabled"), true}}},
            {QStringLiteral("changed"), m_dnsChanged},
            {QStringLiteral("runtime_reloaded"), m_dnsReloaded},
            {QStringLiteral("runtime_warning"), m_dnsChanged && !m_dnsReloaded
                                                    ? QStringLiteral("applies on the next connect")
                                                    : QString()}};
}

bool SplitStore::knownKind(const QString &kind)
{
    return Kinds.contains(kind);
}

QJsonObject SplitStore::rulesJson(const QString &kind) const
{
    QJsonObject files;
    QJsonObject rules;
    for (const QString &candidate : Kinds) {
        if (!kind.isEmpty() && kind != candidate)
            continue;
        files.insert(candidate, ruleFile(candidate));
        rules.insert(candidate,
                     QJsonObject{{QStringLiteral("items"),
                                  QJsonArray::fromStringList(m_rules.value(candidate))}});
    }
    return {{QStringLiteral("dir"), QString(m_configDir + QStringLiteral("/rules"))},
            {QStringLiteral("files"), files},
            {QStringLiteral("rules"), rules}};
}

QJsonObject SplitStore::importRules(const QString &kind, const QString &content, bool runtimeActive)
{
    QStringList items;
    const QStringList lines = content.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty() && !trimmed.startsWith(QLatin1Char('#')))
            items.append(trimmed);
    }
    const bool changed = items != m_rules.value(kind);
    m_rules.insert(kind, items);
    QFile file(ruleFile(kind));
    if (changed && file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write((items.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
    return {{QStringLiteral("kind"), kind},
            {QStringLiteral("changed"), changed},
            {QStringLiteral("count"), int(items.size())},
            {QStringLiteral("file"), ruleFile(kind)},
            {QStringLiteral("runtime_reloaded"), changed && runtimeActive}};
}
