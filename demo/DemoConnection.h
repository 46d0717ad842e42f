#pragma once

#include "HttpRequest.h"

#include <QByteArray>
#include <QObject>

class QLocalSocket;

// One control connection: reads one request, then writes one answer and closes, or (for the
// hang fault) keeps the connection open until the client gives up. Deletes itself once the
// client is gone.
class DemoConnection : public QObject
{
    Q_OBJECT

public:
    explicit DemoConnection(QLocalSocket *socket, QObject *parent = nullptr);

    const HttpRequest &request() const { return m_request; }
    void writeAndClose(const QByteArray &bytes);

Q_SIGNALS:
    void requestReady(DemoConnection *connection);
    void requestMalformed(DemoConnection *connection, const QString &error);

private:
    void readRequest();

    QLocalSocket *m_socket;
    QByteArray m_buffer;
    HttpRequest m_request;
    bool m_done = false;
};
