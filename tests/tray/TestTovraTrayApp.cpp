#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "ScriptedPeer.h"
#include "TempXdgDirs.h"
#include "TovraTrayApp.h"
#include "TrayIcon.h"
#include "TrayMenuCloseWatcher.h"
#include "TrayNodeMenuModel.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDir>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const quint64 kShellId = 4294967296ULL;

// A menu entry named by its place in the menu, so that rows can name entries the tray builds.
using Entry = QAction *TrayMenu::*;

QByteArray status(const QByteArray &fields)
{
    return ScriptedPeer::response(200, "{" + fields + "}");
}

QByteArray plainStatus(const QByteArray &tunnelState)
{
    return status(R"("daemon_state":"running","auth_state":"logged_out","tunnel_state":")" +
                  tunnelState + R"(","mode":{"transport":"auto"})");
}

QByteArray bodyOf(const QByteArray &request)
{
    const qsizetype end = request.indexOf("\r\n\r\n");
    return end < 0 ? QByteArray() : request.mid(end + 4);
}

} // namespace

Q_DECLARE_METATYPE(Entry)

class TestTovraTrayApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void init()
    {
        m_xdg = std::make_unique<TempXdgDirs>();
        m_peer = std::make_unique<ScriptedPeer>();
        build(m_peer->socketPath());
    }

    void cleanup()
    {
        tearDown();
        if (m_daemon)
            QVERIFY(m_daemon->stop());
        m_daemon.reset();
        m_peer.reset();
        m_xdg.reset();
    }

    void statusLine_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("iconName");
        const auto row = [](const char *name, const QByteArray &reply, const char *text, bool on) {
            QTest::newRow(name) << reply << text << (on ? "on" : "off");
        };
        row("connected, odd case and blanks", plainStatus(" Connected "), "Tovra: connected", true);
        row("connecting", plainStatus("connecting"), "Tovra: connecting...", false);
        row("plain state word when no tunnel word", status(R"("daemon_state":"READY")"),
            "Tovra: ready", false);
        row("no word at all", status(""), "Tovra: unknown", false);
    }

    void statusLine()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QString, expected);
        QFETCH(QString, iconName);
        startWith(reply);
        QCOMPARE(m_tray->menu().statusLine->text(), expected);
        const QIcon icon(u":/icons/tray-%1.png"_s.arg(iconName));
        QCOMPARE(m_tray->trayIcon()->icon().pixmap(16).toImage(), icon.pixmap(16).toImage());
        QCOMPARE(sent("GET /v1/status ").size(), 1);
    }

    void daemonUnavailable()
    {
        // The error's own wording comes from the control layer; the tray shows it as it is.
        startWith(ScriptedPeer::response(503, R"({"error":"daemon is restarting"})"));
        const TrayMenu &m = m_tray->menu();
        QCOMPARE(m.statusLine->text(), u"Tovra: daemon unavailable"_s);
        QCOMPARE(m.daemonLine->text(), u"daemon is restarting"_s);
        QCOMPARE(m.account->text(), u"Account: unavailable"_s);
        QCOMPARE(m.connect->text(), u"Connect"_s);
        for (QAction *action : {m.connect, m.disconnect, m.nodeMenu->menuAction(), m.autoMode,
                                m.tunnelGlobal, m.proxySplit, m.account, m.logout, m.killSwitch})
            QVERIFY2(!action->isEnabled(), qPrintable(action->text()));
        QVERIFY(m.refreshStatus->isEnabled());
        QCOMPARE(m_tray->trayIcon()->toolTip(), u"Tovra - daemon unavailable"_s);
    }

    void staleStatusAnswerDropped()
    {
        startWith(plainStatus("disconnected"));
        QSignalSpy changes(m_state.get(), &AppState::runtimeChanged);
        m_peer->setReply(plainStatus("connected"));
        // An answer to someone else's status request (the shell's number) is not the tray's.
        fetchStatusAsShell(kShellId);
        QCOMPARE(m_tray->menu().statusLine->text(), u"Tovra: disconnected"_s);
        QCOMPARE(changes.count(), 0);

        m_tray->refreshStatus();
        QTRY_COMPARE(m_tray->menu().statusLine->text(), u"Tovra: connected"_s);
        QCOMPARE(changes.count(), 1);
    }

    void statusHeldWhileMenuOpen()
    {
        startWith(plainStatus("disconnected"));
        const TrayMenu &m = m_tray->menu();
        auto *watcher = m_tray->findChild<TrayMenuCloseWatcher *>();
        QVERIFY(watcher);
        QTimer *watcherTimer = watcher->findChild<QTimer *>();
        QVERIFY(watcherTimer);

        m.menu->popup(QPoint(0, 0));
        QVERIFY(m_tray->isMenuOpen());
        m.modeMenu->popup(QPoint(40, 40));

        QSignalSpy changes(m_state.get(), &AppState::runtimeChanged);
        m_peer->setReply(plainStatus("connected"));
        m_tray->refreshStatus();
        // The tray's own answer is back once a later request of the shell's is answered.
        fetchStatusAsShell(kShellId);
        QCOMPARE(m.statusLine->text(), u"Tovra: disconnected"_s);

        // The main menu closes while the mode submenu is still up: nothing is applied yet.
        m.menu->hide();
        QSignalSpy ticks(watcherTimer, &QTimer::timeout);
        QVERIFY(ticks.wait());
        QVERIFY(m_tray->isMenuOpen());
        QCOMPARE(m.statusLine->text(), u"Tovra: disconnected"_s);
        QCOMPARE(changes.count(), 0);

        m.modeMenu->hide();
        QTRY_COMPARE(m.statusLine->text(), u"Tovra: connected"_s);
        QVERIFY(!m_tray->isMenuOpen());
        QCOMPARE(changes.count(), 1);
    }

    void connectEntryWhileConnecting_data()
    {
        QTest::addColumn<bool>("cancellable");
        QTest::addColumn<QString>("text");
        QTest::addRow("cancellable") << true << "Cancel";
        QTest::addRow("not cancellable") << false << "Connect";
    }

    void connectEntryWhileConnecting()
    {
        QFETCH(bool, cancellable);
        QFETCH(QString, text);
        startWith(plainStatus("disconnected"));
        m_tray->beginConnect(kShellId, u"Tovra: connecting..."_s, cancellable);
        QAction *entry = m_tray->menu().connect;
        QCOMPARE(entry->text(), text);
        QCOMPARE(entry->isEnabled(), cancellable);
        QSignalSpy cancel(m_tray.get(), &TovraTrayApp::cancelConnectRequested);
        QSignalSpy connectAgain(m_tray.get(), &TovraTrayApp::connectRuntimeRequested);
        entry->trigger();
        QCOMPARE(cancel.count(), cancellable ? 1 : 0);
        QCOMPARE(connectAgain.count(), 0);
    }

    void modeEntryWhileBusySendsNothing_data()
    {
        QTest::addColumn<Entry>("entry");
        // One entry for each request: the mode, the system proxy, the local network.
        QTest::newRow("Tovra Proxy Global") << &TrayMenu::proxyGlobal;
        QTest::newRow("System Proxy On") << &TrayMenu::systemProxyOn;
        QTest::newRow("Local Network Protected") << &TrayMenu::localProtected;
    }

    void modeEntryWhileBusySendsNothing()
    {
        QFETCH(Entry, entry);
        startWith(plainStatus("disconnected"));
        m_tray->beginConnect(kShellId, u"Tovra: connecting Berlin..."_s, true);
        QVERIFY(m_tray->isBusy());

        QAction *action = m_tray->menu().*entry;
        const bool checkedBefore = action->isChecked();
        action->trigger();
        flushWorker();
        for (const char *path :
             {"POST /v1/mode ", "POST /v1/proxy/system-proxy ", "POST /v1/local-network "})
            QVERIFY2(sent(path).isEmpty(), path);
        QCOMPARE(action->isChecked(), checkedBefore);
        QCOMPARE(m_tray->menu().statusLine->text(), u"Tovra: connecting Berlin..."_s);
    }

    void killSwitchOnInProxyMode_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("switchToAuto");
        QTest::addColumn<int>("chooseMode");
        QTest::addRow("switch to Auto and enable") << 1 << 1 << 0;
        QTest::addRow("choose a mode") << 2 << 0 << 1;
        QTest::addRow("cancelled") << 0 << 0 << 0;
    }

    void killSwitchOnInProxyMode()
    {
        QFETCH(int, answer);
        QFETCH(int, switchToAuto);
        QFETCH(int, chooseMode);
        startWith(status(R"("auth_state":"logged_in","tunnel_state":"connected",)"
                         R"("mode":{"transport":"proxy","policy":"global"},)"
                         R"("kill_switch":{"enabled":false,"mode":"auto"})"));
        const TrayMenu &m = m_tray->menu();
        QVERIFY(m.killSwitch->isEnabled());

        QList<bool> checkedWhenAsked;
        m_tray->setKillSwitchConfirm([&] {
            checkedWhenAsked.append(m.killSwitch->isChecked());
            return answer;
        });
        QSignalSpy toAuto(m_tray.get(), &TovraTrayApp::switchToAutoAndEnableKillSwitchRequested);
        QSignalSpy choose(m_tray.get(), &TovraTrayApp::chooseModeForKillSwitchRequested);
        m.killSwitch->trigger();
        QCOMPARE(checkedWhenAsked, QList<bool>{false});
        QVERIFY(!m.killSwitch->isChecked());
        QCOMPARE(toAuto.count(), switchToAuto);
        QCOMPARE(choose.count(), chooseMode);
        QVERIFY(!m_tray->isBusy());
        flushWorker();
        QVERIFY(sent("POST /v1/kill-switch").isEmpty());
    }

    void killSwitchEntry_data()
    {
        QTest::addColumn<QByteArray>("killSwitch"); // in the status
        QTest::addColumn<QByteArray>("endpoint"); // from the kill switch's own endpoint; empty: 404
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("checked");
        const QByteArray lockdown(R"({"enabled":true,"mode":"lockdown","guard":"active"})");
        const QByteArray unavailable(R"({"enabled":false,"mode":"lockdown","guard":""})");
        const QByteArray on(R"({"enabled":true,"mode":"always"})");
        const QByteArray off(R"({"enabled":false,"mode":"auto"})");
        QTest::addRow("lockdown in force")
            << lockdown << lockdown << "Kill Switch: Lockdown" << false << true;
        QTest::addRow("lockdown not in force")
            << unavailable << unavailable << "Kill Switch: Lockdown unavailable" << false << false;
        QTest::addRow("off") << off << off << "Kill Switch: Off" << true << false;
        QTest::addRow("no record")
            << QByteArray("{}") << QByteArray() << "Kill Switch" << false << false;
        // A daemon whose status carries no kill switch still gets its entry.
        QTest::addRow("record from its own endpoint only")
            << QByteArray("{}") << on << "Kill Switch: On" << true << true;
    }

    void killSwitchEntry()
    {
        QFETCH(QByteArray, killSwitch);
        QFETCH(QByteArray, endpoint);
        QFETCH(QString, text);
        QFETCH(bool, enabled);
        QFETCH(bool, checked);
        m_peer->setReplyForRequest("GET /v1/kill-switch ",
                                   endpoint.isEmpty() ? ScriptedPeer::response(404, "not found")
                                                      : ScriptedPeer::response(200, endpoint));
        startWith(
            status(R"("tunnel_state":"connected","mode":{"transport":"auto"},"kill_switch":)" +
                   killSwitch));
        const TrayMenu &m = m_tray->menu();
        QTRY_COMPARE(m.killSwitch->text(), text);
        QTRY_VERIFY(!sent("GET /v1/kill-switch ").isEmpty());
        flushWorker();
        QCOMPARE(m.killSwitch->text(), text);
        QCOMPARE(m.killSwitch->isEnabled(), enabled);
        QCOMPARE(m.killSwitch->isChecked(), checked);

        // Lockdown is never switched off from here, even when the slot is reached directly.
        if (text.contains(u"Lockdown")) {
            m_tray->setKillSwitchEnabled(false);
            QCOMPARE(m.killSwitch->isChecked(), checked);
            QVERIFY(!m_tray->isBusy());
            flushWorker();
            QVERIFY(sent("POST /v1/kill-switch").isEmpty());
        }
    }

    void refreshNodesDuringCooldown()
    {
        startWith(plainStatus("disconnected"));
        const TrayMenu &m = m_tray->menu();
        QTRY_VERIFY(m.refreshNodes->isEnabled());
        QCOMPARE(m.refreshNodes->text(), u"Refresh Nodes"_s);

        m_state->startNodesRefreshCooldown(42);
        QCOMPARE(m.refreshNodes->text(), u"Refresh Nodes (42s)"_s);
        QVERIFY(!m.refreshNodes->isEnabled());
        m_tray->refreshNodes();
        flushWorker();
        QVERIFY(sent("POST /v1/nodes/refresh ").isEmpty());
        QCOMPARE(m_state->nodesRefreshCooldown(), 42);

        m_state->startNodesRefreshCooldown(0);
        QVERIFY(m.refreshNodes->isEnabled());
        m.refreshNodes->trigger();
        QCOMPARE(m.nodePlaceholder->text(), u"Refreshing nodes..."_s);
        QCOMPARE(m.refreshNodes->text(), u"Refresh Nodes (60s)"_s);
        QTRY_COMPARE(sent("POST /v1/nodes/refresh ").size(), 1);
    }

    void splitOptionRequestBytes_data()
    {
        QTest::addColumn<bool>("tunnelMode"); // else the proxy's split mode
        QTest::addColumn<Entry>("entry");     // none: the region entry named next
        QTest::addColumn<QString>("region");
        QTest::addColumn<QString>("statusText");
        QTest::addColumn<QByteArray>("body");

        QTest::addRow("tunnel GFWList on")
            << true << &TrayMenu::tunnelGfwList << QString()
            << "Tovra: updating TovraVPN GFWList..."
            << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":false,)"
                          R"("default_route":"proxy","direct_regions":["CN"],"gfwlist":true,)"
                          R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
        QTest::addRow("proxy GFWList on")
            << false << &TrayMenu::proxyGfwList << QString()
            << "Tovra: updating Tovra Proxy GFWList..."
            << QByteArray(R"({"policy":"split","proxy_split_profile":{"custom_rules":false,)"
                          R"("default_route":"direct","direct_regions":[],"gfwlist":true,)"
                          R"("lan_routing":"","proxy_regions":["US"]},"transport":"proxy"})");
        QTest::addRow("tunnel region removed")
            << true << Entry() << u"CN"_s << "Tovra: updating TovraVPN regions..."
            << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":false,)"
                          R"("default_route":"proxy","direct_regions":[],"gfwlist":false,)"
                          R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    }

    void splitOptionRequestBytes()
    {
        QFETCH(bool, tunnelMode);
        QFETCH(Entry, entry);
        QFETCH(QString, region);
        QFETCH(QString, statusText);
        QFETCH(QByteArray, body);
        const QByteArray mode =
            tunnelMode
                ? R"({"transport":"tovravpn","policy":"split","system_proxy":"off","split_profile":)"
                  R"({"default_route":"proxy","direct_regions":["CN"],"gfwlist":false}})"
                : R"({"transport":"proxy","policy":"split","last_proxy_policy":"split",)"
                  R"("proxy_split_profile":{"default_route":"direct","proxy_regions":["US"]}})";
        startWith(status(R"("tunnel_state":"disconnected","mode":)" + mode));
        const TrayMenu &m = m_tray->menu();

        QAction *action = entry ? m.*entry : nullptr;
        if (!entry) {
            // Region entries are built when their submenu is about to show.
            QMenu *regions = tunnelMode ? m.tunnelRegionsMenu : m.proxyRegionsMenu;
            Q_EMIT regions->aboutToShow();
            for (QAction *candidate : regions->actions()) {
                if (candidate->text() == region)
                    action = candidate;
            }
        }
        QVERIFY(action);
        const bool checkedBefore = action->isChecked();
        action->trigger();
        // The click decides nothing: the mark stays as the record says until the answer.
        QCOMPARE(action->isChecked(), checkedBefore);
        QCOMPARE(m.statusLine->text(), statusText);
        QVERIFY(m_tray->isBusy());
        QTRY_COMPARE(sent("POST /v1/mode ").size(), 1);
        const QByteArray request = sent("POST /v1/mode ").constFirst();
        QVERIFY(request.startsWith("POST /v1/mode HTTP/1.1\r\n"));
        QCOMPARE(bodyOf(request), body);
    }

    void controlUnavailable()
    {
        m_tray->setControlAvailable(false, u"Checking Tovra service compatibility..."_s);
        m_peer->setReply(plainStatus("connected"));
        m_tray->start();
        const TrayMenu &m = m_tray->menu();
        QVERIFY(m_tray->isBusy());
        QCOMPARE(m.daemonLine->text(), u"Checking Tovra service compatibility..."_s);
        QVERIFY(!m.refreshStatus->isEnabled());
        m_tray->refreshStatus();
        flushWorker();
        QCOMPARE(sent("GET /v1/status ").size(), 1); // the flush's own

        m_tray->setControlAvailable(true, QString());
        QTRY_COMPARE(m.statusLine->text(), u"Tovra: connected"_s);
        QVERIFY(!m_tray->isBusy());
    }

    void openLogs_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<bool>("openerSucceeds");
        QTest::addColumn<QString>("message");
        const QString tmp = QDir::tempPath();
        const QByteArray existing =
            ScriptedPeer::response(200, "{\"LogDir\":\"" + tmp.toUtf8() + "\"}");
        QTest::addRow("opened") << existing << true << "";
        QTest::addRow("opener refuses")
            << existing << false << u"Error: could not open log directory: %1"_s.arg(tmp);
        QTest::addRow("missing directory")
            << ScriptedPeer::response(200, R"({"LogDir":"/nonexistent/tovra/logs"})") << true
            << "Error: log directory does not exist: /nonexistent/tovra/logs";
        QTest::addRow("no path known") << ScriptedPeer::response(200, R"({"ConfigDir":"/etc"})")
                                       << true << "Error: missing log directory";
    }

    void openLogs()
    {
        QFETCH(QByteArray, reply);
        QFETCH(bool, openerSucceeds);
        QFETCH(QString, message);
        // The catalogue loads answer on their own, so that only the paths' answer reaches the line.
        m_peer->setReplyForRequest("GET /v1/nodes", ScriptedPeer::response(200, "{}"));
        startWith(plainStatus("disconnected"));
        const TrayMenu &m = m_tray->menu();
        QList<QUrl> urls;
        m_tray->setUrlOpener([&](const QUrl &url) {
            urls.append(url);
            return openerSucceeds;
        });
        const QString before = m.daemonLine->text();
        m_peer->setReply(reply);
        m.openLogs->trigger();
        QTRY_COMPARE(sent("GET /v1/config/path ").size(), 1);
        flushWorker();
        // The opener is tried only for a directory that exists.
        const bool tried = message.isEmpty() || !openerSucceeds;
        QCOMPARE(urls, tried ? QList<QUrl>{QUrl::fromLocalFile(QDir::tempPath())} : QList<QUrl>());
        QCOMPARE(m.daemonLine->text(), message.isEmpty() ? before : message);
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
        QVERIFY2(startOnDemoDaemon(), qPrintable(m_daemon->errorString()));
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
        QVERIFY2(startOnDemoDaemon(), qPrintable(m_daemon->errorString()));
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
        QVERIFY2(startOnDemoDaemon(), qPrintable(m_daemon->errorString()));
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
    void build(const QString &socketPath)
    {
        m_thread = new QThread;
        m_worker = new ControlWorker(socketPath);
        m_worker->moveToThread(m_thread);
        connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
        m_thread->start();
        m_state = std::make_unique<AppState>();
        m_preferences = std::make_unique<GuiPreferences>();
        m_tray = std::make_unique<TovraTrayApp>(m_state.get(), m_worker, m_preferences.get());
    }
    void tearDown()
    {
        m_tray.reset();
        m_worker->stop();
        m_thread->quit();
        QVERIFY(m_thread->wait(5000));
        delete m_thread;
        m_preferences.reset();
        m_state.reset();
    }
    // For the daemon's own semantics: the tray rebuilt on the demo daemon, started and settled.
    bool startOnDemoDaemon()
    {
        tearDown();
        m_daemon = std::make_unique<DemoDaemon>();
        if (!m_daemon->start({u"--connect-ms"_s, u"100"_s}))
            return false;
        build(m_daemon->socketPath());
        m_tray->start();
        return QTest::qWaitFor(
            [this] { return m_tray->menu().statusLine->text() == u"Tovra: disconnected"; });
    }
    void startWith(const QByteArray &reply)
    {
        m_peer->setReply(reply);
        m_tray->start();
        QTRY_VERIFY(m_tray->menu().statusLine->text() != u"Tovra: starting...");
    }
    QList<QByteArray> sent(const QByteArray &prefix) const
    {
        QList<QByteArray> matching = m_peer->requests();
        matching.removeIf([&](const QByteArray &request) { return !request.startsWith(prefix); });
        return matching;
    }

    // The worker runs requests in order: once a later status request reached the peer, any
    // request queued before it has reached it too.
    void flushWorker()
    {
        const qsizetype before = sent("GET /v1/status ").size();
        fetchStatusAsShell(kShellId + 99);
        QCOMPARE(sent("GET /v1/status ").size(), before + 1);
    }

    // Asks for the status with a number of the shell's and waits until its answer is back on
    // this thread (a spy in the worker's thread could miss an answer that beats the wait).
    void fetchStatusAsShell(quint64 requestId)
    {
        bool answered = false;
        QObject context;
        connect(m_worker, &ControlWorker::statusFinished, &context,
                [&](quint64 id) { answered = answered || id == requestId; });
        QMetaObject::invokeMethod(m_worker, "fetchStatus", Qt::QueuedConnection,
                                  Q_ARG(quint64, requestId), Q_ARG(int, 1500));
        QTRY_VERIFY(answered);
    }

    std::unique_ptr<TempXdgDirs> m_xdg;
    std::unique_ptr<ScriptedPeer> m_peer;
    std::unique_ptr<DemoDaemon> m_daemon;
    QThread *m_thread = nullptr;
    ControlWorker *m_worker = nullptr;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<GuiPreferences> m_preferences;
    std::unique_ptr<TovraTrayApp> m_tray;
};

QTEST_MAIN(TestTovraTrayApp)
#include "TestTovraTrayApp.moc"
