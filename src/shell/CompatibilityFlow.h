#pragma once

#include "ShellContext.h"

#include "VersionInfo.h"

#include <QObject>
#include <QString>

// Whether this GUI and the daemon speak the same control version. The tray's actions wait for
// the verdict; an incompatible daemon is asked again now and then, since it may be updated
// under a running client, and a daemon that was away is asked once it answers again.
class CompatibilityFlow : public QObject
{
    Q_OBJECT

public:
    enum State {
        CompatibilityUnknown = 0,
        CompatibilityChecking = 1,
        Compatible = 2,
        Incompatible = 3
    };

    explicit CompatibilityFlow(const ShellContext &context, QObject *parent = nullptr);

    State state() const { return m_state; }
    // Marks the check as running and asks for the version.
    void start();
    // The daemon answered a status request: ask again if the verdict is still open.
    void followRuntime();
    void handleVersion(quint64 requestId, const VersionInfo &info, const QString &errorMessage);

private:
    void setState(State state, const QString &text = QString());
    void requestVersion();

    ShellContext m_context;
    State m_state = CompatibilityUnknown;
};
