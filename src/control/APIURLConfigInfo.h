#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// The service endpoint the daemon is configured to use.
struct APIURLConfigInfo
{
    bool valid = false;
    QString apiURL;
    bool validated = false;

    static APIURLConfigInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const APIURLConfigInfo &, const APIURLConfigInfo &) = default;
};

Q_DECLARE_METATYPE(APIURLConfigInfo)
