#include "CatalogFilterModel.h"
#include "LocationRoles.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Counts reads of the search text, so a test can tell whether the proxy filtered again.
class CountingModel : public QStandardItemModel
{
public:
    mutable int searchReads = 0;
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == LocationSearchTextRole)
            ++searchReads;
        return QStandardItemModel::data(index, role);
    }
};

QStandardItem *row(const QString &label, const QString &searchText)
{
    auto *item = new QStandardItem(label);
    item->setData(searchText, LocationSearchTextRole);
    return item;
}

// united states > new york > "us east 01", "us east 02"; russia > moscow > "moscow 01";
// zürich > "zürich 01"; japan > tokyo > "tokyo 2", "osaka 10".
void fill(QStandardItemModel &model)
{
    QStandardItem *us = row(u"US"_s, u"united states us"_s);
    QStandardItem *newYork = row(u"New York"_s, u"new york"_s);
    newYork->appendRow(row(u"US East 01"_s, u"us east 01"_s));
    newYork->appendRow(row(u"US West 02"_s, u"us west 02"_s));
    us->appendRow(newYork);
    QStandardItem *russia = row(u"Russia"_s, u"russia"_s);
    QStandardItem *moscow = row(u"Moscow"_s, u"moscow"_s);
    moscow->appendRow(row(u"Moscow 01"_s, u"moscow 01"_s));
    russia->appendRow(moscow);
    QStandardItem *swiss = row(u"Zürich"_s, u"zürich"_s);
    swiss->appendRow(row(u"Zürich 01"_s, u"zürich 01"_s));
    QStandardItem *japan = row(u"Japan"_s, u"japan jp"_s);
    japan->appendRow(row(u"Tokyo 2"_s, u"tokyo 2"_s));
    japan->appendRow(row(u"Osaka 10"_s, u"osaka 10"_s));
    model.appendRow(us);
    model.appendRow(russia);
    model.appendRow(swiss);
    model.appendRow(japan);
}

// The labels of every row the proxy shows, depth first.
QStringList visible(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList result;
    for (int r = 0; r < model.rowCount(parent); ++r) {
        const QModelIndex index = model.index(r, 0, parent);
        result.append(index.data().toString());
        result.append(visible(model, index));
    }
    return result;
}

} // namespace

class TestCatalogFilterModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filters_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("shown");
        const QStringList everything{u"US"_s,         u"New York"_s, u"US East 01"_s,
                                     u"US West 02"_s, u"Russia"_s,   u"Moscow"_s,
                                     u"Moscow 01"_s,  u"Zürich"_s,   u"Zürich 01"_s,
                                     u"Japan"_s,      u"Tokyo 2"_s,  u"Osaka 10"_s};
        QTest::addRow("separators only show everything") << u" _-"_s << everything;
        // "us" starts a word of "us west" but sits inside "russia".
        QTest::addRow("word start, not inside a word")
            << u"us"_s << QStringList(everything.mid(0, 4));
        QTest::addRow("node matched through its ancestors")
            << u"states west"_s << QStringList({u"US"_s, u"New York"_s, u"US West 02"_s});
        QTest::addRow("group kept for a matching descendant")
            << u"01 moscow"_s << QStringList({u"Russia"_s, u"Moscow"_s, u"Moscow 01"_s});
        QTest::addRow("non-ascii token anywhere in the text")
            << u"ÜRICH"_s << QStringList({u"Zürich"_s, u"Zürich 01"_s});
        // "ü" is a letter, so "rich" does not start a word of "zürich".
        QTest::addRow("no word start after a non-ascii letter") << u"rich"_s << QStringList();
        QTest::addRow("every token must match")
            << u"japan 2"_s << QStringList({u"Japan"_s, u"Tokyo 2"_s});
        QTest::addRow("digits start a word too") << u"japan 0"_s << QStringList();
        QTest::addRow("punctuation as plain text") << u"k."_s << QStringList();
        QTest::addRow("more words than a row keeps bits for")
            << u"jp "_s.repeated(64) + u"osaka"_s << QStringList({u"Japan"_s, u"Osaka 10"_s});
        // The city between them holds neither word: it stays for the node below it.
        QTest::addRow("more words than bits, one only above the middle row")
            << u"us "_s.repeated(64) + u"states east"_s
            << QStringList({u"US"_s, u"New York"_s, u"US East 01"_s});
    }

    void filters()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, shown);
        QStandardItemModel source;
        fill(source);
        CatalogFilterModel filter;
        QAbstractItemModelTester tester(&filter,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        filter.setSourceModel(&source);
        filter.setFilterText(search);
        QCOMPARE(visible(filter), shown);
        filter.setFilterText(QString());
        QCOMPARE(visible(filter).size(), 12);
    }

    void sameTokensDoNotFilterAgain()
    {
        CountingModel source;
        fill(source);
        CatalogFilterModel filter;
        QAbstractItemModelTester tester(&filter,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        filter.setSourceModel(&source);
        filter.setFilterText(u"Tokyo"_s);
        QCOMPARE(visible(filter), QStringList({u"Japan"_s, u"Tokyo 2"_s}));
        source.searchReads = 0;
        QSignalSpy layout(&filter, &QAbstractItemModel::layoutChanged);
        QSignalSpy removed(&filter, &QAbstractItemModel::rowsRemoved);
        for (const QString &same : {u"tokyo "_s, u" TOKYO-"_s, u"tokyo"_s})
            filter.setFilterText(same);
        QCOMPARE(source.searchReads, 0);
        QCOMPARE(layout.size() + removed.size(), 0);
        filter.setFilterText(u"tokyo 2"_s);
        QCOMPARE(layout.size(), 1);
    }

    void changedSourceIsFilteredAgain()
    {
        QStandardItemModel source;
        fill(source);
        CatalogFilterModel filter;
        QAbstractItemModelTester tester(&filter,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        filter.setSourceModel(&source);
        filter.setFilterText(u"tokyo"_s);
        QCOMPARE(visible(filter), QStringList({u"Japan"_s, u"Tokyo 2"_s}));
        QStandardItem *japan = source.item(3);
        // A node renamed into the search, another out of it, a new one, a whole group gone.
        japan->child(1)->setData(u"osaka tokyo 10"_s, LocationSearchTextRole);
        japan->child(0)->setData(u"kyoto 2"_s, LocationSearchTextRole);
        QTRY_COMPARE(visible(filter), QStringList({u"Japan"_s, u"Osaka 10"_s}));
        source.item(0)->child(0)->appendRow(row(u"Tokyo Lane"_s, u"tokyo lane"_s));
        QTRY_COMPARE(visible(filter), QStringList({u"US"_s, u"New York"_s, u"Tokyo Lane"_s,
                                                   u"Japan"_s, u"Osaka 10"_s}));
        source.removeRow(3);
        QTRY_COMPARE(visible(filter), QStringList({u"US"_s, u"New York"_s, u"Tokyo Lane"_s}));
    }
};

QTEST_MAIN(TestCatalogFilterModel)
#include "TestCatalogFilterModel.moc"
