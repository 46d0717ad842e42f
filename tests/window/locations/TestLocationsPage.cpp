#include "LocationsPage.h"

#include "AppState.h"
#include "CatalogFilterModel.h"
#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "GuiPreferences.h"
#include "LocationRoles.h"
#include "TempXdgDirs.h"
#include "ThemeEngine.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

RuntimeInfo runningDaemon()
{
    RuntimeInfo runtime;
    runtime.valid = true;
    return runtime;
}

void loadInto(AppState &state, const CatalogFixture &fixture)
{
    QString error;
    state.setNodeGroups(NodeGroupsInfo::parse(fixture.groupsJson(), &error));
    state.setNodes(NodesInfo::parse(fixture.nodesJson(), &error));
}

} // namespace

class TestLocationsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = new AppState;
        m_page = new LocationsPage;
        m_tester = new QAbstractItemModelTester(
            m_page->filterModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_page->resize(700, 600);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page));
    }

    void cleanup()
    {
        delete m_tester;
        delete m_page;
        delete m_state;
    }

    void keyboardIntents()
    {
        m_state->setRuntime(runningDaemon());
        loadInto(*m_state, CatalogFixture::small());
        m_page->refresh(*m_state);
        QSignalSpy nodes(m_page, &LocationsPage::connectNodeRequested);
        QSignalSpy smart(m_page, &LocationsPage::connectSmartRequested);
        auto *search = m_page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
        // Letters typed while the tree has focus land in the search field; Enter takes the first
        // match, every word starting a word of the row or its groups.
        auto *tree = m_page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
        tree->setFocus();
        QTest::keyClicks(tree, QStringLiteral("t"));
        QTRY_VERIFY(search->hasFocus());
        QTest::keyClicks(search, QStringLiteral("okyo 02"));
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes.first().at(0).toString(), QStringLiteral("1019"));

        // Down enters the tree; Enter on a city connects to its fastest node.
        search->clear();
        QTest::keyClicks(search, QStringLiteral("toronto"));
        QTest::keyClick(search, Qt::Key_Down);
        QVERIFY(tree->hasFocus());
        QTest::keyClick(tree, Qt::Key_Up); // from the first node up to its city
        QTest::keyClick(tree, Qt::Key_Enter);
        QCOMPARE(smart.size(), 1);
        QCOMPARE(smart.first().at(0).toString(), QStringLiteral("city:ca:toronto"));
        // Space stars the current node (the toolbar's star is driven over AT-SPI end to end).
        QSignalSpy star(m_page, &LocationsPage::setNodeFavoriteRequested);
        QTest::keyClick(tree, Qt::Key_Down);
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(star.size(), 1);
        QCOMPARE(star.first(), QVariantList({QStringLiteral("1016"), true}));
    }

    void doubleClickAndEnter_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<bool>("mouse");
        QTest::addColumn<QString>("smart"); // the connectSmartRequested selector; empty: it opens
        QTest::addRow("continent, Enter") << QStringLiteral("continent:na") << false << QString();
        QTest::addRow("country, double-click")
            << QStringLiteral("country:de") << true << QStringLiteral("country:de");
    }

    void doubleClickAndEnter()
    {
        QFETCH(QString, selector);
        QFETCH(bool, mouse);
        QFETCH(QString, smart);
        m_state->setRuntime(runningDaemon());
        loadInto(*m_state, CatalogFixture::small());
        m_page->refresh(*m_state);
        QSignalSpy smartSpy(m_page, &LocationsPage::connectSmartRequested);
        auto *tree = m_page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
        const QModelIndex row = m_page->filterModel()->mapFromSource(
            m_page->catalogModel()->indexForSelector(selector));
        tree->scrollTo(row);
        tree->setCurrentIndex(row);
        tree->setFocus();
        if (mouse)
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {},
                               tree->visualRect(row).center());
        else
            QTest::keyClick(tree, Qt::Key_Return);
        QCOMPARE(smartSpy.size(), smart.isEmpty() ? 0 : 1);
        if (!smart.isEmpty())
            QCOMPARE(smartSpy.first().at(0).toString(), smart);
        QCOMPARE(tree->isExpanded(row), smart.isEmpty());
    }

    void emptyStatesSayWhy()
    {
        auto *empty = m_page->findChild<QLabel *>(QStringLiteral("TovraLocationsEmpty"));
        const auto says = [empty](const char *words) {
            return empty->isVisible() && empty->text().contains(QLatin1String(words));
        };
        m_page->refresh(*m_state);
        QVERIFY(says("not available"));
        m_state->setRuntime(runningDaemon());
        m_page->refresh(*m_state);
        QVERIFY(says("Loading"));
        // A fetch that failed says why until a retry runs.
        m_state->setNodesFetchError(QStringLiteral("demo failure"));
        m_page->refresh(*m_state);
        QVERIFY(says("Could not load the locations: demo failure"));
        m_state->setNodesFetchError(QString());
        m_page->refresh(*m_state);
        QVERIFY(says("Loading"));
        const CatalogFixture fixture = CatalogFixture::small();
        QString error;
        m_state->setNodes(NodesInfo::parse(fixture.nodesJson(), &error));
        m_page->refresh(*m_state);
        QVERIFY(!empty->isVisible());
        // The groups, arriving after the nodes, regroup the tree without an empty moment.
        QSignalSpy switched(qobject_cast<QStackedWidget *>(empty->parentWidget()),
                            &QStackedWidget::currentChanged);
        m_state->setNodeGroups(NodeGroupsInfo::parse(fixture.groupsJson(), &error));
        m_page->refresh(*m_state);
        QCOMPARE(switched.size(), 0);
        QVERIFY(!empty->isVisible());
        auto *tabs = m_page->findChild<QTabBar *>(QStringLiteral("TovraLocationsTabs"));
        tabs->setCurrentIndex(3);
        QVERIFY(says("No favourites yet"));
        auto *search = m_page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
        QTest::keyClicks(search, QStringLiteral("atlantis"));
        QVERIFY(says("atlantis"));
        // A search covers every tab, favourites or not.
        search->setText(QStringLiteral("tokyo"));
        QVERIFY(!empty->isVisible());
        QVERIFY(tabs->property("tovraSearchGlobal").toBool());
        search->clear();
        QVERIFY(says("No favourites yet"));
        QVERIFY(!tabs->property("tovraSearchGlobal").toBool());
    }

    void clearedSearchRestoresExpansion()
    {
        m_state->setRuntime(runningDaemon());
        loadInto(*m_state, CatalogFixture::small());
        m_page->refresh(*m_state);
        auto *tree = m_page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
        auto *search = m_page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
        const auto expanded = [&](const char *selector) {
            return tree->isExpanded(m_page->filterModel()->mapFromSource(
                m_page->catalogModel()->indexForSelector(QLatin1String(selector))));
        };
        tree->expand(m_page->filterModel()->index(0, 0)); // Europe
        // A city opened under a folded country stays open for when the country is unfolded.
        tree->expand(m_page->filterModel()->mapFromSource(
            m_page->catalogModel()->indexForSelector(QStringLiteral("city:de:berlin"))));
        search->setText(QStringLiteral("tokyo"));
        QVERIFY(expanded("continent:as"));
        search->clear();
        QVERIFY(expanded("continent:eu"));
        QVERIFY(expanded("city:de:berlin"));
    }

    void refreshShowsCooldown()
    {
        auto *refresh = m_page->findChild<QPushButton *>(QStringLiteral("TovraLocationsRefresh"));
        QSignalSpy asked(m_page, &LocationsPage::refreshLocationsRequested);
        // Shown before the service answers: nothing to ask yet; once it runs, the missing
        // catalogue is asked for.
        m_page->pageShown();
        QCOMPARE(asked.size(), 0);
        m_state->setRuntime(runningDaemon());
        m_page->refresh(*m_state);
        m_page->pageShown();
        QCOMPARE(asked.size(), 1);
        refresh->click();
        QCOMPARE(asked.size(), 2);
        m_state->startNodesRefreshCooldown(42);
        m_page->refresh(*m_state);
        QCOMPARE(refresh->text(), QStringLiteral("Refresh (42s)"));
        QVERIFY(!refresh->isEnabled());
        m_page->pageShown(); // not again within the cooldown
        QCOMPARE(asked.size(), 2);
        m_state->startNodesRefreshCooldown(0);
        m_page->refresh(*m_state);
        QCOMPARE(refresh->text(), QStringLiteral("Refresh"));
        QVERIFY(refresh->isEnabled());
        // Too narrow for the tabs and the actions side by side (the window's minimum width holds
        // the page, not its own hint): nothing is squeezed.
        m_page->layout()->setSizeConstraint(QLayout::SetNoConstraint);
        m_page->setMinimumSize(0, 0);
        m_page->resize(420, 600);
        const auto whole = [this](const char *name) {
            auto *widget = m_page->findChild<QWidget *>(QLatin1String(name));
            return widget->width() >= widget->sizeHint().width() &&
                   m_page->rect().contains(QRect(widget->mapTo(m_page, QPoint()), widget->size()));
        };
        QTRY_VERIFY(whole("TovraLocationsTabs") && whole("TovraLocationsSort") &&
                    whole("TovraLocationsRefresh") && whole("TovraLocationsFavorite"));
    }

    void choicesOutliveThePage()
    {
        TempXdgDirs dirs;
        GuiPreferences preferences;
        m_page->setPreferences(&preferences);
        m_page->findChild<QTabBar *>(QStringLiteral("TovraLocationsTabs"))->setCurrentIndex(1);
        m_page->findChild<QComboBox *>(QStringLiteral("TovraLocationsSort"))->setCurrentIndex(2);
        // A window made again later, or after a restart, reads the same file.
        GuiPreferences reread;
        LocationsPage again;
        again.setPreferences(&reread);
        QCOMPARE(again.catalogModel()->tab(), QStringLiteral("free"));
        QCOMPARE(again.catalogModel()->sortOrder(), CatalogSort::Latency);
        QCOMPARE(again.findChild<QTabBar *>(QStringLiteral("TovraLocationsTabs"))->currentIndex(),
                 1);
    }

    void footerSaysWhereTheTunnelIs()
    {
        RuntimeInfo runtime = runningDaemon();
        runtime.tunnelState = QStringLiteral("connected");
        m_state->setRuntime(runtime);
        CatalogFixture fixture = CatalogFixture::small();
        fixture.connectedId = QStringLiteral("1002");
        loadInto(*m_state, fixture);
        m_page->refresh(*m_state);
        const auto footer = [this] {
            return m_page->findChild<QLabel *>(QStringLiteral("TovraLocationsStatus"))
                ->text()
                .remove(QChar(0x2068)) // the isolates around each name
                .remove(QChar(0x2069));
        };
        QTRY_VERIFY2(
            footer().contains(
                u"Connected to EU land \u203a Germany \u203a Frankfurt \u203a Frankfurt 02"),
            qPrintable(footer()));
    }

    void selectedGroupKeepsItsArrow()
    {
        // Styled as in the window: a style-sheet branch rule once dropped a selected row's arrow.
        QWidget root;
        root.setObjectName(QStringLiteral("TovraWindowRoot"));
        auto *page = new LocationsPage(&root);
        QAbstractItemModelTester tester(page->filterModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        (new QVBoxLayout(&root))->addWidget(page);
        const ThemeColors colors = ThemeEngine::buildColors(Appearance::Light);
        ThemeEngine::applyToWindow(&root, colors);
        page->applyTheme(colors);
        m_state->setRuntime(runningDaemon());
        loadInto(*m_state, CatalogFixture::small());
        page->refresh(*m_state);
        root.resize(700, 600);
        root.show();
        QVERIFY(QTest::qWaitForWindowExposed(&root));
        auto *tree = page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
        const QModelIndex row = page->filterModel()->mapFromSource(
            page->catalogModel()->indexForSelector(QStringLiteral("continent:na")));
        tree->setCurrentIndex(row);
        tree->expand(row);
        const QImage image = tree->viewport()->grab().toImage();
        const QRect item = tree->visualRect(row);
        const QColor tint = colors.color(ThemeColor::SidebarSelectedBg);
        // The selection reaches under the arrow, and the arrow is drawn on it.
        QCOMPARE(image.pixelColor(item.left() - tree->indentation() + 3, item.center().y()), tint);
        int arrow = 0;
        for (int x = item.left() - tree->indentation() + 4; x < item.left() - 2; ++x) {
            for (int y = item.top() + 4; y < item.bottom() - 4; ++y)
                arrow += qAbs(image.pixelColor(x, y).lightness() - tint.lightness()) > 60 ? 1 : 0;
        }
        QVERIFY2(arrow > 4, qPrintable(QString::number(arrow)));
    }

private:
    AppState *m_state = nullptr;
    LocationsPage *m_page = nullptr;
    QAbstractItemModelTester *m_tester = nullptr;
};

QTEST_MAIN(TestLocationsPage)
#include "TestLocationsPage.moc"
