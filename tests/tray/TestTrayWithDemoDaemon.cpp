#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "TempXdgDirs.h"
#include "TovraTrayApp.h"
#include "TrayNodeMenuModel.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;

// A menu entry named by its place in the menu, so that rows can name entries the tray builds.
using Entry = QAction *TrayMenu::*;
Q_DECLARE_METATYPE(Entry)

class TestTrayWithDemoDaemon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void init()
    {
        m_xdg = std::make_unique<TempXdgDirs>();
        m_daemon = std::make_unique<DemoDaemon>();
        QVERIFY2(m_daemon->start({u"--connect-ms"_s, u"100"_s}),
                 qPrintable(m_daemon->errorString()));
        m_thread = new QThread;
        m_worker = new ControlWorker(m_daemon->socketPath());
        m_worker->moveToThread(m_thread);
        connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
        m_thread->start();
        m_state = std::make_unique<AppState>();
        m_preferences = std::make_unique<GuiPreferences>();
        m_tray = std::make_unique<TovraTrayApp>(m_state.get(), m_worker, m_preferences.get());
        m_tray->start();
        QTRY_COMPARE(m_tray->menu().statusLine->text(), u"Tovra: disconnected"_s);
    }

    void cleanup()
    {
        m_tray.reset();
        m_worker->stop();
        m_thread->quit();
        QVERIFY(m_thread->wait(5000));
        delete m_thread;
        QVERIFY(m_daemon->stop());
        m_daemon.reset();
        m_preferences.reset();
        m_state.reset();
        m_xdg.reset();
    }

    void modeAnswerSetsCheckMarks_data()
    {
        QTest::addColumn<Entry>("entry");
        QTest::addColumn<QString>("switching");
        QTest::addColumn<bool>("tunnelOptions");
        QTest::addColumn<bool>("proxyOptions");
        // The row's name is the mode's title.
        QTest::newRow("WireGuard")
            << &TrayMenu::wireGuard << "Tovra: switching to WireGuard..." << false << false;
        QTest::newRow("TovraVPN Split")
            << &TrayMenu::tunnelSplit << "Tovra: switching TovraVPN split..." << true << false;
        QTest::newRow("Tovra Proxy Split")
            << &TrayMenu::proxySplit << "Tovra: switching to Tovra Proxy Split..." << false << true;
    }

    void modeAnswerSetsCheckMarks()
    {
        QFETCH(Entry, entry);
        QFETCH(QString, switching);
        QFETCH(bool, tunnelOptions);
        QFETCH(bool, proxyOptions);
        const TrayMenu &m = m_tray->menu();
        QVERIFY(m.autoMode->isChecked());
        QCOMPARE(m.modeTitle->text(), u"Mode: Auto"_s);

        QAction *chosen = m.*entry;
        chosen->trigger();
        QVERIFY(!chosen->isChecked());
        QVERIFY(m.autoMode->isChecked());
        QCOMPARE(m.statusLine->text(), switching);
        QVERIFY(!m.autoMode->isEnabled());

        QTRY_VERIFY(chosen->isChecked());
        QCOMPARE(m.daemonLine->text(), u"Mode updated"_s);
        const QList<QAction *> modes{m.autoMode,    m.wireGuard,   m.tunnelGlobal,
                                     m.tunnelSplit, m.proxyGlobal, m.proxySplit};
        for (QAction *mode : modes)
            QCOMPARE(mode->isChecked(), mode == chosen);
        QCOMPARE(m.modeTitle->text(), u"Mode: "_s + QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(m.tunnelSplitMenu->menuAction()->isVisible(), tunnelOptions);
        QCOMPARE(m.tunnelSplitMenu->menuAction()->isChecked(), tunnelOptions);
        QCOMPARE(m.proxySplitMenu->menuAction()->isVisible(), proxyOptions);
        QVERIFY(chosen->isEnabled());
        QVERIFY(!m_tray->isBusy());
    }

    void systemProxyAnswer()
    {
        const TrayMenu &m = m_tray->menu();
        m.systemProxyLock->trigger();
        QCOMPARE(m.statusLine->text(), u"Tovra: updating system proxy..."_s);
        QTRY_COMPARE(m.daemonLine->text(), u"System proxy set to lock"_s);
        QVERIFY(m.systemProxyLock->isChecked());
        QVERIFY(!m.systemProxyOff->isChecked());
        QCOMPARE(m.systemProxyMenu->title(), u"System Proxy: Lock"_s);
    }

    void nodeEntriesFromTheCatalogue()
    {
        const TrayMenu &m = m_tray->menu();
        QAbstractItemModelTester tester(m_tray->nodeMenuModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QTRY_VERIFY(m_state->nodes().valid);
        QTRY_VERIFY(m_state->nodeGroups().valid);
        QCOMPARE(m_tray->nodeMenuModel()->rowCount(), TrayNodeMenuModel::kEntryCount);

        Q_EMIT m.nodeMenu->aboutToShow();
        QVERIFY(!m.nodePlaceholder->isVisible());
        QVERIFY(m.nodeFootSeparator->isVisible());
        for (QAction *node : m.nodeEntries) {
            QVERIFY(node->isVisible());
            QVERIFY2(node->text().contains(u" - "), qPrintable(node->text()));
        }

        QSignalSpy chosen(m_tray.get(), &TovraTrayApp::connectNodeRequested);
        QAction *first = m.nodeEntries.constFirst();
        first->trigger();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.at(0).at(0).toString(), first->data().toString());
        QCOMPARE(chosen.at(0).at(1).toString(), first->text());
    }

private:
    std::unique_ptr<TempXdgDirs> m_xdg;
    std::unique_ptr<DemoDaemon> m_daemon;
    QThread *m_thread = nullptr;
    ControlWorker *m_worker = nullptr;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<GuiPreferences> m_preferences;
    std::unique_ptr<TovraTrayApp> m_tray;
};

QTEST_MAIN(TestTrayWithDemoDaemon)
#include "TestTrayWithDemoDaemon.moc"
