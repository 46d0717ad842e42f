#include "CatalogSearchText.h"

#include "Countries.h"

#include <QCoreApplication>
#include <QVarLengthArray>

#include <algorithm>

namespace {

// Trimmed and in lower case. Plain ASCII, the common case, is lowered here rather than through
// the Unicode tables, and shared as it is when it has no capitals.
QString folded(const QString &word)
{
    const QString trimmed = word.trimmed();
    bool capitals = false;
    for (const QChar c : trimmed) {
        if (c.unicode() >= 0x80)
            return trimmed.toLower();
        capitals = capitals || (c.unicode() >= u'A' && c.unicode() <= u'Z');
    }
    if (!capitals)
        return trimmed;
    QString lower(trimmed.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < trimmed.size(); ++i) {
        const char16_t u = trimmed.at(i).unicode();
        lower[i] = QChar(u >= u'A' && u <= u'Z' ? u + (u'a' - u'A') : u);
    }
    return lower;
}

} // namespace

const QStringList &CatalogSearchText::countryWords(const QString &region)
{
    auto found = m_countryWords.constFind(region);
    if (found == m_countryWords.cend()) {
        QStringList words;
        for (const QString &word : {region, countryEnglishName(region), countryName(region)})
            words.append(folded(word));
        found = m_countryWords.insert(region, words);
    }
    return found.value();
}

QString CatalogSearchText::text(const Row &row)
{
    QVarLengthArray<QString, 12> words;
    qsizetype length = 0;
    const auto add = [&](const QString &word, bool isFolded = false) {
        QString next = isFolded ? word : folded(word);
        if (next.isEmpty() || std::find(words.cbegin(), words.cend(), next) != words.cend())
            return;
        length += next.size() + 1;
        words.append(std::move(next));
    };
    add(row.label);
    if (row.name != row.label)
        add(row.name);
    add(row.code);
    for (const QString &tag : row.tags) {
        if (tag.compare(QLatin1String("FAVORITE"), Qt::CaseInsensitive) != 0)
            add(tag);
    }
    add(row.tier);
    if (row.tier == QLatin1String("SVIP"))
        add(QCoreApplication::translate("CatalogTreeModel", "Premium"));
    if (row.withCountry && !row.region.isEmpty()) {
        for (const QString &word : countryWords(row.region))
            add(word, true);
    }
    QString text;
    text.reserve(length);
    for (const QString &word : words) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += word;
    }
    return text;
}
