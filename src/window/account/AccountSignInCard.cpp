#include "AccountSignInCard.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

AccountSignInCard::AccountSignInCard(QWidget *parent)
    : QFrame(parent)
    , m_username(new QLineEdit(this))
    , m_password(new QLineEdit(this))
    , m_remember(new QCheckBox(tr("Remember this account"), this))
    , m_unavailable(new QLabel(this))
    //: Button that signs in to the Tovra account
    , m_signIn(new QPushButton(tr("Sign In"), this))
{
    setObjectName(QStringLiteral("TovraStatusCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 18, 22, 18);
    layout->setSpacing(10);

    auto *title = new QLabel(tr("Sign in"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    auto *intro =
        new QLabel(tr("Use your Tovra account to connect and sync available locations."), this);
    intro->setProperty("tovraRole", QStringLiteral("muted"));
    intro->setWordWrap(true);

    m_username->setObjectName(QStringLiteral("TovraAccountUsername"));
    m_username->setPlaceholderText(tr("Email or user ID"));
    m_username->setAccessibleName(tr("Email or user ID"));
    m_password->setObjectName(QStringLiteral("TovraAccountPassword"));
    m_password->setPlaceholderText(tr("Password"));
    m_password->setAccessibleName(tr("Password"));
    m_password->setEchoMode(QLineEdit::Password);
    m_remember->setObjectName(QStringLiteral("TovraAccountRemember"));
    m_remember->setChecked(true);

    m_unavailable->setObjectName(QStringLiteral("TovraAccountUnavailable"));
    m_unavailable->setProperty("tovraRole", QStringLiteral("error"));
    m_unavailable->setWordWrap(true);
    m_unavailable->hide();

    //: Button that opens the page to create a Tovra account
    auto *signUp = new QPushButton(tr("Sign Up"), this);
    signUp->setObjectName(QStringLiteral("TovraAccountSignUp"));
    //: Button (shown as a link) that opens the password reset page
    auto *forgot = new QPushButton(tr("Forgot password?"), this);
    forgot->setObjectName(QStringLiteral("TovraAccountForgotPassword"));
    m_signIn->setObjectName(QStringLiteral("TovraAccountSignIn"));
    for (QPushButton *button : {signUp, forgot}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setAutoDefault(false);
    }
    m_signIn->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    buttons->addWidget(signUp);
    buttons->addWidget(forgot);
    buttons->addStretch(1);
    buttons->addWidget(m_signIn);

    layout->addWidget(title);
    layout->addWidget(intro);
    layout->addWidget(m_username);
    layout->addWidget(m_password);
    layout->addWidget(m_remember);
    layout->addWidget(m_unavailable);
    layout->addLayout(buttons);

    connect(m_username, &QLineEdit::returnPressed, this, &AccountSignInCard::signInRequested);
    connect(m_password, &QLineEdit::returnPressed, this, &AccountSignInCard::signInRequested);
    connect(m_signIn, &QPushButton::clicked, this, &AccountSignInCard::signInRequested);
    connect(signUp, &QPushButton::clicked, this, &AccountSignInCard::signUpRequested);
    connect(forgot, &QPushButton::clicked, this, &AccountSignInCard::forgotPasswordRequested);
}

QString AccountSignInCard::username() const
{
    return m_username->text();
}

QString AccountSignInCard::password() const
{
    return m_password->text();
}

bool AccountSignInCard::rememberMe() const
{
    return m_remember->isChecked();
}

void AccountSignInCard::clearFields()
{
    m_username->setText(QString());
    clearPassword();
}

void AccountSignInCard::clearPassword()
{
    // setText, not clear(): it also drops the undo history.
    m_password->setText(QString());
}

void AccountSignInCard::focusFirstEmptyField()
{
    (m_username->text().isEmpty() ? m_username : m_password)->setFocus(Qt::OtherFocusReason);
}

void AccountSignInCard::setSignInState(bool inProgress, const QString &unavailableReason)
{
    //: Button while the sign-in runs
    m_signIn->setText(inProgress ? tr("Signing in...") : tr("Sign In"));
    m_signIn->setEnabled(!inProgress && unavailableReason.isEmpty());
    m_unavailable->setText(unavailableReason);
    m_unavailable->setVisible(!unavailableReason.isEmpty());
}
