#include "ControlMetaTypes.h"
#include "ControlWorker.h"
#include "ScriptedPeer.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

using Step = ScriptedPeer::Step;
using Reply = ScriptedPeer::Reply;
using Ending = ScriptedPeer::Ending;

namespace {

Reply answerAfter(int delayMs, const QByteArray &body = R"({"tunnel_state":"connected"})")
{
    return Reply{{Step{ScriptedPeer::response(200, body), delayMs}}, Ending::Close};
}

const Reply kSilent{{}, Ending::KeepOpen};

} // namespace

class TestControlWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerControlMetaTypes(); }

    void init()
    {
        m_peer = new ScriptedPeer;
        m_thread = new QThread;
        m_worker = new ControlWorker(m_peer->socketPath());
        m_worker->moveToThread(m_thread);
        connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
        m_thread->start();
    }

    void cleanup()
    {
        if (m_worker)
            m_worker->stop();
        m_thread->quit();
        QVERIFY(m_thread->wait(5000));
        delete m_thread;
        delete m_peer;
    }

    void answersInRequestOrder()
    {
        // The first answer is the slowest; order must still follow the queue.
        m_peer->setReplies({answerAfter(150), answerAfter(0), answerAfter(20)});
        QSignalSpy spy(m_worker, &ControlWorker::statusFinished);
        invoke("fetchStatus", 11);
        invoke("fetchStatus", 12);
        invoke("fetchStatus", 13);
        QTRY_COMPARE(spy.count(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(spy.at(i).at(0).value<quint64>(), quint64(11 + i));
            QCOMPARE(spy.at(i).at(1).value<RuntimeInfo>().tunnelState, u"connected"_s);
            QCOMPARE(spy.at(i).at(2).toString(), QString());
        }
    }

    void staleCancelDoesNotLeak()
    {
        m_peer->setReply(answerAfter(0));
        QSignalSpy spy(m_worker, &ControlWorker::statusFinished);
        m_worker->cancelCurrent();
        invoke("fetchStatus", 21);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(2).toString(), QString());
        QVERIFY(spy.at(0).at(1).value<RuntimeInfo>().valid);
    }

    void cancelConnect_data()
    {
        QTest::addColumn<quint64>("canceledId");
        QTest::addColumn<QString>("error");
        QTest::addRow("cancel for this request") << quint64(7) << u"control request canceled"_s;
        QTest::addRow("cancel for an older request") << quint64(6) << QString();
    }

    void cancelConnect()
    {
        QFETCH(quint64, canceledId);
        // A slow status request keeps the worker busy while the cancel arrives.
        m_peer->setReplies({answerAfter(300), answerAfter(0)});
        QSignalSpy connectSpy(m_worker, &ControlWorker::connectFinished);
        invoke("fetchStatus", 1);
        QVERIFY(QMetaObject::invokeMethod(m_worker, "connectNode", Qt::QueuedConnection,
                                          Q_ARG(quint64, 7), Q_ARG(QString, u"42"_s),
                                          Q_ARG(int, 3000)));
        m_worker->cancelConnect(canceledId);
        QTRY_COMPARE(connectSpy.count(), 1);
        QCOMPARE(connectSpy.at(0).at(0).value<quint64>(), quint64(7));
        QTEST(connectSpy.at(0).at(2).toString(), "error");
    }

    void cancelConnectWhileRunning()
    {
        m_peer->setReply(kSilent);
        QSignalSpy spy(m_worker, &ControlWorker::connectFinished);
        QVERIFY(QMetaObject::invokeMethod(m_worker, "connectRuntime", Qt::QueuedConnection,
                                          Q_ARG(quint64, 9), Q_ARG(int, 0)));
        QTRY_VERIFY(!m_peer->lastRequest().isEmpty());
        m_worker->cancelConnect(9);
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 5000);
        QCOMPARE(spy.at(0).at(2).toString(), u"control request canceled"_s);
        QVERIFY(!spy.at(0).at(1).value<RuntimeInfo>().valid);
    }

    void stopEndsBlockedExchangeAndSilencesWorker()
    {
        m_peer->setReply(kSilent);
        QSignalSpy spy(m_worker, &ControlWorker::statusFinished);
        invoke("fetchStatus", 31, 0);
        QTRY_VERIFY(!m_peer->lastRequest().isEmpty());
        invoke("fetchStatus", 32, 0);

        m_worker->stop();
        m_thread->quit();
        // The blocked exchange must notice the stop within a wait slice, well before any timeout.
        QVERIFY(m_thread->wait(5000));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(m_peer->connectionCount(), 1);
    }

private:
    void invoke(const char *operation, quint64 id, int timeoutMs = 3000)
    {
        QVERIFY(QMetaObject::invokeMethod(m_worker, operation, Qt::QueuedConnection,
                                          Q_ARG(quint64, id), Q_ARG(int, timeoutMs)));
    }

    ScriptedPeer *m_peer = nullptr;
    QThread *m_thread = nullptr;
    // Guarded: a test that ends the thread early has the worker deleted with it.
    QPointer<ControlWorker> m_worker;
};

QTEST_GUILESS_MAIN(TestControlWorker)
#include "TestControlWorker.moc"
