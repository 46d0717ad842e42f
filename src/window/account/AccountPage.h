#pragma once

#include "WindowPage.h"

// Page 4: signing in to the service account and out again.
class AccountPage : public WindowPage
{
    Q_OBJECT

public:
    explicit AccountPage(QWidget *parent = nullptr);

Q_SIGNALS:
    void loginRequested(QString username, QString password, bool rememberMe);
    void logoutRequested();
    void renewRequested();
    void signUpRequested();
    void forgotPasswordRequested();
};
