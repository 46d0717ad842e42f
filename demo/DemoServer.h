#pragma once

#include "DemoOptions.h"
#include "HttpResponse.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

class DemoConnection;
class DemoService;

// The control socket: accepts connections, checks the control version, applies the injected
// faults and the latency, and writes the service's answers.
class DemoServer : public QObject
{
    Q_OBJECT

public:
    DemoServer(const DemoOptions &options, DemoService &service, QObject *parent = nullptr);
    ~DemoServer() override;

    // Creates the socket's directory, replaces a stale socket file, refuses to take over the
    // socket of a live daemon. Fills *error on failure.
    bool listen(QString *error);
    void close();

private:
    void accept();
    void answer(DemoConnection *connection);
    HttpResponse respond(DemoConnection *connection) const;
    void send(DemoConnection *connection, const HttpResponse &response, bool truncate);

    const DemoOptions &m_options;
    DemoService &m_service;
    QLocalServer m_server;
};
