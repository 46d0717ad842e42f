#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// A purchase link of the vendor website, accepted only in its one valid shape.
struct PurchaseURLInfo
{
    bool valid = false;
    QString url;

    static PurchaseURLInfo parse(const QByteArray &body, QString *errorOut);
    // The checks a purchase link must pass; vendorHost is the vendor website's host.
    static bool isAcceptedURL(const QString &url, const QString &vendorHost);

    friend bool operator==(const PurchaseURLInfo &, const PurchaseURLInfo &) = default;
};

Q_DECLARE_METATYPE(PurchaseURLInfo)
