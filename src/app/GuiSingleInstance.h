#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

enum class SingleInstanceResult { Primary = 0, ActivatedExisting = 1, Failed = 2 };

// Keeps one GUI per user: the first process owns a local server name, later ones only wake it.
class GuiSingleInstance : public QObject
{
    Q_OBJECT

public:
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
    bool sendActivate(int timeoutMs);
    SingleInstanceResult acquire(QString *errorOut = nullptr);
    // For a restarted process: waits for the old one to let go of the name, never hands off.
    SingleInstanceResult waitForPrimary(int timeoutMs, int intervalMs, QString *errorOut = nullptr);

Q_SIGNALS:
    void activateRequested();

public Q_SLOTS:
    void handleNewConnection();

private:
    // The socket file behind the name, as QLocalServer places it.
    QString socketFilePath() const;
    // Empty when the socket file is absent or this user's; else why it must not be touched.
    QString foreignOwnerText() const;

    QString m_serverName;
    QLocalServer *m_server = nullptr;
};
