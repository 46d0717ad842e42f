#include "TrayAccountLookup.h"

#include "TrayLog.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "TrayRequestIds.h"

namespace {

using Kind = TrayRequestIds::Kind;

} // namespace

TrayAccountLookup::TrayAccountLookup(AppState *state, ControlWorker *worker, TrayRequestIds *ids)
    : m_state(state)
    , m_worker(worker)
    , m_ids(ids)
{}

void TrayAccountLookup::follow(const RuntimeInfo &status)
{
    if (TrayStatusFormatter::isSignedIn(status)) {
        if (!m_state->user().valid && !m_inFlight)
            fetch();
    } else if (m_state->user().valid) {
        m_state->clearUser();
    }
}

void TrayAccountLookup::fetch()
{
    m_inFlight = true;
    m_lookup = TrayStatusFormatter::UserLookup::Pending;
    const quint64 id = m_ids->take(Kind::User);
    QMetaObject::invokeMethod(m_worker, "fetchUser", Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kTrayFetchTimeoutMs));
}

bool TrayAccountLookup::handleUserFinished(quint64 requestId, const UserInfo &user,
                                           const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::User, requestId))
        return false;
    m_inFlight = false;
    if (errorMessage.isEmpty()) {
        m_lookup = TrayStatusFormatter::UserLookup::Loaded;
        m_state->setUser(user);
    } else {
        m_lookup = TrayStatusFormatter::UserLookup::Failed;
    }
    return true;
}
