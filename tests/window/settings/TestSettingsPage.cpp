#include "AppSection.h"
#include "ConnectionSection.h"
#include "ControlEndpoints.h"
#include "ControlMetaTypes.h"
#include "DemoDaemon.h"
#include "GuiAutostart.h"
#include "KillSwitchSection.h"
#include "LanguageFilterModel.h"
#include "LanguagePickerDialog.h"
#include "SettingsNotes.h"
#include "SettingsPage.h"
#include "ToggleSwitch.h"
#include "TranslationManager.h"
#include "WindowFixture.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeoutMs = 3000;

// The records the page shows, fetched from a running demo daemon with the real parsers.
void loadRecords(AppState &state, const QString &socket)
{
    state.setRuntime(ControlEndpoints::fetchStatus(socket, kTimeoutMs));
    state.setKillSwitch(ControlEndpoints::fetchKillSwitch(socket, kTimeoutMs));
    state.setAPIURLConfig(ControlEndpoints::fetchAPIURLConfig(socket, kTimeoutMs));
    state.setLanguageConfig(ControlEndpoints::fetchLanguageConfig(socket, kTimeoutMs));
    state.setSplitDNS(ControlEndpoints::fetchSplitDNS(socket, kTimeoutMs));
    state.setConfigPaths(ControlEndpoints::fetchConfigPaths(socket, kTimeoutMs));
    state.setVersion(ControlEndpoints::fetchVersion(socket, kTimeoutMs));
}

// The page as the shell gets it: its requests reach the shell through the window controller.
struct Fixture : WindowFixture
{
    DemoDaemon daemon;
    MainWindow *window = show();
    SettingsPage *page = WindowFixture::find<SettingsPage>();

    bool start(const QStringList &daemonArguments = {})
    {
        if (!daemon.start(daemonArguments))
            return false;
        loadRecords(state, daemon.socketPath());
        window->refreshFromState();
        return state.runtime().valid && state.splitDNS().valid;
    }
    template<typename T>
    T *find(const QString &name) const
    {
        return page->findChild<T *>(name);
    }
    QAbstractButton *modeOption(const QString &mode) const
    {
        return find<QRadioButton>(QStringLiteral("TovraSettingsKillSwitchMode_") + mode);
    }
    bool act(const QString &steps) const { return settingsSteps(page, steps); }
};

} // namespace

class TestSettingsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void sectionsShowRecords_data()
    {
        QTest::addColumn<QStringList>("daemonArguments");
        QTest::addColumn<bool>("switchOn");
        QTest::addColumn<bool>("switchEnabled");
        QTest::addColumn<QString>("checkedMode");
        QTest::addColumn<bool>("modesEnabled");
        QTest::addRow("default") << QStringList() << false << true << "auto" << true;
        QTest::addRow("lockdown") << QStringList{QStringLiteral("--lockdown")} << true << false
                                  << "lockdown" << false;
    }

    void sectionsShowRecords()
    {
        QFETCH(QStringList, daemonArguments);
        QFETCH(bool, switchOn);
        QFETCH(bool, switchEnabled);
        QFETCH(QString, checkedMode);
        QFETCH(bool, modesEnabled);
        Fixture f;
        QVERIFY2(f.start(daemonArguments), qPrintable(f.daemon.errorString()));

        auto *killSwitch = f.find<ToggleSwitch>(QStringLiteral("TovraSettingsKillSwitch"));
        QCOMPARE(killSwitch->isChecked(), switchOn);
        QCOMPARE(killSwitch->isEnabled(), switchEnabled);
        QVERIFY(f.modeOption(checkedMode)->isChecked());
        QCOMPARE(f.modeOption(QStringLiteral("always"))->isEnabled(), modesEnabled);
        QVERIFY(!f.modeOption(QStringLiteral("lockdown"))->isEnabled());

        QCOMPARE(f.find<QLabel>(QStringLiteral("TovraSettingsAPIURLValidation"))->text(),
                 QStringLiteral("Validated by the Tovra service"));
        QVERIFY(f.find<QPushButton>(QStringLiteral("TovraSettingsLanguage"))->isEnabled());
        QVERIFY(!f.find<QLabel>(QStringLiteral("TovraSettingsBanner"))->isVisibleTo(f.page));
    }

    void daemonDownSaysSoOnce()
    {
        Fixture f;
        QVERIFY(f.start());
        const QString down = QStringLiteral("Could not connect to Tovra daemon.");
        for (const QString &key :
             {SettingsNotes::Status, SettingsNotes::KillSwitch, SettingsNotes::APIURL,
              SettingsNotes::SplitDNS, SettingsNotes::Language, SettingsNotes::ConfigPaths})
            f.window->setSettingsNote(key, down);

        const QLabel *banner = f.find<QLabel>(QStringLiteral("TovraSettingsBanner"));
        QVERIFY(banner->isVisibleTo(f.page));
        QVERIFY(banner->text().startsWith(down));
        int shown = 0;
        for (const QLabel *label : f.page->findChildren<QLabel *>()) {
            if (label->isVisibleTo(f.page) && label->text().contains(down))
                ++shown;
        }
        QCOMPARE(shown, 1);
        QVERIFY(!f.find<ToggleSwitch>(QStringLiteral("TovraSettingsKillSwitch"))->isEnabled());
        QVERIFY(!f.find<QLineEdit>(QStringLiteral("TovraSettingsAPIURL"))->isEnabled());
        QVERIFY(!f.find<QPushButton>(QStringLiteral("TovraSettingsRepair"))->isEnabled());
        QCOMPARE(f.find<QComboBox>(QStringLiteral("TovraSettingsSystemProxy"))->currentText(),
                 QStringLiteral("Unknown"));

        // Back up: the controls return, and a load that failed on its own is told beside its card.
        f.window->setSettingsNote(SettingsNotes::Status, QString());
        QVERIFY(f.find<ToggleSwitch>(QStringLiteral("TovraSettingsKillSwitch"))->isEnabled());
        QCOMPARE(f.page->connectionSection()->note(), down);
    }

    void badInputSendsNothing_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("message");
        const QString socks = QStringLiteral("SocksListen");
        const QString apply = QStringLiteral("ApplyListeners");
        QTest::addRow("no port") << socks << "127.0.0.1" << apply << "Add a port";
        QTest::addRow("empty port") << socks << "localhost:" << apply << "Add a port after";
        QTest::addRow("port 0") << socks << "127.0.0.1:0" << apply << "from 1 to 65535";
        QTest::addRow("port too big")
            << QStringLiteral("HttpListen") << "127.0.0.1:65536" << apply << "from 1 to 65535";
        QTest::addRow("bare ipv6") << socks << "::1:1080" << apply << "in brackets";
        QTest::addRow("bad host") << socks << "my host:1080" << apply << "not a host name";
        const QString api = QStringLiteral("APIURL");
        const QString save = QStringLiteral("SaveAPIURL");
        QTest::addRow("ftp url") << api << "ftp://api.example.com" << save << "http:// or https://";
        QTest::addRow("empty url") << api << "" << save << "Enter an API URL";
        const QString dns = QStringLiteral("DNSServers");
        const QString saveDns = QStringLiteral("SaveDNS");
        QTest::addRow("dns name") << dns << "1.1.1.1, dns.example.com" << saveDns
                                  << "\"dns.example.com\" is not an IP address";
        QTest::addRow("dns empty") << dns << " , " << saveDns << "at least one";
    }

    void badInputSendsNothing()
    {
        QFETCH(QString, field);
        QFETCH(QString, input);
        QFETCH(QString, button);
        QFETCH(QString, message);
        Fixture f;
        QVERIFY(f.start());
        QList<QSignalSpy *> spies;
        for (const char *signal :
             {SIGNAL(setProxyListenersRequested(QString, QString)),
              SIGNAL(setAPIURLRequested(QString)), SIGNAL(setSplitDNSLocalRequested(QStringList))})
            spies.append(new QSignalSpy(&f.controller, signal));

        QVERIFY(f.act(u"type:%1=%2|click:%3"_s.arg(field, input, button)));
        for (QSignalSpy *spy : std::as_const(spies))
            QCOMPARE(spy->count(), 0);
        qDeleteAll(spies);
        const QLabel *error = f.find<QLabel>(u"TovraSettings%1Error"_s.arg(field));
        QVERIFY(error->isVisibleTo(f.page));
        QVERIFY2(error->text().contains(message), qPrintable(error->text()));
        // Typing again clears the complaint.
        QTest::keyClick(f.find<QLineEdit>(u"TovraSettings"_s + field), Qt::Key_1);
        QVERIFY(!error->isVisibleTo(f.page));
    }

    void failedChangeSnapsBack()
    {
        Fixture f;
        QVERIFY(f.start());
        auto *proxy = f.find<QComboBox>(QStringLiteral("TovraSettingsSystemProxy"));
        auto *api = f.find<QLineEdit>(QStringLiteral("TovraSettingsAPIURL"));
        const QString daemonProxy = proxy->currentData().toString();
        const QString daemonURL = api->text();
        QVERIFY(f.act(u"choose:SystemProxy=lock|type:APIURL=https://other.example.com|"
                      "click:SaveAPIURL"_s));
        // An unrelated redraw while the answers are on their way keeps the choices.
        f.window->refreshFromState();
        QCOMPARE(proxy->currentData().toString(), QStringLiteral("lock"));
        QCOMPARE(api->text(), QStringLiteral("https://other.example.com"));

        f.window->showSettingsOperationError(QStringLiteral("refused"));
        QCOMPARE(proxy->currentData().toString(), daemonProxy);
        QCOMPARE(api->text(), daemonURL);
    }

    void killSwitchInProxyAsksForVpnMode_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("expected");
        QTest::addRow("switch to auto")
            << 1 << QByteArray(SIGNAL(switchToAutoAndEnableKillSwitchRequested()));
        QTest::addRow("choose mode") << 2 << QByteArray(SIGNAL(chooseModeForKillSwitchRequested()));
        QTest::addRow("cancel") << 0 << QByteArray();
    }

    void killSwitchInProxyAsksForVpnMode()
    {
        QFETCH(int, answer);
        QFETCH(QByteArray, expected);
        Fixture f;
        QVERIFY(f.daemon.start());
        ModeInfo proxy;
        proxy.transport = QStringLiteral("proxy");
        QString error;
        ControlEndpoints::setMode(f.daemon.socketPath(), proxy, kTimeoutMs, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        loadRecords(f.state, f.daemon.socketPath());
        f.window->refreshFromState();

        int asked = 0;
        f.page->killSwitchSection()->setConfirm([&](QWidget *) {
            ++asked;
            return answer;
        });
        QSignalSpy enable(f.page, SIGNAL(setKillSwitchEnabledRequested(bool)));
        QSignalSpy autoEnable(f.page, SIGNAL(switchToAutoAndEnableKillSwitchRequested()));
        QSignalSpy choose(f.page, SIGNAL(chooseModeForKillSwitchRequested()));
        QVERIFY(f.act(u"click:KillSwitch"_s));
        QCOMPARE(asked, 1);
        QCOMPARE(enable.count(), 0);
        QCOMPARE(autoEnable.count(),
                 expected == SIGNAL(switchToAutoAndEnableKillSwitchRequested()));
        QCOMPARE(choose.count(), expected == SIGNAL(chooseModeForKillSwitchRequested()));
        QVERIFY(!f.find<ToggleSwitch>(QStringLiteral("TovraSettingsKillSwitch"))->isChecked());
    }

    void launchAtLogin_data()
    {
        QTest::addColumn<bool>("startEnabled");
        QTest::addColumn<bool>("blockDirectory");
        QTest::addColumn<bool>("expectEntry");
        QTest::addColumn<bool>("expectPreference");
        QTest::addRow("enable") << false << false << true << true;
        QTest::addRow("disable") << true << false << false << false;
        QTest::addRow("directory cannot be made") << false << true << false << false;
    }

    void launchAtLogin()
    {
        QFETCH(bool, startEnabled);
        QFETCH(bool, blockDirectory);
        QFETCH(bool, expectEntry);
        QFETCH(bool, expectPreference);
        Fixture f;
        const GuiAutostart autostart;
        QVERIFY(autostart.entryPath().startsWith(f.dirs.configHome()));
        if (startEnabled) {
            QVERIFY(autostart.reconcile(true, nullptr));
            f.preferences.setLaunchAtLogin(true);
        }
        if (blockDirectory) {
            // A plain file where the autostart folder belongs.
            QVERIFY(QDir().mkpath(f.dirs.configHome()));
            QFile blocker(f.dirs.configHome() + QStringLiteral("/autostart"));
            QVERIFY(blocker.open(QIODevice::WriteOnly));
        }
        f.window->refreshFromState();
        auto *toggle = f.find<ToggleSwitch>(QStringLiteral("TovraSettingsLaunchAtLogin"));
        QCOMPARE(toggle->isChecked(), startEnabled);

        toggle->click();
        QCOMPARE(QFile::exists(autostart.entryPath()), expectEntry);
        QCOMPARE(toggle->isChecked(), expectEntry);
        QCOMPARE(f.preferences.launchAtLogin(), expectPreference);
        const QLabel *error = f.find<QLabel>(QStringLiteral("TovraSettingsLaunchAtLoginError"));
        QCOMPARE(error->isVisibleTo(f.page), blockDirectory);
        if (blockDirectory)
            QVERIFY(error->text().startsWith(QStringLiteral("Could not update login startup")));
    }

    void languageSearch_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("codes");
        QTest::addRow("all") << "" << QStringList();
        QTest::addRow("english name") << "german" << QStringList{QString(), QStringLiteral("de")};
        QTest::addRow("without accents")
            << "FRANCAIS" << QStringList{QString(), QStringLiteral("fr")};
        QTest::addRow("tag") << "zh"
                             << QStringList{QString(), QStringLiteral("zh-Hans"),
                                            QStringLiteral("zh-Hant")};
        QTest::addRow("two words")
            << "portugues brasil" << QStringList{QString(), QStringLiteral("pt-BR")};
        QTest::addRow("nothing") << "klingon" << QStringList{QString()};
    }

    void languageSearch()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, codes);
        TempXdgDirs dirs;
        DemoDaemon daemon;
        QVERIFY(daemon.start());
        const LanguageConfigInfo config =
            ControlEndpoints::fetchLanguageConfig(daemon.socketPath(), kTimeoutMs);
        QVERIFY(config.valid);
        LanguagePickerDialog dialog(config.supportedLanguages, config.source, config.language);
        QAbstractItemModelTester tester(dialog.filterModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QTest::keyClicks(dialog.searchField(), search);

        QStringList shown;
        for (int row = 0; row < dialog.filterModel()->rowCount(); ++row)
            shown.append(
                dialog.filterModel()->index(row, 0).data(LanguageFilterModel::CodeRole).toString());
        if (codes.isEmpty())
            QCOMPARE(shown.size(), config.supportedLanguages.size() + 1);
        else
            QCOMPARE(shown, codes);
    }

    // The picker's first row follows the desktop; a match by name is in the shell's test.
    void languageChoiceSystem()
    {
        Fixture f;
        QVERIFY(f.start());
        QSignalSpy requested(f.page, SIGNAL(setLanguageRequested(QString, QString)));
        f.page->appSection()->setPickerRunner([](LanguagePickerDialog *dialog) {
            QTest::keyClick(dialog->searchField(), Qt::Key_Return);
            return dialog->result() == QDialog::Accepted;
        });
        QVERIFY(f.act(u"click:Language"_s));
        QCOMPARE(requested.count(), 1);
        QCOMPARE(requested.at(0),
                 (QVariantList{u"system"_s, TranslationManager::systemLanguage()}));
    }
};

QTEST_MAIN(TestSettingsPage)
#include "TestSettingsPage.moc"
