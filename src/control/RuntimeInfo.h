#pragma once

#include "KillSwitchInfo.h"
#include "ModeInfo.h"
#include "PacStatusInfo.h"
#include "ProxyAccessUrlInfo.h"
#include "ProxyListenerInfo.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>

// The daemon's state at one moment, as the status endpoint reports it.
struct RuntimeInfo
{
    bool valid = false;
    QString daemonState;
    QString daemonVersion;
    QString apiURL;
    QString autoConnect;
    QString autoConnectState;
    QString language;
    QString languageSource;
    QString effectiveLanguage;
    QString catalogRefresh;
    QString authState;
    QString tunnelState;
    QString tunnelKind;
    QString tunnelReason;
    QString lastError;
    QString modeSummary;
    ModeInfo mode;
    QString connectedSource;
    QString connectedTarget;
    QString connectedSince;
    QString selectedNode;
    QString connectedNode;
    KillSwitchInfo killSwitch;
    QList<ProxyListenerInfo> proxyListeners;
    QList<ProxyAccessUrlInfo> proxyAccessUrls;
    PacStatusInfo pacStatus;

    static RuntimeInfo parse(const QByteArray &body, QString *errorOut);
    // "[id] [region] name" of a node object; empty for an empty object.
    static QString nodeReferenceText(const QJsonObject &node);

    friend bool operator==(const RuntimeInfo &, const RuntimeInfo &) = default;
};

Q_DECLARE_METATYPE(RuntimeInfo)
