#include "AccountPage.h"

#include "AccessibleAnnouncer.h"
#include "AccountSession.h"
#include "AccountSignInCard.h"
#include "AccountSummaryCard.h"
#include "AppState.h"

#include <QLabel>

AccountPage::AccountPage(QWidget *parent)
    : WindowPage(QStringLiteral("TovraAccountPage"), QString(), QString(), parent)
    , m_message(new QLabel(this))
    , m_signInCard(new AccountSignInCard(this))
    , m_summaryCard(new AccountSummaryCard(this))
    , m_announcer(new AccessibleAnnouncer(this))
{
    m_message->setObjectName(QStringLiteral("TovraAccountMessage"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->hide();
    m_summaryCard->hide();
    addContent(m_message);
    addContent(m_signInCard);
    addContent(m_summaryCard);

    connect(m_signInCard, &AccountSignInCard::signInRequested, this, &AccountPage::signIn);
    connect(m_signInCard, &AccountSignInCard::signUpRequested, this, &AccountPage::signUpRequested);
    connect(m_signInCard, &AccountSignInCard::forgotPasswordRequested, this,
            &AccountPage::forgotPasswordRequested);
    connect(m_summaryCard, &AccountSummaryCard::renewRequested, this, &AccountPage::renewRequested);
    connect(m_summaryCard, &AccountSummaryCard::logoutRequested, this,
            &AccountPage::logoutRequested);
    updateButtons();
}

void AccountPage::signIn()
{
    // Return in a field is not stopped by the disabled button.
    if (m_operationInProgress || !m_unavailableReason.isEmpty())
        return;
    const QString username = m_signInCard->username();
    if (username.trimmed().isEmpty() || m_signInCard->password().isEmpty()) {
        // Nothing was sent: what was typed stays for the missing half to be added.
        showMessage(tr("Enter account and password."));
        return;
    }
    clearMessage();
    Q_EMIT loginRequested(username, m_signInCard->password(), m_signInCard->rememberMe());
}

WindowPage::Records AccountPage::reads() const
{
    return Record::Runtime | Record::User;
}

void AccountPage::refresh(const AppState &state)
{
    refresh(state.runtime().authState, state.user());
}

void AccountPage::refresh(const QString &sessionState, const UserInfo &user)
{
    const bool signedIn = AccountSession::isSignedIn(sessionState);
    m_signInCard->setVisible(!signedIn);
    m_summaryCard->setVisible(signedIn);
    if (signedIn) {
        // The typed password never stays in the page after sign-in.
        m_signInCard->clearFields();
        m_summaryCard->setUser(user);
    }
    updateButtons();
}

void AccountPage::showEvent(QShowEvent *event)
{
    WindowPage::showEvent(event);
    // Coming here signed out means coming to sign in: the cursor waits in the form.
    if (!isSignedInShown())
        m_signInCard->focusFirstEmptyField();
}

bool AccountPage::isSignedInShown() const
{
    return !m_summaryCard->isHidden();
}

void AccountPage::setAccountOperationInProgress(bool inProgress)
{
    m_operationInProgress = inProgress;
    updateButtons();
}

void AccountPage::setRenewalOpening(bool opening)
{
    m_renewalOpening = opening;
    updateButtons();
}

void AccountPage::setDaemonUnavailableReason(const QString &reason)
{
    m_unavailableReason = reason.trimmed();
    updateButtons();
}

void AccountPage::showError(const QString &message)
{
    const QString text = message.trimmed();
    //: Shown when signing in or out failed without a reason. Word it as a user would understand it:
    //: "Could not complete the account action"
    showMessage(text.isEmpty() ? tr("Account operation failed") : text);
    m_announcer->announce(m_message->text(), AccessibleAnnouncer::Politeness::Assertive);
    // A failed sign-in keeps the account name for the next try, never the password.
    m_signInCard->clearPassword();
}

void AccountPage::showMessage(const QString &text)
{
    m_message->setText(text);
    m_message->show();
}

void AccountPage::clearMessage()
{
    m_message->clear();
    m_message->hide();
}

void AccountPage::updateButtons()
{
    m_signInCard->setSignInState(m_operationInProgress, m_unavailableReason);
    m_summaryCard->setButtonStates(m_operationInProgress, m_renewalOpening);
}
