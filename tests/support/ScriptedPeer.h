#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QThread>

#include <utility>

class QLocalServer;
class QLocalSocket;

// A daemon stand-in on a real Unix socket, served from its own thread so that blocking
// exchanges on the test thread can talk to it. It records every request's exact bytes and
// answers each connection with the next scripted reply (the last one repeats).
class ScriptedPeer : public QObject
{
    Q_OBJECT

public:
    struct Step
    {
        QByteArray bytes;
        int delayMs = 0; // waited before these bytes are written
    };

    enum class Ending { Close, KeepOpen };

    struct Reply
    {
        QList<Step> steps;
        Ending ending = Ending::Close;
        bool waitForRequest = true; // read the whole request before answering
    };

    ScriptedPeer();
    ~ScriptedPeer() override;

    QString socketPath() const { return m_socketPath; }

    void setReplies(const QList<Reply> &replies);
    void setReply(const Reply &reply) { setReplies({reply}); }
    // Whole reply written at once, then the connection closes.
    void setReply(const QByteArray &bytes)
    {
        setReply(Reply{{Step{bytes, 0}}, Ending::Close, true});
    }

    // Answers every request whose bytes begin with the prefix (such as "GET /v1/kill-switch ")
    // with these bytes instead of the scripted reply.
    void setReplyForRequest(const QByteArray &prefix, const QByteArray &bytes);

    QList<QByteArray> requests() const;
    QByteArray lastRequest() const;
    int connectionCount() const;

    // Builds "HTTP/1.1 <status> X\r\n<headers>Content-Length: n\r\n\r\n<body>".
    static QByteArray response(int status, const QByteArray &body,
                               const QList<QByteArray> &extraHeaders = {});

private:
    void startServing();
    void handleConnection(QLocalSocket *socket);
    void answer(QLocalSocket *socket, const Reply &reply);

    QTemporaryDir m_dir;
    QString m_socketPath;
    QThread m_thread;
    QLocalServer *m_server = nullptr;
    mutable QMutex m_mutex;
    QList<Reply> m_replies;
    QList<std::pair<QByteArray, QByteArray>> m_routes;
    QList<QByteArray> m_requests;
    int m_connections = 0;
};
