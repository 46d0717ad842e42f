#pragma once

#include "APIURLConfigInfo.h"
#include "ConfigPaths.h"
#include "KillSwitchInfo.h"
#include "LanguageConfigInfo.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"
#include "SplitDNSInfo.h"
#include "SplitRulesInfo.h"
#include "UpdateInfo.h"
#include "UserInfo.h"
#include "VersionInfo.h"

#include <QObject>

class QTimer;

// The last record of each kind that the daemon returned. Listeners hear of a record only when
// it really changed, so a poll that returns the same status causes no repaint.
class AppState : public QObject
{
    Q_OBJECT

public:
    explicit AppState(QObject *parent = nullptr);

    const RuntimeInfo &runtime() const { return m_runtime; }
    const UserInfo &user() const { return m_user; }
    const NodesInfo &nodes() const { return m_nodes; }
    const NodeGroupsInfo &nodeGroups() const { return m_nodeGroups; }
    const ConfigPaths &configPaths() const { return m_configPaths; }
    const KillSwitchInfo &killSwitch() const { return m_killSwitch; }
    const VersionInfo &version() const { return m_version; }
    const APIURLConfigInfo &apiURLConfig() const { return m_apiURLConfig; }
    const LanguageConfigInfo &languageConfig() const { return m_languageConfig; }
    const UpdateInfo &update() const { return m_update; }
    const SplitDNSInfo &splitDNS() const { return m_splitDNS; }
    const SplitRulesInfo &splitRules() const { return m_splitRules; }
    int nodesRefreshCooldown() const { return int(m_nodesRefreshCooldown); }
    // Why the last nodes fetch failed while no catalogue had arrived; empty while a fetch runs
    // and once one succeeded. Views say so instead of waiting for a list.
    const QString &nodesFetchError() const { return m_nodesFetchError; }

Q_SIGNALS:
    void runtimeChanged(RuntimeInfo runtime);
    void userChanged(UserInfo user);
    void nodesChanged(NodesInfo nodes);
    void nodeGroupsChanged(NodeGroupsInfo nodeGroups);
    void configPathsChanged(ConfigPaths configPaths);
    void killSwitchChanged(KillSwitchInfo killSwitch);
    void versionChanged(VersionInfo version);
    void apiURLConfigChanged(APIURLConfigInfo apiURLConfig);
    void languageConfigChanged(LanguageConfigInfo languageConfig);
    void updateChanged(UpdateInfo update);
    void splitDNSChanged(SplitDNSInfo splitDNS);
    void splitRulesChanged(SplitRulesInfo splitRules);
    void nodesRefreshCooldownChanged(int secondsRemaining);
    void nodesFetchErrorChanged(QString error);

public Q_SLOTS:
    void setRuntime(RuntimeInfo runtime);
    void setUser(UserInfo user);
    void setNodes(NodesInfo nodes);
    void setNodeGroups(NodeGroupsInfo nodeGroups);
    void setConfigPaths(ConfigPaths configPaths);
    void setKillSwitch(KillSwitchInfo killSwitch);
    void setVersion(VersionInfo version);
    void setAPIURLConfig(APIURLConfigInfo apiURLConfig);
    void setLanguageConfig(LanguageConfigInfo languageConfig);
    void setUpdate(UpdateInfo update);
    void setSplitDNS(SplitDNSInfo splitDNS);
    void setSplitRules(SplitRulesInfo splitRules);
    void startNodesRefreshCooldown(int seconds = 60);
    void clearUser();
    void setNodesFetchError(const QString &error);

private:
    void tickCooldown();
    void trimHeapSoon();

    RuntimeInfo m_runtime;
    UserInfo m_user;
    NodesInfo m_nodes;
    NodeGroupsInfo m_nodeGroups;
    ConfigPaths m_configPaths;
    KillSwitchInfo m_killSwitch;
    VersionInfo m_version;
    APIURLConfigInfo m_apiURLConfig;
    LanguageConfigInfo m_languageConfig;
    UpdateInfo m_update;
    SplitDNSInfo m_splitDNS;
    SplitRulesInfo m_splitRules;
    unsigned m_nodesRefreshCooldown = 0;
    QString m_nodesFetchError;
    QTimer *m_cooldownTimer;
    QTimer *m_heapTrimTimer;
};
