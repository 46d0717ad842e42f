#pragma once

#include "ControlEndpoints.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>

// The one bridge from the GUI to the daemon. Lives on a thread of its own; every operation is
// invoked queued, runs one blocking exchange and answers with exactly one ...Finished signal
// carrying the caller's request id. It keeps no daemon state.
class ControlWorker : public QObject
{
    Q_OBJECT

public:
    explicit ControlWorker(QObject *parent = nullptr);
    // A blank path means the daemon's default socket.
    explicit ControlWorker(const QString &socketPath, QObject *parent = nullptr);

    QString socketPath() const { return m_socketPath; }

    // Safe from any thread: they only touch the shared flags.
    void stop();
    void cancelCurrent();
    void cancelConnect(quint64 requestId);

    Q_INVOKABLE void fetchStatus(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchVersion(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchAPIURLConfig(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setAPIURL(quint64 requestId, const QString &apiURL, int timeoutMs);
    Q_INVOKABLE void resetAPIURL(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setAutoConnectPreference(quint64 requestId, const QString &value,
                                              int timeoutMs);
    Q_INVOKABLE void fetchLanguageConfig(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setLanguage(quint64 requestId, const QString &source, const QString &language,
                                 int timeoutMs);
    Q_INVOKABLE void setLanguageIfSource(quint64 requestId, const QString &source,
                                         const QString &language, const QString &ifSource,
                                         int timeoutMs);
    Q_INVOKABLE void checkUpdate(quint64 requestId, const QString &version, int timeoutMs);
    Q_INVOKABLE void startGUIUpdateDownload(quint64 requestId, const QString &version,
                                            qint64 expectedVersionNum, int timeoutMs);
    Q_INVOKABLE void fetchGUIUpdateDownload(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void cancelGUIUpdateDownload(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchUser(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchPurchaseURL(quint64 requestId, const QString &lang, int timeoutMs);
    Q_INVOKABLE void fetchNodes(quint64 requestId, bool refresh, int timeoutMs);
    Q_INVOKABLE void setNodeFavorite(quint64 requestId, const QString &node, bool favorite,
                                     int timeoutMs);
    Q_INVOKABLE void fetchNodeGroups(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchConfigPaths(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchKillSwitch(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setKillSwitchEnabled(quint64 requestId, bool enabled, int timeoutMs);
    Q_INVOKABLE void setKillSwitchMode(quint64 requestId, const QString &mode, int timeoutMs);
    Q_INVOKABLE void setKillSwitchAllowLAN(quint64 requestId, bool enabled, int timeoutMs);
    Q_INVOKABLE void connectRuntime(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void connectNode(quint64 requestId, const QString &node, int timeoutMs);
    Q_INVOKABLE void connectSmart(quint64 requestId, const QString &selector, int timeoutMs);
    Q_INVOKABLE void disconnectRuntime(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void login(quint64 requestId, const QString &username, const QString &password,
                           bool rememberMe, int timeoutMs);
    Q_INVOKABLE void logout(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setMode(quint64 requestId, const ModeInfo &mode, int timeoutMs);
    Q_INVOKABLE void setSystemProxyPreference(quint64 requestId, const QString &value,
                                              int timeoutMs);
    Q_INVOKABLE void setLocalNetworkPreference(quint64 requestId, const QString &value,
                                               int timeoutMs);
    Q_INVOKABLE void setProxyLANPreference(quint64 requestId, bool enabled, int timeoutMs);
    Q_INVOKABLE void setProxyListeners(quint64 requestId, const QString &socksAddress,
                                       const QString &httpAddress, int timeoutMs);
    Q_INVOKABLE void fetchSplitDNS(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void setSplitDNSLocal(quint64 requestId, const QStringList &servers, int timeoutMs);
    Q_INVOKABLE void setSplitDNSPolicy(quint64 requestId, const QString &policy, int timeoutMs);
    Q_INVOKABLE void clearSplitDNSLocal(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void resetSplitDNS(quint64 requestId, int timeoutMs);
    Q_INVOKABLE void fetchSplitRules(quint64 requestId, const QString &kind, int timeoutMs);
    Q_INVOKABLE void importSplitRules(quint64 requestId, const QString &kind,
                                      const QString &content, int timeoutMs);
    Q_INVOKABLE void repairDiagnostics(quint64 requestId, int timeoutMs);

Q_SIGNALS:
    void statusFinished(quint64 requestId, const RuntimeInfo &record, const QString &errorMessage);
    void versionFinished(quint64 requestId, const VersionInfo &record, const QString &errorMessage);
    void apiURLFinished(quint64 requestId, const APIURLConfigInfo &record,
                        const QString &errorMessage);
    void autoConnectFinished(quint64 requestId, const AutoConnectConfigInfo &record,
                             const QString &errorMessage);
    void languageFinished(quint64 requestId, const LanguageConfigInfo &record,
                          const QString &errorMessage);
    void updateFinished(quint64 requestId, const UpdateInfo &record, const QString &errorMessage);
    void updateDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &record,
                                const QString &errorMessage);
    void userFinished(quint64 requestId, const UserInfo &record, const QString &errorMessage);
    void purchaseURLFinished(quint64 requestId, const PurchaseURLInfo &record,
                             const QString &errorMessage);
    void nodesFinished(quint64 requestId, const NodesInfo &record, const QString &errorMessage);
    void nodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &record,
                            const QString &errorMessage);
    void configPathsFinished(quint64 requestId, const ConfigPaths &record,
                             const QString &errorMessage);
    void killSwitchFinished(quint64 requestId, const KillSwitchInfo &record,
                            const QString &errorMessage);
    void connectFinished(quint64 requestId, const RuntimeInfo &record, const QString &errorMessage);
    void disconnectFinished(quint64 requestId, const RuntimeInfo &record,
                            const QString &errorMessage);
    void loginFinished(quint64 requestId, const RuntimeInfo &record, const QString &errorMessage);
    void logoutFinished(quint64 requestId, const RuntimeInfo &record, const QString &errorMessage);
    void modeFinished(quint64 requestId, const ModeInfo &record, const QString &errorMessage);
    void proxyListenFinished(quint64 requestId, const ProxyListenResultInfo &record,
                             const QString &errorMessage);
    void splitDNSFinished(quint64 requestId, const SplitDNSInfo &record,
                          const QString &errorMessage);
    void splitRulesFinished(quint64 requestId, const SplitRulesInfo &record,
                            const QString &errorMessage);
    void splitRuleImportFinished(quint64 requestId, const SplitRuleMutationInfo &record,
                                 const QString &errorMessage);
    void repairFinished(quint64 requestId, const RepairResultInfo &record,
                        const QString &errorMessage);

private:
    template<typename Record, typename Exchange>
    void run(quint64 requestId, bool isConnect,
             void (ControlWorker::*finished)(quint64, const Record &, const QString &),
             const Exchange &exchange);

    QString m_socketPath;
    std::atomic_bool m_cancel{false};
    std::atomic_bool m_stop{false};
    std::atomic<quint64> m_activeConnectId{0};
    std::atomic<quint64> m_canceledConnectId{0};
};
