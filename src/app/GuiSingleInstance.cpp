#include "GuiSingleInstance.h"

#include "AppId.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <unistd.h>

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
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write("activate\n", 9);
    socket.waitForBytesWritten(timeoutMs);
    socket.disconnectFromServer();
    return true;
}

SingleInstanceResult GuiSingleInstance::acquire(QString *errorOut)
{
    if (tryListen(errorOut))
        return SingleInstanceResult::Primary;
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
        // Any connection is a request to show the window; the message is not checked.
        connection->readAll();
        connection->disconnectFromServer();
        connection->deleteLater();
        Q_EMIT activateRequested();
    }
}
