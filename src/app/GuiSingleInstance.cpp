#include "GuiSingleInstance.h"

#include "AppId.h"
#include "SingleInstanceClient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMetaMethod>
#include <QStandardPaths>
#include <QThread>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The user id of the process at the other end of a connected local socket, or -1.
qint64 peerUid(const QLocalSocket &socket)
{
    ucred credentials{};
    socklen_t size = sizeof(credentials);
    const int fd = int(socket.socketDescriptor());
    if (fd < 0 || getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &credentials, &size) != 0)
        return -1;
    return qint64(credentials.uid);
}

} // namespace

GuiSingleInstance::GuiSingleInstance(const QString &serverName, QObject *parent)
    : QObject(parent)
    , m_serverName(serverName)
{}

GuiSingleInstance::~GuiSingleInstance()
{
    if (m_server) {
        m_server->close();
        delete m_server;
    }
}

QString GuiSingleInstance::defaultServerName()
{
    return QLatin1String(kTovraSingleInstanceId) + u".gui." + QString::number(::getuid());
}

bool GuiSingleInstance::isPrivateDirectory(const QString &path)
{
    struct stat info
    {
    };
    if (path.isEmpty() || !QDir::isAbsolutePath(path) ||
        ::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return false;
    return S_ISDIR(info.st_mode) && info.st_uid == ::getuid() && (info.st_mode & 022) == 0;
}

QString GuiSingleInstance::defaultServerPath(QString *errorOut)
{
    QStringList candidates{qEnvironmentVariable("XDG_RUNTIME_DIR").trimmed()};
    // Creates /tmp/runtime-<user> with mode 0700 when the session sets no runtime directory.
    candidates.append(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (!config.isEmpty() && QDir().mkpath(config + u"/Tovra"))
        candidates.append(config + u"/Tovra");
    for (const QString &directory : std::as_const(candidates)) {
        if (isPrivateDirectory(directory))
            return QDir(directory).filePath(defaultServerName());
    }
    if (errorOut)
        *errorOut = QStringLiteral("no private directory for the single-instance socket "
                                   "(tried %1)")
                        .arg(candidates.join(u", "));
    return {};
}

QString GuiSingleInstance::socketFilePath() const
{
    return QDir::isAbsolutePath(m_serverName) ? m_serverName : QDir::temp().filePath(m_serverName);
}

QString GuiSingleInstance::foreignOwnerText() const
{
    struct stat info
    {
    };
    const QString path = socketFilePath();
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0 || info.st_uid == ::getuid())
        return {};
    return QStringLiteral("the single-instance socket %1 belongs to uid %2, not to this user; "
                          "it is neither contacted nor removed")
        .arg(path)
        .arg(info.st_uid);
}

bool GuiSingleInstance::isListening() const
{
    return m_server && m_server->isListening();
}

bool GuiSingleInstance::tryListen(QString *errorOut)
{
    if (isListening())
        return true;
    delete m_server;
    m_server = new QLocalServer(this);
    connect(m_server, &QLocalServer::newConnection, this, &GuiSingleInstance::handleNewConnection);
    if (m_server->listen(m_serverName))
        return true;
    if (errorOut)
        *errorOut = m_server->errorString();
    delete m_server;
    m_server = nullptr;
    return false;
}

bool GuiSingleInstance::sendActivate(int timeoutMs)
{
    return sendRequest(m_outgoing, timeoutMs, timeoutMs) != Delivery::NotReached;
}

GuiSingleInstance::Delivery GuiSingleInstance::sendRequest(const DesktopRequest &request,
                                                           int connectTimeoutMs,
                                                           int answerTimeoutMs,
                                                           DesktopAnswer *answerOut)
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(connectTimeoutMs))
        return Delivery::NotReached;
    // Never wake, or tell anything to, a process of another user that squats on the name.
    if (peerUid(socket) != qint64(::getuid())) {
        socket.abort();
        return Delivery::NotReached;
    }
    socket.write(request.encode() + '\n');
    socket.waitForBytesWritten(connectTimeoutMs);
    // Nothing is on screen in a launch that hands over, so it may block while it waits.
    QElapsedTimer waited;
    waited.start();
    QByteArray line;
    while (!line.endsWith('\n') && line.size() < DesktopRequest::kMaxLineBytes) {
        if (socket.bytesAvailable() > 0) {
            line += socket.readLine(DesktopRequest::kMaxLineBytes);
            continue;
        }
        if (socket.state() != QLocalSocket::ConnectedState)
            break;
        const qint64 left = answerTimeoutMs - waited.elapsed();
        if (left <= 0 || !socket.waitForReadyRead(int(left)))
            break;
    }
    const bool hungUp = socket.state() != QLocalSocket::ConnectedState;
    socket.abort();
    DesktopAnswer answer;
    if (line.endsWith('\n') && DesktopAnswer::parse(line, &answer)) {
        if (answerOut)
            *answerOut = answer;
        return Delivery::Answered;
    }
    return hungUp ? Delivery::HungUp : Delivery::NoAnswer;
}

SingleInstanceResult GuiSingleInstance::acquire(QString *errorOut)
{
    if (tryListen(errorOut))
        return SingleInstanceResult::Primary;
    if (const QString foreign = foreignOwnerText(); !foreign.isEmpty()) {
        if (errorOut)
            *errorOut = foreign;
        return SingleInstanceResult::Failed;
    }
    if (sendActivate(500))
        return SingleInstanceResult::ActivatedExisting;
    // Nobody answers on the name: a crashed GUI left its socket file behind.
    QLocalServer::removeServer(m_serverName);
    return tryListen(errorOut) ? SingleInstanceResult::Primary : SingleInstanceResult::Failed;
}

SingleInstanceResult GuiSingleInstance::waitForPrimary(int timeoutMs, int intervalMs,
                                                       QString *errorOut)
{
    QElapsedTimer elapsed;
    elapsed.start();
    for (;;) {
        if (tryListen(errorOut))
            return SingleInstanceResult::Primary;
        if (elapsed.elapsed() >= timeoutMs) {
            if (const QString foreign = foreignOwnerText(); !foreign.isEmpty()) {
                if (errorOut)
                    *errorOut = foreign;
                return SingleInstanceResult::Failed;
            }
            QLocalServer::removeServer(m_serverName);
            return tryListen(errorOut) ? SingleInstanceResult::Primary
                                       : SingleInstanceResult::Failed;
        }
        // Nothing is on screen yet, so blocking here costs the user nothing.
        QThread::msleep(static_cast<unsigned long>(qMax(intervalMs, 1)));
    }
}

void GuiSingleInstance::handleNewConnection()
{
    while (m_server && m_server->hasPendingConnections()) {
        QLocalSocket *connection = m_server->nextPendingConnection();
        if (!connection)
            break;
        if (peerUid(*connection) != qint64(::getuid())) {
            qWarning("ignored a single-instance connection from another user");
            connection->abort();
            connection->deleteLater();
            continue;
        }
        // The line is read as it comes; the event loop goes on meanwhile.
        auto *client = new SingleInstanceClient(connection, this);
        connect(client, &SingleInstanceClient::requestRead, this,
                [this, client](const DesktopRequest &request) { handleRequest(request, client); });
    }
}

void GuiSingleInstance::handleRequest(const DesktopRequest &request, SingleInstanceClient *client)
{
    const bool forShell =
        !request.isActivation() &&
        isSignalConnected(QMetaMethod::fromSignal(&GuiSingleInstance::commandRequested));
    if (forShell) {
        Q_EMIT commandRequested(request, client);
        return;
    }
    if (!request.isActivation()) {
        client->answer({DesktopAnswer::Result::Failed, {}});
        return;
    }
    // Only for this one raise: the platform plugin reads the variables when the window is
    // activated, and a later raise must not reuse a spent token.
    const struct
    {
        const char *name;
        QString value;
    } tokens[] = {{"XDG_ACTIVATION_TOKEN", request.activationToken},
                  {"DESKTOP_STARTUP_ID", request.startupId}};
    for (const auto &token : tokens) {
        if (!token.value.isEmpty())
            qputenv(token.name, token.value.toUtf8());
    }
    Q_EMIT activateRequested();
    for (const auto &token : tokens) {
        if (!token.value.isEmpty())
            qunsetenv(token.name);
    }
    client->answer({});
}
