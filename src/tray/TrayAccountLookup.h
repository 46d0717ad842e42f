#pragma once

#include "RuntimeInfo.h"
#include "TrayStatusFormatter.h"
#include "UserInfo.h"

#include <QString>

class AppState;
class ControlWorker;
class TrayRequestIds;

// The account record follows the status: asked for once a signed-in session shows up without
// one, forgotten when the session ends. Remembers how the last lookup went, for the account line.
class TrayAccountLookup
{
public:
    TrayAccountLookup(AppState *state, ControlWorker *worker, TrayRequestIds *ids);

    void follow(const RuntimeInfo &status);
    // False for an answer that is not the latest lookup's.
    bool handleUserFinished(quint64 requestId, const UserInfo &user, const QString &errorMessage);

    TrayStatusFormatter::UserLookup state() const { return m_lookup; }

private:
    void fetch();

    AppState *m_state;
    ControlWorker *m_worker;
    TrayRequestIds *m_ids;
    bool m_inFlight = false;
    TrayStatusFormatter::UserLookup m_lookup = TrayStatusFormatter::UserLookup::Pending;
};
