#include "AppState.h"
#include "ConnectionFlow.h"
#include "ControlEndpoints.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "ShellNotifier.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "UpdateDialog.h"
#include "UpdateDownloadFlow.h"
#include "UpdateFlow.h"
#include "WindowController.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString kGuiVersion = QStringLiteral("0.1.0");
constexpr qint64 T = 1'800'000'000;
constexpr int kDownloadWaitMs = 15000;

} // namespace

// The update flow against the demo daemon: the offer, the real download and its file, cancel,
// a stale offer, the fallback link, and a required update standing before every connect.
class TestUpdateFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationVersion(kGuiVersion); }

    void init()
    {
        m_shell.reset();
        m_preferences.reset();
        m_daemon.reset();
        m_dirs.reset(); // first: it restores the environment it found
        m_dirs = std::make_unique<TempXdgDirs>();
        m_preferences = std::make_unique<GuiPreferences>();
        m_opened.clear();
        m_openSucceeds = true;
        m_now = T;
    }

    void offerDownloadsAndOpensTheVerifiedInstaller_data()
    {
        QTest::addColumn<QStringList>("daemonArguments");
        QTest::addRow("queued first") << QStringList();
        QTest::addRow("retried halfway") << QStringList{QStringLiteral("--flaky-download")};
    }

    void offerDownloadsAndOpensTheVerifiedInstaller()
    {
        QFETCH(QStringList, daemonArguments);
        QVERIFY(offer(daemonArguments));
        QStringList states;
        connect(m_shell->updateFlow(), &UpdateFlow::downloadChanged, this,
                [&states](const GUIUpdateDownloadInfo &info) { states << info.state; });
        QCOMPARE(dialog()->phase(), UpdateDialog::Phase::Offer);
        QCOMPARE(m_preferences->updateBookkeeping(kGuiVersion).lastNotifiedVersionNum, 3000);

        button("TovraUpdateDownload")->click();
        QTRY_VERIFY2(dialog()->phase() == UpdateDialog::Phase::Downloading,
                     qPrintable(dialog()->messageText()));
        QCOMPARE(m_shell->updateFlow()->downloadFlow()->pollIntervalMs(),
                 UpdateDownloadFlow::kFastPollMs);
        QCOMPARE(states.constFirst(), QStringLiteral("queued")); // the answer to the start
        if (!daemonArguments.isEmpty()) {
            QTRY_COMPARE(dialog()->statusText(), QStringLiteral("Retrying the download..."));
            QCOMPARE(dialog()->findChild<QLabel *>(QStringLiteral("TovraUpdateDetail"))->text(),
                     QStringLiteral("connection reset by peer"));
        }

        QTRY_COMPARE_WITH_TIMEOUT(m_opened.size(), 1, kDownloadWaitMs);
        const QString path = m_opened.constFirst().toLocalFile();
        QFile installer(path);
        QVERIFY2(installer.open(QIODevice::ReadOnly), qPrintable(path));
        QCryptographicHash hash(QCryptographicHash::Sha256);
        QVERIFY(hash.addData(&installer));
        QCOMPARE(QString::fromLatin1(hash.result().toHex()),
                 m_shell->state()->update().artifactSHA256);
        QCOMPARE(installer.size(), m_shell->state()->update().artifactSize);
        QCOMPARE(m_shell->notifier()->lastText(),
                 QStringLiteral("Download complete. Opening the installer..."));
        QVERIFY(!dialog()->isVisible());
        QVERIFY(!m_shell->updateFlow()->downloadFlow()->pollActive());

        // Asking again opens the same verified file instead of fetching it twice.
        m_shell->startGUIUpdateDownload();
        QCOMPARE(m_opened.size(), 2);
        QCOMPARE(m_opened.constLast(), m_opened.constFirst());
    }

    void cancelMidDownload()
    {
        QVERIFY(offer());
        button("TovraUpdateDownload")->click();
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Downloading);
        button("TovraUpdateCancel")->click();
        QCOMPARE(dialog()->phase(), UpdateDialog::Phase::Canceling);
        QVERIFY(!button("TovraUpdateCancel")->isEnabled());
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Canceled);
        QCOMPARE(dialog()->statusText(), QStringLiteral("Download canceled."));
        QCOMPARE(m_shell->updateFlow()->download().state, QStringLiteral("canceled"));
        QVERIFY(!m_shell->updateFlow()->downloadFlow()->pollActive());
        QVERIFY(m_opened.isEmpty());
        // The way forward is a fresh download.
        QVERIFY(button("TovraUpdateDownload")->isVisible());
        QCOMPARE(button("TovraUpdateDownload")->text(), QStringLiteral("Retry Download"));
    }

    void cancelArrivingAfterCompletionOpensNothing()
    {
        // Every answer waits 1.5 s: the first poll sees bytes moving, and by the time the daemon
        // reads the cancel sent right then, the download has completed.
        QVERIFY(offer({QStringLiteral("--latency"), QStringLiteral("1500")}));
        bool canceled = false;
        connect(m_shell->updateFlow(), &UpdateFlow::downloadChanged, this,
                [&](const GUIUpdateDownloadInfo &info) {
                    if (!canceled && info.state == QLatin1String("downloading")) {
                        canceled = true;
                        button("TovraUpdateCancel")->click();
                    }
                });
        button("TovraUpdateDownload")->click();
        QTRY_VERIFY_WITH_TIMEOUT(canceled, kDownloadWaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_shell->updateFlow()->download().state, QStringLiteral("ready"),
                                  kDownloadWaitMs);
        QCOMPARE(dialog()->messageText(),
                 QStringLiteral("The download completed before it could be "
                                "canceled. The installer was not opened."));
        QVERIFY(m_opened.isEmpty());
        QCOMPARE(dialog()->phase(), UpdateDialog::Phase::Offer);
        // The finished file is still good: asking for it opens it without another download.
        button("TovraUpdateDownload")->click();
        QCOMPARE(m_opened.size(), 1);
    }

    void staleOfferFailsThenRetryChecksAgain()
    {
        QVERIFY(offer());
        // The offer in hand is older than the daemon's release.
        UpdateInfo stale = m_shell->state()->update();
        stale.versionCode = QStringLiteral("0.2.9");
        stale.versionNum = 2009;
        m_shell->state()->setUpdate(stale);

        button("TovraUpdateDownload")->click();
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Failed);
        QCOMPARE(dialog()->messageText(),
                 QStringLiteral("The download belongs to a different update "
                                "release. Check for updates again."));
        QVERIFY(!m_shell->updateFlow()->downloadFlow()->pollActive());
        QVERIFY(m_opened.isEmpty());

        // Retry checks first, then downloads the release the daemon really offers.
        button("TovraUpdateDownload")->click();
        QCOMPARE(dialog()->phase(), UpdateDialog::Phase::Preparing);
        QTRY_COMPARE_WITH_TIMEOUT(m_opened.size(), 1, kDownloadWaitMs);
        QCOMPARE(m_shell->state()->update().versionNum, 3000.0);
    }

    void missingDownloadEndpointOffersTheLink()
    {
        QVERIFY(offer({QStringLiteral("--fail"), QStringLiteral("/v1/gui/update/download=404")}));
        button("TovraUpdateDownload")->click();
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Failed);
        QCOMPARE(dialog()->messageText(), QStringLiteral("Could not start the update download"));
        QVERIFY(button("TovraUpdateOpenLink")->isVisible());
        QVERIFY(!m_shell->updateFlow()->downloadFlow()->pollActive());

        m_openSucceeds = false;
        button("TovraUpdateOpenLink")->click();
        QCOMPARE(dialog()->messageText(),
                 QStringLiteral("Could not open the update download link."));
        m_openSucceeds = true;
        button("TovraUpdateOpenLink")->click();
        QCOMPARE(m_opened.constLast(),
                 UpdateDownloadFlow::downloadLink(m_shell->state()->update()));
        QCOMPARE(m_opened.constLast().scheme(), QStringLiteral("https"));
        QCOMPARE(dialog()->messageText(),
                 QStringLiteral("The download link opened in your browser. "
                                "Tovra will not run the installer "
                                "automatically."));

        // An offer without any usable link says so instead of opening nothing.
        UpdateInfo bare = m_shell->state()->update();
        bare.universalDownloadLink = bare.amd64DownloadLink = bare.arm64DownloadLink =
            QStringLiteral("ftp://elsewhere");
        bare.artifactURL.clear();
        m_shell->state()->setUpdate(bare);
        const qsizetype opened = m_opened.size();
        button("TovraUpdateOpenLink")->click();
        QCOMPARE(m_opened.size(), opened);
        QCOMPARE(dialog()->messageText(), QStringLiteral("The download link is unavailable."));
    }

    void dialogComesBackWithTheWindow()
    {
        QVERIFY(startShell());
        WindowController *controller = m_shell->windowController();
        controller->setSystemTrayAvailable(true);
        controller->setReleaseOnHide(true);
        m_shell->checkSettingsUpdate();
        QTRY_VERIFY(dialog()->isVisible());
        button("TovraUpdateDownload")->click();
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Downloading);

        QPointer<MainWindow> first = controller->window();
        first->close();
        QVERIFY(!dialog()->isVisible());
        QTRY_VERIFY(first.isNull());
        m_shell->activateFromApplication();
        QVERIFY(controller->window() && controller->window()->isVisible());
        QVERIFY(dialog()->isVisible());
        QVERIFY(dialog()->phase() != UpdateDialog::Phase::Offer);
        QTRY_COMPARE_WITH_TIMEOUT(m_opened.size(), 1, kDownloadWaitMs);
    }

    void daemonGoneMidDownloadStopsPollingThenRecovers()
    {
        QVERIFY(offer());
        // Pressed while a check runs, the dialog steps aside and the window says what waits.
        m_shell->updateFlow()->check(false);
        button("TovraUpdateBackground")->click();
        QVERIFY(!dialog()->isVisible());
        QCOMPARE(
            m_shell->notifier()->lastText(),
            QStringLiteral("Finishing the latest update check before starting the download..."));
        QTRY_COMPARE(dialog()->phase(), UpdateDialog::Phase::Downloading);
        QVERIFY(m_daemon->stop());

        // A few unanswered polls, then one clear message, and the polling ends. The download was
        // left in the background, so the dialog comes back with the way forward.
        QTRY_COMPARE_WITH_TIMEOUT(dialog()->phase(), UpdateDialog::Phase::Failed, kDownloadWaitMs);
        QVERIFY(dialog()->isVisible());
        QCOMPARE(dialog()->messageText(),
                 QStringLiteral("Could not read the update download status."));
        QVERIFY(!m_shell->updateFlow()->downloadFlow()->pollActive());
        QVERIFY(!m_shell->updateFlow()->downloadInProgress());

        // The daemon is back with no download of ours: Retry starts afresh and finishes.
        QVERIFY2(m_daemon->start(), qPrintable(m_daemon->errorString()));
        QTRY_VERIFY(QFileInfo::exists(m_daemon->socketPath()));
        button("TovraUpdateDownload")->click();
        QTRY_COMPARE_WITH_TIMEOUT(m_opened.size(), 1, kDownloadWaitMs);
    }

    void automaticOfferShownOncePerDayUntilHidden()
    {
        QVERIFY(startShell());
        UpdateFlow *flow = m_shell->updateFlow();
        QSignalSpy shown(flow, &UpdateFlow::updateDialogShown);
        const auto automaticCheckShows = [&](qint64 at) {
            m_now = at;
            dialog()->hide();
            const qsizetype before = shown.size();
            flow->check(false);
            return waitForCheck() && shown.size() > before && dialog()->isVisible();
        };
        QVERIFY(automaticCheckShows(T));
        QCOMPARE(m_preferences->updateBookkeeping(kGuiVersion).lastNotifiedAt, T);
        // The day's boundary itself is tabled in TestUpdateNoticePolicy.
        QVERIFY(!automaticCheckShows(T + 3600));

        button("TovraUpdateHide")->click();
        QVERIFY(!dialog()->isVisible());
        QCOMPARE(m_preferences->updateBookkeeping(kGuiVersion).mutedVersionNum, 3000);
        QVERIFY(!automaticCheckShows(T + 10 * 86400));
        // Asking from Settings still shows the hidden version.
        m_shell->checkSettingsUpdate();
        QTRY_VERIFY(dialog()->isVisible());
    }

    void requiredUpdateBlocksConnect()
    {
        QVERIFY(startShell({QStringLiteral("--force-upgrade")}));
        QString error;
        ControlEndpoints::login(m_daemon->socketPath(), QStringLiteral("demo@tovra.invalid"),
                                QStringLiteral("demo"), false, 3000, &error);
        QCOMPARE(error, QString());
        m_shell->updateFlow()->check(false);
        QTRY_VERIFY(dialog()->isVisible());
        QVERIFY(dialog()->forced());
        QVERIFY(m_shell->updateFlow()->forceUpgradePending());
        dialog()->hide();

        m_shell->connectSmart(QStringLiteral("de"));
        QVERIFY(!m_shell->connectionFlow()->connectInProgress());
        QVERIFY(dialog()->isVisible());
        QVERIFY(!button("TovraUpdateNotNow")->isVisible());
        QSignalSpy exit(m_shell.get(), &TovraAppShell::exitRequested);
        button("TovraUpdateExit")->click();
        QCOMPARE(exit.count(), 1);

        // The next start remembers the requirement: before the check lands a connect only warns,
        // and the check runs at once and puts the required update on screen.
        m_shell.reset();
        m_shell =
            std::make_unique<TovraAppShell>(nullptr, m_daemon->socketPath(), m_preferences.get());
        m_shell->setSystemTrayAvailable(false);
        QVERIFY(m_shell->updateFlow()->forceUpgradePending());
        m_shell->start();
        QVERIFY(m_shell->updateFlow()->checkTimerActive());
        QCOMPARE(m_shell->updateFlow()->checkTimerIntervalMs(), 0);
        m_shell->connectSmart(QStringLiteral("de"));
        QVERIFY(!m_shell->connectionFlow()->connectInProgress());
        QCOMPARE(m_shell->notifier()->lastText(),
                 QStringLiteral("A required Tovra update is being checked before connecting."));
        QTRY_VERIFY(dialog()->isVisible());
        QVERIFY(dialog()->forced());
    }

    // A GUI that does not know its own version cannot ask for the required update.
    void requiredUpdateWithoutOwnVersion()
    {
        QCoreApplication::setApplicationVersion(QString());
        const auto restore =
            qScopeGuard([] { QCoreApplication::setApplicationVersion(kGuiVersion); });
        GuiUpdateBookkeeping required;
        required.forceUpgrade = true;
        m_preferences->setUpdateBookkeeping(QString(), required);
        QVERIFY(startShell());
        m_shell->connectSmart(QStringLiteral("de"));
        QVERIFY(!m_shell->connectionFlow()->connectInProgress());
        QVERIFY(!m_shell->updateFlow()->checkInFlight());
        QCOMPARE(m_shell->notifier()->lastText(),
                 QStringLiteral("A required Tovra update must be installed before connecting."));
    }

private:
    bool startShell(const QStringList &daemonArguments = {})
    {
        m_daemon = std::make_unique<DemoDaemon>();
        if (!m_daemon->start(daemonArguments)) {
            qWarning("%s", qPrintable(m_daemon->errorString()));
            return false;
        }
        m_shell =
            std::make_unique<TovraAppShell>(nullptr, m_daemon->socketPath(), m_preferences.get());
        m_shell->setSystemTrayAvailable(false);
        m_shell->updateFlow()->setUrlOpener([this](const QUrl &url) {
            m_opened << url;
            return m_openSucceeds;
        });
        m_shell->updateFlow()->setClock([this] { return m_now; });
        m_shell->start();
        return true;
    }
    // The shell on a fresh demo daemon with the offer on screen, asked for from Settings.
    bool offer(const QStringList &daemonArguments = {})
    {
        if (!startShell(daemonArguments))
            return false;
        m_shell->checkSettingsUpdate();
        return QTest::qWaitFor([this] { return dialog()->isVisible(); }, 10000);
    }
    UpdateDialog *dialog() const { return m_shell->windowController()->updateDialog(); }
    QPushButton *button(const char *name) const
    {
        return dialog()->findChild<QPushButton *>(QLatin1String(name));
    }

    bool waitForCheck() const
    {
        return QTest::qWaitFor([this] { return !m_shell->updateFlow()->checkInFlight(); }, 10000);
    }

    std::unique_ptr<TempXdgDirs> m_dirs;
    std::unique_ptr<DemoDaemon> m_daemon;
    std::unique_ptr<GuiPreferences> m_preferences;
    std::unique_ptr<TovraAppShell> m_shell;
    QList<QUrl> m_opened;
    bool m_openSucceeds = true;
    qint64 m_now = T;
};

QTEST_MAIN(TestUpdateFlow)
#include "TestUpdateFlow.moc"
