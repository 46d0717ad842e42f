#include "LocationsPage.h"

#include "AppState.h"
#include "CatalogFilterModel.h"
#include "CatalogFixture.h"
#include "CatalogTreeModel.h"
#include "LocationRoles.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

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
    void init();
    void cleanup();
    void keyboardIntents_data();
    void keyboardIntents();
    void emptyStatesSayWhy();
    void clearedSearchRestoresExpansion();
    void refreshShowsCooldown();

private:
    AppState *m_state = nullptr;
    LocationsPage *m_page = nullptr;
    QAbstractItemModelTester *m_tester = nullptr;
};

void TestLocationsPage::init()
{
    m_state = new AppState;
    m_page = new LocationsPage;
    m_tester = new QAbstractItemModelTester(m_page->filterModel(),
                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_page->resize(700, 600);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page));
}

void TestLocationsPage::cleanup()
{
    delete m_tester;
    delete m_page;
    delete m_state;
}

void TestLocationsPage::keyboardIntents_data()
{
    QTest::addColumn<QString>("typed");   // into the search field, then Enter
    QTest::addColumn<QString>("account"); // the user's plan, empty: signed out
    QTest::addColumn<QString>("node");    // the connectNodeRequested id, empty: none
    // Enter takes the first match: every word must start a word of the row or its groups.
    QTest::addRow("node by city and number")
        << QStringLiteral("tokyo 02") << QString() << QStringLiteral("1019");
    // On a free plan the first match is locked: Enter connects nowhere.
    QTest::addRow("locked node") << QStringLiteral("berlin") << QStringLiteral("Free") << QString();
    QTest::addRow("nothing matches") << QStringLiteral("atlantis") << QString() << QString();
}

void TestLocationsPage::keyboardIntents()
{
    QFETCH(QString, typed);
    QFETCH(QString, account);
    QFETCH(QString, node);
    if (!account.isEmpty()) {
        UserInfo user;
        user.valid = true;
        user.role = account;
        m_state->setUser(user);
    }
    m_state->setRuntime(runningDaemon());
    loadInto(*m_state, CatalogFixture::small());
    m_page->refresh(*m_state);
    QSignalSpy nodes(m_page, &LocationsPage::connectNodeRequested);
    QSignalSpy smart(m_page, &LocationsPage::connectSmartRequested);

    auto *search = m_page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
    QVERIFY(search);
    // Letters typed while the tree has focus land in the search field.
    auto *tree = m_page->findChild<QTreeView *>(QStringLiteral("TovraLocationsTree"));
    tree->setFocus();
    QTest::keyClicks(tree, typed.left(1));
    QTRY_VERIFY(search->hasFocus());
    QTest::keyClicks(search, typed.mid(1));
    QCOMPARE(search->text(), typed);
    QTest::keyClick(search, Qt::Key_Return);

    QCOMPARE(nodes.size(), node.isEmpty() ? 0 : 1);
    if (!node.isEmpty())
        QCOMPARE(nodes.first().at(0).toString(), node);
    QCOMPARE(smart.size(), 0);

    // Down enters the tree; Enter on a city connects to its fastest node.
    search->clear();
    QTest::keyClicks(search, QStringLiteral("toronto"));
    QTest::keyClick(search, Qt::Key_Down);
    QVERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_Up); // from the first node up to its city
    QCOMPARE(tree->currentIndex().data(LocationSelectorRole).toString(),
             QStringLiteral("city:ca:toronto"));
    QTest::keyClick(tree, Qt::Key_Enter);
    QCOMPARE(smart.size(), 1);
    QCOMPARE(smart.first().at(0).toString(), QStringLiteral("city:ca:toronto"));

    // Space stars the current node.
    QSignalSpy star(m_page, &LocationsPage::setNodeFavoriteRequested);
    QTest::keyClick(tree, Qt::Key_Down);
    QTest::keyClick(tree, Qt::Key_Space);
    QCOMPARE(star.size(), 1);
    QCOMPARE(star.first(), QVariantList({QStringLiteral("1016"), true}));
}

void TestLocationsPage::emptyStatesSayWhy()
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
    CatalogFixture fixture = CatalogFixture::small();
    loadInto(*m_state, fixture);
    m_page->refresh(*m_state);
    QVERIFY(!empty->isVisible());
    auto *tabs = m_page->findChild<QTabBar *>(QStringLiteral("TovraLocationsTabs"));
    tabs->setCurrentIndex(3);
    QVERIFY(says("No favourites yet"));
    auto *search = m_page->findChild<QLineEdit *>(QStringLiteral("TovraLocationsSearch"));
    QTest::keyClicks(search, QStringLiteral("atlantis"));
    QVERIFY(says("atlantis"));
    // A search covers every tab, favourites or not.
    search->setText(QStringLiteral("osaka tokyo"));
    QVERIFY(says("osaka tokyo"));
    search->setText(QStringLiteral("tokyo"));
    QVERIFY(!empty->isVisible());
    QVERIFY(tabs->property("tovraSearchGlobal").toBool());
    search->clear();
    QVERIFY(says("No favourites yet"));
    QVERIFY(!tabs->property("tovraSearchGlobal").toBool());
}

void TestLocationsPage::clearedSearchRestoresExpansion()
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

void TestLocationsPage::refreshShowsCooldown()
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
}

QTEST_MAIN(TestLocationsPage)
#include "TestLocationsPage.moc"
