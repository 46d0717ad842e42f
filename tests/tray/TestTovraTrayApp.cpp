#include "AppState.h"
#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "ScriptedPeer.h"
#include "TempXdgDirs.h"
#include "TovraTrayApp.h"
#include "TrayMenuBuilder.h"
#include "TrayMenuCloseWatcher.h"

#include <QAction>
#include <QDir>
#include <QFont>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

namespace {

const quint64 kShellId = 4294967296ULL;

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

class TestTovraTrayApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void statusLine_data();
    void statusLine();
    void daemonUnavailable_data();
    void daemonUnavailable();
    void daemonUnavailableWithEmptyError();
    void staleStatusAnswerDropped();
    void statusHeldWhileMenuOpen();
    void modeEntryWhileBusySendsNothing_data();
    void modeEntryWhileBusySendsNothing();
    void killSwitchOnInProxyMode_data();
    void killSwitchOnInProxyMode();
    void killSwitchEntry_data();
    void killSwitchEntry();
    void refreshNodesDuringCooldown();
    void splitOptionRequestBytes_data();
    void splitOptionRequestBytes();
    void controlUnavailable();
    void openLogs_data();
    void openLogs();
    void flatLayout();

private:
    void startWith(const QByteArray &reply);
    QList<QByteArray> requestsStartingWith(const QByteArray &prefix) const;
    // The worker runs requests in order: once a later status request reached the peer, any
    // request queued before it has reached it too.
    void flushWorker();
    // Asks for the status with a number of the shell's and waits until its answer is back on
    // this thread (a spy in the worker's thread could miss an answer that beats the wait).
    void fetchStatusAsShell(quint64 requestId);
    QAction *entry(const QString &name) const;

    std::unique_ptr<TempXdgDirs> m_xdg;
    std::unique_ptr<ScriptedPeer> m_peer;
    QThread *m_thread = nullptr;
    ControlWorker *m_worker = nullptr;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<GuiPreferences> m_preferences;
    std::unique_ptr<TovraTrayApp> m_tray;
};

void TestTovraTrayApp::initTestCase()
{
    registerControlMetaTypes();
}

void TestTovraTrayApp::init()
{
    m_xdg = std::make_unique<TempXdgDirs>();
    m_peer = std::make_unique<ScriptedPeer>();
    m_thread = new QThread;
    m_worker = new ControlWorker(m_peer->socketPath());
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start();
    m_state = std::make_unique<AppState>();
    m_preferences = std::make_unique<GuiPreferences>();
    m_tray = std::make_unique<TovraTrayApp>(m_state.get(), m_worker, m_preferences.get());
}

void TestTovraTrayApp::cleanup()
{
    m_tray.reset();
    m_worker->stop();
    m_thread->quit();
    QVERIFY(m_thread->wait(5000));
    delete m_thread;
    m_preferences.reset();
    m_state.reset();
    m_peer.reset();
    m_xdg.reset();
}

void TestTovraTrayApp::startWith(const QByteArray &reply)
{
    m_peer->setReply(reply);
    m_tray->start();
    QTRY_VERIFY(m_tray->menu().statusLine->text() != u"Tovra: starting...");
}

QList<QByteArray> TestTovraTrayApp::requestsStartingWith(const QByteArray &prefix) const
{
    QList<QByteArray> matching;
    const QList<QByteArray> all = m_peer->requests();
    for (const QByteArray &request : all) {
        if (request.startsWith(prefix))
            matching.append(request);
    }
    return matching;
}

void TestTovraTrayApp::flushWorker()
{
    const qsizetype before = requestsStartingWith("GET /v1/status ").size();
    fetchStatusAsShell(kShellId + 99);
    QCOMPARE(requestsStartingWith("GET /v1/status ").size(), before + 1);
}

void TestTovraTrayApp::fetchStatusAsShell(quint64 requestId)
{
    bool answered = false;
    QObject context;
    connect(m_worker, &ControlWorker::statusFinished, &context,
            [&](quint64 id) { answered = answered || id == requestId; });
    QMetaObject::invokeMethod(m_worker, "fetchStatus", Qt::QueuedConnection,
                              Q_ARG(quint64, requestId), Q_ARG(int, 1500));
    QTRY_VERIFY(answered);
}

QAction *TestTovraTrayApp::entry(const QString &name) const
{
    const TrayMenu &m = m_tray->menu();
    const QHash<QString, QAction *> entries{
        {QStringLiteral("Auto"), m.autoMode},
        {QStringLiteral("WireGuard"), m.wireGuard},
        {QStringLiteral("TovraVPN Global"), m.tunnelGlobal},
        {QStringLiteral("TovraVPN Split"), m.tunnelSplit},
        {QStringLiteral("Tovra Proxy Global"), m.proxyGlobal},
        {QStringLiteral("Tovra Proxy Split"), m.proxySplit},
        {QStringLiteral("Default: Tunnel"), m.tunnelDefaultTunnel},
        {QStringLiteral("TovraVPN Default: Direct"), m.tunnelDefaultDirect},
        {QStringLiteral("GFWList -> Tunnel"), m.tunnelGfwList},
        {QStringLiteral("Custom Split Rules"), m.tunnelCustomRules},
        {QStringLiteral("Default: Proxy"), m.proxyDefaultProxy},
        {QStringLiteral("Proxy Default: Direct"), m.proxyDefaultDirect},
        {QStringLiteral("GFWList -> Proxy"), m.proxyGfwList},
        {QStringLiteral("System Proxy On"), m.systemProxyOn},
        {QStringLiteral("Local Network Protected"), m.localProtected},
    };
    return entries.value(name);
}

void TestTovraTrayApp::statusLine_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("iconName");
    QTest::addRow("connected") << plainStatus("connected") << "Tovra: connected"
                               << "on";
    QTest::addRow("connected, odd case and blanks")
        << plainStatus(" Connected ") << "Tovra: connected"
        << "on";
    QTest::addRow("connecting") << plainStatus("connecting") << "Tovra: connecting..."
                                << "off";
    QTest::addRow("disconnected") << plainStatus("disconnected") << "Tovra: disconnected"
                                  << "off";
    QTest::addRow("disconnecting") << plainStatus("disconnecting") << "Tovra: disconnecting"
                                   << "off";
    QTest::addRow("plain state word when no tunnel word")
        << status(R"("daemon_state":"READY")") << "Tovra: ready"
        << "off";
    QTest::addRow("unknown word shown as it is")
        << plainStatus("Reconnecting") << "Tovra: reconnecting"
        << "off";
    QTest::addRow("no word at all") << status("") << "Tovra: unknown"
                                    << "off";
}

void TestTovraTrayApp::statusLine()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, expected);
    QFETCH(QString, iconName);
    startWith(reply);
    QCOMPARE(m_tray->menu().statusLine->text(), expected);
    const QIcon icon(QStringLiteral(":/icons/tray-%1.png").arg(iconName));
    QCOMPARE(m_tray->trayIcon()->icon().pixmap(16).toImage(), icon.pixmap(16).toImage());
    QCOMPARE(m_tray->trayIcon()->toolTip(), QStringLiteral("Tovra"));
    QCOMPARE(requestsStartingWith("GET /v1/status ").size(), 1);
}

void TestTovraTrayApp::daemonUnavailable_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("daemonLine");
    QTest::addRow("daemon's error")
        << ScriptedPeer::response(503, R"({"error":"daemon is restarting"})")
        << "daemon is restarting";
    QTest::addRow("bare HTTP failure")
        << ScriptedPeer::response(500, "") << "control request failed with HTTP 500";
    QTest::addRow("not a status") << ScriptedPeer::response(200, "[]") << "invalid status JSON";
}

void TestTovraTrayApp::daemonUnavailable()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, daemonLine);
    startWith(reply);
    const TrayMenu &m = m_tray->menu();
    QCOMPARE(m.statusLine->text(), QStringLiteral("Tovra: daemon unavailable"));
    QCOMPARE(m.daemonLine->text(), daemonLine);
    QCOMPARE(m.account->text(), QStringLiteral("Account: unavailable"));
    QCOMPARE(m.connect->text(), QStringLiteral("Connect"));
    for (QAction *action : {m.connect, m.disconnect, m.nodeMenu->menuAction(), m.autoMode,
                            m.tunnelGlobal, m.proxySplit, m.account, m.logout, m.killSwitch})
        QVERIFY2(!action->isEnabled(), qPrintable(action->text()));
    QVERIFY(m.refreshStatus->isEnabled());
    QCOMPARE(m_tray->trayIcon()->toolTip(), QStringLiteral("Tovra - daemon unavailable"));

    // Retrying after the daemon is back restores the menu.
    m_peer->setReply(plainStatus("disconnected"));
    m.refreshStatus->trigger();
    QTRY_COMPARE(m.statusLine->text(), QStringLiteral("Tovra: disconnected"));
    QVERIFY(m.autoMode->isEnabled());
    QCOMPARE(m_tray->trayIcon()->toolTip(), QStringLiteral("Tovra"));
}

void TestTovraTrayApp::daemonUnavailableWithEmptyError()
{
    // The status request stays unanswered, so the answer below is the one the tray awaits.
    m_peer->setReply(ScriptedPeer::Reply{{}, ScriptedPeer::Ending::KeepOpen, true});
    m_tray->start();
    QTRY_COMPARE(m_peer->requests().size(), 1);
    // The tray's first request number is 1: its numbers stay below the shell's.
    Q_EMIT m_worker->statusFinished(1, RuntimeInfo(), QString());
    QCOMPARE(m_tray->menu().statusLine->text(), QStringLiteral("Tovra: daemon unavailable"));
    QCOMPARE(m_tray->menu().daemonLine->text(), QStringLiteral("daemon unavailable"));
}

void TestTovraTrayApp::staleStatusAnswerDropped()
{
    startWith(plainStatus("disconnected"));
    QSignalSpy changes(m_state.get(), &AppState::runtimeChanged);
    m_peer->setReply(plainStatus("connected"));
    // An answer to someone else's status request (the shell's number) is not the tray's.
    fetchStatusAsShell(kShellId);
    QCOMPARE(m_tray->menu().statusLine->text(), QStringLiteral("Tovra: disconnected"));
    QCOMPARE(changes.count(), 0);

    m_tray->refreshStatus();
    QTRY_COMPARE(m_tray->menu().statusLine->text(), QStringLiteral("Tovra: connected"));
    QCOMPARE(changes.count(), 1);
}

void TestTovraTrayApp::statusHeldWhileMenuOpen()
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
    QCOMPARE(m.statusLine->text(), QStringLiteral("Tovra: disconnected"));

    // The main menu closes while the mode submenu is still up: nothing is applied yet.
    m.menu->hide();
    QSignalSpy ticks(watcherTimer, &QTimer::timeout);
    QVERIFY(ticks.wait());
    QVERIFY(m_tray->isMenuOpen());
    QCOMPARE(m.statusLine->text(), QStringLiteral("Tovra: disconnected"));
    QCOMPARE(changes.count(), 0);

    QTest::ignoreMessage(
        QtInfoMsg, QRegularExpression(QStringLiteral(
                       R"(^tray submenu release: nodes expanded=false actions 0->0 )"
                       R"(\(catalog nodes=0\); proxy regions 0->0; tovravpn regions 0->0$)")));
    m.modeMenu->hide();
    QTRY_COMPARE(m.statusLine->text(), QStringLiteral("Tovra: connected"));
    QVERIFY(!m_tray->isMenuOpen());
    QCOMPARE(changes.count(), 1);
}

void TestTovraTrayApp::modeEntryWhileBusySendsNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Auto", "WireGuard", "TovraVPN Global", "TovraVPN Split",
                             "Tovra Proxy Global", "Tovra Proxy Split", "GFWList -> Tunnel",
                             "Default: Proxy", "System Proxy On", "Local Network Protected"})
        QTest::addRow("%s", name) << QString::fromUtf8(name);
}

void TestTovraTrayApp::modeEntryWhileBusySendsNothing()
{
    QFETCH(QString, name);
    startWith(plainStatus("disconnected"));
    const TrayMenu &m = m_tray->menu();
    m_tray->beginConnect(kShellId, QStringLiteral("Tovra: connecting Berlin..."), true);
    QVERIFY(m_tray->isBusy());
    QVERIFY(!m.autoMode->isEnabled());
    QCOMPARE(m.connect->text(), QStringLiteral("Cancel"));
    QVERIFY(m.connect->isEnabled());

    QAction *action = entry(name);
    QVERIFY(action);
    const bool checkedBefore = action->isChecked();
    action->trigger();
    flushWorker();
    QCOMPARE(requestsStartingWith("POST /v1/mode ").size(), 0);
    QCOMPARE(requestsStartingWith("POST /v1/proxy/system-proxy ").size(), 0);
    QCOMPARE(requestsStartingWith("POST /v1/local-network ").size(), 0);
    QCOMPARE(action->isChecked(), checkedBefore);
    QCOMPARE(m.statusLine->text(), QStringLiteral("Tovra: connecting Berlin..."));
}

void TestTovraTrayApp::killSwitchOnInProxyMode_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("switchToAuto");
    QTest::addColumn<int>("chooseMode");
    QTest::addRow("switch to Auto and enable") << 1 << 1 << 0;
    QTest::addRow("choose a mode") << 2 << 0 << 1;
    QTest::addRow("cancelled") << 0 << 0 << 0;
}

void TestTovraTrayApp::killSwitchOnInProxyMode()
{
    QFETCH(int, answer);
    QFETCH(int, switchToAuto);
    QFETCH(int, chooseMode);
    startWith(status(R"("auth_state":"logged_in","tunnel_state":"connected",)"
                     R"("mode":{"transport":"proxy","policy":"global"},)"
                     R"("kill_switch":{"enabled":false,"mode":"auto"})"));
    const TrayMenu &m = m_tray->menu();
    QCOMPARE(m.killSwitch->text(), QStringLiteral("Kill Switch: Off"));
    QVERIFY(m.killSwitch->isEnabled());

    int asked = 0;
    bool checkedWhileAsked = true;
    m_tray->setKillSwitchConfirm([&] {
        ++asked;
        checkedWhileAsked = m.killSwitch->isChecked();
        return answer;
    });
    QSignalSpy toAuto(m_tray.get(), &TovraTrayApp::switchToAutoAndEnableKillSwitchRequested);
    QSignalSpy choose(m_tray.get(), &TovraTrayApp::chooseModeForKillSwitchRequested);
    m.killSwitch->trigger();
    QCOMPARE(asked, 1);
    QVERIFY(!checkedWhileAsked);
    QVERIFY(!m.killSwitch->isChecked());
    QCOMPARE(toAuto.count(), switchToAuto);
    QCOMPARE(choose.count(), chooseMode);
    QVERIFY(!m_tray->isBusy());
    flushWorker();
    QCOMPARE(requestsStartingWith("POST /v1/kill-switch").size(), 0);
}

void TestTovraTrayApp::killSwitchEntry_data()
{
    QTest::addColumn<QByteArray>("killSwitch");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addRow("lockdown in force")
        << QByteArray(R"("kill_switch":{"enabled":true,"mode":"lockdown","guard":"active"})")
        << "Kill Switch: Lockdown" << false << true;
    QTest::addRow("lockdown not in force")
        << QByteArray(R"("kill_switch":{"enabled":false,"mode":"lockdown","guard":""})")
        << "Kill Switch: Lockdown unavailable" << false << false;
    QTest::addRow("on") << QByteArray(R"("kill_switch":{"enabled":true,"mode":"always"})")
                        << "Kill Switch: On" << true << true;
    QTest::addRow("off") << QByteArray(R"("kill_switch":{"enabled":false,"mode":"auto"})")
                         << "Kill Switch: Off" << true << false;
    QTest::addRow("no record") << QByteArray(R"("kill_switch":{})") << "Kill Switch" << false
                               << false;
}

void TestTovraTrayApp::killSwitchEntry()
{
    QFETCH(QByteArray, killSwitch);
    QFETCH(QString, text);
    QFETCH(bool, enabled);
    QFETCH(bool, checked);
    startWith(status(R"("tunnel_state":"connected","mode":{"transport":"auto"},)" + killSwitch));
    const TrayMenu &m = m_tray->menu();
    QCOMPARE(m.killSwitch->text(), text);
    QCOMPARE(m.killSwitch->isEnabled(), enabled);
    QCOMPARE(m.killSwitch->isChecked(), checked);

    // Lockdown is never switched off from here, even when the slot is reached directly.
    if (text.contains(u"Lockdown")) {
        m_tray->setKillSwitchEnabled(false);
        QCOMPARE(m.killSwitch->isChecked(), checked);
        QVERIFY(!m_tray->isBusy());
        flushWorker();
        QCOMPARE(requestsStartingWith("POST /v1/kill-switch").size(), 0);
    }
}

void TestTovraTrayApp::refreshNodesDuringCooldown()
{
    startWith(plainStatus("disconnected"));
    const TrayMenu &m = m_tray->menu();
    QTRY_VERIFY(m.refreshNodes->isEnabled());
    QCOMPARE(m.refreshNodes->text(), QStringLiteral("Refresh Nodes"));

    m_state->startNodesRefreshCooldown(42);
    QCOMPARE(m.refreshNodes->text(), QStringLiteral("Refresh Nodes (42s)"));
    QVERIFY(!m.refreshNodes->isEnabled());
    m.refreshNodes->trigger();
    m_tray->refreshNodes();
    flushWorker();
    QCOMPARE(requestsStartingWith("POST /v1/nodes/refresh ").size(), 0);
    QCOMPARE(m_state->nodesRefreshCooldown(), 42);

    m_state->startNodesRefreshCooldown(0);
    QCOMPARE(m.refreshNodes->text(), QStringLiteral("Refresh Nodes"));
    QVERIFY(m.refreshNodes->isEnabled());
    m.refreshNodes->trigger();
    QCOMPARE(m.nodePlaceholder->text(), QStringLiteral("Refreshing nodes..."));
    QCOMPARE(m.refreshNodes->text(), QStringLiteral("Refresh Nodes (60s)"));
    QTRY_COMPARE(requestsStartingWith("POST /v1/nodes/refresh ").size(), 1);
}

void TestTovraTrayApp::splitOptionRequestBytes_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("statusText");
    QTest::addColumn<QByteArray>("body");

    const QByteArray tunnel =
        R"({"transport":"tovravpn","policy":"split","system_proxy":"off","split_profile":)"
        R"({"default_route":"proxy","direct_regions":["CN"],"gfwlist":false}})";
    const QByteArray proxy =
        R"({"transport":"proxy","policy":"split","last_proxy_policy":"split",)"
        R"("proxy_split_profile":{"default_route":"direct","proxy_regions":["US"]}})";

    QTest::addRow("tunnel GFWList on")
        << tunnel << "GFWList -> Tunnel"
        << "Tovra: updating TovraVPN GFWList..."
        << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":false,)"
                      R"("default_route":"proxy","direct_regions":["CN"],"gfwlist":true,)"
                      R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    QTest::addRow("tunnel default direct")
        << tunnel << "TovraVPN Default: Direct"
        << "Tovra: updating TovraVPN split..."
        << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":false,)"
                      R"("default_route":"direct","direct_regions":["CN"],"gfwlist":false,)"
                      R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    QTest::addRow("tunnel custom rules on")
        << tunnel << "Custom Split Rules"
        << "Tovra: updating TovraVPN custom rules..."
        << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":true,)"
                      R"("default_route":"proxy","direct_regions":["CN"],"gfwlist":false,)"
                      R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    QTest::addRow("proxy default proxy")
        << proxy << "Default: Proxy"
        << "Tovra: updating Tovra Proxy Split..."
        << QByteArray(R"({"policy":"split","proxy_split_profile":{"custom_rules":false,)"
                      R"("default_route":"proxy","direct_regions":[],"gfwlist":false,)"
                      R"("lan_routing":"","proxy_regions":["US"]},"transport":"proxy"})");
    QTest::addRow("proxy GFWList on")
        << proxy << "GFWList -> Proxy"
        << "Tovra: updating Tovra Proxy GFWList..."
        << QByteArray(R"({"policy":"split","proxy_split_profile":{"custom_rules":false,)"
                      R"("default_route":"direct","direct_regions":[],"gfwlist":true,)"
                      R"("lan_routing":"","proxy_regions":["US"]},"transport":"proxy"})");
    QTest::addRow("tunnel region removed")
        << tunnel << "region:CN"
        << "Tovra: updating TovraVPN regions..."
        << QByteArray(R"({"policy":"split","split_profile":{"custom_rules":false,)"
                      R"("default_route":"proxy","direct_regions":[],"gfwlist":false,)"
                      R"("lan_routing":"","proxy_regions":[]},"transport":"tovravpn"})");
    QTest::addRow("proxy region removed")
        << proxy << "proxy-region:US"
        << "Tovra: updating Tovra Proxy regions..."
        << QByteArray(R"({"policy":"split","proxy_split_profile":{"custom_rules":false,)"
                      R"("default_route":"direct","direct_regions":[],"gfwlist":false,)"
                      R"("lan_routing":"","proxy_regions":[]},"transport":"proxy"})");
}

void TestTovraTrayApp::splitOptionRequestBytes()
{
    QFETCH(QByteArray, mode);
    QFETCH(QString, name);
    QFETCH(QString, statusText);
    QFETCH(QByteArray, body);
    startWith(status(R"("tunnel_state":"disconnected","mode":)" + mode));
    const TrayMenu &m = m_tray->menu();

    QAction *action = nullptr;
    if (name.startsWith(u"region:") || name.startsWith(u"proxy-region:")) {
        // Region entries are built when their submenu is about to show.
        const bool tunnel = name.startsWith(u"region:");
        QMenu *regions = tunnel ? m.tunnelRegionsMenu : m.proxyRegionsMenu;
        Q_EMIT regions->aboutToShow();
        const QString code = name.section(u':', 1);
        const QList<QAction *> entries = regions->actions();
        for (QAction *candidate : entries) {
            if (candidate->text() == code)
                action = candidate;
        }
    } else {
        action = entry(name);
    }
    QVERIFY(action);
    const bool checkedBefore = action->isChecked();
    action->trigger();
    // The click decides nothing: the mark stays as the record says until the answer.
    QCOMPARE(action->isChecked(), checkedBefore);
    QCOMPARE(m.statusLine->text(), statusText);
    QVERIFY(m_tray->isBusy());
    QTRY_COMPARE(requestsStartingWith("POST /v1/mode ").size(), 1);
    const QByteArray request = requestsStartingWith("POST /v1/mode ").constFirst();
    QVERIFY(request.startsWith("POST /v1/mode HTTP/1.1\r\n"));
    QCOMPARE(bodyOf(request), body);
}

void TestTovraTrayApp::controlUnavailable()
{
    m_tray->setControlAvailable(false, QStringLiteral("Checking Tovra service compatibility..."));
    m_peer->setReply(plainStatus("connected"));
    m_tray->start();
    const TrayMenu &m = m_tray->menu();
    QVERIFY(m_tray->isBusy());
    QCOMPARE(m.daemonLine->text(), QStringLiteral("Checking Tovra service compatibility..."));
    QVERIFY(!m.refreshStatus->isEnabled());
    QVERIFY(!m.connect->isEnabled());
    m_tray->refreshStatus();
    flushWorker();
    QCOMPARE(requestsStartingWith("GET /v1/status ").size(), 1); // the flush's own

    m_tray->setControlAvailable(true, QString());
    QTRY_COMPARE(m.statusLine->text(), QStringLiteral("Tovra: connected"));
    QVERIFY(m.refreshStatus->isEnabled());
    QVERIFY(m.disconnect->isEnabled());
    QVERIFY(!m_tray->isBusy());
}

void TestTovraTrayApp::openLogs_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("openerSucceeds");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("opened");
    const QString tmp = QDir::tempPath();
    const QByteArray existing = R"({"LogDir":")" + tmp.toUtf8() + R"("})";
    QTest::addRow("opened") << ScriptedPeer::response(200, existing) << true << "" << true;
    QTest::addRow("opener refuses")
        << ScriptedPeer::response(200, existing) << false
        << QStringLiteral("Error: could not open log directory: %1").arg(tmp) << true;
    QTest::addRow("missing directory")
        << ScriptedPeer::response(200, R"({"LogDir":"/nonexistent/tovra/logs"})") << true
        << "Error: log directory does not exist: /nonexistent/tovra/logs" << false;
    QTest::addRow("no path known") << ScriptedPeer::response(200, R"({"ConfigDir":"/etc"})") << true
                                   << "Error: missing log directory" << false;
    QTest::addRow("daemon error") << ScriptedPeer::response(500, R"({"error":"no paths here"})")
                                  << true << "Error: no paths here" << false;
}

void TestTovraTrayApp::openLogs()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, openerSucceeds);
    QFETCH(QString, message);
    QFETCH(bool, opened);
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
    QTRY_COMPARE(requestsStartingWith("GET /v1/config/path ").size(), 1);
    flushWorker();
    QCOMPARE(urls.size(), opened ? 1 : 0);
    if (opened)
        QCOMPARE(urls.constFirst(), QUrl::fromLocalFile(QDir::tempPath()));
    QCOMPARE(m.daemonLine->text(), message.isEmpty() ? before : message);
}

void TestTovraTrayApp::flatLayout()
{
    TrayMenuBuilder::setUsesSubmenus(false);
    const TrayMenu flat = TrayMenuBuilder::build();
    TrayMenuBuilder::setUsesSubmenus(true);
    const std::unique_ptr<QMenu> owner(flat.menu);

    QVERIFY(!flat.nodeMenu);
    QVERIFY(!flat.modeMenu);
    QVERIFY(!flat.localNetworkMenu);
    const QList<QAction *> top = flat.menu->actions();
    for (QAction *action : flat.nodeEntries)
        QVERIFY(top.contains(action));
    for (QAction *action : {flat.autoMode, flat.tunnelGlobal, flat.proxySplit, flat.localDirect})
        QVERIFY2(top.contains(action), qPrintable(action->text()));
    QCOMPARE(flat.modeTitle->text(), QStringLiteral("[ Mode ]"));
    QCOMPARE(flat.localNetworkTitle->text(), QStringLiteral("[ LAN Access ]"));
    QVERIFY(!flat.modeTitle->isEnabled());
    QCOMPARE(flat.modeTitle->font().weight(), QFont::Bold);
    QVERIFY(flat.tunnelSplitMenu->menuAction()->isVisible());
    QVERIFY(flat.proxySplitMenu->menuAction()->isVisible());

    const TrayMenu nested = TrayMenuBuilder::build();
    const std::unique_ptr<QMenu> nestedOwner(nested.menu);
    QVERIFY(nested.nodeMenu && nested.modeMenu && nested.localNetworkMenu);
    QVERIFY(!nested.menu->actions().contains(nested.autoMode));
    QVERIFY(!nested.tunnelSplitMenu->menuAction()->isVisible());
}

QTEST_MAIN(TestTovraTrayApp)
#include "TestTovraTrayApp.moc"
