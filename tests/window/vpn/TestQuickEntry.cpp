#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "ControlMetaTypes.h"
#include "GuiPreferences.h"
#include "QuickEntryField.h"
#include "QuickEntryModel.h"
#include "QuickEntryPopup.h"
#include "RecentActivityStore.h"
#include "TempXdgDirs.h"

#include <QAbstractItemModelTester>
#include <QListView>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

struct Fixture
{
    TempXdgDirs dirs;
    GuiPreferences preferences;
    RecentActivityStore recent{&preferences};
    CatalogTreeModel catalogue;
    QWidget overlay;
    QuickEntryField *field = nullptr;
    QAbstractItemModelTester *tester = nullptr;

    Fixture()
    {
        const CatalogFixture fixture = CatalogFixture::small();
        catalogue.setCatalog(NodeGroupsInfo::parse(fixture.groupsJson(), nullptr),
                             NodesInfo::parse(fixture.nodesJson(), nullptr));
        overlay.resize(500, 500);
        auto *layout = new QVBoxLayout(&overlay);
        field = new QuickEntryField(&recent, &overlay, &overlay);
        layout->addWidget(field);
        layout->addStretch(1);
        field->setCatalogModel(&catalogue);
        tester = new QAbstractItemModelTester(
            field->entryModel(), QAbstractItemModelTester::FailureReportingMode::QtTest, field);
        overlay.show();
        field->setFocus();
    }
    QStringList rows() const
    {
        QStringList texts;
        const QuickEntryModel *model = field->entryModel();
        for (int row = 0; row < model->rowCount(); ++row)
            texts << model->index(row).data().toString();
        return texts;
    }
};

} // namespace

class TestQuickEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    // Type, arrow, Enter: the intent names the right node or group.
    void keyboardPath_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("downs");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("label");
        QTest::addRow("a node below it") << "germ" << 2 << "node"
                                         << "1001"
                                         << "Frankfurt 01";
        QTest::addRow("a node by its own name") << "frankfurt 02" << 0 << "node"
                                                << "1002"
                                                << "Frankfurt 02";
        QTest::addRow("word start, not inside") << "erlin" << 0 << "none" << QString() << QString();
        QTest::addRow("past the last row stays there") << "berlin" << 5 << "node"
                                                       << "1005"
                                                       << "Berlin 02";
    }
    void keyboardPath()
    {
        QFETCH(QString, typed);
        QFETCH(int, downs);
        QFETCH(QString, kind);
        QFETCH(QString, target);
        QFETCH(QString, label);
        Fixture f;
        QSignalSpy nodes(f.field, &QuickEntryField::nodeChosen);
        QSignalSpy groups(f.field, &QuickEntryField::groupChosen);
        QTest::keyClicks(f.field, typed);
        QVERIFY(f.field->isPopupOpen());
        QTRY_VERIFY(!f.field->isSearchPending());
        for (int i = 0; i < downs; ++i)
            QTest::keyClick(f.field, Qt::Key_Down);
        QTest::keyClick(f.field, Qt::Key_Return);
        QCOMPARE(nodes.size(), kind == QLatin1String("node") ? 1 : 0);
        QCOMPARE(groups.size(), kind == QLatin1String("group") ? 1 : 0);
        if (kind == QLatin1String("node"))
            QCOMPARE(nodes.first().mid(0, 2), (QVariantList{target, label}));
        if (kind == QLatin1String("group"))
            QCOMPARE(groups.first(), (QVariantList{target, label}));
        if (kind == QLatin1String("none")) {
            QCOMPARE(f.rows(), QStringList{QStringLiteral("No locations match \u201cerlin\u201d")});
            return;
        }
        // A connect closes the list, empties the field and remembers what was typed.
        QVERIFY(!f.field->isPopupOpen());
        QVERIFY(f.field->text().isEmpty());
        QCOMPARE(f.recent.recentSearches(), QStringList{typed});
    }

    // Enter straight after typing acts on the new text, not on rows of an older one.
    void enterBeforeThePause()
    {
        Fixture f;
        QSignalSpy groups(f.field, &QuickEntryField::groupChosen);
        QTest::keyClicks(f.field, QStringLiteral("moscow"));
        QVERIFY(f.field->isSearchPending());
        QTest::keyClick(f.field, Qt::Key_Enter);
        // The city, not its country kept only for it.
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.first(),
                 (QVariantList{QStringLiteral("city:ru:moscow"), QStringLiteral("Moscow")}));
        QCOMPARE(f.recent.recentSearches(), QStringList{QStringLiteral("moscow")});
    }

    // Empty, the list offers what the user did before; a recent search is typed again.
    void recentLists()
    {
        Fixture f;
        f.recent.addSearch(QStringLiteral("berlin"));
        f.recent.addLocation({QStringLiteral("1100"), QStringLiteral("Russia \u00b7 Moscow 01"),
                              QStringLiteral("ru")});
        f.field->openPopup();
        QCOMPARE(f.rows(), (QStringList{QStringLiteral("Recent searches"), QStringLiteral("berlin"),
                                        QStringLiteral("Recent locations"),
                                        QStringLiteral("Russia \u00b7 Moscow 01")}));
        QSignalSpy nodes(f.field, &QuickEntryField::nodeChosen);
        QTest::keyClick(f.field, Qt::Key_Up); // from nothing, Up starts at the bottom
        QTest::keyClick(f.field, Qt::Key_Return);
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes.first(),
                 (QVariantList{QStringLiteral("1100"), QStringLiteral("Russia \u00b7 Moscow 01"),
                               QStringLiteral("ru")}));

        f.field->setFocus();
        f.field->openPopup();
        QTest::keyClick(f.field, Qt::Key_Down); // the heading is stepped over
        QTest::keyClick(f.field, Qt::Key_Return);
        QCOMPARE(f.field->text(), QStringLiteral("berlin"));
        QCOMPARE(f.rows().first(), QStringLiteral("Berlin  \u00b7  Germany"));
    }

    void escapeAndFocusClose()
    {
        Fixture f;
        QTest::keyClicks(f.field, QStringLiteral("ger"));
        QVERIFY(f.field->isPopupOpen());
        QCOMPARE(f.field->property("tovraPopupOpen").toBool(), true);
        QTest::keyClick(f.field, Qt::Key_Escape);
        QVERIFY(!f.field->isPopupOpen());
        QVERIFY(!f.field->isSearchPending());
        QCOMPARE(f.field->property("tovraPopupOpen").toBool(), false);
        QTest::keyClick(f.field, Qt::Key_Down);
        QVERIFY(f.field->isPopupOpen());
        f.field->closePopup();
        QVERIFY(!f.field->isPopupOpen());
    }

    // Clicking a row connects like Enter.
    void clickConnects()
    {
        Fixture f;
        QSignalSpy groups(f.field, &QuickEntryField::groupChosen);
        QTest::keyClicks(f.field, QStringLiteral("russia"));
        QTRY_VERIFY(!f.field->isSearchPending());
        QListView *view = f.field->popup()->view();
        const QRect first = view->visualRect(f.field->entryModel()->index(0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, first.center());
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.first().first().toString(), QStringLiteral("country:ru"));
    }
};

QTEST_MAIN(TestQuickEntry)
#include "TestQuickEntry.moc"
