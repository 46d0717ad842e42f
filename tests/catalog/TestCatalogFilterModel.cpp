#include "CatalogFilterModel.h"
#include "LocationRoles.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

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
    QStandardItem *us = row(QStringLiteral("US"), QStringLiteral("united states us"));
    QStandardItem *newYork = row(QStringLiteral("New York"), QStringLiteral("new york"));
    newYork->appendRow(row(QStringLiteral("US East 01"), QStringLiteral("us east 01")));
    newYork->appendRow(row(QStringLiteral("US West 02"), QStringLiteral("us west 02")));
    us->appendRow(newYork);
    QStandardItem *russia = row(QStringLiteral("Russia"), QStringLiteral("russia"));
    QStandardItem *moscow = row(QStringLiteral("Moscow"), QStringLiteral("moscow"));
    moscow->appendRow(row(QStringLiteral("Moscow 01"), QStringLiteral("moscow 01")));
    russia->appendRow(moscow);
    QStandardItem *swiss = row(QStringLiteral("Zürich"), QStringLiteral("zürich"));
    swiss->appendRow(row(QStringLiteral("Zürich 01"), QStringLiteral("zürich 01")));
    QStandardItem *japan = row(QStringLiteral("Japan"), QStringLiteral("japan jp"));
    japan->appendRow(row(QStringLiteral("Tokyo 2"), QStringLiteral("tokyo 2")));
    japan->appendRow(row(QStringLiteral("Osaka 10"), QStringLiteral("osaka 10")));
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
    void tokenize_data();
    void tokenize();
    void filters_data();
    void filters();
    void sameTokensDoNotFilterAgain();
    void changedSourceIsFilteredAgain();
};

void TestCatalogFilterModel::tokenize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("tokens");
    const QStringList newYork{QStringLiteral("new"), QStringLiteral("york")};
    QTest::addRow("underscore") << QStringLiteral("new_york") << newYork;
    QTest::addRow("hyphen") << QStringLiteral("new-york") << newYork;
    QTest::addRow("space, mixed case") << QStringLiteral("  New   YORK ") << newYork;
    QTest::addRow("separator runs") << QStringLiteral("new -_ york") << newYork;
    QTest::addRow("separators only") << QStringLiteral(" -_ \t-") << QStringList();
    QTest::addRow("empty") << QString() << QStringList();
}

void TestCatalogFilterModel::tokenize()
{
    QFETCH(QString, text);
    QFETCH(QStringList, tokens);
    QCOMPARE(CatalogFilterModel::tokenize(text), tokens);
}

void TestCatalogFilterModel::filters_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("shown");
    const QStringList everything{
        QStringLiteral("US"),         QStringLiteral("New York"), QStringLiteral("US East 01"),
        QStringLiteral("US West 02"), QStringLiteral("Russia"),   QStringLiteral("Moscow"),
        QStringLiteral("Moscow 01"),  QStringLiteral("Zürich"),   QStringLiteral("Zürich 01"),
        QStringLiteral("Japan"),      QStringLiteral("Tokyo 2"),  QStringLiteral("Osaka 10")};
    QTest::addRow("separators only show everything") << QStringLiteral(" _-") << everything;
    // "us" starts a word of "us west" but sits inside "russia".
    QTest::addRow("word start, not inside a word")
        << QStringLiteral("us") << QStringList(everything.mid(0, 4));
    QTest::addRow("node matched through its ancestors")
        << QStringLiteral("states west")
        << QStringList(
               {QStringLiteral("US"), QStringLiteral("New York"), QStringLiteral("US West 02")});
    QTest::addRow("group kept for a matching descendant")
        << QStringLiteral("01 moscow")
        << QStringList(
               {QStringLiteral("Russia"), QStringLiteral("Moscow"), QStringLiteral("Moscow 01")});
    QTest::addRow("non-ascii token anywhere in the text")
        << QStringLiteral("ÜRICH")
        << QStringList({QStringLiteral("Zürich"), QStringLiteral("Zürich 01")});
    // "ü" is a letter, so "rich" does not start a word of "zürich".
    QTest::addRow("no word start after a non-ascii letter")
        << QStringLiteral("rich") << QStringList();
    QTest::addRow("every token must match")
        << QStringLiteral("japan 2")
        << QStringList({QStringLiteral("Japan"), QStringLiteral("Tokyo 2")});
    QTest::addRow("digits start a word too") << QStringLiteral("japan 0") << QStringList();
    QTest::addRow("punctuation as plain text") << QStringLiteral("k.") << QStringList();
    QTest::addRow("nothing matches") << QStringLiteral("atlantis") << QStringList();
    QTest::addRow("more words than a row keeps bits for")
        << QStringLiteral("jp ").repeated(64) + QStringLiteral("osaka")
        << QStringList({QStringLiteral("Japan"), QStringLiteral("Osaka 10")});
}

void TestCatalogFilterModel::filters()
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

void TestCatalogFilterModel::sameTokensDoNotFilterAgain()
{
    CountingModel source;
    fill(source);
    CatalogFilterModel filter;
    QAbstractItemModelTester tester(&filter,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    filter.setSourceModel(&source);
    filter.setFilterText(QStringLiteral("Tokyo"));
    QCOMPARE(visible(filter), QStringList({QStringLiteral("Japan"), QStringLiteral("Tokyo 2")}));
    source.searchReads = 0;
    QSignalSpy layout(&filter, &QAbstractItemModel::layoutChanged);
    QSignalSpy removed(&filter, &QAbstractItemModel::rowsRemoved);
    for (const QString &same :
         {QStringLiteral("tokyo "), QStringLiteral(" TOKYO-"), QStringLiteral("tokyo")})
        filter.setFilterText(same);
    QCOMPARE(source.searchReads, 0);
    QCOMPARE(layout.size() + removed.size(), 0);
    filter.setFilterText(QStringLiteral("tokyo 2"));
    QCOMPARE(layout.size(), 1);
}

void TestCatalogFilterModel::changedSourceIsFilteredAgain()
{
    QStandardItemModel source;
    fill(source);
    CatalogFilterModel filter;
    QAbstractItemModelTester tester(&filter,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    filter.setSourceModel(&source);
    filter.setFilterText(QStringLiteral("tokyo"));
    QCOMPARE(visible(filter), QStringList({QStringLiteral("Japan"), QStringLiteral("Tokyo 2")}));
    QStandardItem *japan = source.item(3);
    // A node renamed into the search, another out of it, a new one, a whole group gone.
    japan->child(1)->setData(QStringLiteral("osaka tokyo 10"), LocationSearchTextRole);
    japan->child(0)->setData(QStringLiteral("kyoto 2"), LocationSearchTextRole);
    QTRY_COMPARE(visible(filter),
                 QStringList({QStringLiteral("Japan"), QStringLiteral("Osaka 10")}));
    source.item(0)->child(0)->appendRow(
        row(QStringLiteral("Tokyo Lane"), QStringLiteral("tokyo lane")));
    QTRY_COMPARE(
        visible(filter),
        QStringList({QStringLiteral("US"), QStringLiteral("New York"), QStringLiteral("Tokyo Lane"),
                     QStringLiteral("Japan"), QStringLiteral("Osaka 10")}));
    source.removeRow(3);
    QTRY_COMPARE(visible(filter), QStringList({QStringLiteral("US"), QStringLiteral("New York"),
                                               QStringLiteral("Tokyo Lane")}));
}

QTEST_MAIN(TestCatalogFilterModel)
#include "TestCatalogFilterModel.moc"
