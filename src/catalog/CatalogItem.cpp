#include "CatalogItem.h"

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
