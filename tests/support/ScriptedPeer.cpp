#include "ScriptedPeer.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QMetaObject>
#include <QMutexLocker>
#include <QPointer>
#include <QTimer>

namespace {

// A request is whole once its header block ended and Content-Length bytes followed.
bool requestComplete(const QByteArray &buffer)
{
    const qsizetype end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    qsizetype length = 0;
    const QList<QByteArray> lines = buffer.left(end).split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray lower = line.trimmed().toLower();
        if (lower.startsWith("content-length:"))
            length = lower.mid(15).trimmed().toLongLong();
    }
    return buffer.size() - end - 4 >= length;
}

} // namespace

ScriptedPeer::ScriptedPeer()
{
    m_socketPath = m_dir.filePath(QStringLiteral("control.sock"));
    m_thread.start();
    QObject *context = new QObject;
    context->moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        context,
        [this, context] {
            startServing();
            delete context;
        },
        Qt::BlockingQueuedConnection);
}

ScriptedPeer::~ScriptedPeer()
{
    QMetaObject::invokeMethod(
        m_server, [this] { delete m_server; }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void ScriptedPeer::startServing()
{
    m_server = new QLocalServer;
    QLocalServer::removeServer(m_socketPath);
    if (!m_server->listen(m_socketPath))
        qFatal("ScriptedPeer: cannot listen on %s", qPrintable(m_socketPath));
    connect(m_server, &QLocalServer::newConnection, m_server, [this] {
        while (QLocalSocket *socket = m_server->nextPendingConnection())
            handleConnection(socket);
    });
}

void ScriptedPeer::handleConnection(QLocalSocket *socket)
{
    Reply reply;
    qsizetype slot = 0;
    {
        QMutexLocker lock(&m_mutex);
        const int index = m_connections++;
        if (!m_replies.isEmpty())
            reply = m_replies.value(qMin<qsizetype>(index, m_replies.size() - 1));
        m_requests.append(QByteArray());
        slot = m_requests.size() - 1;
    }
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    auto answered = std::make_shared<bool>(false);
    auto onData = [this, socket, slot, reply, answered] {
        const QByteArray chunk = socket->readAll();
        bool complete = false;
        Reply chosen = reply;
        {
            QMutexLocker lock(&m_mutex);
            m_requests[slot].append(chunk);
            complete = requestComplete(m_requests[slot]);
            for (const auto &[prefix, bytes] : std::as_const(m_routes)) {
                if (m_requests[slot].startsWith(prefix))
                    chosen = Reply{{Step{bytes, 0}}, Ending::Close, true};
            }
        }
        if (complete && !*answered) {
            *answered = true;
            answer(socket, chosen);
        }
    };
    connect(socket, &QLocalSocket::readyRead, socket, onData);
    if (!reply.waitForRequest) {
        *answered = true;
        answer(socket, reply);
    }
    if (socket->bytesAvailable() > 0)
        onData();
}

void ScriptedPeer::answer(QLocalSocket *socket, const Reply &reply)
{
    QPointer<QLocalSocket> guard(socket);
    int at = 0;
    for (const Step &step : reply.steps) {
        at += step.delayMs;
        QTimer::singleShot(at, socket, [guard, step] {
            if (guard) {
                guard->write(step.bytes);
                guard->flush();
            }
        });
    }
    if (reply.ending == Ending::Close) {
        QTimer::singleShot(at, socket, [guard] {
            if (guard)
                guard->disconnectFromServer();
        });
    }
}

void ScriptedPeer::setReplies(const QList<Reply> &replies)
{
    QMutexLocker lock(&m_mutex);
    m_replies = replies;
}

void ScriptedPeer::setReplyForRequest(const QByteArray &prefix, const QByteArray &bytes)
{
    QMutexLocker lock(&m_mutex);
    m_routes.append({prefix, bytes});
}

QList<QByteArray> ScriptedPeer::requests() const
{
    QMutexLocker lock(&m_mutex);
    return m_requests;
}

QByteArray ScriptedPeer::lastRequest() const
{
    QMutexLocker lock(&m_mutex);
    return m_requests.isEmpty() ? QByteArray() : m_requests.constLast();
}

int ScriptedPeer::connectionCount() const
{
    QMutexLocker lock(&m_mutex);
    return m_connections;
}

QByteArray ScriptedPeer::response(int status, const QByteArray &body,
                                  const QList<QByteArray> &extraHeaders)
{
    QByteArray out = "HTTP/1.1 " + QByteArray::number(status) + " X\r\n";
    for (const QByteArray &header : extraHeaders)
        out += header + "\r\n";
    out += "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    return out;
}
