#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// The signed-in account.
struct UserInfo
{
    bool valid = false;
    QString email;
    QString userNumber;
    QString role;
    bool emailChecked = false;
    int leftDays = 0;
    int maxDeviceCount = 0;

    static UserInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const UserInfo &, const UserInfo &) = default;
};

Q_DECLARE_METATYPE(UserInfo)
