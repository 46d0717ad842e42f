#pragma once

#include "ShellContext.h"

#include "RuntimeInfo.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class UpdateFlow;

// Connect, cancel and disconnect. Connect and disconnect share one request id, so whichever
// the user asked for last wins and an older answer is dropped.
class ConnectionFlow : public QObject
{
    Q_OBJECT

public:
    enum ConnectKind { NoConnect = 0, PlainConnect = 1, NodeConnect = 2, SmartConnect = 3 };

    ConnectionFlow(const ShellContext &context, UpdateFlow *update, std::function<bool()> shellBusy,
                   QObject *parent = nullptr);

    // Each is false when the connect was refused (busy, or a required update first).
    bool connectRuntime();
    bool connectNode(const QString &nodeID, const QString &label);
    // Without a label, the one the window announced for the selector, else the selector.
    bool connectSmart(const QString &selector, const QString &label = QString());
    void cancelConnect();
    void disconnectRuntime();
    // Whether a connect would start now, as far as the shell and the tray are concerned.
    bool canStart() const;

    void handleConnectFinished(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage);
    void handleDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                  const QString &errorMessage);

    // Status answers to the flow's own follow-up polls; false when the answer was not one.
    bool handleStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    bool transitionPollActive() const { return m_transitionTimer.isActive(); }

    bool connectInProgress() const { return m_connectInProgress; }
    bool disconnectInProgress() const { return m_disconnectInProgress; }
    ConnectKind connectKind() const { return m_connectKind; }

Q_SIGNALS:
    // A connect or disconnect was accepted by the daemon; the shell refreshes what depends on it.
    void runtimeAnswered(const RuntimeInfo &info);
    void pendingTargetChanged(const QString &nodeID, const QString &label);
    // The daemon answered the latest connect or disconnect (an empty error: it accepted).
    void requestAnswered(quint64 requestId, const QString &errorMessage);

private:
    bool start(ConnectKind kind, const QString &target, const QString &label);
    void finishConnect();
    void followTransition(const RuntimeInfo &info);
    void pollTransition();

    ShellContext m_context;
    UpdateFlow *m_update;
    std::function<bool()> m_shellBusy;
    bool m_connectInProgress = false;
    bool m_disconnectInProgress = false;
    ConnectKind m_connectKind = NoConnect;
    QTimer m_transitionTimer;
    int m_transitionBudget = 0;
};
