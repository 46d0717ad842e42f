#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QStringList>

// One split profile of the routing mode.
struct SplitProfileInfo
{
    bool valid = false;
    QString defaultRoute;
    QStringList directRegions;
    QStringList proxyRegions;
    bool gfwlist = false;
    QString lanRouting;
    bool customRules = false;

    static SplitProfileInfo fromJson(const QJsonObject &object);
    // True when any of the six fields is set; only such a profile is sent in a mode change.
    bool hasAnyField() const;
    QJsonObject toJson() const;

    friend bool operator==(const SplitProfileInfo &, const SplitProfileInfo &) = default;
};

Q_DECLARE_METATYPE(SplitProfileInfo)
