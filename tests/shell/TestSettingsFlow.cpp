#include "AppState.h"
#include "DemoDaemon.h"
#include "MainWindow.h"
#include "SettingsNotes.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "WindowController.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace {

// Emits a signal named by its signature, so that the rows can name the page's requests.
bool emitSignal(QObject *object, const QByteArray &signature, QVariantList arguments)
{
    const int index = object->metaObject()->indexOfSignal(signature.constData());
    if (index < 0 || arguments.size() > 3)
        return false;
    std::array<void *, 4> argv{};
    for (qsizetype i = 0; i < arguments.size(); ++i)
        argv[size_t(i) + 1] = arguments[i].data();
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, index, argv.data());
    return true;
}

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

// The value a row checks, read from the store (or the window's replayed repair result).
QString readBack(TovraAppShell &shell, const QString &what)
{
    const AppState &state = *shell.state();
    if (what == u"killSwitchMode")
        return state.killSwitch().mode;
    if (what == u"systemProxy")
        return state.runtime().mode.systemProxy;
    if (what == u"localNetwork")
        return state.runtime().mode.localNetwork;
    if (what == u"apiURL")
        return state.apiURLConfig().apiURL;
    if (what == u"autoConnect")
        return state.runtime().autoConnect;
    if (what == u"listeners") {
        QStringList addresses;
        for (const ProxyListenerInfo &listener : state.runtime().proxyListeners)
            addresses.append(listener.address);
        return addresses.join(QLatin1Char(' '));
    }
    if (what == u"dnsPolicy")
        return state.splitDNS().configuredPolicy;
    if (what == u"dnsServers")
        return state.splitDNS().configuredLocalDirectDns.join(QLatin1Char(' '));
    if (what == u"language")
        return state.languageConfig().source + QLatin1Char(' ') + state.languageConfig().language;
    if (what == u"repair")
        return QString::number(shell.windowController()->replayState().repairResult.lines.size());
    return QStringLiteral("unknown check");
}

} // namespace

// The Settings page's requests through the shell to the demo daemon and back into the store.
class TestSettingsFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void changeReachesDaemon_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariantList>("arguments");
        QTest::addColumn<QString>("check");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const char *signal, const QVariantList &arguments,
                            const char *check, const QString &expected, const char *error = "") {
            QTest::addRow("%s", name)
                << QByteArray(signal) << arguments << QString::fromLatin1(check) << expected
                << QString::fromUtf8(error);
        };
        const auto text = [](const char *value) { return QVariant(QString::fromLatin1(value)); };
        row("kill switch mode", "setKillSwitchModeRequested(QString)", {text("always")},
            "killSwitchMode", QStringLiteral("always"));
        row("system proxy", "setSystemProxyRequested(QString)", {text("on")}, "systemProxy",
            QStringLiteral("on"));
        row("local network", "setLocalNetworkRequested(QString)", {text("protected")},
            "localNetwork", QStringLiteral("protected"));
        row("api url", "setAPIURLRequested(QString)", {text("https://api.example.com")}, "apiURL",
            QStringLiteral("https://api.example.com"));
        row("auto connect", "setAutoConnectRequested(QString)", {text("smart")}, "autoConnect",
            QStringLiteral("smart"));
        row("listeners", "setProxyListenersRequested(QString,QString)",
            {text("127.0.0.1:1090"), text("127.0.0.1:8090")}, "listeners",
            QStringLiteral("127.0.0.1:1090 127.0.0.1:8090"));
        row("dns policy", "setSplitDNSPolicyRequested(QString)", {text("remote")}, "dnsPolicy",
            QStringLiteral("remote"));
        row("dns servers", "setSplitDNSLocalRequested(QStringList)",
            {QStringList{QStringLiteral("9.9.9.9"), QStringLiteral("1.1.1.1")}}, "dnsServers",
            QStringLiteral("9.9.9.9 1.1.1.1"));
        row("language", "setLanguageRequested(QString,QString)", {text("user"), text("de")},
            "language", QStringLiteral("user de"));
        row("repair", "repairDiagnosticsRequested()", {}, "repair", QStringLiteral("3"));
        // Refused by the daemon: its words are shown and the store keeps the daemon's value.
        row("refused api url", "setAPIURLRequested(QString)", {text("ftp://api.example.com")},
            "apiURL", QStringLiteral("https://api.tovra.invalid"), "API URL must be");
    }

    void changeReachesDaemon()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariantList, arguments);
        QFETCH(QString, check);
        QFETCH(QString, expected);
        QFETCH(QString, error);
        DemoDaemon daemon;
        QVERIFY2(daemon.start(), qPrintable(daemon.errorString()));
        TovraAppShell shell(nullptr, daemon.socketPath());
        openSettings(shell);
        // The page's load fills the store, and a healthy daemon leaves no note.
        const AppState *state = shell.state();
        QTRY_VERIFY(state->splitDNS().valid && state->apiURLConfig().valid &&
                    state->languageConfig().valid && state->killSwitch().valid &&
                    state->configPaths().valid && state->runtime().valid);
        QVERIFY(shell.windowController()->replayState().settingsNotes.isEmpty());

        QVERIFY(emitSignal(shell.windowController()->window(), signal, arguments));
        if (error.isEmpty()) {
            QTRY_COMPARE(readBack(shell, check), expected);
        } else {
            QTRY_VERIFY(notificationText(shell).contains(error));
            QCOMPARE(readBack(shell, check), expected);
        }
    }

    void tooOldDaemonSaysSoAtTheModes()
    {
        DemoDaemon daemon;
        QVERIFY2(daemon.start({QStringLiteral("--no-kill-switch-mode")}),
                 qPrintable(daemon.errorString()));
        TovraAppShell shell(nullptr, daemon.socketPath());
        openSettings(shell);
        QTRY_VERIFY(shell.state()->killSwitch().valid);
        Q_EMIT shell.windowController()->window()->setKillSwitchModeRequested(
            QStringLiteral("always"));
        const auto &notes = shell.windowController()->replayState().settingsNotes;
        QTRY_COMPARE(
            notes.value(SettingsNotes::KillSwitchMode),
            QStringLiteral("Tovra daemon is too old for Kill Switch modes. Update Tovra."));
        QCOMPARE(shell.state()->killSwitch().mode, QStringLiteral("auto"));
    }

private:
    TempXdgDirs m_dirs;
};

QTEST_MAIN(TestSettingsFlow)
#include "TestSettingsFlow.moc"
