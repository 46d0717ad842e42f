#include "CatalogFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString cityCode(const QString &city)
{
    return city.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

QJsonObject nodeObject(const CatalogFixture::Node &node)
{
    QJsonArray tags{node.svip ? QStringLiteral("SVIP") : QStringLiteral("FREE")};
    for (const QString &feature : node.features)
        tags.append(feature);
    if (node.favorite)
        tags.append(QStringLiteral("FAVORITE"));
    QJsonObject object{
        {QStringLiteral("id"), node.id.toLongLong()},
        {QStringLiteral("name"), node.name},
        {QStringLiteral("tags"), tags},
        {QStringLiteral("region"), node.region},
        {QStringLiteral("type"), node.svip ? QStringLiteral("svip") : QStringLiteral("free")}};
    if (node.pingMs >= 0) {
        object.insert(QStringLiteral("pingMs"), node.pingMs);
        object.insert(QStringLiteral("signalLevel"), node.pingMs < 100 ? 4 : 2);
    }
    return object;
}

QJsonObject group(const QString &id, const QString &name, const QString &code, int level, int rank)
{
    return {{QStringLiteral("id"), id},
            {QStringLiteral("name"), name},
            {QStringLiteral("code"), code},
            {QStringLiteral("level"), level},
            {QStringLiteral("rank"), rank},
            {QStringLiteral("node_ids"), QJsonArray()},
            {QStringLiteral("subgroups"), QJsonArray()}};
}

} // namespace

CatalogFixture::Node *CatalogFixture::find(const QString &id)
{
    for (Node &node : nodes) {
        if (node.id == id)
            return &node;
    }
    return nullptr;
}

void CatalogFixture::setPings(int offset)
{
    for (qsizetype i = 0; i < nodes.size(); ++i)
        nodes[i].pingMs = int(20 + (i * 37 + offset) % 280);
}

QByteArray CatalogFixture::nodesJson() const
{
    QJsonArray list;
    QJsonObject connected;
    for (const Node &node : nodes) {
        list.append(nodeObject(node));
        if (node.id == connectedId)
            connected = nodeObject(node);
    }
    const QJsonObject body{{QStringLiteral("stale"), stale},
                           {QStringLiteral("pingRunning"), false},
                           {QStringLiteral("nodes"), list},
                           {QStringLiteral("selected"), connected},
                           {QStringLiteral("connected"), connected}};
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

QByteArray CatalogFixture::groupsJson() const
{
    // Nodes of one city are neighbours in the list, as the daemon keeps them.
    QJsonArray continents;
    QJsonObject continent, country, city;
    QJsonArray countries, cities, ids;
    QString lastContinent, lastRegion, lastCity;
    const auto closeCity = [&] {
        if (city.isEmpty())
            return;
        city.insert(QStringLiteral("node_ids"), ids);
        cities.append(city);
        city = {};
        ids = {};
    };
    const auto closeCountry = [&] {
        closeCity();
        if (country.isEmpty())
            return;
        country.insert(QStringLiteral("subgroups"), cities);
        countries.append(country);
        country = {};
        cities = {};
    };
    const auto closeContinent = [&] {
        closeCountry();
        if (continent.isEmpty())
            return;
        continent.insert(QStringLiteral("subgroups"), countries);
        continents.append(continent);
        continent = {};
        countries = {};
    };
    QJsonArray all, free, svip, favorite;
    for (const Node &node : nodes) {
        if (node.continent != lastContinent) {
            closeContinent();
            lastContinent = node.continent;
            lastRegion.clear();
            continent = group(QStringLiteral("continent:%1").arg(node.continent.toLower()),
                              node.continent + QStringLiteral(" land"), node.continent, 1,
                              int(continents.size()) + 1);
        }
        if (node.region != lastRegion) {
            closeCountry();
            lastRegion = node.region;
            lastCity.clear();
            country = group(QStringLiteral("country:%1").arg(node.region.toLower()), node.country,
                            node.region, 2, int(countries.size()) + 1);
        }
        if (node.city != lastCity) {
            closeCity();
            lastCity = node.city;
            city =
                group(QStringLiteral("city:%1:%2").arg(node.region.toLower(), cityCode(node.city)),
                      node.city, cityCode(node.city), 3, int(cities.size()) + 1);
        }
        ids.append(node.id);
        all.append(node.id);
        (node.svip ? svip : free).append(node.id);
        if (node.favorite)
            favorite.append(node.id);
    }
    closeContinent();
    const auto tab = [](const QString &type, const QJsonArray &tabIds) {
        return QJsonObject{{QStringLiteral("group_type"), type},
                           {QStringLiteral("node_ids"), tabIds}};
    };
    const QJsonObject body{
        {QStringLiteral("stale"), stale},
        {QStringLiteral("tabs"),
         QJsonArray{tab(QStringLiteral("all"), all), tab(QStringLiteral("free"), free),
                    tab(QStringLiteral("svip"), svip), tab(QStringLiteral("favorite"), favorite)}},
        {QStringLiteral("groups"), continents}};
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

CatalogFixture CatalogFixture::small()
{
    struct City
    {
        const char *continent, *region, *country, *city;
        int count;
    };
    static const City cities[] = {{"EU", "DE", "Germany", "Frankfurt", 3},
                                  {"EU", "DE", "Germany", "Berlin", 2},
                                  {"EU", "GB", "United Kingdom", "London", 3},
                                  {"EU", "CH", "Switzerland", "Zurich", 2},
                                  {"NA", "US", "United States", "New York", 3},
                                  {"NA", "US", "United States", "Los Angeles", 2},
                                  {"NA", "CA", "Canada", "Toronto", 2},
                                  {"AS", "JP", "Japan", "Tokyo", 3},
                                  {"AS", "RU", "Russian Federation", "Moscow", 2}};
    CatalogFixture fixture;
    int id = 1001;
    int cityIndex = 0;
    for (const City &city : cities) {
        for (int k = 0; k < city.count; ++k) {
            Node node;
            node.id = QString::number(id++);
            node.name = QStringLiteral("%1 %2")
                            .arg(QString::fromUtf8(city.city))
                            .arg(k + 1, 2, 10, QLatin1Char('0'));
            node.continent = QString::fromLatin1(city.continent);
            node.region = QString::fromLatin1(city.region);
            node.country = QString::fromUtf8(city.country);
            node.city = QString::fromUtf8(city.city);
            node.svip = !(k == 0 && cityIndex % 2 == 0);
            if (k == 1)
                node.features.append(QStringLiteral("P2P"));
            fixture.nodes.append(node);
        }
        ++cityIndex;
    }
    return fixture;
}
