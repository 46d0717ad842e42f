#include "SingleInstanceClient.h"

#include <QLocalSocket>

SingleInstanceClient::SingleInstanceClient(QLocalSocket *socket, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
{
    m_socket->setParent(this);
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        if (!m_read)
            finishReading();
        else
            answer({DesktopAnswer::Result::Failed, {}});
    });
    connect(m_socket, &QLocalSocket::readyRead, this, &SingleInstanceClient::readAvailable);
    connect(m_socket, &QLocalSocket::disconnected, this, [this] {
        readAvailable();
        if (!m_read)
            finishReading();
    });
    m_deadline.start(kReadTimeoutMs);
    // Bytes that came with the connection are there before any readyRead.
    QMetaObject::invokeMethod(this, &SingleInstanceClient::readAvailable, Qt::QueuedConnection);
}

void SingleInstanceClient::readAvailable()
{
    if (m_read)
        return;
    while (m_socket->bytesAvailable() > 0) {
        char byte = 0;
        if (!m_socket->getChar(&byte))
            break;
        if (byte == '\n' || m_line.size() >= DesktopRequest::kMaxLineBytes) {
            finishReading();
            return;
        }
        m_line.append(byte);
    }
}

void SingleInstanceClient::finishReading()
{
    if (m_read)
        return;
    m_read = true;
    m_deadline.start(kAnswerDeadlineMs);
    Q_EMIT requestRead(DesktopRequest::parse(m_line));
}

void SingleInstanceClient::answer(const DesktopAnswer &answer)
{
    if (m_answered)
        return;
    m_answered = true;
    m_deadline.stop();
    // A launch of an older version has gone already; writing to it costs nothing.
    if (m_socket->state() == QLocalSocket::ConnectedState) {
        m_socket->write(answer.encode() + '\n');
        m_socket->flush();
        m_socket->disconnectFromServer();
    }
    deleteLater();
}
