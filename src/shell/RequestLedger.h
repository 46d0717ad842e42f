#pragma once

#include <QHash>
#include <QSet>
#include <QtGlobal>

// Hands out request ids and remembers, per kind of request, the latest one issued, so that an
// answer to a superseded request can be dropped without a trace. Ids start at 2^32 so they never
// meet the tray's own small ids on the shared worker.
class RequestLedger
{
public:
    enum class Kind {
        Status,
        TransitionStatus, // follow-up polls while the tunnel connects or disconnects
        Nodes,
        NodeGroups,
        Connection, // connect and disconnect share one id
        Version,
        Mode,
        LocalNetwork,
        SystemProxy,
        Favorite,
        SplitRules,
        SplitRuleImport,
        ConfigPaths,
        APIURL,
        AutoConnect,
        Language,
        LanguageSync,
        KillSwitch,
        ProxyListen,
        SplitDNS,
        Repair,
        Login,
        Logout,
        User,
        PurchaseURL,
        UpdateCheck,
        UpdateDownload,
        // What the Settings page loads when it comes into view; apart from the changes of the
        // same records so that a failed load is never worded as a failed change.
        SettingsStatus,
        KillSwitchLoad,
        LanguageLoad,
        APIURLLoad,
        SplitDNSLoad,
    };

    static constexpr quint64 kFirstId = Q_UINT64_C(4294967296);

    // A fresh id, remembered as the latest of its kind and marked in flight.
    quint64 issue(Kind kind);
    bool isLatest(Kind kind, quint64 id) const;
    // True when the answer is the latest of its kind; clears the kind's in-flight mark then.
    bool accept(Kind kind, quint64 id);
    bool inFlight(Kind kind) const;
    quint64 latest(Kind kind) const;
    quint64 nextId() const { return m_nextId; }

private:
    quint64 m_nextId = kFirstId;
    QHash<Kind, quint64> m_latest;
    QSet<Kind> m_inFlight;
};
