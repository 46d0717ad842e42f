#pragma once

#include "DesktopAnswer.h"
#include "DesktopRequest.h"

#include <QObject>
#include <QString>

class QLocalServer;
class SingleInstanceClient;

enum class SingleInstanceResult { Primary = 0, ActivatedExisting = 1, Failed = 2 };

// Keeps one GUI per user: the first process owns a local server name, later ones only wake it
// or hand it a command (DesktopRequest) and wait for its one-line answer (DesktopAnswer).
class GuiSingleInstance : public QObject
{
    Q_OBJECT

public:
    // How a request fared: nobody listens; answered; the peer hung up without answering (a
    // client that predates answers: it has activated itself); no answer in time.
    enum class Delivery { NotReached, Answered, HungUp, NoAnswer };

    explicit GuiSingleInstance(const QString &serverName, QObject *parent = nullptr);
    ~GuiSingleInstance() override;

    // The per-user name: the application id, ".gui." and the real user id.
    static QString defaultServerName();
    // The name inside a directory only this user can create files in: the runtime directory
    // ($XDG_RUNTIME_DIR), else Qt's private runtime directory, else the configuration
    // directory. Empty, with the reason, when none of them is safe.
    static QString defaultServerPath(QString *errorOut = nullptr);
    // A directory owned by this user that no one else may write to.
    static bool isPrivateDirectory(const QString &path);

    QString serverName() const { return m_serverName; }
    bool isListening() const;

    bool tryListen(QString *errorOut = nullptr);
    // Sends the outgoing request (a plain "activate" unless set) and waits as long again for
    // an answer; true when the running client was reached.
    bool sendActivate(int timeoutMs);
    Delivery sendRequest(const DesktopRequest &request, int connectTimeoutMs, int answerTimeoutMs,
                         DesktopAnswer *answerOut = nullptr);
    // What acquire() hands a running client: this launch's activation tokens.
    void setOutgoingRequest(const DesktopRequest &request) { m_outgoing = request; }
    // Empty when the socket file is absent or this user's; else why it must not be touched.
    QString foreignOwnerText() const;
    SingleInstanceResult acquire(QString *errorOut = nullptr);
    // For a restarted process: waits for the old one to let go of the name, never hands off.
    SingleInstanceResult waitForPrimary(int timeoutMs, int intervalMs, QString *errorOut = nullptr);

Q_SIGNALS:
    // While it is delivered, the launch's activation token and startup id are in this
    // process's environment (XDG_ACTIVATION_TOKEN, DESKTOP_STARTUP_ID), where the platform
    // plugin takes them when the window is raised; they are removed again afterwards.
    void activateRequested();
    // A command for the shell; answer it through the client, once. Unanswered, the launch
    // hears "failed" after SingleInstanceClient::kAnswerDeadlineMs.
    void commandRequested(const DesktopRequest &request, SingleInstanceClient *client);

public Q_SLOTS:
    void handleNewConnection();

private:
    // The socket file behind the name, as QLocalServer places it.
    QString socketFilePath() const;
    void handleRequest(const DesktopRequest &request, SingleInstanceClient *client);

    QString m_serverName;
    DesktopRequest m_outgoing;
    QLocalServer *m_server = nullptr;
};
