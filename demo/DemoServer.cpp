#include "DemoServer.h"

#include "DemoConnection.h"
#include "DemoService.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTimer>

namespace {

const char *const ControlVersion = "1";

HttpResponse versionConflict(const QByteArray &daemonControlVersion,
                             const QByteArray &clientVersion)
{
    HttpResponse response = HttpResponse::error(
        409,
        clientVersion.isEmpty()
            ? QStringLiteral("missing X-Tovra-Control-Version header; this daemon speaks control "
                             "version %1")
                  .arg(QString::fromLatin1(daemonControlVersion))
            : QStringLiteral("control version %1 is not supported; this daemon speaks control "
                             "version %2")
                  .arg(QString::fromUtf8(clientVersion),
                       QString::fromLatin1(daemonControlVersion)));
    response.headers.append(
        {QByteArray("X-Tovra-Daemon-Version"), QByteArray(DemoService::DaemonVersion)});
    response.headers.append({QByteArray("X-Tovra-Control-Version"), daemonControlVersion});
    return response;
}

} // namespace

DemoServer::DemoServer(const DemoOptions &options, DemoService &service, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_service(service)
{
    connect(&m_server, &QLocalServer::newConnection, this, &DemoServer::accept);
}

DemoServer::~DemoServer()
{
    close();
}

bool DemoServer::listen(QString *error)
{
    const QString path = m_options.socketPath;
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath())) {
        *error = QStringLiteral("cannot create %1").arg(info.absolutePath());
        return false;
    }
    QFile::setPermissions(info.absolutePath(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (info.exists()) {
        QLocalSocket probe;
        probe.connectToServer(path);
        if (probe.waitForConnected(300)) {
            *error = QStringLiteral("another daemon is already listening on %1").arg(path);
            return false;
        }
        QLocalServer::removeServer(path);
    }
    if (!m_server.listen(path)) {
        *error = QStringLiteral("cannot listen on %1: %2").arg(path, m_server.errorString());
        return false;
    }
    return true;
}

void DemoServer::close()
{
    // QLocalServer removes the socket file it created.
    if (m_server.isListening())
        m_server.close();
}

void DemoServer::accept()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        auto *connection = new DemoConnection(socket, this);
        connect(connection, &DemoConnection::requestReady, this, [this](DemoConnection *c) {
            if (m_options.latencyMs > 0)
                QTimer::singleShot(m_options.latencyMs, c, [this, c] { answer(c); });
            else
                answer(c);
        });
        connect(connection, &DemoConnection::requestMalformed, this,
                [this](DemoConnection *c, const QString &error) {
                    m_service.log().write(
                        QStringLiteral("malformed request: %1 -> 400").arg(error));
                    send(c, HttpResponse::error(400, error), false);
                });
    }
}

void DemoServer::answer(DemoConnection *connection)
{
    const HttpRequest &request = connection->request();
    const QString line = QString::fromLatin1(request.method()) + QLatin1Char(' ') +
                         QString::fromUtf8(request.target());
    if (DemoOptions::matches(m_options.hangPaths, request.path())) {
        m_service.log().write(line + QStringLiteral(" -> (hang)"));
        return; // the connection stays open until the client gives up
    }
    if (DemoOptions::matches(m_options.garbagePaths, request.path())) {
        m_service.log().write(line + QStringLiteral(" -> (garbage)"));
        connection->writeAndClose(QByteArrayLiteral("\x16\x03\x01 not an answer\r\n\xff\xfe"
                                                    "{\"status\":\"ok\"}\r\n"));
        return;
    }
    const HttpResponse response = respond(connection);
    const bool truncate = DemoOptions::matches(m_options.truncatePaths, request.path());
    m_service.log().write(line + QStringLiteral(" -> %1%2")
                                     .arg(response.status)
                                     .arg(truncate ? QStringLiteral(" (truncated)") : QString()));
    send(connection, response, truncate);
}

HttpResponse DemoServer::respond(DemoConnection *connection) const
{
    const HttpRequest &request = connection->request();
    const QByteArray clientVersion = request.header("x-tovra-control-version");
    if (m_options.incompatible)
        return versionConflict("2", clientVersion);
    if (clientVersion != ControlVersion)
        return versionConflict(ControlVersion, clientVersion);
    if (const DemoOptions::Failure *failure = m_options.failureFor(request.path())) {
        if (failure->body.isEmpty())
            return HttpResponse::error(
                failure->status,
                QStringLiteral("demo failure injected for %1").arg(request.path()));
        HttpResponse response;
        response.status = failure->status;
        response.body = failure->body;
        return response;
    }
    return m_service.handle(request);
}

void DemoServer::send(DemoConnection *connection, const HttpResponse &response, bool truncate)
{
    QByteArray bytes = m_options.chunked ? response.serializeChunked() : response.serialize();
    if (truncate) {
        // The head promises the whole body; half of it arrives before the close.
        bytes = m_options.chunked ? bytes.left(bytes.size() / 2)
                                  : response.head(response.body.size()) +
                                        response.body.left(response.body.size() / 2);
    }
    connection->writeAndClose(bytes);
}
