#pragma once

#include <QList>
#include <QString>

// The fixed geography of the simulated service: continents, countries and cities with how many
// nodes each city hosts and their typical round-trip time from a European desktop.
class CatalogData
{
public:
    struct City
    {
        QString continentCode;
        QString continentName;
        QString region; // ISO 3166-1 alpha-2
        QString country;
        QString name;
        int nodes = 2;
        int basePingMs = 40;
    };

    static QList<City> cities();
};
