#include "AppState.h"
#include "CatalogFlow.h"
#include "ControlWorker.h"
#include "LanguageFlow.h"
#include "RequestLedger.h"
#include "ScriptedPeer.h"
#include "ShellWorkers.h"
#include "TempXdgDirs.h"
#include "TovraAppShell.h"
#include "TranslationManager.h"

#include <QSignalSpy>
#include <QTest>

// Request bookkeeping of the shell against a scripted daemon: which answers are kept, which
// requests go out, and when.
class TestShellRequestFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dirs = new TempXdgDirs;
        m_peer = new ScriptedPeer;
        m_peer->setReply(ScriptedPeer::response(200, "{}"));
        // Not started: the tray stays quiet, so every request on the wire is the test's own.
        m_shell = new TovraAppShell(nullptr, m_peer->socketPath());
    }

    void cleanup()
    {
        delete m_shell;
        delete m_peer;
        delete m_dirs;
    }

    void olderStatusAnswerIsDropped()
    {
        m_peer->setReplies({{{ScriptedPeer::Step{
                                ScriptedPeer::response(200, R"({"tunnel_state":"first"})"), 100}}},
                            {{ScriptedPeer::Step{
                                ScriptedPeer::response(200, R"({"tunnel_state":"second"})"), 0}}}});
        QSignalSpy changes(m_shell->state(), &AppState::runtimeChanged);
        ControlWorker *worker = m_shell->workers()->control();
        for (int i = 0; i < 2; ++i) {
            const quint64 id = m_shell->ledger()->issue(RequestLedger::Kind::Status);
            QMetaObject::invokeMethod(worker, "fetchStatus", Qt::QueuedConnection,
                                      Q_ARG(quint64, id), Q_ARG(int, 3000));
        }
        QTRY_COMPARE(m_shell->state()->runtime().tunnelState, QStringLiteral("second"));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.constFirst().constFirst().value<RuntimeInfo>().tunnelState,
                 QStringLiteral("second"));
    }

    void languageSyncSendsDesktopLanguage_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("daemonLanguage");
        QTest::addColumn<bool>("sent");
        QTest::addRow("follows the desktop, differs")
            << QStringLiteral("system") << QStringLiteral("en-US") << true;
        QTest::addRow("follows the desktop, same")
            << QStringLiteral("system") << QStringLiteral("de-DE") << false;
        QTest::addRow("user's own choice")
            << QStringLiteral("user") << QStringLiteral("en-US") << false;
    }

    void languageSyncSendsDesktopLanguage()
    {
        QFETCH(QString, source);
        QFETCH(QString, daemonLanguage);
        QFETCH(bool, sent);
        LanguageFlow *language = m_shell->languageFlow();
        language->setSystemLanguageSource([] { return QStringLiteral("de_DE.UTF-8"); });
        language->setCurrentLanguage(daemonLanguage);
        language->checkSystemLanguage(); // no status yet: a retry is armed
        QVERIFY(language->retryTimerActive());

        RuntimeInfo runtime;
        runtime.valid = true;
        runtime.languageSource = source;
        runtime.language = daemonLanguage;
        runtime.effectiveLanguage = daemonLanguage;
        m_shell->state()->setRuntime(runtime);

        QVERIFY(!language->retryTimerActive());
        QCOMPARE(language->retryDelayMs(), sent ? 2000 : LanguageFlow::kFirstRetryDelayMs);
        if (!sent) {
            QCOMPARE(m_peer->connectionCount(), 0);
            return;
        }
        QTRY_COMPARE(m_peer->connectionCount(), 1);
        const QByteArray body =
            "{\"if_source\":\"system\",\"language\":\"" +
            TranslationManager::normalize(QStringLiteral("de_DE.UTF-8")).toUtf8() +
            "\",\"source\":\"system\"}";
        QTRY_VERIFY2(m_peer->lastRequest().endsWith(QByteArray("\r\n\r\n" + body)),
                     m_peer->lastRequest().constData());
        QVERIFY(m_peer->lastRequest().startsWith("POST /v1/config/language HTTP/1.1\r\n"));
    }

    void languageRestartAskedOnce()
    {
        LanguageFlow *language = m_shell->languageFlow();
        language->setSystemLanguageSource([] { return QStringLiteral("en-US"); });
        m_shell->setCurrentEffectiveLanguage(QStringLiteral("en-US"));
        QSignalSpy restarts(m_shell, &TovraAppShell::restartRequested);

        RuntimeInfo runtime;
        runtime.valid = true;
        runtime.effectiveLanguage = QStringLiteral("en-US");
        m_shell->state()->setRuntime(runtime);
        QCOMPARE(restarts.count(), 0);

        runtime.effectiveLanguage = QStringLiteral("fr-FR");
        m_shell->state()->setRuntime(runtime);
        QCOMPARE(restarts.count(), 1);
        runtime.effectiveLanguage = QStringLiteral("de-DE");
        m_shell->state()->setRuntime(runtime);
        QCOMPARE(restarts.count(), 1);

        m_shell->handleGUIRestartFailed();
        runtime.effectiveLanguage = QStringLiteral("ja-JP");
        m_shell->state()->setRuntime(runtime);
        QCOMPARE(restarts.count(), 1);
    }

    void forcedRefreshStopsNodePingPoll()
    {
        CatalogFlow *catalog = m_shell->catalogFlow();
        catalog->armNodePingPoll();
        QVERIFY(catalog->nodePingPollActive());
        QCOMPARE(catalog->nodePingBudget(), CatalogFlow::kNodePingBudget);
        m_shell->refreshLocations();
        QVERIFY(!catalog->nodePingPollActive());
        // A connection is recorded before its bytes arrive: wait for the bytes themselves.
        QTRY_VERIFY(!m_peer->requests().isEmpty() && m_peer->requests().constFirst().startsWith(
                                                         "POST /v1/nodes/refresh HTTP/1.1\r\n"));
        QCOMPARE(m_shell->state()->nodesRefreshCooldown(), 60);
    }

    void failedFirstFetchIsKeptUntilRetry()
    {
        m_peer->setReply(ScriptedPeer::response(500, R"({"error":"catalogue unavailable"})"));
        AppState *state = m_shell->state();
        m_shell->refreshLocations();
        QTRY_COMPARE(state->nodesFetchError(), QStringLiteral("catalogue unavailable"));
        QCOMPARE(state->nodesRefreshCooldown(), 0); // Refresh may try again at once
        m_shell->catalogFlow()->fetchNodes(false);
        QCOMPARE(state->nodesFetchError(), QString());
    }

private:
    TempXdgDirs *m_dirs = nullptr;
    ScriptedPeer *m_peer = nullptr;
    TovraAppShell *m_shell = nullptr;
};

QTEST_MAIN(TestShellRequestFlow)
#include "TestShellRequestFlow.moc"
