#include "AccountStore.h"

#include <QRandomGenerator>
#include <QUrl>
#include <QUrlQuery>

namespace {

struct Account
{
    const char *email;
    const char *userNumber;
    const char *role;
    int leftDays;
    int maxDevices;
};

const Account Accounts[] = {
    {"demo@tovra.invalid", "81020417", "SVIP", 182, 5},
    {"free@tovra.invalid", "81020988", "Free", 0, 1},
};
const char *const DemoPassword = "demo";

const Account *account(const QString &email)
{
    for (const Account &candidate : Accounts) {
        if (email.compare(QLatin1String(candidate.email), Qt::CaseInsensitive) == 0)
            return &candidate;
    }
    return nullptr;
}

} // namespace

QString AccountStore::login(const QString &username, const QString &password, bool rememberMe,
                            int *status)
{
    if (username.trimmed().isEmpty() || password.isEmpty()) {
        *status = 400;
        return QStringLiteral("Enter account and password.");
    }
    const Account *match = account(username.trimmed());
    if (!match || password != QLatin1String(DemoPassword)) {
        *status = 401;
        return QStringLiteral("Incorrect email or password.");
    }
    m_signedIn = true;
    m_remembered = rememberMe;
    m_restored = false;
    m_email = QString::fromLatin1(match->email);
    m_token = QString::number(QRandomGenerator::global()->generate64(), 16);
    *status = 200;
    return {};
}

bool AccountStore::knows(const QString &username)
{
    return account(username.trimmed()) != nullptr;
}

bool AccountStore::restore(const QString &username)
{
    const Account *match = account(username.trimmed());
    if (!match)
        return false;
    m_signedIn = m_remembered = m_restored = true;
    m_email = QString::fromLatin1(match->email);
    m_token = QString::number(QRandomGenerator::global()->generate64(), 16);
    return true;
}

void AccountStore::logout()
{
    m_signedIn = false;
    m_remembered = false;
    m_restored = false;
    m_email.clear();
    m_token.clear();
}

QString AccountStore::authState() const
{
    if (!m_signedIn)
        return QStringLiteral("logged_out");
    return m_restored ? QStringLiteral("cached") : QStringLiteral("logged_in");
}

bool AccountStore::svip() const
{
    const Account *match = account(m_email);
    return match && QLatin1String(match->role) == QLatin1String("SVIP");
}

QJsonObject AccountStore::userJson() const
{
    const Account *match = account(m_email);
    if (!m_signedIn || !match)
        return {};
    return {{QStringLiteral("email"), QString::fromLatin1(match->email)},
            {QStringLiteral("user_number"), QString::fromLatin1(match->userNumber)},
            {QStringLiteral("role"), QString::fromLatin1(match->role)},
            {QStringLiteral("email_checked"), true},
            {QStringLiteral("left_days"), match->leftDays},
            {QStringLiteral("max_device_count"), match->maxDevices}};
}

QString AccountStore::purchaseUrl(const QString &vendorHost, const QString &lang) const
{
    const Account *match = account(m_email);
    if (!m_signedIn || !match)
        return {};
    QUrl url;
    url.setScheme(QStringLiteral("https"));
    url.setHost(vendorHost);
    url.setPath(QStringLiteral("/purchase"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("lang"), lang);
    query.addQueryItem(QStringLiteral("webAccessToken"), m_token);
    query.addQueryItem(QStringLiteral("account"), QString::fromLatin1(match->userNumber));
    url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}
