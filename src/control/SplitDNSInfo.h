#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>

// Split DNS, as configured and as in effect.
struct SplitDNSInfo
{
    bool valid = false;
    QString configuredPath;
    QString configuredPolicy;
    QStringList configuredLocalDirectDns;
    QString effectivePolicy;
    QStringList effectiveLocalDirectDns;
    QString localDnsSource;
    bool autoDefault = false;
    bool fakeIpEnabled = false;
    bool changed = false;
    bool runtimeReloaded = false;
    QString runtimeWarning;

    static SplitDNSInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const SplitDNSInfo &, const SplitDNSInfo &) = default;
};

Q_DECLARE_METATYPE(SplitDNSInfo)
