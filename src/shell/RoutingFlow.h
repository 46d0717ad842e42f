#pragma once

#include "ShellContext.h"

#include "KillSwitchInfo.h"
#include "ModeInfo.h"
#include "SplitRuleMutationInfo.h"
#include "SplitRulesInfo.h"

#include <QObject>

// Everything that changes how traffic is routed: the routing mode, local network and system
// proxy, the kill switch with its rules (an enable that needs a VPN mode waits for one), and
// the custom split rules of the Mode page.
class RoutingFlow : public QObject
{
    Q_OBJECT

public:
    explicit RoutingFlow(const ShellContext &context, QObject *parent = nullptr);

    // An operation that changes the routing or the kill switch is running.
    bool busy() const;

    void setMode(const ModeInfo &mode);
    void setLocalNetwork(const QString &value);
    void setSystemProxy(const QString &value);

    void setKillSwitchEnabled(bool enabled);
    void setKillSwitchMode(const QString &mode);
    void switchToAutoAndEnableKillSwitch();
    void chooseModeForKillSwitch();
    void cancelPendingKillSwitchEnable();
    bool killSwitchEnablePending() const { return m_pendingKillSwitchEnable; }

    void refreshSplitRules();
    void importSplitRules(const QString &kind, const QString &content);

    void handleMode(quint64 requestId, const ModeInfo &info, const QString &errorMessage);
    // Answers to a kill switch change; the Settings page's load of it is SettingsFlow's.
    void handleKillSwitch(quint64 requestId, const KillSwitchInfo &info,
                          const QString &errorMessage);
    void handleSplitRules(quint64 requestId, const SplitRulesInfo &info,
                          const QString &errorMessage);
    void handleSplitRuleImport(quint64 requestId, const SplitRuleMutationInfo &info,
                               const QString &errorMessage);

private:
    void sendKillSwitchEnabled(bool enabled);
    void applyMode(const ModeInfo &mode);

    ShellContext m_context;
    bool m_pendingKillSwitchEnable = false;
    bool m_killSwitchModeChange = false;
    bool m_importRefreshPending = false;
};
