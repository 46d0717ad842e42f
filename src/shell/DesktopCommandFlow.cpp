#include "DesktopCommandFlow.h"

#include "AppState.h"
#include "CatalogFlow.h"
#include "CompatibilityFlow.h"
#include "ConnectionFlow.h"
#include "ControlWorker.h"
#include "LocationResolver.h"
#include "RequestLedger.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"

namespace {

using Result = DesktopAnswer::Result;

bool tunnelUp(const RuntimeInfo &runtime)
{
    const QString state = runtime.tunnelState.trimmed().toLower();
    return state == QLatin1String("connected") || state == QLatin1String("connecting");
}

bool signedOut(const RuntimeInfo &runtime)
{
    return runtime.authState.trimmed().compare(QLatin1String("logged_out"), Qt::CaseInsensitive) ==
           0;
}

} // namespace

DesktopCommandFlow::DesktopCommandFlow(const ShellContext &context, ConnectionFlow *connection,
                                       CompatibilityFlow *compatibility, CatalogFlow *catalog,
                                       QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_connection(connection)
    , m_compatibility(compatibility)
    , m_catalog(catalog)
{
    // Only while a command waits: a look at state the shell keeps anyway, no request.
    m_checkTimer.setInterval(kCheckMs);
    connect(&m_checkTimer, &QTimer::timeout, this, &DesktopCommandFlow::check);
    connect(m_connection, &ConnectionFlow::requestAnswered, this,
            &DesktopCommandFlow::handleAnswered);
    // Connected after the tray's own handler, which has stored the status by then.
    connect(m_context.workers->control(), &ControlWorker::statusFinished, this, [this] {
        for (Pending &pending : m_pending)
            pending.freshStatus = true;
    });
}

void DesktopCommandFlow::run(const DesktopRequest &request, Reply reply)
{
    m_pending.append({request, std::move(reply), QDeadlineTimer(kServiceWaitMs), 0, false});
    m_context.tray->refreshStatus();
    check();
}

bool DesktopCommandFlow::ready(const Pending &pending)
{
    const DesktopRequest &request = pending.request;
    if (!pending.freshStatus || m_compatibility->state() != CompatibilityFlow::Compatible ||
        !m_context.state->runtime().valid)
        return false;
    if (request.command != DesktopRequest::Command::Connect || request.location.isEmpty())
        return true;
    if (m_context.state->nodes().valid && m_context.state->nodeGroups().valid)
        return true;
    // A client started for this command has not needed the catalogue yet.
    if (!m_catalogAsked) {
        m_catalogAsked = true;
        m_catalog->fetchNodeGroups(false);
        m_catalog->fetchNodes(false);
    }
    return false;
}

bool DesktopCommandFlow::connectWhileBusy(const DesktopRequest &request) const
{
    return request.command == DesktopRequest::Command::Connect &&
           m_compatibility->state() == CompatibilityFlow::Compatible &&
           (m_connection->connectInProgress() || m_connection->disconnectInProgress());
}

void DesktopCommandFlow::check()
{
    for (qsizetype i = 0; i < m_pending.size();) {
        Pending &pending = m_pending[i];
        bool done = false;
        if (pending.requestId == 0 && connectWhileBusy(pending.request)) {
            // Known without a fresh status, which a busy client may not fetch now.
            pending.reply({Result::Busy, {}});
            done = true;
        } else if (pending.requestId == 0 && ready(pending)) {
            done = !start(pending);
        } else if (pending.deadline.hasExpired()) {
            pending.reply(
                {Result::Failed, pending.requestId == 0
                                     ? ShellText::tr("The Tovra service is not available")
                                     : ShellText::tr("The Tovra service did not answer")});
            done = true;
        }
        if (done)
            m_pending.removeAt(i);
        else
            ++i;
    }
    if (m_pending.isEmpty()) {
        m_checkTimer.stop();
        m_catalogAsked = false;
    } else if (!m_checkTimer.isActive()) {
        m_checkTimer.start();
    }
}

bool DesktopCommandFlow::start(Pending &pending)
{
    const RuntimeInfo &runtime = m_context.state->runtime();
    bool disconnect = pending.request.command == DesktopRequest::Command::Disconnect;
    if (pending.request.command == DesktopRequest::Command::ToggleConnection)
        disconnect = tunnelUp(runtime) || m_connection->connectInProgress();
    if (!disconnect)
        return startConnect(pending);
    if (m_connection->disconnectInProgress()) {
        pending.reply({Result::Busy, {}});
        return false;
    }
    if (!tunnelUp(runtime) && !m_connection->connectInProgress()) {
        pending.reply({}); // nothing to take down
        return false;
    }
    m_connection->disconnectRuntime();
    pending.requestId = m_context.ledger->latest(RequestLedger::Kind::Connection);
    pending.deadline.setRemainingTime(kAnswerWaitMs);
    return true;
}

bool DesktopCommandFlow::startConnect(Pending &pending)
{
    if (signedOut(m_context.state->runtime())) {
        pending.reply({Result::SignedOut, {}});
        return false;
    }
    LocationResolver::Resolution target;
    const QString location = pending.request.location;
    if (!location.isEmpty()) {
        target = LocationResolver::resolve(m_context.state->nodeGroups(), m_context.state->nodes(),
                                           LocationResolver::tiersFor(m_context.state->user()),
                                           location);
        if (target.outcome != LocationResolver::Outcome::Found) {
            pending.reply({target.outcome == LocationResolver::Outcome::NoMatch
                               ? Result::UnknownLocation
                               : Result::NotInPlan,
                           location});
            return false;
        }
    }
    if (!m_connection->canStart()) {
        pending.reply({Result::Busy, {}});
        return false;
    }
    const LocationMatch &match = target.match;
    const bool started = location.isEmpty() ? m_connection->connectRuntime()
                         : match.group      ? m_connection->connectSmart(match.target, match.name)
                                            : m_connection->connectNode(match.target, match.name);
    if (!started) {
        // Only a required update stops a connect the checks above let through.
        pending.reply(
            {Result::Failed,
             ShellText::tr("A required Tovra update must be installed before connecting")});
        return false;
    }
    pending.requestId = m_context.ledger->latest(RequestLedger::Kind::Connection);
    pending.deadline.setRemainingTime(kAnswerWaitMs);
    return true;
}

void DesktopCommandFlow::handleAnswered(quint64 requestId, const QString &errorMessage)
{
    for (qsizetype i = 0; i < m_pending.size();) {
        Pending &pending = m_pending[i];
        if (pending.requestId == 0 || pending.requestId > requestId) {
            ++i;
            continue;
        }
        if (pending.requestId == requestId)
            pending.reply(errorMessage.isEmpty()
                              ? DesktopAnswer{}
                              : DesktopAnswer{Result::Failed, errorMessage.trimmed()});
        else
            pending.reply(
                {Result::Failed, ShellText::tr("Another connection request replaced this one")});
        m_pending.removeAt(i);
    }
    if (m_pending.isEmpty())
        m_checkTimer.stop();
}
