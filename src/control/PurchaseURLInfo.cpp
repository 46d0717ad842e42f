#include "PurchaseURLInfo.h"

#include "JsonRead.h"

#include <QUrl>
#include <QUrlQuery>

bool PurchaseURLInfo::isAcceptedURL(const QString &url, const QString &vendorHost)
{
    const QUrl parsed(url, QUrl::StrictMode);
    if (!parsed.isValid() || parsed.scheme() != QLatin1String("https") ||
        parsed.host() != vendorHost || parsed.path() != QLatin1String("/purchase") ||
        !parsed.userInfo().isEmpty() || parsed.port() != -1 || parsed.hasFragment())
        return false;
    const QUrlQuery query(parsed);
    for (const char *key : {"lang", "webAccessToken", "account"}) {
        const QStringList values = query.allQueryItemValues(QLatin1String(key), QUrl::FullyDecoded);
        if (values.size() != 1 || values.constFirst().trimmed().isEmpty())
            return false;
    }
    return true;
}

PurchaseURLInfo PurchaseURLInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid purchase URL JSON");
        return PurchaseURLInfo();
    }
    const QString url = JsonRead::text(*object, QLatin1String("url"));
    if (!isAcceptedURL(url, QStringLiteral(TOVRA_VENDOR_HOST))) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid purchase URL");
        return PurchaseURLInfo();
    }
    PurchaseURLInfo info;
    info.valid = true;
    info.url = url;
    return info;
}
