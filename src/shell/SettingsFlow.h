#pragma once

#include "RequestLedger.h"
#include "ShellContext.h"

#include "APIURLConfigInfo.h"
#include "AutoConnectConfigInfo.h"
#include "ConfigPaths.h"
#include "KillSwitchInfo.h"
#include "LanguageConfigInfo.h"
#include "ProxyListenResultInfo.h"
#include "RepairResultInfo.h"
#include "RuntimeInfo.h"
#include "SplitDNSInfo.h"
#include "UpdateInfo.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

// What the Settings page asks of the daemon beyond the routing (RoutingFlow): API URL, auto
// connect, proxy listeners, split DNS, repairs and the daemon's paths (for the log directory),
// and the fresh records the page loads whenever it comes into view.
class SettingsFlow : public QObject
{
    Q_OBJECT

public:
    explicit SettingsFlow(const ShellContext &context, QObject *parent = nullptr);

    void refreshConfigPaths(bool openLogs);

    void setAPIURL(const QString &apiURL);
    void resetAPIURL();
    void setAutoConnect(const QString &value);
    void setProxyListeners(const QString &socksAddress, const QString &httpAddress);
    void setSplitDNSLocal(const QStringList &servers);
    void setSplitDNSPolicy(const QString &policy);
    void clearSplitDNSLocal();
    void resetSplitDNS();
    void repairDiagnostics();
    // Fresh settings records whenever the settings page comes into view: status, kill switch,
    // API URL, language, split DNS and the daemon's paths. A failed load becomes a line beside
    // its section on the page, never a pop-up, so a daemon that is down says so once.
    void refreshSettingsPage();
    // The page's "Check for updates" outcome; the update flow itself tells the rest.
    void noteUpdateCheckStarted();
    void noteUpdateCheckFinished(const UpdateInfo &info, const QString &errorMessage);

    // Each returns false when the answer is not to one of the page's loads.
    bool handleStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    bool handleLanguageLoad(quint64 requestId, const LanguageConfigInfo &info,
                            const QString &errorMessage);
    bool handleKillSwitchLoad(quint64 requestId, const KillSwitchInfo &info,
                              const QString &errorMessage);

    void handleConfigPaths(quint64 requestId, const ConfigPaths &paths,
                           const QString &errorMessage);
    void handleAPIURL(quint64 requestId, const APIURLConfigInfo &info, const QString &errorMessage);
    void handleAutoConnect(quint64 requestId, const AutoConnectConfigInfo &info,
                           const QString &errorMessage);
    void handleProxyListen(quint64 requestId, const ProxyListenResultInfo &info,
                           const QString &errorMessage);
    void handleSplitDNS(quint64 requestId, const SplitDNSInfo &info, const QString &errorMessage);
    void handleRepair(quint64 requestId, const RepairResultInfo &info, const QString &errorMessage);

private:
    void load(RequestLedger::Kind kind, const char *method);
    // Records a load's outcome as the page's note: empty on success, else the load text.
    void noteLoad(const QString &key, const QString &errorMessage, const char *fallback);

    ShellContext m_context;
    bool m_openLogsPending = false;
    bool m_apiURLReset = false;
    // While the page is open and the service away, the status is asked for again now and then,
    // so the page comes back by itself.
    QTimer m_statusRetry;
    bool m_statusFailed = false;
};
