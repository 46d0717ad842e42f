#pragma once

#include <QJsonObject>
#include <QString>

// The account session: the two demo accounts, sign in and out, the user record and the
// purchase link.
class AccountStore
{
public:
    // Empty on success, else the text to show; *status receives the HTTP status to answer.
    QString login(const QString &username, const QString &password, bool rememberMe, int *status);
    void logout();
    // A session remembered from an earlier run, as a daemon finds it at start: "cached" until
    // the next sign-in. False for an account the store does not know.
    bool restore(const QString &username);
    static bool knows(const QString &username);

    bool signedIn() const { return m_signedIn; }
    // "logged_in" (or "cached" for a remembered session), else "logged_out".
    QString authState() const;
    bool svip() const;
    QJsonObject userJson() const;
    QString purchaseUrl(const QString &vendorHost, const QString &lang) const;

private:
    bool m_signedIn = false;
    bool m_remembered = false;
    bool m_restored = false;
    QString m_email;
    QString m_token;
};
