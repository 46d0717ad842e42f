#include "JsonRead.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <limits>

std::optional<QJsonObject> JsonRead::parseObject(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

QString JsonRead::text(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isString() ? value.toString() : QString();
}

int JsonRead::integer(const QJsonObject &object, QLatin1String key, int fallback)
{
    const QJsonValue value = object.value(key);
    if (!value.isDouble())
        return fallback;
    const double number = value.toDouble();
    if (std::trunc(number) != number || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max())
        return fallback;
    return int(number);
}

qint64 JsonRead::integer64(const QJsonObject &object, QLatin1String key, qint64 fallback)
{
    const QJsonValue value = object.value(key);
    if (!value.isDouble())
        return fallback;
    return value.toInteger(fallback);
}

double JsonRead::number(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isDouble() ? value.toDouble() : 0.0;
}

bool JsonRead::boolean(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isBool() && value.toBool();
}

QStringList JsonRead::textList(const QJsonObject &object, QLatin1String key)
{
    QStringList list;
    const QJsonValue value = object.value(key);
    if (!value.isArray())
        return list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        if (element.isString())
            list.append(element.toString());
    }
    return list;
}

QJsonObject JsonRead::object(const QJsonObject &object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isObject() ? value.toObject() : QJsonObject();
}

QList<QJsonObject> JsonRead::objects(const QJsonValue &value)
{
    QList<QJsonObject> list;
    if (!value.isArray())
        return list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        if (element.isObject())
            list.append(element.toObject());
    }
    return list;
}

QString JsonRead::idText(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    if (value.isDouble()) {
        const double number = std::trunc(value.toDouble());
        // Out-of-range numbers cannot be a 64-bit whole number; clamp rather than overflow.
        if (!(number >= -9.2233720368547758e18 && number < 9.2233720368547758e18))
            return QString();
        return QString::number(qint64(number));
    }
    return QString();
}
