#include "Countries.h"

#include <QCoreApplication>
#include <QImage>
#include <QList>
#include <QPixmapCache>
#include <QSet>

#include <iterator>

namespace {

struct CountryRow
{
    const char *code;
    const char *name;
};

// Ordered by English name. The names are translation keys, kept exactly; translations carry
// the polished spellings.
// TODO(catalog): complete the table.
constexpr CountryRow kCountries[] = {
    {"de", QT_TRANSLATE_NOOP("Countries", "Germany")},
    {"gb", QT_TRANSLATE_NOOP("Countries", "United Kingdom")},
    {"us", QT_TRANSLATE_NOOP("Countries", "United States")},
};

struct NameEntry
{
    QString code;
    QString name;
};

const QList<NameEntry> &nameCache()
{
    static const QList<NameEntry> cache = [] {
        QList<NameEntry> entries;
        entries.reserve(int(std::size(kCountries)));
        for (const CountryRow &row : kCountries) {
            entries.append({QString::fromLatin1(row.code),
                            QCoreApplication::translate("Countries", row.name)});
        }
        return entries;
    }();
    return cache;
}

QSet<QString> &insertedFlagKeys()
{
    static QSet<QString> keys;
    return keys;
}

QString normalized(const QString &code)
{
    return code.trimmed().toLower();
}

QString flagKey(const QString &code)
{
    return QStringLiteral("tovra-flag:%1").arg(code);
}

} // namespace

QString countryName(const QString &code)
{
    const QString key = normalized(code);
    for (const NameEntry &entry : nameCache()) {
        if (entry.code == key) {
            return entry.name;
        }
    }
    return key.isEmpty() ? code.trimmed() : key.toUpper();
}

QPixmap countryFlag(const QString &code)
{
    QString key = normalized(code);
    if (key.isEmpty()) {
        return {};
    }
    QPixmap pixmap;
    if (QPixmapCache::find(flagKey(key), &pixmap)) {
        return pixmap;
    }
    QImage image(QStringLiteral(":/flags/%1.png").arg(key));
    if (image.isNull() && key != QLatin1String("unknown")) {
        key = QStringLiteral("unknown");
        if (QPixmapCache::find(flagKey(key), &pixmap)) {
            return pixmap;
        }
        image.load(QStringLiteral(":/flags/unknown.png"));
    }
    if (image.isNull()) {
        return {};
    }
    pixmap = QPixmap::fromImage(image);
    // Flags are drawn 24 logical pixels wide; wider pictures serve dense screens.
    const qreal ratio = pixmap.width() / 24.0;
    if (ratio > 1.0) {
        pixmap.setDevicePixelRatio(ratio);
    }
    QPixmapCache::insert(flagKey(key), pixmap);
    insertedFlagKeys().insert(flagKey(key));
    return pixmap;
}

void clearFlagCache()
{
    for (const QString &key : std::as_const(insertedFlagKeys())) {
        QPixmapCache::remove(key);
    }
    insertedFlagKeys().clear();
}

QStringList countryCodes()
{
    QStringList codes;
    codes.reserve(int(std::size(kCountries)));
    for (const CountryRow &row : kCountries) {
        codes.append(QString::fromLatin1(row.code));
    }
    return codes;
}
