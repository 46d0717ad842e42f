#pragma once

#include "ShellContext.h"

#include "DesktopAnswer.h"
#include "DesktopRequest.h"

#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>

class CatalogFlow;
class CompatibilityFlow;
class ConnectionFlow;

// The desktop's commands from the command line (connect, disconnect, toggle): each waits until
// the service is usable (the compatibility verdict and a first status; for a location, the
// catalogue too), then goes through the same connection flow as a click, and is answered once
// the daemon has accepted or refused it, never later when the tunnel is up.
class DesktopCommandFlow : public QObject
{
    Q_OBJECT

public:
    using Reply = std::function<void(const DesktopAnswer &)>;

    static constexpr int kServiceWaitMs = 20000;
    // The connection flow's own time-out, and a little more.
    static constexpr int kAnswerWaitMs = 35000;
    static constexpr int kCheckMs = 100;

    DesktopCommandFlow(const ShellContext &context, ConnectionFlow *connection,
                       CompatibilityFlow *compatibility, CatalogFlow *catalog,
                       QObject *parent = nullptr);

    void run(const DesktopRequest &request, Reply reply);
    int pendingCount() const { return int(m_pending.size()); }

private:
    struct Pending
    {
        DesktopRequest request;
        Reply reply;
        QDeadlineTimer deadline;
        quint64 requestId = 0; // the connect or disconnect sent; 0 before
        // A status answered since the command came: the sign-in and tunnel it goes by are
        // today's, not those of the last poll.
        bool freshStatus = false;
    };

    void check();
    // False while the command must wait for the service.
    bool ready(const Pending &pending);
    bool connectWhileBusy(const DesktopRequest &request) const;
    // Starts the command; false when it is answered already.
    bool start(Pending &pending);
    bool startConnect(Pending &pending);
    void handleAnswered(quint64 requestId, const QString &errorMessage);

    ShellContext m_context;
    ConnectionFlow *m_connection;
    CompatibilityFlow *m_compatibility;
    CatalogFlow *m_catalog;
    QList<Pending> m_pending;
    QTimer m_checkTimer;
    bool m_catalogAsked = false;
};
