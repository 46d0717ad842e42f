#include "GalleryModel.h"

#include "LocationRoles.h"

#include <QPainter>
#include <QPixmap>

namespace {

// Stand-in flags: three stripes, enough to show where the real pictures go.
QPixmap stripes(const QColor &a, const QColor &b, const QColor &c)
{
    QPixmap pixmap(24, 16);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 24, 6, a);
    painter.fillRect(0, 5, 24, 6, b);
    painter.fillRect(0, 11, 24, 5, c);
    return pixmap;
}

} // namespace

GalleryModel::GalleryModel(QObject *parent)
    : QStandardItemModel(parent)
{
    struct Row
    {
        const char *id;
        const char *name;
        int ping;
        int level;
        bool favorite;
        const char *tier;
        bool group;
        bool connected;
        QColor a, b, c;
    };
    const QList<Row> rows = {
        {"", "Europe", -1, -1, false, "", true, true, Qt::darkBlue, Qt::yellow, Qt::darkBlue},
        {"de-1", "Germany \u2013 Frankfurt", 24, -1, true, "FREE", false, true, Qt::black, Qt::red,
         QColor(255, 204, 0)},
        {"nl-2", "Netherlands \u2013 Amsterdam", 96, -1, false, "SVIP", false, false,
         QColor(174, 28, 40), Qt::white, QColor(33, 70, 139)},
        {"fr-1", "France \u2013 Paris (streaming optimised, very long name)", 180, -1, false,
         "SVIP", false, false, QColor(0, 85, 164), Qt::white, QColor(239, 65, 53)},
        {"it-1", "Italy \u2013 Milan", 320, -1, true, "FREE", false, false, QColor(0, 146, 70),
         Qt::white, QColor(206, 43, 55)},
        {"at-1", "Austria \u2013 Vienna", -1, -1, false, "", false, false, QColor(200, 16, 46),
         Qt::white, QColor(200, 16, 46)},
        {"ee-1", "Estonia \u2013 Tallinn", 60, 2, false, "SVIP", false, false, QColor(0, 114, 206),
         Qt::black, Qt::white},
        {"lt-1", "Lithuania \u2013 Vilnius", 70, -1, false, "FREE", false, false,
         QColor(253, 185, 19), QColor(0, 106, 68), QColor(193, 39, 45)},
        {"hu-1", "Hungary \u2013 Budapest", 140, -1, false, "SVIP", false, false,
         QColor(206, 41, 57), Qt::white, QColor(71, 112, 80)},
    };
    for (const Row &row : rows) {
        auto *item = new QStandardItem(QString::fromUtf8(row.name));
        item->setData(stripes(row.a, row.b, row.c), Qt::DecorationRole);
        item->setData(QString::fromLatin1(row.id), LocationNodeIdRole);
        item->setData(row.ping, LocationPingMsRole);
        item->setData(row.level, LocationSignalLevelRole);
        item->setData(row.favorite, LocationFavoriteRole);
        item->setData(QString::fromLatin1(row.tier), LocationTierRole);
        item->setData(row.group, LocationIsGroupRole);
        item->setData(row.connected, LocationConnectedRole);
        item->setEditable(false);
        appendRow(item);
    }
    // A paid location seen from a free plan: greyed, with its lock.
    item(rowCount() - 1)->setData(true, LocationLockedRole);
}

void GalleryModel::setFavorite(const QString &nodeId, bool favorite)
{
    for (int row = 0; row < rowCount(); ++row) {
        QStandardItem *entry = item(row);
        if (entry->data(LocationNodeIdRole).toString() == nodeId) {
            entry->setData(favorite, LocationFavoriteRole);
        }
    }
}
