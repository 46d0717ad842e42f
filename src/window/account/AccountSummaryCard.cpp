#include "AccountSummaryCard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

AccountSummaryCard::AccountSummaryCard(QWidget *parent)
    : QFrame(parent)
    , m_summary(new QLabel(this))
    //: Button that opens the page to renew the plan
    , m_renew(new QPushButton(tr("Renew"), this))
    //: Button that signs out of the Tovra account
    , m_logout(new QPushButton(tr("Sign Out"), this))
{
    setObjectName(QStringLiteral("TovraStatusCard"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 18, 22, 18);
    layout->setSpacing(10);

    auto *title = new QLabel(tr("Signed in"), this);
    title->setObjectName(QStringLiteral("TovraCardTitle"));
    m_summary->setObjectName(QStringLiteral("TovraAccountSummary"));
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_summary->hide();
    m_renew->setObjectName(QStringLiteral("TovraAccountRenew"));
    m_logout->setObjectName(QStringLiteral("TovraAccountLogout"));
    for (QPushButton *button : {m_renew, m_logout})
        button->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_renew);
    buttons->addStretch(1);
    buttons->addWidget(m_logout);

    layout->addWidget(title);
    layout->addWidget(m_summary);
    layout->addLayout(buttons);

    connect(m_renew, &QPushButton::clicked, this, &AccountSummaryCard::renewRequested);
    connect(m_logout, &QPushButton::clicked, this, &AccountSummaryCard::logoutRequested);
}

QStringList AccountSummaryCard::summaryLines(const UserInfo &user)
{
    QStringList lines;
    const QString userId =
        user.userNumber.trimmed().isEmpty() ? user.email.trimmed() : user.userNumber.trimmed();
    if (!userId.isEmpty())
        lines << tr("User ID: %1").arg(userId);
    if (!user.role.trimmed().isEmpty())
        lines << tr("Plan: %1").arg(user.role.trimmed());
    if (user.leftDays != 0)
        lines << tr("Days left: %1").arg(user.leftDays);
    if (user.maxDeviceCount >= 1)
        lines << tr("Max simultaneous devices: %1").arg(user.maxDeviceCount);
    return lines;
}

void AccountSummaryCard::setUser(const UserInfo &user)
{
    const QString text = summaryLines(user).join(QLatin1Char('\n'));
    m_summary->setText(text);
    m_summary->setVisible(!text.isEmpty());
}

void AccountSummaryCard::setButtonStates(bool operationInProgress, bool renewalOpening)
{
    //: Button while the sign-out runs
    m_logout->setText(operationInProgress ? tr("Signing out...") : tr("Sign Out"));
    m_logout->setEnabled(!operationInProgress);
    //: Button while the renewal page opens
    m_renew->setText(renewalOpening ? tr("Opening\u2026") : tr("Renew"));
    m_renew->setEnabled(!operationInProgress && !renewalOpening);
}
