#pragma once

#include "ShellContext.h"

#include "PurchaseURLInfo.h"
#include "RuntimeInfo.h"
#include "UserInfo.h"

#include <QObject>

// Sign in, sign out, the account record and the renewal link.
class AccountFlow : public QObject
{
    Q_OBJECT

public:
    explicit AccountFlow(const ShellContext &context, QObject *parent = nullptr);

    bool busy() const;
    void login(const QString &username, const QString &password, bool rememberMe);
    void logout(bool fromTray);
    void fetchUser(bool userVisible);
    void requestPurchaseURL(const QString &lang);
    // Keeps the account record in step with the daemon's session state.
    void followRuntime(const RuntimeInfo &runtime);

    void handleLogin(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void handleLogout(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void handleUser(quint64 requestId, const UserInfo &user, const QString &errorMessage);
    void handlePurchaseURL(quint64 requestId, const PurchaseURLInfo &info,
                           const QString &errorMessage);

private:
    void setAccountBusy(bool busy);

    ShellContext m_context;
    bool m_userVisibleFetch = false;
    QString m_lastAuthState;
};
