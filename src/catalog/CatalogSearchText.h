#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// The search text of a catalogue row: its lower-case words (label, the group's name and code or
// the node's name, tags, tier and "premium" for the paid one, then the country's code and names),
// each once, joined by spaces. Made for thousands of rows in a row: a country's words are worked
// out once, and words already in lower case are not copied.
class CatalogSearchText
{
public:
    struct Row
    {
        const QString &label;
        const QString &name; // the group's or the node's
        const QString &code; // groups only
        const QStringList &tags;
        const QString &tier;
        const QString &region;
        bool withCountry = false; // the country's words too (nodes, and groups of one country)
    };

    QString text(const Row &row);

private:
    const QStringList &countryWords(const QString &region);

    QHash<QString, QStringList> m_countryWords; // region -> its words, lower case
};
