#include "DemoConnection.h"

#include <QLocalSocket>

DemoConnection::DemoConnection(QLocalSocket *socket, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
{
    m_socket->setParent(this);
    connect(m_socket, &QLocalSocket::readyRead, this, &DemoConnection::readRequest);
    connect(m_socket, &QLocalSocket::disconnected, this, &QObject::deleteLater);
}

void DemoConnection::readRequest()
{
    m_buffer += m_socket->readAll();
    if (m_done)
        return;
    switch (m_request.feed(m_buffer)) {
    case HttpRequest::State::Incomplete:
        return;
    case HttpRequest::State::Complete:
        m_done = true;
        Q_EMIT requestReady(this);
        return;
    case HttpRequest::State::Malformed:
        m_done = true;
        Q_EMIT requestMalformed(this, m_request.error());
        return;
    }
}

void DemoConnection::writeAndClose(const QByteArray &bytes)
{
    if (m_socket->state() != QLocalSocket::ConnectedState)
        return;
    m_socket->write(bytes);
    // Flushes what is buffered before the close.
    m_socket->disconnectFromServer();
}
