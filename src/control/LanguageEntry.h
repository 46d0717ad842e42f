#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>

// One language the daemon supports.
struct LanguageEntry
{
    QString code;
    QString name;

    static LanguageEntry fromJson(const QJsonObject &object);

    friend bool operator==(const LanguageEntry &, const LanguageEntry &) = default;
};

Q_DECLARE_METATYPE(LanguageEntry)
