#include "LocationItemDelegate.h"
#include "LocationRoles.h"
#include "ThemeEngine.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

namespace {

QStandardItem *nodeItem(const QString &id, int ping, bool favorite, const QString &tier)
{
    auto *item = new QStandardItem(id.toUpper());
    item->setData(id, LocationNodeIdRole);
    item->setData(ping, LocationPingMsRole);
    item->setData(-1, LocationSignalLevelRole);
    item->setData(favorite, LocationFavoriteRole);
    item->setData(tier, LocationTierRole);
    item->setEditable(false);
    return item;
}

QStyleOptionViewItem rowOption(const QRect &rect, Qt::LayoutDirection direction)
{
    QStyleOptionViewItem option;
    option.rect = rect;
    option.direction = direction;
    option.font = QApplication::font();
    return option;
}

} // namespace

class TestLocationItemDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bars_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("ping");
        QTest::addColumn<int>("bars");
        QTest::addRow("unknown") << -1 << -1 << 0;
        QTest::addRow("fast") << -1 << 79 << 4;
        QTest::addRow("good") << -1 << 80 << 3;
        QTest::addRow("fair") << -1 << 150 << 2;
        QTest::addRow("slow") << -1 << 250 << 1;
        QTest::addRow("level wins over ping") << 1 << 20 << 1;
        QTest::addRow("level clamped") << 9 << -1 << 4;
    }

    void bars()
    {
        QFETCH(int, level);
        QFETCH(int, ping);
        QFETCH(int, bars);
        QCOMPARE(LocationItemDelegate::barsFor(level, ping), bars);
    }

    void rowMirrors_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addRow("ltr") << Qt::LeftToRight;
        QTest::addRow("rtl") << Qt::RightToLeft;
    }

    void rowMirrors()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QStandardItemModel model;
        QAbstractItemModelTester tester(&model);
        model.appendRow(nodeItem(QStringLiteral("de-1"), 24, false, QStringLiteral("SVIP")));
        model.item(0)->setData(true, LocationLockedRole);
        LocationItemDelegate delegate;
        const LocationItemDelegate::RowLayout row =
            delegate.rowLayout(rowOption(QRect(0, 0, 400, 40), direction), model.index(0, 0));

        // Leading to trailing: flag, name, lock, badge, ping, bars, star; nothing overlaps.
        const QList<QRect> order = {row.flag, row.name, row.lock, row.badge,
                                    row.ping, row.bars, row.star};
        for (qsizetype i = 1; i < order.size(); ++i) {
            QVERIFY(!order[i - 1].intersects(order[i]));
            if (direction == Qt::LeftToRight) {
                QVERIFY(order[i - 1].right() < order[i].left());
            } else {
                QVERIFY(order[i - 1].left() > order[i].right());
            }
        }
        if (direction == Qt::LeftToRight) {
            QCOMPARE(row.flag.left(), 12);
            QCOMPARE(row.star.right(), 400 - 12 - 1);
        } else {
            QCOMPARE(row.flag.right(), 400 - 12 - 1);
            QCOMPARE(row.star.left(), 12);
        }
    }

    void starClickRequestsOpposite_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("favorite");
        QTest::addRow("ltr remove") << Qt::LeftToRight << true;
        QTest::addRow("rtl add") << Qt::RightToLeft << false;
    }

    void starClickRequestsOpposite()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, favorite);
        QStandardItemModel model;
        QAbstractItemModelTester tester(&model);
        model.appendRow(nodeItem(QStringLiteral("nl-2"), 96, favorite, QStringLiteral("FREE")));
        auto *group = new QStandardItem(QStringLiteral("Europe"));
        group->setData(true, LocationIsGroupRole);
        model.appendRow(group);

        QListView view;
        view.setLayoutDirection(direction);
        auto *delegate = new LocationItemDelegate(&view);
        delegate->setThemeColors(ThemeEngine::buildColors(Appearance::Dark));
        view.setItemDelegate(delegate);
        view.setModel(&model);
        view.resize(420, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        QSignalSpy spy(delegate, &LocationItemDelegate::favoriteToggleRequested);
        const QRect row = view.visualRect(model.index(0, 0));
        const QRect star = delegate->rowLayout(rowOption(row, direction), model.index(0, 0)).star;
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, star.center());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().at(0).toString(), QStringLiteral("nl-2"));
        QCOMPARE(spy.first().at(1).toBool(), !favorite);
        // The delegate only asks; the model keeps its value until its owner changes it.
        QCOMPARE(model.index(0, 0).data(LocationFavoriteRole).toBool(), favorite);

        // Clicking the name selects the row and asks nothing; group rows have no star.
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, row.center());
        const QRect groupRow = view.visualRect(model.index(1, 0));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          QPoint(star.center().x(), groupRow.center().y()));
        QCOMPARE(spy.count(), 1);
    }
};

QTEST_MAIN(TestLocationItemDelegate)
#include "TestLocationItemDelegate.moc"
