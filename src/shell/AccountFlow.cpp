#include "AccountFlow.h"

#include "AccountSession.h"
#include "AppState.h"
#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
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
    setAccountBusy(true);
    m_context.window->clearAccountMessage();
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
    setAccountBusy(false);
    if (!errorMessage.isEmpty()) {
        // Shown on the account page, where the user typed; the page keeps it for a new window.
        m_context.window->showAccountError(
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
    setAccountBusy(true);
    m_context.window->clearAccountMessage();
    Q_UNUSED(fromTray)
    QMetaObject::invokeMethod(m_context.workers->control(), "logout", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kAccountTimeoutMs));
}

void AccountFlow::handleLogout(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Logout, requestId))
        return;
    setAccountBusy(false);
    if (!errorMessage.isEmpty()) {
        const QString text =
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not sign out"));
        m_context.window->showAccountError(text);
        m_context.notifier->error(text);
        return;
    }
    m_context.state->setRuntime(info);
    m_context.state->clearUser();
}

void AccountFlow::setAccountBusy(bool busy)
{
    m_context.window->setAccountOperationInProgress(busy);
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
    const bool wasSignedIn = AccountSession::isSignedIn(m_lastAuthState);
    m_lastAuthState = runtime.authState;
    const bool signedIn = AccountSession::isSignedIn(runtime.authState);
    // A message about signing in (or out) ends with the state it was about, however that
    // ended: here, from another client or the command line.
    if (signedIn != wasSignedIn)
        m_context.window->clearAccountMessage();
    if (signedIn)
        fetchUser(false);
    else
        m_context.state->clearUser();
}

void AccountFlow::requestPurchaseURL(const QString &lang)
{
    // One renewal page at a time: a second click while the link is on its way sends nothing.
    if (m_context.ledger->inFlight(Kind::PurchaseURL))
        return;
    const quint64 id = m_context.ledger->issue(Kind::PurchaseURL);
    m_context.window->setRenewalOpening(true);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchPurchaseURL",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, lang),
                              Q_ARG(int, kAccountTimeoutMs));
}

void AccountFlow::handlePurchaseURL(quint64 requestId, const PurchaseURLInfo &info,
                                    const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::PurchaseURL, requestId))
        return;
    m_context.window->setRenewalOpening(false);
    const char *fallback = QT_TRANSLATE_NOOP("TovraAppShell", "Could not open renewal page");
    if (!errorMessage.isEmpty() || !info.valid) {
        // A link that failed the checks is the parser's verdict, not the daemon's words.
        const bool rejectedLink =
            !info.valid && errorMessage.startsWith(QLatin1String("invalid purchase URL"));
        m_context.window->showOperationError(
            rejectedLink ? QCoreApplication::translate("TovraAppShell", fallback)
                         : failureText(errorMessage, fallback));
        return;
    }
    m_context.window->openExternalURL(QUrl(info.url));
}
