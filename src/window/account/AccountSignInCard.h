#pragma once

#include <QFrame>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The sign-in card: account and password, "remember", and the links for new and forgetful
// users. It keeps nothing but what the fields hold; the page decides what a sign-in sends.
class AccountSignInCard : public QFrame
{
    Q_OBJECT

public:
    explicit AccountSignInCard(QWidget *parent = nullptr);

    QString username() const;
    QString password() const;
    bool rememberMe() const;
    // Empties the fields and their undo history, so no typed password can be brought back.
    void clearFields();
    void clearPassword();
    void focusFirstEmptyField();

    // Busy: "Signing in..." and disabled. A non-empty reason disables signing in and says why.
    void setSignInState(bool inProgress, const QString &unavailableReason);

Q_SIGNALS:
    // The button, or Return in either field.
    void signInRequested();
    void signUpRequested();
    void forgotPasswordRequested();

private:
    QLineEdit *m_username;
    QLineEdit *m_password;
    QCheckBox *m_remember;
    QLabel *m_unavailable;
    QPushButton *m_signIn;
};
