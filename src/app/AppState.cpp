#include "AppState.h"

#include "HeapTrim.h"

#include <QTimer>

namespace {

template<typename Record>
bool assignIfChanged(Record &stored, const Record &incoming)
{
    if (stored == incoming)
        return false;
    stored = incoming;
    return true;
}

} // namespace

AppState::AppState(QObject *parent)
    : QObject(parent)
    , m_cooldownTimer(new QTimer(this))
    , m_heapTrimTimer(new QTimer(this))
{
    // A new catalogue frees the old one in every view that rebuilt from it; the freed pages go
    // back to the system once things have settled.
    m_heapTrimTimer->setInterval(1000);
    m_heapTrimTimer->setSingleShot(true);
    connect(m_heapTrimTimer, &QTimer::timeout, this, &HeapTrim::releaseFreePages);
    m_cooldownTimer->setInterval(1000);
    m_cooldownTimer->setSingleShot(false);
    connect(m_cooldownTimer, &QTimer::timeout, this, &AppState::tickCooldown);
}

void AppState::trimHeapSoon()
{
    // Not pushed back by each change of a burst (the ping run sends one every few hundred ms).
    if (!m_heapTrimTimer->isActive())
        m_heapTrimTimer->start();
}

void AppState::setRuntime(RuntimeInfo runtime)
{
    if (assignIfChanged(m_runtime, runtime))
        Q_EMIT runtimeChanged(m_runtime);
}

void AppState::setUser(UserInfo user)
{
    if (assignIfChanged(m_user, user))
        Q_EMIT userChanged(m_user);
}

void AppState::setNodes(NodesInfo nodes)
{
    if (assignIfChanged(m_nodes, nodes)) {
        Q_EMIT nodesChanged(m_nodes);
        trimHeapSoon();
    }
}

void AppState::setNodeGroups(NodeGroupsInfo nodeGroups)
{
    if (assignIfChanged(m_nodeGroups, nodeGroups)) {
        Q_EMIT nodeGroupsChanged(m_nodeGroups);
        trimHeapSoon();
    }
}

void AppState::setConfigPaths(ConfigPaths configPaths)
{
    if (assignIfChanged(m_configPaths, configPaths))
        Q_EMIT configPathsChanged(m_configPaths);
}

void AppState::setKillSwitch(KillSwitchInfo killSwitch)
{
    if (assignIfChanged(m_killSwitch, killSwitch))
        Q_EMIT killSwitchChanged(m_killSwitch);
}

void AppState::setVersion(VersionInfo version)
{
    if (assignIfChanged(m_version, version))
        Q_EMIT versionChanged(m_version);
}

void AppState::setAPIURLConfig(APIURLConfigInfo apiURLConfig)
{
    if (assignIfChanged(m_apiURLConfig, apiURLConfig))
        Q_EMIT apiURLConfigChanged(m_apiURLConfig);
}

void AppState::setLanguageConfig(LanguageConfigInfo languageConfig)
{
    if (assignIfChanged(m_languageConfig, languageConfig))
        Q_EMIT languageConfigChanged(m_languageConfig);
}

void AppState::setUpdate(UpdateInfo update)
{
    if (assignIfChanged(m_update, update))
        Q_EMIT updateChanged(m_update);
}

void AppState::setSplitDNS(SplitDNSInfo splitDNS)
{
    if (assignIfChanged(m_splitDNS, splitDNS))
        Q_EMIT splitDNSChanged(m_splitDNS);
}

void AppState::setSplitRules(SplitRulesInfo splitRules)
{
    if (assignIfChanged(m_splitRules, splitRules))
        Q_EMIT splitRulesChanged(m_splitRules);
}

void AppState::startNodesRefreshCooldown(int seconds)
{
    const unsigned value = unsigned(qMax(seconds, 0));
    if (value != m_nodesRefreshCooldown) {
        m_nodesRefreshCooldown = value;
        if (value > 0)
            m_cooldownTimer->start();
        else
            m_cooldownTimer->stop();
        Q_EMIT nodesRefreshCooldownChanged(int(value));
        return;
    }
    // Same value: a countdown that has not ticked yet is not restarted from the top.
    if (value > 0 && !m_cooldownTimer->isActive())
        m_cooldownTimer->start();
    else if (value == 0 && m_cooldownTimer->isActive())
        m_cooldownTimer->stop();
}

void AppState::clearUser()
{
    setUser(UserInfo());
}

void AppState::setNodesFetchError(const QString &error)
{
    if (assignIfChanged(m_nodesFetchError, error))
        Q_EMIT nodesFetchErrorChanged(m_nodesFetchError);
}

void AppState::tickCooldown()
{
    if (m_nodesRefreshCooldown < 1) {
        m_cooldownTimer->stop();
        return;
    }
    if (m_nodesRefreshCooldown == 1)
        m_cooldownTimer->stop();
    --m_nodesRefreshCooldown;
    Q_EMIT nodesRefreshCooldownChanged(int(m_nodesRefreshCooldown));
}
