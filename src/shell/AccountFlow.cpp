#include "AccountFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "TrayStatusFormatter.h"
#include "WindowController.h"

#include <QUrl>

using Kind = RequestLedger::Kind;

namespace {

// Signing in talks to the service behind the daemon, which can be slow.
constexpr int kLoginTimeoutMs = 30000;
constexpr int kAccountTimeoutMs = 10000;

} // namespace

AccountFlow::AccountFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{}

bool AccountFlow::busy() const
{
    return m_context.ledger->inFlight(Kind::Login) || m_context.ledger->inFlight(Kind::Logout);
}

void AccountFlow::login(const QString &username, const QString &password, bool rememberMe)
{
    if (busy())
        return;
    const quint64 id = m_context.ledger->issue(Kind::Login);
    m_context.window->setSettingsOperationBusy(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "login", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, username.trimmed()),
                              Q_ARG(QString, password), Q_ARG(bool, rememberMe),
                              Q_ARG(int, kLoginTimeoutMs));
}

void AccountFlow::handleLogin(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Login, requestId))
        return;
    m_context.window->setSettingsOperationBusy(false);
    if (!errorMessage.isEmpty()) {
        m_context.window->showOperationError(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not sign in")));
        return;
    }
    m_context.state->setRuntime(info);
    fetchUser(true);
}

void AccountFlow::logout(bool fromTray)
{
    if (busy())
        return;
    const quint64 id = m_context.ledger->issue(Kind::Logout);
    m_context.tray->beginLogout(id);
    Q_UNUSED(fromTray)
    QMetaObject::invokeMethod(m_context.workers->control(), "logout", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kAccountTimeoutMs));
}

void AccountFlow::handleLogout(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Logout, requestId))
        return;
    if (!errorMessage.isEmpty()) {
        m_context.notifier->error(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not sign out")));
        return;
    }
    m_context.state->setRuntime(info);
    m_context.state->clearUser();
}

void AccountFlow::fetchUser(bool userVisible)
{
    m_userVisibleFetch = m_userVisibleFetch || userVisible;
    if (m_context.ledger->inFlight(Kind::User))
        return;
    const quint64 id = m_context.ledger->issue(Kind::User);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchUser", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kAccountTimeoutMs));
}

void AccountFlow::handleUser(quint64 requestId, const UserInfo &user, const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::User, requestId))
        return;
    const bool userVisible = m_userVisibleFetch;
    m_userVisibleFetch = false;
    if (!errorMessage.isEmpty()) {
        if (userVisible)
            m_context.notifier->error(failureText(
                errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not load account")));
        return;
    }
    m_context.state->setUser(user);
}

void AccountFlow::followRuntime(const RuntimeInfo &runtime)
{
    if (!runtime.valid || runtime.authState == m_lastAuthState)
        return;
    m_lastAuthState = runtime.authState;
    // The tray's rule, so that the menu and the account record never disagree.
    if (TrayStatusFormatter::isSignedIn(runtime))
        fetchUser(false);
    else
        m_context.state->clearUser();
}

void AccountFlow::requestPurchaseURL(const QString &lang)
{
    const quint64 id = m_context.ledger->issue(Kind::PurchaseURL);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchPurchaseURL",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, lang),
                              Q_ARG(int, kAccountTimeoutMs));
}

void AccountFlow::handlePurchaseURL(quint64 requestId, const PurchaseURLInfo &info,
                                    const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::PurchaseURL, requestId))
        return;
    if (!errorMessage.isEmpty()) {
        m_context.window->showOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not open renewal page")));
        return;
    }
    m_context.window->openExternalURL(QUrl(info.url));
}
