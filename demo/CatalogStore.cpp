#include "CatalogStore.h"

#include "CatalogData.h"

#include <QRandomGenerator>

#include <algorithm>

namespace {

constexpr int NodesPerTick = 8;
constexpr int PingTickMs = 100;

int signalLevel(int pingMs)
{
    if (pingMs < 0)
        return -1;
    if (pingMs < 60)
        return 4;
    if (pingMs < 120)
        return 3;
    if (pingMs < 200)
        return 2;
    return 1;
}

QString cityCode(const QString &city)
{
    QString code = city.toLower();
    code.replace(QLatin1Char(' '), QLatin1Char('-'));
    return code;
}

} // namespace

CatalogStore::CatalogStore(int size, QObject *parent)
    : QObject(parent)
{
    const QList<CatalogData::City> cities = CatalogData::cities();
    qint64 nextId = 1001;
    for (qsizetype c = 0; c < cities.size(); ++c) {
        const CatalogData::City &city = cities.at(c);
        const qsizetype count =
            size <= 0 ? city.nodes : size / cities.size() + (c < size % cities.size() ? 1 : 0);
        for (int k = 0; k < count; ++k) {
            Node node;
            node.id = nextId++;
            node.name = QStringLiteral("%1 %2").arg(city.name).arg(k + 1, 2, 10, QLatin1Char('0'));
            node.region = city.region;
            node.continent = city.continentCode;
            node.continentName = city.continentName;
            node.country = city.country;
            node.city = city.name;
            // The free tier is a thin slice: the first node of every other city.
            node.svip = !(k == 0 && c % 2 == 0);
            if (k == 1)
                node.features.append(QStringLiteral("P2P"));
            if (k == count - 1 && count > 2)
                node.features.append(QStringLiteral("STREAMING"));
            node.basePingMs = city.basePingMs + k * 3;
            m_nodes.append(node);
        }
    }
    m_pingTimer.setInterval(PingTickMs);
    connect(&m_pingTimer, &QTimer::timeout, this, &CatalogStore::measureSome);
    // A starting daemon measures its catalogue once, like after a refresh.
    refresh();
}

const CatalogStore::Node *CatalogStore::node(qint64 id) const
{
    for (const Node &candidate : m_nodes) {
        if (candidate.id == id)
            return &candidate;
    }
    return nullptr;
}

const CatalogStore::Node *CatalogStore::nodeFromJson(const QJsonValue &id) const
{
    if (id.isDouble()) {
        // Out-of-range numbers must not reach the integer conversion.
        const double number = id.toDouble();
        return number >= 0 && number < 1e15 ? node(qint64(number)) : nullptr;
    }
    bool ok = false;
    const qint64 number = id.toString().trimmed().toLongLong(&ok);
    return ok ? node(number) : nullptr;
}

bool CatalogStore::setFavorite(qint64 id, bool favorite)
{
    for (Node &candidate : m_nodes) {
        if (candidate.id == id) {
            candidate.favorite = favorite;
            return true;
        }
    }
    return false;
}

void CatalogStore::refresh()
{
    for (Node &candidate : m_nodes)
        candidate.pingMs = -1;
    m_pingCursor = 0;
    m_pingTimer.start();
}

void CatalogStore::measureSome()
{
    for (int i = 0; i < NodesPerTick && m_pingCursor < m_nodes.size(); ++i, ++m_pingCursor) {
        Node &target = m_nodes[m_pingCursor];
        const int jitter = int(QRandomGenerator::global()->bounded(target.basePingMs / 5 + 3));
        target.pingMs = target.basePingMs + jitter;
    }
    if (m_pingCursor >= m_nodes.size())
        m_pingTimer.stop();
}

QList<qint64> CatalogStore::allNodeIds() const
{
    QList<qint64> ids;
    for (const Node &candidate : m_nodes)
        ids.append(candidate.id);
    return ids;
}

QList<qint64> CatalogStore::nodesMatching(const QString &selector) const
{
    const QString wanted = selector.trimmed().toLower();
    QList<qint64> ids;
    for (const Node &candidate : m_nodes) {
        const QString region = candidate.region.toLower();
        const QString continent = candidate.continent.toLower();
        const QString city = cityCode(candidate.city);
        const bool match = wanted == QLatin1String("all") ||
                           (wanted == QLatin1String("free") && !candidate.svip) ||
                           (wanted == QLatin1String("svip") && candidate.svip) ||
                           (wanted == QLatin1String("favorite") && candidate.favorite) ||
                           wanted == region || wanted == continent ||
                           wanted == candidate.country.toLower() ||
                           wanted == candidate.city.toLower() || wanted == city ||
                           wanted == QStringLiteral("continent:%1").arg(continent) ||
                           wanted == QStringLiteral("country:%1").arg(region) ||
                           wanted == QStringLiteral("city:%1:%2").arg(region, city);
        if (match)
            ids.append(candidate.id);
    }
    return ids;
}

const CatalogStore::Node *CatalogStore::bestNode(const QList<qint64> &ids, bool svipAllowed) const
{
    const Node *best = nullptr;
    auto effectivePing = [](const Node &n) { return n.pingMs >= 0 ? n.pingMs : n.basePingMs; };
    for (qint64 id : ids) {
        const Node *candidate = node(id);
        if (!candidate || (candidate->svip && !svipAllowed))
            continue;
        if (!best || effectivePing(*candidate) < effectivePing(*best))
            best = candidate;
    }
    return best;
}

QJsonObject CatalogStore::nodeJson(const Node &node) const
{
    QJsonArray tags{node.svip ? QStringLiteral("SVIP") : QStringLiteral("FREE")};
    for (const QString &feature : node.features)
        tags.append(feature);
    if (node.favorite)
        tags.append(QStringLiteral("FAVORITE"));
    QJsonObject object{
        {QStringLiteral("id"), node.id},
        {QStringLiteral("name"), node.name},
        {QStringLiteral("tags"), tags},
        {QStringLiteral("region"), node.region},
        {QStringLiteral("type"), node.svip ? QStringLiteral("svip") : QStringLiteral("free")}};
    // Keys stay absent until measured, so a missing measurement never reads as 0 ms.
    if (node.pingMs >= 0) {
        object.insert(QStringLiteral("pingMs"), node.pingMs);
        object.insert(QStringLiteral("signalLevel"), signalLevel(node.pingMs));
    }
    return object;
}

QJsonObject CatalogStore::nodeReference(const Node *node)
{
    if (!node)
        return {};
    return {{QStringLiteral("id"), node->id},
            {QStringLiteral("region"), node->region},
            {QStringLiteral("name"), node->name}};
}

QJsonObject CatalogStore::nodesJson(qint64 selectedId, qint64 connectedId) const
{
    QJsonArray nodes;
    for (const Node &candidate : m_nodes)
        nodes.append(nodeJson(candidate));
    const Node *selected = node(selectedId);
    const Node *connected = node(connectedId);
    return {{QStringLiteral("stale"), false},
            {QStringLiteral("pingRunning"), pingRunning()},
            {QStringLiteral("nodes"), nodes},
            {QStringLiteral("selected"), selected ? nodeJson(*selected) : QJsonObject()},
            {QStringLiteral("connected"), connected ? nodeJson(*connected) : QJsonObject()}};
}

QJsonArray CatalogStore::idArray(const QList<qint64> &ids) const
{
    QJsonArray array;
    for (qint64 id : ids)
        array.append(QString::number(id));
    return array;
}

QJsonObject CatalogStore::groupsJson() const
{
    // Nodes are stored continent by continent, country by country, city by city, so each
    // group is one contiguous run and the ranks follow the catalogue order.
    QJsonArray continents;
    QJsonObject continent;
    QJsonArray countries;
    QJsonObject country;
    QJsonArray cities;
    QJsonObject city;
    QList<qint64> cityIds;
    auto closeCity = [&] {
        if (city.isEmpty())
            return;
        city.insert(QStringLiteral("node_ids"), idArray(cityIds));
        cities.append(city);
        city = {};
        cityIds.clear();
    };
    auto closeCountry = [&] {
        closeCity();
        if (country.isEmpty())
            return;
        country.insert(QStringLiteral("subgroups"), cities);
        countries.append(country);
        country = {};
        cities = {};
    };
    auto closeContinent = [&] {
        closeCountry();
        if (continent.isEmpty())
            return;
        continent.insert(QStringLiteral("subgroups"), countries);
        continents.append(continent);
        continent = {};
        countries = {};
    };
    auto group = [](const QString &id, const QString &name, const QString &code, int level,
                    int rank) {
        return QJsonObject{
            {QStringLiteral("id"), id},     {QStringLiteral("name"), name},
            {QStringLiteral("code"), code}, {QStringLiteral("level"), level},
            {QStringLiteral("rank"), rank}, {QStringLiteral("node_ids"), QJsonArray()}};
    };
    QString lastContinent, lastRegion, lastCity;
    for (const Node &n : m_nodes) {
        if (n.continent != lastContinent) {
            closeContinent();
            lastContinent = n.continent;
            lastRegion.clear();
            continent = group(QStringLiteral("continent:%1").arg(n.continent.toLower()),
                              n.continentName, n.continent, 1, int(continents.size()) + 1);
        }
        if (n.region != lastRegion) {
            closeCountry();
            lastRegion = n.region;
            lastCity.clear();
            country = group(QStringLiteral("country:%1").arg(n.region.toLower()), n.country,
                            n.region, 2, int(countries.size()) + 1);
        }
        if (n.city != lastCity) {
            closeCity();
            lastCity = n.city;
            city = group(QStringLiteral("city:%1:%2").arg(n.region.toLower(), cityCode(n.city)),
                         n.city, cityCode(n.city), 3, int(cities.size()) + 1);
        }
        cityIds.append(n.id);
    }
    closeContinent();

    auto tab = [this](const QString &type) {
        return QJsonObject{{QStringLiteral("group_type"), type},
                           {QStringLiteral("node_ids"), idArray(nodesMatching(type))}};
    };
    return {{QStringLiteral("stale"), false},
            {QStringLiteral("tabs"),
             QJsonArray{tab(QStringLiteral("all")), tab(QStringLiteral("free")),
                        tab(QStringLiteral("svip")), tab(QStringLiteral("favorite"))}},
            {QStringLiteral("groups"), continents}};
}
