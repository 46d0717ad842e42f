#pragma once

#include "UserInfo.h"
#include "WindowPage.h"

class AccountSignInCard;
class AccountSummaryCard;
class AccessibleAnnouncer;
class QLabel;

// Page 4: signing in to the service account and out again. It holds no account state: the
// daemon's session state and user record decide which card shows.
class AccountPage : public WindowPage
{
    Q_OBJECT

public:
    explicit AccountPage(QWidget *parent = nullptr);

    void refresh(const AppState &state) override;
    Records reads() const override;
    void refresh(const QString &sessionState, const UserInfo &user);

    void setAccountOperationInProgress(bool inProgress);
    void setRenewalOpening(bool opening);
    // Empty while the daemon answers; otherwise why signing in cannot work now.
    void setDaemonUnavailableReason(const QString &reason);
    // An empty message shows "Account operation failed".
    void showError(const QString &message);
    void clearMessage();

    bool isSignedInShown() const;

Q_SIGNALS:
    void loginRequested(QString username, QString password, bool rememberMe);
    void logoutRequested();
    void renewRequested();
    void signUpRequested();
    void forgotPasswordRequested();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void signIn();
    void showMessage(const QString &text);
    void updateButtons();

    QLabel *m_message;
    AccountSignInCard *m_signInCard;
    AccountSummaryCard *m_summaryCard;
    AccessibleAnnouncer *m_announcer;
    bool m_operationInProgress = false;
    bool m_renewalOpening = false;
    QString m_unavailableReason;
};
