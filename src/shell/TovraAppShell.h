#pragma once

#include "CompatibilityFlow.h"
#include "ShellContext.h"

#include "ControlEndpoints.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class AccountFlow;
class AppState;
class CatalogFlow;
class ConnectionFlow;
class GuiPreferences;
class LanguageFlow;
class RequestLedger;
class RoutingFlow;
class SettingsFlow;
class ShellNotifier;
class ShellWorkers;
class TovraTrayApp;
class UpdateFlow;
class WindowController;

// Turns the user's intents from the tray and the window into daemon requests, and the daemon's
// answers into state and messages. A coordinator: each flow lives in a collaborator of its own.
// The intents are in TovraAppShell.cpp, the worker's answers in TovraAppShellAnswers.cpp.
class TovraAppShell : public QObject
{
    Q_OBJECT

public:
    using CompatibilityState = CompatibilityFlow::State;
    static constexpr CompatibilityState CompatibilityUnknown =
        CompatibilityFlow::CompatibilityUnknown;
    static constexpr CompatibilityState CompatibilityChecking =
        CompatibilityFlow::CompatibilityChecking;
    static constexpr CompatibilityState Compatible = CompatibilityFlow::Compatible;
    static constexpr CompatibilityState Incompatible = CompatibilityFlow::Incompatible;

    explicit TovraAppShell(QObject *parent = nullptr, const QString &socketPath = QString(),
                           GuiPreferences *preferences = nullptr);
    ~TovraAppShell() override;

    void setCurrentEffectiveLanguage(const QString &tag);
    void setLanguageRestartAllowed(bool allowed);
    void setLaunchedByAutostart(bool autostart);
    // Overrides the desktop tray probe, for running without a tray host.
    void setSystemTrayAvailable(bool available);
    void start();
    // Stops the workers and waits for their threads; safe to call more than once.
    void shutdown();

    CompatibilityState compatibilityState() const { return m_compatibility->state(); }
    AppState *state() const { return m_context.state; }
    TovraTrayApp *tray() const { return m_context.tray; }
    WindowController *windowController() const { return m_context.window; }
    ShellNotifier *notifier() const { return m_context.notifier; }
    ShellWorkers *workers() const { return m_context.workers; }
    RequestLedger *ledger() const { return m_context.ledger; }
    CatalogFlow *catalogFlow() const { return m_catalog; }
    ConnectionFlow *connectionFlow() const { return m_connection; }
    RoutingFlow *routingFlow() const { return m_routing; }
    LanguageFlow *languageFlow() const { return m_language; }
    UpdateFlow *updateFlow() const { return m_update; }
    SettingsFlow *settingsFlow() const { return m_settings; }

Q_SIGNALS:
    void restartRequested();
    void exitRequested();

public Q_SLOTS:
    void activateFromSecondary();
    void activateFromApplication();
    void handleGUIRestartFailed();
    void refreshLocationsAfterGUIRestart();
    void connectRuntime();
    void connectRuntimeFromTray();
    void cancelConnect();
    void disconnectRuntime();
    void disconnectRuntimeFromTray();
    void setModePreference(ModeInfo mode);
    void setLocalNetworkPreference(QString mode);
    void refreshLocations();
    void connectNode(QString nodeID, QString label);
    void connectNodeFromTray(QString nodeID, QString label);
    void connectSmart(QString selector);
    void setLocationFavorite(QString nodeID, bool favorite);
    void refreshModeSplitRules();
    void importModeSplitRules(QString kind, QString content);
    void openLogs();
    void refreshConfigPaths();
    void setSettingsAPIURL(QString apiURL);
    void resetSettingsAPIURL();
    void setSettingsAutoConnect(QString value);
    void setSettingsLanguage(QString source, QString language);
    void checkSettingsUpdate();
    void startGUIUpdateDownload();
    void cancelGUIUpdateDownload();
    void pollGUIUpdateDownload();
    void setSettingsKillSwitchEnabled(bool enabled);
    void setSettingsKillSwitchMode(QString mode);
    void switchToAutoAndEnableKillSwitch();
    void chooseModeForKillSwitch();
    void cancelPendingKillSwitchEnable();
    void setSettingsProxyListeners(QString socksAddress, QString httpAddress);
    void setSettingsSplitDNSLocal(QStringList servers);
    void setSettingsSplitDNSPolicy(QString policy);
    void clearSettingsSplitDNSLocal();
    void resetSettingsSplitDNS();
    void repairSettingsDiagnostics();
    void setSettingsSystemProxyPreference(QString mode);
    void loginAccount(QString username, QString password, bool rememberMe);
    void logoutAccount();
    void logoutAccountFromTray();
    void requestPurchaseURL(QString lang);
    void pollWindowNodePing();
    void pollWindowCatalogRefresh();

    void handleWindowStatusFinished(quint64 requestId, RuntimeInfo info, QString errorMessage);
    void handleWindowNodesFinished(quint64 requestId, NodesInfo info, QString errorMessage);
    void handleWindowNodeGroupsFinished(quint64 requestId, NodeGroupsInfo info,
                                        QString errorMessage);
    void handleWindowConnectFinished(quint64 requestId, RuntimeInfo info, QString errorMessage);
    void handleWindowDisconnectFinished(quint64 requestId, RuntimeInfo info, QString errorMessage);
    void handleWindowModeFinished(quint64 requestId, ModeInfo info, QString errorMessage);
    void handleWindowVersionFinished(quint64 requestId, VersionInfo info, QString errorMessage);
    void handleWindowAPIURLFinished(quint64 requestId, APIURLConfigInfo info, QString errorMessage);
    void handleWindowAutoConnectFinished(quint64 requestId, AutoConnectConfigInfo info,
                                         QString errorMessage);
    void handleWindowLanguageFinished(quint64 requestId, LanguageConfigInfo info,
                                      QString errorMessage);
    void handleWindowUpdateFinished(quint64 requestId, UpdateInfo info, QString errorMessage);
    void handleGUIUpdateDownloadFinished(quint64 requestId, GUIUpdateDownloadInfo info,
                                         QString errorMessage);
    void handleWindowProxyListenFinished(quint64 requestId, ProxyListenResultInfo info,
                                         QString errorMessage);
    void handleWindowSplitDNSFinished(quint64 requestId, SplitDNSInfo info, QString errorMessage);
    void handleWindowSplitRulesFinished(quint64 requestId, SplitRulesInfo info,
                                        QString errorMessage);
    void handleWindowSplitRuleImportFinished(quint64 requestId, SplitRuleMutationInfo info,
                                             QString errorMessage);
    void handleWindowRepairFinished(quint64 requestId, RepairResultInfo info, QString errorMessage);
    void handleWindowConfigPathsFinished(quint64 requestId, ConfigPaths paths,
                                         QString errorMessage);
    void handleWindowKillSwitchFinished(quint64 requestId, KillSwitchInfo info,
                                        QString errorMessage);
    // The worker answers a sign-in or sign-out with the status record.
    void handleWindowLoginFinished(quint64 requestId, RuntimeInfo info, QString errorMessage);
    void handleWindowLogoutFinished(quint64 requestId, RuntimeInfo info, QString errorMessage);
    void handleWindowUserFinished(quint64 requestId, UserInfo user, QString errorMessage);
    void handleWindowPurchaseURLFinished(quint64 requestId, PurchaseURLInfo info,
                                         QString errorMessage);

private:
    void handleRuntimeChanged(const RuntimeInfo &runtime);
    bool busy() const;

    ShellContext m_context;
    bool m_ownsPreferences = false;
    ConnectionFlow *m_connection = nullptr;
    CatalogFlow *m_catalog = nullptr;
    RoutingFlow *m_routing = nullptr;
    SettingsFlow *m_settings = nullptr;
    AccountFlow *m_account = nullptr;
    LanguageFlow *m_language = nullptr;
    UpdateFlow *m_update = nullptr;
    CompatibilityFlow *m_compatibility = nullptr;
    bool m_launchedByAutostart = false;
    int m_trayAvailable = -1; // -1: ask the desktop
    bool m_shutDown = false;
    bool m_started = false;
};
