#pragma once

#include "KillSwitchInfo.h"
#include "ModeInfo.h"

#include <QObject>
#include <QString>

class AppState;
class ControlWorker;
class TrayNotifier;
class TrayRequestIds;

// The operations that change the daemon's state and that the tray waits for: connect,
// disconnect and logout started by the shell, mode and kill-switch changes sent from the menu.
// While one runs the tray is busy and shows its status text; each answer ends in a completion
// message.
class TrayOperations : public QObject
{
    Q_OBJECT

public:
    // Which change a mode-kind answer belongs to, for its completion message.
    enum class ModeChange { Mode, SplitOption, SystemProxy, LocalNetwork };

    TrayOperations(AppState *state, ControlWorker *worker, TrayRequestIds *ids,
                   TrayNotifier *notifier, QObject *parent = nullptr);

    bool inFlight() const;
    bool connectInFlight() const { return m_connectInFlight; }
    bool connectCancellable() const { return m_connectCancellable; }
    // The text of the operation under way; empty once it finished.
    QString statusText() const { return m_statusText; }

    // The node named while connecting, until the connect's answer.
    void setConnectTarget(const QString &nodeId, const QString &label);
    QString connectTargetLabel() const { return m_connectTargetLabel; }

    // Asks for the kill switch record on its own, so that a status without one still shows the
    // entry; skipped while a kill switch change is under way (its answer carries the record).
    void fetchKillSwitch();

    void beginConnect(quint64 requestId, const QString &statusText, bool cancellable);
    void beginDisconnect(quint64 requestId);
    void beginLogout(quint64 requestId);
    // The callers check that nothing else runs.
    void sendMode(const ModeInfo &mode, const QString &statusText, ModeChange change);
    void sendSystemProxy(const QString &value);
    void sendLocalNetwork(const QString &value);
    void sendKillSwitch(bool enabled);

    void handleConnectFinished(quint64 requestId, const QString &errorMessage);
    void handleDisconnectFinished(quint64 requestId, const QString &errorMessage);
    void handleLogoutFinished(quint64 requestId, const QString &errorMessage);
    void handleModeFinished(quint64 requestId, const ModeInfo &mode, const QString &errorMessage);
    void handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                  const QString &errorMessage);

Q_SIGNALS:
    void started(const QString &statusText);
    // A second connect of the shell's while the first runs: only the text changes.
    void statusTextChanged(const QString &statusText);
    void finished();

private:
    void startModeChange(ModeChange change, const QString &statusText);
    void finish();

    AppState *m_state;
    ControlWorker *m_worker;
    TrayRequestIds *m_ids;
    TrayNotifier *m_notifier;

    bool m_connectInFlight = false;
    bool m_connectCancellable = false;
    bool m_disconnectInFlight = false;
    bool m_modeInFlight = false;
    bool m_killSwitchInFlight = false;
    bool m_logoutInFlight = false;
    ModeChange m_modeChange = ModeChange::Mode;
    QString m_pendingSystemProxy;
    QString m_statusText;
    QString m_connectTargetId;
    QString m_connectTargetLabel;
};
