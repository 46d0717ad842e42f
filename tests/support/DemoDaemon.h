#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Runs the built tovra-demo-daemon on a private socket for one test: start() waits for its
// "listening on" line, stop() sends SIGTERM and checks a clean exit that removed the socket.
class DemoDaemon
{
public:
    DemoDaemon();
    ~DemoDaemon();
    DemoDaemon(const DemoDaemon &) = delete;
    DemoDaemon &operator=(const DemoDaemon &) = delete;

    static QString binaryPath();

    // extraArguments go after --socket and --data-dir (fault options, --connect-ms, ...).
    bool start(const QStringList &extraArguments = {}, int timeoutMs = 10000);
    // Sends signalNumber (SIGTERM by default); true when the daemon then exited with status 0
    // within timeoutMs and its socket is gone.
    bool stop(int signalNumber = 15, int timeoutMs = 10000);

    QString socketPath() const { return m_socketPath; }
    QString dataDir() const { return m_dir.filePath(QStringLiteral("data")); }
    QString errorString() const { return m_error; }
    // Everything the daemon wrote to standard error so far.
    QByteArray standardError();
    bool running() const { return m_process.state() == QProcess::Running; }

private:
    QTemporaryDir m_dir;
    QString m_socketPath;
    QProcess m_process;
    QByteArray m_stdout;
    QByteArray m_stderr;
    QString m_error;
};
