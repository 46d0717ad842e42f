#include "CatalogItem.h"

#include <algorithm>

QString CatalogItem::keyOf(bool group, const QString &id)
{
    return group ? QLatin1String("g:") + id : QLatin1String("n:") + id;
}

QString CatalogItem::selector() const
{
    if (group && id.startsWith(QLatin1String("region:")))
        return region;
    return id;
}

bool CatalogItem::childConnected() const
{
    return std::any_of(children.begin(), children.end(),
                       [](const std::unique_ptr<CatalogItem> &child) { return child->connected; });
}

QString CatalogItem::firstTier() const
{
    const CatalogItem *item = this;
    while (item->group && !item->children.empty())
        item = item->children.front().get();
    return item->tier;
}
