#include "CatalogData.h"

namespace {

struct Row
{
    const char *continent;
    const char *region;
    const char *country;
    const char *city;
    int nodes;
    int basePingMs;
};

// clang-format off
const Row Rows[] = {
    {"EU", "DE", "Germany", "Frankfurt", 4, 18}, {"EU", "DE", "Germany", "Berlin", 2, 24},
    {"EU", "DE", "Germany", "Munich", 2, 22},
    {"EU", "NL", "Netherlands", "Amsterdam", 4, 16}, {"EU", "NL", "Netherlands", "Rotterdam", 2, 19},
    {"EU", "GB", "United Kingdom", "London", 4, 21}, {"EU", "GB", "United Kingdom", "Manchester", 2, 26},
    {"EU", "FR", "France", "Paris", 3, 20}, {"EU", "FR", "France", "Marseille", 2, 28},
    {"EU", "CH", "Switzerland", "Zurich", 3, 23}, {"EU", "AT", "Austria", "Vienna", 2, 27},
    {"EU", "BE", "Belgium", "Brussels", 2, 19}, {"EU", "SE", "Sweden", "Stockholm", 3, 34},
    {"EU", "NO", "Norway", "Oslo", 2, 36}, {"EU", "DK", "Denmark", "Copenhagen", 2, 29},
    {"EU", "FI", "Finland", "Helsinki", 2, 41}, {"EU", "PL", "Poland", "Warsaw", 2, 33},
    {"EU", "CZ", "Czechia", "Prague", 2, 27}, {"EU", "ES", "Spain", "Madrid", 2, 38},
    {"EU", "ES", "Spain", "Barcelona", 2, 35}, {"EU", "IT", "Italy", "Milan", 3, 30},
    {"EU", "IT", "Italy", "Rome", 2, 37}, {"EU", "PT", "Portugal", "Lisbon", 2, 45},
    {"EU", "IE", "Ireland", "Dublin", 2, 32}, {"EU", "RO", "Romania", "Bucharest", 2, 47},
    {"EU", "HU", "Hungary", "Budapest", 2, 36}, {"EU", "GR", "Greece", "Athens", 2, 55},
    {"EU", "UA", "Ukraine", "Kyiv", 2, 52}, {"EU", "TR", "Turkey", "Istanbul", 2, 61},
    {"NA", "US", "United States", "New York", 4, 86}, {"NA", "US", "United States", "Chicago", 3, 104},
    {"NA", "US", "United States", "Dallas", 2, 122}, {"NA", "US", "United States", "Los Angeles", 4, 148},
    {"NA", "US", "United States", "Seattle", 2, 152}, {"NA", "US", "United States", "Miami", 2, 112},
    {"NA", "CA", "Canada", "Toronto", 3, 95}, {"NA", "CA", "Canada", "Vancouver", 2, 156},
    {"NA", "CA", "Canada", "Montreal", 2, 91}, {"NA", "MX", "Mexico", "Mexico City", 2, 138},
    {"SA", "BR", "Brazil", "Sao Paulo", 3, 198}, {"SA", "AR", "Argentina", "Buenos Aires", 2, 221},
    {"SA", "CL", "Chile", "Santiago", 2, 226}, {"SA", "CO", "Colombia", "Bogota", 2, 172},
    {"AS", "JP", "Japan", "Tokyo", 4, 228}, {"AS", "JP", "Japan", "Osaka", 2, 236},
    {"AS", "SG", "Singapore", "Singapore", 4, 164}, {"AS", "HK", "Hong Kong", "Hong Kong", 3, 189},
    {"AS", "TW", "Taiwan", "Taipei", 2, 204}, {"AS", "KR", "South Korea", "Seoul", 3, 241},
    {"AS", "IN", "India", "Mumbai", 2, 126}, {"AS", "IN", "India", "Bangalore", 2, 139},
    {"AS", "TH", "Thailand", "Bangkok", 2, 178}, {"AS", "VN", "Vietnam", "Hanoi", 2, 197},
    {"AS", "MY", "Malaysia", "Kuala Lumpur", 2, 171}, {"AS", "ID", "Indonesia", "Jakarta", 2, 183},
    {"AS", "PH", "Philippines", "Manila", 2, 209}, {"AS", "AE", "United Arab Emirates", "Dubai", 2, 98},
    {"AS", "IL", "Israel", "Tel Aviv", 2, 72},
    {"OC", "AU", "Australia", "Sydney", 3, 281}, {"OC", "AU", "Australia", "Melbourne", 2, 289},
    {"OC", "NZ", "New Zealand", "Auckland", 2, 297},
    {"AF", "ZA", "South Africa", "Johannesburg", 2, 171}, {"AF", "EG", "Egypt", "Cairo", 2, 79},
    {"AF", "NG", "Nigeria", "Lagos", 2, 143}, {"AF", "KE", "Kenya", "Nairobi", 2, 154},
};
// clang-format on

QString continentName(const QString &code)
{
    if (code == QLatin1String("EU"))
        return QStringLiteral("Europe");
    if (code == QLatin1String("NA"))
        return QStringLiteral("North America");
    if (code == QLatin1String("SA"))
        return QStringLiteral("South America");
    if (code == QLatin1String("AS"))
        return QStringLiteral("Asia");
    if (code == QLatin1String("OC"))
        return QStringLiteral("Oceania");
    return QStringLiteral("Africa");
}

} // namespace

QList<CatalogData::City> CatalogData::cities()
{
    QList<City> result;
    for (const Row &row : Rows) {
        const QString continent = QString::fromLatin1(row.continent);
        result.append(City{continent, continentName(continent), QString::fromLatin1(row.region),
                           QString::fromUtf8(row.country), QString::fromUtf8(row.city), row.nodes,
                           row.basePingMs});
    }
    return result;
}
