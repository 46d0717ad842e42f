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
constexpr CountryRow kCountries[] = {
    {"af", QT_TRANSLATE_NOOP("Countries", "Afghanistan")},
    {"ax", QT_TRANSLATE_NOOP("Countries", "Land Islands")},
    {"al", QT_TRANSLATE_NOOP("Countries", "Albania")},
    {"dz", QT_TRANSLATE_NOOP("Countries", "Algeria")},
    {"as", QT_TRANSLATE_NOOP("Countries", "American Samoa")},
    {"ad", QT_TRANSLATE_NOOP("Countries", "Andorra")},
    {"ao", QT_TRANSLATE_NOOP("Countries", "Angola")},
    {"ai", QT_TRANSLATE_NOOP("Countries", "Anguilla")},
    {"ag", QT_TRANSLATE_NOOP("Countries", "Antigua and Barbuda")},
    {"ar", QT_TRANSLATE_NOOP("Countries", "Argentina")},
    {"am", QT_TRANSLATE_NOOP("Countries", "Armenia")},
    {"aw", QT_TRANSLATE_NOOP("Countries", "Aruba")},
    {"au", QT_TRANSLATE_NOOP("Countries", "Australia")},
    {"at", QT_TRANSLATE_NOOP("Countries", "Austria")},
    {"az", QT_TRANSLATE_NOOP("Countries", "Azerbaijan")},
    {"bs", QT_TRANSLATE_NOOP("Countries", "Bahamas")},
    {"bh", QT_TRANSLATE_NOOP("Countries", "Bahrain")},
    {"bd", QT_TRANSLATE_NOOP("Countries", "Bangladesh")},
    {"bb", QT_TRANSLATE_NOOP("Countries", "Barbados")},
    {"by", QT_TRANSLATE_NOOP("Countries", "Belarus")},
    {"be", QT_TRANSLATE_NOOP("Countries", "Belgium")},
    {"bz", QT_TRANSLATE_NOOP("Countries", "Belize")},
    {"bj", QT_TRANSLATE_NOOP("Countries", "Benin")},
    {"bm", QT_TRANSLATE_NOOP("Countries", "Bermuda")},
    {"bt", QT_TRANSLATE_NOOP("Countries", "Bhutan")},
    {"bo", QT_TRANSLATE_NOOP("Countries", "Bolivia")},
    {"ba", QT_TRANSLATE_NOOP("Countries", "Bosnia and Herzegovina")},
    {"bw", QT_TRANSLATE_NOOP("Countries", "Botswana")},
    {"br", QT_TRANSLATE_NOOP("Countries", "Brazil")},
    {"bn", QT_TRANSLATE_NOOP("Countries", "Brunei Darussalam")},
    {"bg", QT_TRANSLATE_NOOP("Countries", "Bulgaria")},
    {"bf", QT_TRANSLATE_NOOP("Countries", "Burkina Faso")},
    {"bi", QT_TRANSLATE_NOOP("Countries", "Burundi")},
    {"kh", QT_TRANSLATE_NOOP("Countries", "Cambodia")},
    {"cm", QT_TRANSLATE_NOOP("Countries", "Cameroon")},
    {"ca", QT_TRANSLATE_NOOP("Countries", "Canada")},
    {"cv", QT_TRANSLATE_NOOP("Countries", "Cape Verde")},
    {"ky", QT_TRANSLATE_NOOP("Countries", "Cayman Islands")},
    {"cf", QT_TRANSLATE_NOOP("Countries", "Central African Republic")},
    {"td", QT_TRANSLATE_NOOP("Countries", "Chad")},
    {"cl", QT_TRANSLATE_NOOP("Countries", "Chile")},
    {"cn", QT_TRANSLATE_NOOP("Countries", "China")},
    {"co", QT_TRANSLATE_NOOP("Countries", "Colombia")},
    {"km", QT_TRANSLATE_NOOP("Countries", "Comoros")},
    {"cg", QT_TRANSLATE_NOOP("Countries", "Congo")},
    {"cd", QT_TRANSLATE_NOOP("Countries", "Congo, The Democratic Republic of the")},
    {"ck", QT_TRANSLATE_NOOP("Countries", "Cook Islands")},
    {"cr", QT_TRANSLATE_NOOP("Countries", "Costa Rica")},
    {"ci", QT_TRANSLATE_NOOP("Countries", "Cote D'Ivoire")},
    {"hr", QT_TRANSLATE_NOOP("Countries", "Croatia")},
    {"cu", QT_TRANSLATE_NOOP("Countries", "Cuba")},
    {"cy", QT_TRANSLATE_NOOP("Countries", "Cyprus")},
    {"cz", QT_TRANSLATE_NOOP("Countries", "Czech Republic")},
    {"dk", QT_TRANSLATE_NOOP("Countries", "Denmark")},
    {"dj", QT_TRANSLATE_NOOP("Countries", "Djibouti")},
    {"dm", QT_TRANSLATE_NOOP("Countries", "Dominica")},
    {"do", QT_TRANSLATE_NOOP("Countries", "Dominican Republic")},
    {"ec", QT_TRANSLATE_NOOP("Countries", "Ecuador")},
    {"eg", QT_TRANSLATE_NOOP("Countries", "Egypt")},
    {"sv", QT_TRANSLATE_NOOP("Countries", "El Salvador")},
    {"gq", QT_TRANSLATE_NOOP("Countries", "Equatorial Guinea")},
    {"er", QT_TRANSLATE_NOOP("Countries", "Eritrea")},
    {"ee", QT_TRANSLATE_NOOP("Countries", "Estonia")},
    {"et", QT_TRANSLATE_NOOP("Countries", "Ethiopia")},
    {"fk", QT_TRANSLATE_NOOP("Countries", "Falkland Islands (Malvinas)")},
    {"fo", QT_TRANSLATE_NOOP("Countries", "Faroe Islands")},
    {"fj", QT_TRANSLATE_NOOP("Countries", "Fiji")},
    {"fi", QT_TRANSLATE_NOOP("Countries", "Finland")},
    {"fr", QT_TRANSLATE_NOOP("Countries", "France")},
    {"gf", QT_TRANSLATE_NOOP("Countries", "French Guiana")},
    {"pf", QT_TRANSLATE_NOOP("Countries", "French Polynesia")},
    {"ga", QT_TRANSLATE_NOOP("Countries", "Gabon")},
    {"gm", QT_TRANSLATE_NOOP("Countries", "Gambia")},
    {"ge", QT_TRANSLATE_NOOP("Countries", "Georgia")},
    {"de", QT_TRANSLATE_NOOP("Countries", "Germany")},
    {"gh", QT_TRANSLATE_NOOP("Countries", "Ghana")},
    {"gi", QT_TRANSLATE_NOOP("Countries", "Gibraltar")},
    {"gr", QT_TRANSLATE_NOOP("Countries", "Greece")},
    {"gl", QT_TRANSLATE_NOOP("Countries", "Greenland")},
    {"gd", QT_TRANSLATE_NOOP("Countries", "Grenada")},
    {"gp", QT_TRANSLATE_NOOP("Countries", "Guadeloupe")},
    {"gu", QT_TRANSLATE_NOOP("Countries", "Guam")},
    {"gt", QT_TRANSLATE_NOOP("Countries", "Guatemala")},
    {"gg", QT_TRANSLATE_NOOP("Countries", "Guernsey")},
    {"gn", QT_TRANSLATE_NOOP("Countries", "Guinea")},
    {"gw", QT_TRANSLATE_NOOP("Countries", "Guinea-Bissau")},
    {"gy", QT_TRANSLATE_NOOP("Countries", "Guyana")},
    {"ht", QT_TRANSLATE_NOOP("Countries", "Haiti")},
    {"va", QT_TRANSLATE_NOOP("Countries", "Holy See (Vatican City State)")},
    {"hn", QT_TRANSLATE_NOOP("Countries", "Honduras")},
    {"hk", QT_TRANSLATE_NOOP("Countries", "Hong Kong (China)")},
    {"hu", QT_TRANSLATE_NOOP("Countries", "Hungary")},
    {"is", QT_TRANSLATE_NOOP("Countries", "Iceland")},
    {"in", QT_TRANSLATE_NOOP("Countries", "India")},
    {"id", QT_TRANSLATE_NOOP("Countries", "Indonesia")},
    {"ir", QT_TRANSLATE_NOOP("Countries", "Iran, Islamic Republic of")},
    {"iq", QT_TRANSLATE_NOOP("Countries", "Iraq")},
    {"ie", QT_TRANSLATE_NOOP("Countries", "Ireland")},
    {"im", QT_TRANSLATE_NOOP("Countries", "Isle of Man")},
    {"il", QT_TRANSLATE_NOOP("Countries", "Israel")},
    {"it", QT_TRANSLATE_NOOP("Countries", "Italy")},
    {"jm", QT_TRANSLATE_NOOP("Countries", "Jamaica")},
    {"jp", QT_TRANSLATE_NOOP("Countries", "Japan")},
    {"je", QT_TRANSLATE_NOOP("Countries", "Jersey")},
    {"jo", QT_TRANSLATE_NOOP("Countries", "Jordan")},
    {"kz", QT_TRANSLATE_NOOP("Countries", "Kazakhstan")},
    {"ke", QT_TRANSLATE_NOOP("Countries", "Kenya")},
    {"ki", QT_TRANSLATE_NOOP("Countries", "Kiribati")},
    {"kp", QT_TRANSLATE_NOOP("Countries", "Korea, Democratic People'S Republic of")},
    {"kr", QT_TRANSLATE_NOOP("Countries", "Korea, Republic of")},
    {"kw", QT_TRANSLATE_NOOP("Countries", "Kuwait")},
    {"kg", QT_TRANSLATE_NOOP("Countries", "Kyrgyzstan")},
    {"la", QT_TRANSLATE_NOOP("Countries", "Lao People'S Democratic Republic")},
    {"lv", QT_TRANSLATE_NOOP("Countries", "Latvia")},
    {"lb", QT_TRANSLATE_NOOP("Countries", "Lebanon")},
    {"ls", QT_TRANSLATE_NOOP("Countries", "Lesotho")},
    {"lr", QT_TRANSLATE_NOOP("Countries", "Liberia")},
    {"ly", QT_TRANSLATE_NOOP("Countries", "Libyan Arab Jamahiriya")},
    {"li", QT_TRANSLATE_NOOP("Countries", "Liechtenstein")},
    {"lt", QT_TRANSLATE_NOOP("Countries", "Lithuania")},
    {"lu", QT_TRANSLATE_NOOP("Countries", "Luxembourg")},
    {"mo", QT_TRANSLATE_NOOP("Countries", "Macao (China)")},
    {"mk", QT_TRANSLATE_NOOP("Countries", "Macedonia, The Former Yugoslav Republic of")},
    {"mg", QT_TRANSLATE_NOOP("Countries", "Madagascar")},
    {"mw", QT_TRANSLATE_NOOP("Countries", "Malawi")},
    {"my", QT_TRANSLATE_NOOP("Countries", "Malaysia")},
    {"mv", QT_TRANSLATE_NOOP("Countries", "Maldives")},
    {"ml", QT_TRANSLATE_NOOP("Countries", "Mali")},
    {"mt", QT_TRANSLATE_NOOP("Countries", "Malta")},
    {"mh", QT_TRANSLATE_NOOP("Countries", "Marshall Islands")},
    {"mq", QT_TRANSLATE_NOOP("Countries", "Martinique")},
    {"mr", QT_TRANSLATE_NOOP("Countries", "Mauritania")},
    {"mu", QT_TRANSLATE_NOOP("Countries", "Mauritius")},
    {"yt", QT_TRANSLATE_NOOP("Countries", "Mayotte")},
    {"mx", QT_TRANSLATE_NOOP("Countries", "Mexico")},
    {"fm", QT_TRANSLATE_NOOP("Countries", "Micronesia, Federated States of")},
    {"md", QT_TRANSLATE_NOOP("Countries", "Moldova, Republic of")},
    {"mc", QT_TRANSLATE_NOOP("Countries", "Monaco")},
    {"mn", QT_TRANSLATE_NOOP("Countries", "Mongolia")},
    {"me", QT_TRANSLATE_NOOP("Countries", "Montenegro")},
    {"ms", QT_TRANSLATE_NOOP("Countries", "Montserrat")},
    {"ma", QT_TRANSLATE_NOOP("Countries", "Morocco")},
    {"mz", QT_TRANSLATE_NOOP("Countries", "Mozambique")},
    {"mm", QT_TRANSLATE_NOOP("Countries", "Myanmar")},
    {"na", QT_TRANSLATE_NOOP("Countries", "Namibia")},
    {"nr", QT_TRANSLATE_NOOP("Countries", "Nauru")},
    {"np", QT_TRANSLATE_NOOP("Countries", "Nepal")},
    {"nl", QT_TRANSLATE_NOOP("Countries", "Netherlands")},
    {"nc", QT_TRANSLATE_NOOP("Countries", "New Caledonia")},
    {"nz", QT_TRANSLATE_NOOP("Countries", "New Zealand")},
    {"ni", QT_TRANSLATE_NOOP("Countries", "Nicaragua")},
    {"ne", QT_TRANSLATE_NOOP("Countries", "Niger")},
    {"ng", QT_TRANSLATE_NOOP("Countries", "Nigeria")},
    {"nu", QT_TRANSLATE_NOOP("Countries", "Niue")},
    {"nf", QT_TRANSLATE_NOOP("Countries", "Norfolk Island")},
    {"mp", QT_TRANSLATE_NOOP("Countries", "Northern Mariana Islands")},
    {"no", QT_TRANSLATE_NOOP("Countries", "Norway")},
    {"om", QT_TRANSLATE_NOOP("Countries", "Oman")},
    {"pk", QT_TRANSLATE_NOOP("Countries", "Pakistan")},
    {"pw", QT_TRANSLATE_NOOP("Countries", "Palau")},
    {"ps", QT_TRANSLATE_NOOP("Countries", "Palestinian Territory, Occupied")},
    {"pa", QT_TRANSLATE_NOOP("Countries", "Panama")},
    {"pg", QT_TRANSLATE_NOOP("Countries", "Papua New Guinea")},
    {"py", QT_TRANSLATE_NOOP("Countries", "Paraguay")},
    {"pe", QT_TRANSLATE_NOOP("Countries", "Peru")},
    {"ph", QT_TRANSLATE_NOOP("Countries", "Philippines")},
    {"pl", QT_TRANSLATE_NOOP("Countries", "Poland")},
    {"pt", QT_TRANSLATE_NOOP("Countries", "Portugal")},
    {"pr", QT_TRANSLATE_NOOP("Countries", "Puerto Rico")},
    {"qa", QT_TRANSLATE_NOOP("Countries", "Qatar")},
    {"re", QT_TRANSLATE_NOOP("Countries", "Reunion")},
    {"ro", QT_TRANSLATE_NOOP("Countries", "Romania")},
    {"ru", QT_TRANSLATE_NOOP("Countries", "Russian Federation")},
    {"rw", QT_TRANSLATE_NOOP("Countries", "Rwanda")},
    {"sh", QT_TRANSLATE_NOOP("Countries", "Saint Helena")},
    {"kn", QT_TRANSLATE_NOOP("Countries", "Saint Kitts and Nevis")},
    {"lc", QT_TRANSLATE_NOOP("Countries", "Saint Lucia")},
    {"pm", QT_TRANSLATE_NOOP("Countries", "Saint Pierre and Miquelon")},
    {"vc", QT_TRANSLATE_NOOP("Countries", "Saint Vincent and the Grenadines")},
    {"ws", QT_TRANSLATE_NOOP("Countries", "Samoa")},
    {"sm", QT_TRANSLATE_NOOP("Countries", "San Marino")},
    {"st", QT_TRANSLATE_NOOP("Countries", "Sao Tome and Principe")},
    {"sa", QT_TRANSLATE_NOOP("Countries", "Saudi Arabia")},
    {"sn", QT_TRANSLATE_NOOP("Countries", "Senegal")},
    {"rs", QT_TRANSLATE_NOOP("Countries", "Serbia")},
    {"sc", QT_TRANSLATE_NOOP("Countries", "Seychelles")},
    {"sl", QT_TRANSLATE_NOOP("Countries", "Sierra Leone")},
    {"sg", QT_TRANSLATE_NOOP("Countries", "Singapore")},
    {"sk", QT_TRANSLATE_NOOP("Countries", "Slovakia")},
    {"si", QT_TRANSLATE_NOOP("Countries", "Slovenia")},
    {"sb", QT_TRANSLATE_NOOP("Countries", "Solomon Islands")},
    {"so", QT_TRANSLATE_NOOP("Countries", "Somalia")},
    {"za", QT_TRANSLATE_NOOP("Countries", "South Africa")},
    {"ss", QT_TRANSLATE_NOOP("Countries", "South Sudan")},
    {"es", QT_TRANSLATE_NOOP("Countries", "Spain")},
    {"lk", QT_TRANSLATE_NOOP("Countries", "Sri Lanka")},
    {"sd", QT_TRANSLATE_NOOP("Countries", "Sudan")},
    {"sr", QT_TRANSLATE_NOOP("Countries", "Suriname")},
    {"sz", QT_TRANSLATE_NOOP("Countries", "Swaziland")},
    {"se", QT_TRANSLATE_NOOP("Countries", "Sweden")},
    {"ch", QT_TRANSLATE_NOOP("Countries", "Switzerland")},
    {"sy", QT_TRANSLATE_NOOP("Countries", "Syrian Arab Republic")},
    {"tw", QT_TRANSLATE_NOOP("Countries", "Taiwan (China)")},
    {"tj", QT_TRANSLATE_NOOP("Countries", "Tajikistan")},
    {"tz", QT_TRANSLATE_NOOP("Countries", "Tanzania, United Republic of")},
    {"th", QT_TRANSLATE_NOOP("Countries", "Thailand")},
    {"tl", QT_TRANSLATE_NOOP("Countries", "Timor-Leste")},
    {"tg", QT_TRANSLATE_NOOP("Countries", "Togo")},
    {"tk", QT_TRANSLATE_NOOP("Countries", "Tokelau")},
    {"to", QT_TRANSLATE_NOOP("Countries", "Tonga")},
    {"tt", QT_TRANSLATE_NOOP("Countries", "Trinidad and Tobago")},
    {"tn", QT_TRANSLATE_NOOP("Countries", "Tunisia")},
    {"tr", QT_TRANSLATE_NOOP("Countries", "Turkey")},
    {"tm", QT_TRANSLATE_NOOP("Countries", "Turkmenistan")},
    {"tc", QT_TRANSLATE_NOOP("Countries", "Turks and Caicos Islands")},
    {"tv", QT_TRANSLATE_NOOP("Countries", "Tuvalu")},
    {"ug", QT_TRANSLATE_NOOP("Countries", "Uganda")},
    {"ua", QT_TRANSLATE_NOOP("Countries", "Ukraine")},
    {"ae", QT_TRANSLATE_NOOP("Countries", "United Arab Emirates")},
    {"gb", QT_TRANSLATE_NOOP("Countries", "United Kingdom")},
    {"us", QT_TRANSLATE_NOOP("Countries", "United States")},
    {"uy", QT_TRANSLATE_NOOP("Countries", "Uruguay")},
    {"uz", QT_TRANSLATE_NOOP("Countries", "Uzbekistan")},
    {"vu", QT_TRANSLATE_NOOP("Countries", "Vanuatu")},
    {"ve", QT_TRANSLATE_NOOP("Countries", "Venezuela")},
    {"vn", QT_TRANSLATE_NOOP("Countries", "Viet Nam")},
    {"vg", QT_TRANSLATE_NOOP("Countries", "Virgin Islands, British")},
    {"vi", QT_TRANSLATE_NOOP("Countries", "Virgin Islands, U.S.")},
    {"wf", QT_TRANSLATE_NOOP("Countries", "Wallis and Futuna")},
    {"eh", QT_TRANSLATE_NOOP("Countries", "Western Sahara")},
    {"ye", QT_TRANSLATE_NOOP("Countries", "Yemen")},
    {"zm", QT_TRANSLATE_NOOP("Countries", "Zambia")},
    {"zw", QT_TRANSLATE_NOOP("Countries", "Zimbabwe")},
};
static_assert(std::size(kCountries) == 233);

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

// Codes with no flag of their own, so that their next lookup goes straight to the fallback
// instead of searching the resources again.
QSet<QString> &codesWithoutFlag()
{
    static QSet<QString> codes;
    return codes;
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

QString countryEnglishName(const QString &code)
{
    const QString key = normalized(code);
    for (const CountryRow &row : kCountries) {
        if (key == QLatin1String(row.code)) {
            return QString::fromLatin1(row.name);
        }
    }
    return {};
}

QString continentName(const QString &name)
{
    static const char *const kContinents[] = {
        QT_TRANSLATE_NOOP("Continents", "Africa"),
        QT_TRANSLATE_NOOP("Continents", "Antarctica"),
        QT_TRANSLATE_NOOP("Continents", "Asia"),
        QT_TRANSLATE_NOOP("Continents", "Europe"),
        QT_TRANSLATE_NOOP("Continents", "Middle East"),
        QT_TRANSLATE_NOOP("Continents", "North America"),
        QT_TRANSLATE_NOOP("Continents", "Oceania"),
        QT_TRANSLATE_NOOP("Continents", "South America"),
    };
    const QString trimmed = name.trimmed();
    for (const char *continent : kContinents) {
        if (trimmed.compare(QLatin1String(continent), Qt::CaseInsensitive) == 0)
            return QCoreApplication::translate("Continents", continent);
    }
    return trimmed;
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
    QImage image;
    if (!codesWithoutFlag().contains(key))
        image.load(QStringLiteral(":/flags/%1.png").arg(key));
    if (image.isNull() && key != QLatin1String("unknown")) {
        codesWithoutFlag().insert(key);
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

QPixmap countryFlag(const QString &code, qreal devicePixelRatio)
{
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const QSize wanted(qRound(24 * ratio), qRound(16 * ratio));
    // The common case costs one lookup: the resource already has the wanted pixels.
    const QPixmap source = countryFlag(code);
    if (source.isNull() || source.size() == wanted)
        return source;
    const QString key = flagKey(normalized(code)) + QLatin1Char('@') + QString::number(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap::fromImage(
        source.toImage().scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, pixmap);
    insertedFlagKeys().insert(key);
    return pixmap;
}

void clearFlagCache()
{
    for (const QString &key : std::as_const(insertedFlagKeys())) {
        QPixmapCache::remove(key);
    }
    insertedFlagKeys().clear();
    codesWithoutFlag().clear();
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
