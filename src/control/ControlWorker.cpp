#include "ControlWorker.h"

#include "ControlClient.h"

ControlWorker::ControlWorker(QObject *parent)
    : QObject(parent)
    , m_socketPath(ControlClient::defaultSocketPath())
{}

ControlWorker::ControlWorker(const QString &socketPath, QObject *parent)
    : QObject(parent)
    , m_socketPath(socketPath.trimmed().isEmpty() ? ControlClient::defaultSocketPath()
                                                  : socketPath.trimmed())
{}

void ControlWorker::stop()
{
    m_stop.store(true, std::memory_order_relaxed);
    m_cancel.store(true, std::memory_order_relaxed);
}

void ControlWorker::cancelCurrent()
{
    m_cancel.store(true, std::memory_order_relaxed);
}

void ControlWorker::cancelConnect(quint64 requestId)
{
    m_canceledConnectId.exchange(requestId);
    if (m_activeConnectId.load() == requestId)
        m_cancel.store(true, std::memory_order_relaxed);
}

template<typename Record, typename Exchange>
void ControlWorker::run(quint64 requestId, bool isConnect,
                        void (ControlWorker::*finished)(quint64, const Record &, const QString &),
                        const Exchange &exchange)
{
    if (m_stop.load(std::memory_order_relaxed))
        return;
    // A cancel aimed at an earlier request must not end this one.
    m_cancel.store(false, std::memory_order_relaxed);
    if (m_stop.load(std::memory_order_relaxed))
        return;
    if (isConnect) {
        m_activeConnectId.exchange(requestId);
        // A cancel that arrived before this connect started still takes effect.
        if (m_canceledConnectId.load() == requestId)
            m_cancel.store(true, std::memory_order_relaxed);
    }
    QString error;
    const Record record = exchange(&error);
    if (isConnect)
        m_activeConnectId.store(0);
    // A stopped worker answers nothing, not even for the exchange the stop cut short.
    if (m_stop.load(std::memory_order_relaxed))
        return;
    Q_EMIT(this->*finished)(requestId, record, error);
}

void ControlWorker::fetchStatus(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::statusFinished, [&](QString *error) {
        return ControlEndpoints::fetchStatus(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchVersion(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::versionFinished, [&](QString *error) {
        return ControlEndpoints::fetchVersion(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchAPIURLConfig(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::apiURLFinished, [&](QString *error) {
        return ControlEndpoints::fetchAPIURLConfig(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setAPIURL(quint64 requestId, const QString &apiURL, int timeoutMs)
{
    run(requestId, false, &ControlWorker::apiURLFinished, [&](QString *error) {
        return ControlEndpoints::setAPIURL(m_socketPath, apiURL, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::resetAPIURL(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::apiURLFinished, [&](QString *error) {
        return ControlEndpoints::resetAPIURL(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setAutoConnectPreference(quint64 requestId, const QString &value, int timeoutMs)
{
    run(requestId, false, &ControlWorker::autoConnectFinished, [&](QString *error) {
        return ControlEndpoints::setAutoConnectPreference(m_socketPath, value, timeoutMs, error,
                                                          &m_cancel);
    });
}

void ControlWorker::fetchLanguageConfig(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::languageFinished, [&](QString *error) {
        return ControlEndpoints::fetchLanguageConfig(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setLanguage(quint64 requestId, const QString &source, const QString &language,
                                int timeoutMs)
{
    run(requestId, false, &ControlWorker::languageFinished, [&](QString *error) {
        return ControlEndpoints::setLanguage(m_socketPath, source, language, timeoutMs, error,
                                             &m_cancel);
    });
}

void ControlWorker::setLanguageIfSource(quint64 requestId, const QString &source,
                                        const QString &language, const QString &ifSource,
                                        int timeoutMs)
{
    run(requestId, false, &ControlWorker::languageFinished, [&](QString *error) {
        return ControlEndpoints::setLanguageIfSource(m_socketPath, source, language, ifSource,
                                                     timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::checkUpdate(quint64 requestId, const QString &version, int timeoutMs)
{
    run(requestId, false, &ControlWorker::updateFinished, [&](QString *error) {
        return ControlEndpoints::checkUpdate(m_socketPath, version, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::startGUIUpdateDownload(quint64 requestId, const QString &version,
                                           qint64 expectedVersionNum, int timeoutMs)
{
    run(requestId, false, &ControlWorker::updateDownloadFinished, [&](QString *error) {
        return ControlEndpoints::startGUIUpdateDownload(m_socketPath, version, expectedVersionNum,
                                                        timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchGUIUpdateDownload(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::updateDownloadFinished, [&](QString *error) {
        return ControlEndpoints::fetchGUIUpdateDownload(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::cancelGUIUpdateDownload(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::updateDownloadFinished, [&](QString *error) {
        return ControlEndpoints::cancelGUIUpdateDownload(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchUser(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::userFinished, [&](QString *error) {
        return ControlEndpoints::fetchUser(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchPurchaseURL(quint64 requestId, const QString &lang, int timeoutMs)
{
    run(requestId, false, &ControlWorker::purchaseURLFinished, [&](QString *error) {
        return ControlEndpoints::fetchPurchaseURL(m_socketPath, lang, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchNodes(quint64 requestId, bool refresh, int timeoutMs)
{
    run(requestId, false, &ControlWorker::nodesFinished, [&](QString *error) {
        return ControlEndpoints::fetchNodes(m_socketPath, refresh, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setNodeFavorite(quint64 requestId, const QString &node, bool favorite,
                                    int timeoutMs)
{
    run(requestId, false, &ControlWorker::nodesFinished, [&](QString *error) {
        return ControlEndpoints::setNodeFavorite(m_socketPath, node, favorite, timeoutMs, error,
                                                 &m_cancel);
    });
}

void ControlWorker::fetchNodeGroups(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::nodeGroupsFinished, [&](QString *error) {
        return ControlEndpoints::fetchNodeGroups(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchConfigPaths(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::configPathsFinished, [&](QString *error) {
        return ControlEndpoints::fetchConfigPaths(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchKillSwitch(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::killSwitchFinished, [&](QString *error) {
        return ControlEndpoints::fetchKillSwitch(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setKillSwitchEnabled(quint64 requestId, bool enabled, int timeoutMs)
{
    run(requestId, false, &ControlWorker::killSwitchFinished, [&](QString *error) {
        return ControlEndpoints::setKillSwitchEnabled(m_socketPath, enabled, timeoutMs, error,
                                                      &m_cancel);
    });
}

void ControlWorker::setKillSwitchMode(quint64 requestId, const QString &mode, int timeoutMs)
{
    run(requestId, false, &ControlWorker::killSwitchFinished, [&](QString *error) {
        return ControlEndpoints::setKillSwitchMode(m_socketPath, mode, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setKillSwitchAllowLAN(quint64 requestId, bool enabled, int timeoutMs)
{
    run(requestId, false, &ControlWorker::killSwitchFinished, [&](QString *error) {
        return ControlEndpoints::setKillSwitchAllowLAN(m_socketPath, enabled, timeoutMs, error,
                                                       &m_cancel);
    });
}

void ControlWorker::connectRuntime(quint64 requestId, int timeoutMs)
{
    run(requestId, true, &ControlWorker::connectFinished, [&](QString *error) {
        return ControlEndpoints::connectRuntime(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::connectNode(quint64 requestId, const QString &node, int timeoutMs)
{
    run(requestId, true, &ControlWorker::connectFinished, [&](QString *error) {
        return ControlEndpoints::connectNode(m_socketPath, node, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::connectSmart(quint64 requestId, const QString &selector, int timeoutMs)
{
    run(requestId, true, &ControlWorker::connectFinished, [&](QString *error) {
        return ControlEndpoints::connectSmart(m_socketPath, selector, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::disconnectRuntime(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::disconnectFinished, [&](QString *error) {
        return ControlEndpoints::disconnectRuntime(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::login(quint64 requestId, const QString &username, const QString &password,
                          bool rememberMe, int timeoutMs)
{
    run(requestId, false, &ControlWorker::loginFinished, [&](QString *error) {
        return ControlEndpoints::login(m_socketPath, username, password, rememberMe, timeoutMs,
                                       error, &m_cancel);
    });
}

void ControlWorker::logout(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::logoutFinished, [&](QString *error) {
        return ControlEndpoints::logout(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setMode(quint64 requestId, const ModeInfo &mode, int timeoutMs)
{
    run(requestId, false, &ControlWorker::modeFinished, [&](QString *error) {
        return ControlEndpoints::setMode(m_socketPath, mode, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setSystemProxyPreference(quint64 requestId, const QString &value, int timeoutMs)
{
    run(requestId, false, &ControlWorker::modeFinished, [&](QString *error) {
        return ControlEndpoints::setSystemProxyPreference(m_socketPath, value, timeoutMs, error,
                                                          &m_cancel);
    });
}

void ControlWorker::setLocalNetworkPreference(quint64 requestId, const QString &value,
                                              int timeoutMs)
{
    run(requestId, false, &ControlWorker::modeFinished, [&](QString *error) {
        return ControlEndpoints::setLocalNetworkPreference(m_socketPath, value, timeoutMs, error,
                                                           &m_cancel);
    });
}

void ControlWorker::setProxyLANPreference(quint64 requestId, bool enabled, int timeoutMs)
{
    run(requestId, false, &ControlWorker::modeFinished, [&](QString *error) {
        return ControlEndpoints::setProxyLANPreference(m_socketPath, enabled, timeoutMs, error,
                                                       &m_cancel);
    });
}

void ControlWorker::setProxyListeners(quint64 requestId, const QString &socksAddress,
                                      const QString &httpAddress, int timeoutMs)
{
    run(requestId, false, &ControlWorker::proxyListenFinished, [&](QString *error) {
        return ControlEndpoints::setProxyListeners(m_socketPath, socksAddress, httpAddress,
                                                   timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchSplitDNS(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitDNSFinished, [&](QString *error) {
        return ControlEndpoints::fetchSplitDNS(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::setSplitDNSLocal(quint64 requestId, const QStringList &servers, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitDNSFinished, [&](QString *error) {
        return ControlEndpoints::setSplitDNSLocal(m_socketPath, servers, timeoutMs, error,
                                                  &m_cancel);
    });
}

void ControlWorker::setSplitDNSPolicy(quint64 requestId, const QString &policy, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitDNSFinished, [&](QString *error) {
        return ControlEndpoints::setSplitDNSPolicy(m_socketPath, policy, timeoutMs, error,
                                                   &m_cancel);
    });
}

void ControlWorker::clearSplitDNSLocal(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitDNSFinished, [&](QString *error) {
        return ControlEndpoints::clearSplitDNSLocal(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::resetSplitDNS(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitDNSFinished, [&](QString *error) {
        return ControlEndpoints::resetSplitDNS(m_socketPath, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::fetchSplitRules(quint64 requestId, const QString &kind, int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitRulesFinished, [&](QString *error) {
        return ControlEndpoints::fetchSplitRules(m_socketPath, kind, timeoutMs, error, &m_cancel);
    });
}

void ControlWorker::importSplitRules(quint64 requestId, const QString &kind, const QString &content,
                                     int timeoutMs)
{
    run(requestId, false, &ControlWorker::splitRuleImportFinished, [&](QString *error) {
        return ControlEndpoints::importSplitRules(m_socketPath, kind, content, timeoutMs, error,
                                                  &m_cancel);
    });
}

void ControlWorker::repairDiagnostics(quint64 requestId, int timeoutMs)
{
    run(requestId, false, &ControlWorker::repairFinished, [&](QString *error) {
        return ControlEndpoints::repairDiagnostics(m_socketPath, timeoutMs, error, &m_cancel);
    });
}
