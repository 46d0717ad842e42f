#pragma once

#include "APIURLConfigInfo.h"
#include "AutoConnectConfigInfo.h"
#include "ConfigPaths.h"
#include "GUIUpdateDownloadInfo.h"
#include "KillSwitchInfo.h"
#include "LanguageConfigInfo.h"
#include "ModeInfo.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "ProxyListenResultInfo.h"
#include "PurchaseURLInfo.h"
#include "RepairResultInfo.h"
#include "RuntimeInfo.h"
#include "SplitDNSInfo.h"
#include "SplitRuleMutationInfo.h"
#include "SplitRulesInfo.h"
#include "UpdateInfo.h"
#include "UserInfo.h"
#include "VersionInfo.h"

#include <QString>
#include <QStringList>

#include <atomic>

// One function per daemon endpoint: builds the request, runs one exchange and turns the answer
// into its record. Each takes the socket path first, its own arguments, then the timeout, the
// error text to fill (left empty on success) and the cancel flag. Blocking: worker threads only.
class ControlEndpoints
{
public:
    using Cancel = const std::atomic_bool *;

    static RuntimeInfo fetchStatus(const QString &socketPath, int timeoutMs,
                                   QString *errorOut = nullptr, Cancel cancel = nullptr);
    static VersionInfo fetchVersion(const QString &socketPath, int timeoutMs,
                                    QString *errorOut = nullptr, Cancel cancel = nullptr);

    static APIURLConfigInfo fetchAPIURLConfig(const QString &socketPath, int timeoutMs,
                                              QString *errorOut = nullptr, Cancel cancel = nullptr);
    static APIURLConfigInfo setAPIURL(const QString &socketPath, const QString &apiURL,
                                      int timeoutMs, QString *errorOut = nullptr,
                                      Cancel cancel = nullptr);
    static APIURLConfigInfo resetAPIURL(const QString &socketPath, int timeoutMs,
                                        QString *errorOut = nullptr, Cancel cancel = nullptr);
    static AutoConnectConfigInfo setAutoConnectPreference(const QString &socketPath,
                                                          const QString &value, int timeoutMs,
                                                          QString *errorOut = nullptr,
                                                          Cancel cancel = nullptr);

    static LanguageConfigInfo fetchLanguageConfig(const QString &socketPath, int timeoutMs,
                                                  QString *errorOut = nullptr,
                                                  Cancel cancel = nullptr);
    static LanguageConfigInfo setLanguage(const QString &socketPath, const QString &source,
                                          const QString &language, int timeoutMs,
                                          QString *errorOut = nullptr, Cancel cancel = nullptr);
    static LanguageConfigInfo setLanguageIfSource(const QString &socketPath, const QString &source,
                                                  const QString &language, const QString &ifSource,
                                                  int timeoutMs, QString *errorOut = nullptr,
                                                  Cancel cancel = nullptr);

    static UpdateInfo checkUpdate(const QString &socketPath, const QString &version, int timeoutMs,
                                  QString *errorOut = nullptr, Cancel cancel = nullptr);
    static GUIUpdateDownloadInfo startGUIUpdateDownload(const QString &socketPath,
                                                        const QString &version,
                                                        qint64 expectedVersionNum, int timeoutMs,
                                                        QString *errorOut = nullptr,
                                                        Cancel cancel = nullptr);
    static GUIUpdateDownloadInfo fetchGUIUpdateDownload(const QString &socketPath, int timeoutMs,
                                                        QString *errorOut = nullptr,
                                                        Cancel cancel = nullptr);
    static GUIUpdateDownloadInfo cancelGUIUpdateDownload(const QString &socketPath, int timeoutMs,
                                                         QString *errorOut = nullptr,
                                                         Cancel cancel = nullptr);

    static UserInfo fetchUser(const QString &socketPath, int timeoutMs, QString *errorOut = nullptr,
                              Cancel cancel = nullptr);
    static PurchaseURLInfo fetchPurchaseURL(const QString &socketPath, const QString &lang,
                                            int timeoutMs, QString *errorOut = nullptr,
                                            Cancel cancel = nullptr);

    static NodesInfo fetchNodes(const QString &socketPath, bool refresh, int timeoutMs,
                                QString *errorOut = nullptr, Cancel cancel = nullptr);
    static NodesInfo setNodeFavorite(const QString &socketPath, const QString &node, bool favorite,
                                     int timeoutMs, QString *errorOut = nullptr,
                                     Cancel cancel = nullptr);
    static NodeGroupsInfo fetchNodeGroups(const QString &socketPath, int timeoutMs,
                                          QString *errorOut = nullptr, Cancel cancel = nullptr);
    static ConfigPaths fetchConfigPaths(const QString &socketPath, int timeoutMs,
                                        QString *errorOut = nullptr, Cancel cancel = nullptr);

    static KillSwitchInfo fetchKillSwitch(const QString &socketPath, int timeoutMs,
                                          QString *errorOut = nullptr, Cancel cancel = nullptr);
    static KillSwitchInfo setKillSwitchEnabled(const QString &socketPath, bool enabled,
                                               int timeoutMs, QString *errorOut = nullptr,
                                               Cancel cancel = nullptr);
    static KillSwitchInfo setKillSwitchMode(const QString &socketPath, const QString &mode,
                                            int timeoutMs, QString *errorOut = nullptr,
                                            Cancel cancel = nullptr);
    static KillSwitchInfo setKillSwitchAllowLAN(const QString &socketPath, bool enabled,
                                                int timeoutMs, QString *errorOut = nullptr,
                                                Cancel cancel = nullptr);

    static RuntimeInfo connectRuntime(const QString &socketPath, int timeoutMs,
                                      QString *errorOut = nullptr, Cancel cancel = nullptr);
    static RuntimeInfo connectNode(const QString &socketPath, const QString &node, int timeoutMs,
                                   QString *errorOut = nullptr, Cancel cancel = nullptr);
    static RuntimeInfo connectSmart(const QString &socketPath, const QString &selector,
                                    int timeoutMs, QString *errorOut = nullptr,
                                    Cancel cancel = nullptr);
    static RuntimeInfo disconnectRuntime(const QString &socketPath, int timeoutMs,
                                         QString *errorOut = nullptr, Cancel cancel = nullptr);
    static RuntimeInfo login(const QString &socketPath, const QString &username,
                             const QString &password, bool rememberMe, int timeoutMs,
                             QString *errorOut = nullptr, Cancel cancel = nullptr);
    static RuntimeInfo logout(const QString &socketPath, int timeoutMs, QString *errorOut = nullptr,
                              Cancel cancel = nullptr);

    static ModeInfo setMode(const QString &socketPath, const ModeInfo &mode, int timeoutMs,
                            QString *errorOut = nullptr, Cancel cancel = nullptr);
    static ModeInfo setSystemProxyPreference(const QString &socketPath, const QString &value,
                                             int timeoutMs, QString *errorOut = nullptr,
                                             Cancel cancel = nullptr);
    static ModeInfo setLocalNetworkPreference(const QString &socketPath, const QString &value,
                                              int timeoutMs, QString *errorOut = nullptr,
                                              Cancel cancel = nullptr);
    static ModeInfo setProxyLANPreference(const QString &socketPath, bool enabled, int timeoutMs,
                                          QString *errorOut = nullptr, Cancel cancel = nullptr);
    static ProxyListenResultInfo setProxyListeners(const QString &socketPath,
                                                   const QString &socksAddress,
                                                   const QString &httpAddress, int timeoutMs,
                                                   QString *errorOut = nullptr,
                                                   Cancel cancel = nullptr);

    static SplitDNSInfo fetchSplitDNS(const QString &socketPath, int timeoutMs,
                                      QString *errorOut = nullptr, Cancel cancel = nullptr);
    static SplitDNSInfo setSplitDNSLocal(const QString &socketPath, const QStringList &servers,
                                         int timeoutMs, QString *errorOut = nullptr,
                                         Cancel cancel = nullptr);
    static SplitDNSInfo setSplitDNSPolicy(const QString &socketPath, const QString &policy,
                                          int timeoutMs, QString *errorOut = nullptr,
                                          Cancel cancel = nullptr);
    static SplitDNSInfo clearSplitDNSLocal(const QString &socketPath, int timeoutMs,
                                           QString *errorOut = nullptr, Cancel cancel = nullptr);
    static SplitDNSInfo resetSplitDNS(const QString &socketPath, int timeoutMs,
                                      QString *errorOut = nullptr, Cancel cancel = nullptr);
    static SplitRulesInfo fetchSplitRules(const QString &socketPath, const QString &kind,
                                          int timeoutMs, QString *errorOut = nullptr,
                                          Cancel cancel = nullptr);
    static SplitRuleMutationInfo importSplitRules(const QString &socketPath, const QString &kind,
                                                  const QString &content, int timeoutMs,
                                                  QString *errorOut = nullptr,
                                                  Cancel cancel = nullptr);

    static RepairResultInfo repairDiagnostics(const QString &socketPath, int timeoutMs,
                                              QString *errorOut = nullptr, Cancel cancel = nullptr);
};
