// The worker's answers, each handed to the flow whose request it answers; the flows drop
// superseded answers. The user's intents and the start-up are in TovraAppShell.cpp.
#include "TovraAppShell.h"

#include "AccountFlow.h"
#include "CatalogFlow.h"
#include "CompatibilityFlow.h"
#include "ConnectionFlow.h"
#include "LanguageFlow.h"
#include "RequestLedger.h"
#include "RoutingFlow.h"
#include "SettingsFlow.h"
#include "UpdateFlow.h"

void TovraAppShell::handleWindowStatusFinished(quint64 requestId, RuntimeInfo info,
                                               QString errorMessage)
{
    if (!m_connection->handleStatus(requestId, info, errorMessage) &&
        !m_settings->handleStatus(requestId, info, errorMessage))
        m_catalog->handleStatus(requestId, info, errorMessage);
    // Every status answer, the tray's polls included, failed or not: while the daemon is away
    // this keeps the language sync retrying with its back-off.
    m_language->checkSystemLanguage();
}

void TovraAppShell::handleWindowNodesFinished(quint64 requestId, NodesInfo info,
                                              QString errorMessage)
{
    m_catalog->handleNodes(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowNodeGroupsFinished(quint64 requestId, NodeGroupsInfo info,
                                                   QString errorMessage)
{
    m_catalog->handleNodeGroups(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowConnectFinished(quint64 requestId, RuntimeInfo info,
                                                QString errorMessage)
{
    m_connection->handleConnectFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowDisconnectFinished(quint64 requestId, RuntimeInfo info,
                                                   QString errorMessage)
{
    m_connection->handleDisconnectFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowModeFinished(quint64 requestId, ModeInfo info, QString errorMessage)
{
    m_routing->handleMode(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowVersionFinished(quint64 requestId, VersionInfo info,
                                                QString errorMessage)
{
    m_compatibility->handleVersion(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowAPIURLFinished(quint64 requestId, APIURLConfigInfo info,
                                               QString errorMessage)
{
    m_settings->handleAPIURL(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowAutoConnectFinished(quint64 requestId, AutoConnectConfigInfo info,
                                                    QString errorMessage)
{
    m_settings->handleAutoConnect(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLanguageFinished(quint64 requestId, LanguageConfigInfo info,
                                                 QString errorMessage)
{
    if (!m_settings->handleLanguageLoad(requestId, info, errorMessage))
        m_language->handleLanguage(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowUpdateFinished(quint64 requestId, UpdateInfo info,
                                               QString errorMessage)
{
    const bool latest = m_context.ledger->isLatest(RequestLedger::Kind::UpdateCheck, requestId);
    m_update->handleUpdateFinished(requestId, info, errorMessage);
    if (latest)
        m_settings->noteUpdateCheckFinished(info, errorMessage);
}

void TovraAppShell::handleGUIUpdateDownloadFinished(quint64 requestId, GUIUpdateDownloadInfo info,
                                                    QString errorMessage)
{
    m_update->handleDownloadFinished(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowProxyListenFinished(quint64 requestId, ProxyListenResultInfo info,
                                                    QString errorMessage)
{
    m_settings->handleProxyListen(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitDNSFinished(quint64 requestId, SplitDNSInfo info,
                                                 QString errorMessage)
{
    m_settings->handleSplitDNS(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitRulesFinished(quint64 requestId, SplitRulesInfo info,
                                                   QString errorMessage)
{
    m_routing->handleSplitRules(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowSplitRuleImportFinished(quint64 requestId,
                                                        SplitRuleMutationInfo info,
                                                        QString errorMessage)
{
    m_routing->handleSplitRuleImport(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowRepairFinished(quint64 requestId, RepairResultInfo info,
                                               QString errorMessage)
{
    m_settings->handleRepair(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowConfigPathsFinished(quint64 requestId, ConfigPaths paths,
                                                    QString errorMessage)
{
    m_settings->handleConfigPaths(requestId, paths, errorMessage);
}

void TovraAppShell::handleWindowKillSwitchFinished(quint64 requestId, KillSwitchInfo info,
                                                   QString errorMessage)
{
    if (!m_settings->handleKillSwitchLoad(requestId, info, errorMessage))
        m_routing->handleKillSwitch(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLoginFinished(quint64 requestId, RuntimeInfo info,
                                              QString errorMessage)
{
    m_account->handleLogin(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowLogoutFinished(quint64 requestId, RuntimeInfo info,
                                               QString errorMessage)
{
    m_account->handleLogout(requestId, info, errorMessage);
}

void TovraAppShell::handleWindowUserFinished(quint64 requestId, UserInfo user, QString errorMessage)
{
    m_account->handleUser(requestId, user, errorMessage);
}

void TovraAppShell::handleWindowPurchaseURLFinished(quint64 requestId, PurchaseURLInfo info,
                                                    QString errorMessage)
{
    m_account->handlePurchaseURL(requestId, info, errorMessage);
}
