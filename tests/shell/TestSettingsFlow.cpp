#include "AppSection.h"
#include "AppState.h"
#include "DemoDaemon.h"
#include "LanguagePickerDialog.h"
#include "MainWindow.h"
#include "SettingsNotes.h"
#include "SettingsPage.h"
#include "TempXdgDirs.h"
#include "ToggleSwitch.h"
#include "TovraAppShell.h"
#include "WindowController.h"
#include "WindowFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The window of a shell without a tray on the Settings page, which asks the shell to load what
// it shows.
void openSettings(TovraAppShell &shell)
{
    shell.setSystemTrayAvailable(false);
    // The daemon's language differs from the test's; no restart notice in the way.
    shell.setLanguageRestartAllowed(false);
    shell.windowController()->showOrRaise();
    shell.windowController()->window()->showPage(MainWindow::SettingsPageIndex);
}

QString notificationText(TovraAppShell &shell)
{
    const QLabel *label = shell.windowController()->window()->findChild<QLabel *>(
        QStringLiteral("TovraNotificationMessage"));
    return label && label->isVisibleTo(shell.windowController()->window()) ? label->text()
                                                                           : QString();
}

// The value a row checks: from the store, the window's notes and repair result, the daemon's
// request log ("request:METHOD /path -> STATUS") or the folder the window opened.
QString readBack(TovraAppShell &shell, DemoDaemon &daemon, const QString &opened,
                 const QString &what)
{
    if (what.startsWith(u"request:")) {
        QFile log(daemon.dataDir() + QStringLiteral("/log/tovra-daemon.log"));
        return log.open(QIODevice::ReadOnly) && log.readAll().contains(what.mid(8).toUtf8())
                   ? u"sent"_s
                   : u"not sent"_s;
    }
    if (what.startsWith(u"note:"))
        return shell.windowController()->replayState().settingsNotes.value(what.mid(5));
    const AppState &state = *shell.state();
    const RuntimeInfo &runtime = state.runtime();
    QStringList listeners;
    for (const ProxyListenerInfo &listener : runtime.proxyListeners)
        listeners.append(listener.address);
    const QHash<QString, QStringList> values{
        {u"killSwitch"_s,
         {state.killSwitch().enabled ? u"on"_s : u"off"_s, state.killSwitch().mode}},
        {u"runtime"_s, {runtime.mode.systemProxy, runtime.mode.localNetwork, runtime.autoConnect}},
        {u"listeners"_s, listeners},
        {u"dns"_s, QStringList{state.splitDNS().configuredPolicy} +
                       state.splitDNS().configuredLocalDirectDns},
        {u"apiURL"_s, {state.apiURLConfig().apiURL}},
        {u"language"_s, {state.languageConfig().source, state.languageConfig().language}},
        {u"repair"_s,
         {QString::number(shell.windowController()->replayState().repairResult.lines.size())}},
        {u"opened"_s, {QFileInfo(opened).fileName()}},
    };
    return values.value(what, {u"unknown check"_s}).join(u' ');
}

} // namespace

// The Settings page's requests through the shell to the demo daemon and back into the store.
class TestSettingsFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The update check says which GUI asks.
    void initTestCase() { QCoreApplication::setApplicationVersion(u"1.0.0"_s); }

    void daemonDownLeavesNotesNotPopUps()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start({QStringLiteral("--fail"), QStringLiteral("/v1/config/api-url=500")}),
                 qPrintable(daemon.errorString()));
        TovraAppShell shell(nullptr, daemon.socketPath());
        openSettings(shell);
        const auto &notes = shell.windowController()->replayState().settingsNotes;
        QTRY_VERIFY(notes.contains(SettingsNotes::APIURL));
        QTRY_VERIFY(shell.state()->configPaths().valid);
        QVERIFY(!notes.contains(SettingsNotes::Status));
        QVERIFY2(notificationText(shell).isEmpty(), qPrintable(notificationText(shell)));

        QVERIFY(daemon.stop());
        shell.windowController()->window()->showPage(MainWindow::VpnPageIndex);
        shell.windowController()->window()->showPage(MainWindow::SettingsPageIndex);
        QTRY_VERIFY(notes.contains(SettingsNotes::Status));
        QTRY_VERIFY(notes.contains(SettingsNotes::ConfigPaths));
        // Six loads failed; none of them became a pop-up or an "update" text.
        QVERIFY(notificationText(shell).isEmpty());
        for (const QString &text : notes)
            QVERIFY2(!text.contains(QStringLiteral("update")), qPrintable(text));

        // The open page notices the service coming back and loads again by itself.
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(!notes.contains(SettingsNotes::Status), 10000);
        QTRY_VERIFY(!notes.contains(SettingsNotes::ConfigPaths));
    }

    // Each Settings control, used as a user does, through the page, the window, the shell and
    // the control client to the demo daemon, and the daemon's answer back in the store.
    void changeReachesDaemon_data()
    {
        QTest::addColumn<QStringList>("daemonArguments");
        QTest::addColumn<QString>("steps"); // settingsSteps()
        QTest::addColumn<QString>("check"); // readBack()
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("shown"); // in the pop-up or a note beside a card
        const auto row = [](const char *name, const char *steps, const char *check,
                            const char *expected, const char *shown = "",
                            const QStringList &daemonArguments = {}) {
            QTest::addRow("%s", name)
                << daemonArguments << QString::fromUtf8(steps) << QString::fromUtf8(check)
                << QString::fromUtf8(expected) << QString::fromUtf8(shown);
        };
        row("kill switch on", "click:KillSwitch", "killSwitch", "on auto");
        row("kill switch always", "click:KillSwitchMode_always", "killSwitch", "off always");
        row("system proxy", "choose:SystemProxy=lock", "runtime", "lock direct off");
        row("local network", "choose:LocalNetwork=protected", "runtime", "off protected off");
        row("auto connect", "choose:AutoConnect=smart", "runtime", "off direct smart");
        row("listeners",
            "type:SocksListen= 127.0.0.1:1081 |type:HttpListen=[::1]:8081|click:ApplyListeners",
            "listeners", "127.0.0.1:1081 [::1]:8081");
        row("listeners closed", "type:SocksListen=|type:HttpListen=|return:HttpListen", "listeners",
            "");
        row("dns servers", "type:DNSServers=1.1.1.1,  2606:4700::1111|click:SaveDNS", "dns",
            "auto 1.1.1.1 2606:4700::1111");
        row("dns policy", "choose:DNSPolicy=remote", "dns", "remote");
        row("dns clear", "click:ClearDNS", "request:DELETE /v1/split/dns/local -> 200", "sent",
            "Split DNS updated");
        row("dns reset", "click:ResetDNS", "request:POST /v1/split/dns/reset -> 200", "sent",
            "Split DNS updated");
        row("api url", "type:APIURL=http://api.example.com:8443/v2|return:APIURL", "apiURL",
            "http://api.example.com:8443/v2", "API URL saved but not validated");
        row("api url reset", "click:ResetAPIURL", "apiURL", "https://api.tovra.invalid",
            "API URL reset to default");
        row("language", "click:Language", "language", "user de");
        row("check update", "click:CheckUpdate", "note:updateCheck", "Tovra is up to date");
        row("repair", "click:Repair", "repair", "3", "Repair completed");
        row("open logs", "click:OpenLogs", "opened", "log");
        // Refused by the daemon: its words are shown and the store keeps the daemon's value.
        row("refused listeners", "type:SocksListen=127.0.0.1:1081|click:ApplyListeners",
            "listeners", "127.0.0.1:1080 127.0.0.1:8118", "port 1081 is in use",
            {u"--fail"_s, u"/v1/proxy/listen=409:{\"error\":\"port 1081 is in use\"}"_s});
        row("too old for modes", "click:KillSwitchMode_always", "killSwitch", "off auto",
            "Tovra daemon is too old for Kill Switch modes. Update Tovra.",
            {QStringLiteral("--no-kill-switch-mode")});
    }

    void changeReachesDaemon()
    {
        QFETCH(QStringList, daemonArguments);
        QFETCH(QString, steps);
        QFETCH(QString, check);
        QFETCH(QString, expected);
        QFETCH(QString, shown);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(daemonArguments), qPrintable(daemon.errorString()));
        TovraAppShell shell(nullptr, daemon.socketPath());
        QString opened;
        shell.windowController()->setUrlOpener([&opened](const QUrl &url) {
            opened = url.toLocalFile();
            return true;
        });
        openSettings(shell);
        // The page's load fills the store, and a healthy daemon leaves no note.
        const AppState *state = shell.state();
        QTRY_VERIFY(state->splitDNS().valid && state->apiURLConfig().valid &&
                    state->languageConfig().valid && state->killSwitch().valid &&
                    state->configPaths().valid && state->runtime().valid);
        const auto &notes = shell.windowController()->replayState().settingsNotes;
        QVERIFY(notes.isEmpty());
        auto *page = shell.windowController()->window()->findChild<SettingsPage *>();
        page->appSection()->setPickerRunner([](LanguagePickerDialog *dialog) {
            QTest::keyClicks(dialog->searchField(), QStringLiteral("deutsch"));
            QTest::keyClick(dialog->searchField(), Qt::Key_Return);
            return dialog->result() == QDialog::Accepted;
        });

        QVERIFY(settingsSteps(page, steps));
        // A request, never a flip: the switch waits for the daemon.
        QVERIFY(!page->findChild<ToggleSwitch *>(u"TovraSettingsKillSwitch"_s)->isChecked());
        if (!shown.isEmpty())
            QTRY_VERIFY2(notificationText(shell).contains(shown) ||
                             QStringList(notes.values()).join(u'\n').contains(shown),
                         qPrintable(notificationText(shell)));
        QTRY_COMPARE(readBack(shell, daemon, opened, check), expected);
    }

private:
    TempXdgDirs m_dirs;
};

QTEST_MAIN(TestSettingsFlow)
#include "TestSettingsFlow.moc"
