#pragma once

#include "SplitProfileInfo.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMetaType>
#include <QString>

// The routing mode: the object under "mode" in the status, and the mode endpoints' answer.
struct ModeInfo
{
    bool valid = false;
    QString transport;
    QString policy;
    QString region;
    QString systemProxy;
    int pacPort = 0;
    QString pacVersion;
    bool proxyLan = false;
    QString localNetwork;
    SplitProfileInfo splitProfile;
    QString lastTovravpnPolicy;
    SplitProfileInfo lastTovravpnSplitProfile;
    SplitProfileInfo proxySplitProfile;
    QString lastProxyPolicy;
    SplitProfileInfo lastProxySplitProfile;

    static ModeInfo fromJson(const QJsonObject &object);
    // "transport [policy] [region]" for display; a global policy is never named.
    QString summary() const;
    static ModeInfo parse(const QByteArray &body, QString *errorOut);
    // What a mode change sends: the fields that are set, and a split profile only when it holds
    // any field.
    QJsonObject requestBody() const;

    friend bool operator==(const ModeInfo &, const ModeInfo &) = default;
};

Q_DECLARE_METATYPE(ModeInfo)
