#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

// Split DNS (policy and the local direct servers) and the custom split rule lists, one file per
// rule kind ("direct", "proxy", "block") under the config directory.
class SplitStore
{
public:
    explicit SplitStore(const QString &configDir);

    // Each returns the refusal text, empty when applied.
    QString setDnsLocal(const QStringList &servers, bool runtimeActive);
    QString setDnsPolicy(const QString &policy, bool runtimeActive);
    void clearDnsLocal(bool runtimeActive);
    void resetDns(bool runtimeActive);
    QJsonObject dnsJson() const;

    static bool knownKind(const QString &kind);
    // Rules of one kind, or of every kind when kind is empty.
    QJsonObject rulesJson(const QString &kind) const;
    // Replaces the kind's rules with the non-empty, non-comment lines of content.
    QJsonObject importRules(const QString &kind, const QString &content, bool runtimeActive);

private:
    void noteDnsChange(bool changed, bool runtimeActive);
    QString ruleFile(const QString &kind) const;
    void writeDnsConfig() const;

    QString m_configDir;
    QString m_dnsPolicy = QStringLiteral("auto");
    QStringList m_dnsLocal;
    bool m_dnsChanged = false;
    bool m_dnsReloaded = false;
    QMap<QString, QStringList> m_rules;
};
