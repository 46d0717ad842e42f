#pragma once

#include "ProxyListenerInfo.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The daemon's local proxy listeners after a change.
struct ProxyListenResultInfo
{
    bool valid = false;
    bool appliesOnReconnect = false;
    QList<ProxyListenerInfo> proxyListeners;

    static ProxyListenResultInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const ProxyListenResultInfo &, const ProxyListenResultInfo &) = default;
};

Q_DECLARE_METATYPE(ProxyListenResultInfo)
