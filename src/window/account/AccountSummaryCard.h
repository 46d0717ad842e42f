#pragma once

#include "UserInfo.h"

#include <QFrame>

class QLabel;
class QPushButton;

// The signed-in card: who is signed in, the plan and its limits, renewal and sign-out.
class AccountSummaryCard : public QFrame
{
    Q_OBJECT

public:
    explicit AccountSummaryCard(QWidget *parent = nullptr);

    // The lines the card shows for a user record, each only when the record says something.
    static QStringList summaryLines(const UserInfo &user);
    void setUser(const UserInfo &user);
    void setButtonStates(bool operationInProgress, bool renewalOpening);

Q_SIGNALS:
    void renewRequested();
    void logoutRequested();

private:
    QLabel *m_summary;
    QPushButton *m_renew;
    QPushButton *m_logout;
};
