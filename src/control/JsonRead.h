#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The lenient reading rules every record parser shares: a value of the wrong JSON type takes
// the field's default silently; only a body that is not a JSON object is an error.
class JsonRead
{
public:
    static std::optional<QJsonObject> parseObject(const QByteArray &body);

    static QString text(const QJsonObject &object, QLatin1String key);
    // A JSON number that is a whole number fitting the type; otherwise the fallback.
    static int integer(const QJsonObject &object, QLatin1String key, int fallback = 0);
    static qint64 integer64(const QJsonObject &object, QLatin1String key, qint64 fallback = 0);
    static double number(const QJsonObject &object, QLatin1String key);
    static bool boolean(const QJsonObject &object, QLatin1String key);
    static QStringList textList(const QJsonObject &object, QLatin1String key);
    // The value when it is an object, else an empty object.
    static QJsonObject object(const QJsonObject &object, QLatin1String key);
    // The elements of an array that are objects, in order; non-objects are skipped.
    static QList<QJsonObject> objects(const QJsonValue &value);
    // An id given as a string or a number: the string as it stands, a number truncated to a
    // 64-bit whole number in decimal, anything else empty.
    static QString idText(const QJsonValue &value);
};
