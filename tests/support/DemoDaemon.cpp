#include "DemoDaemon.h"

#include <QDeadlineTimer>
#include <QFileInfo>

#include <csignal>
#include <sys/types.h>

DemoDaemon::DemoDaemon()
    : m_socketPath(m_dir.filePath(QStringLiteral("run/control.sock")))
{
    m_process.setProgram(binaryPath());
}

DemoDaemon::~DemoDaemon()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
}

QString DemoDaemon::binaryPath()
{
    return QStringLiteral(TOVRA_BINARY_DIR "/demo/tovra-demo-daemon");
}

bool DemoDaemon::start(const QStringList &extraArguments, int timeoutMs)
{
    if (!QFileInfo(binaryPath()).isExecutable()) {
        m_error = QStringLiteral("%1 is not built").arg(binaryPath());
        return false;
    }
    m_process.setArguments(QStringList{QStringLiteral("--socket"), m_socketPath,
                                       QStringLiteral("--data-dir"), dataDir()} +
                           extraArguments);
    m_process.start(QIODevice::ReadOnly);
    if (!m_process.waitForStarted(timeoutMs)) {
        m_error = m_process.errorString();
        return false;
    }
    const QByteArray ready = "listening on " + m_socketPath.toUtf8() + '\n';
    QDeadlineTimer deadline(timeoutMs);
    while (!m_stdout.contains(ready)) {
        if (m_process.state() != QProcess::Running || deadline.hasExpired()) {
            m_error = QStringLiteral("the demo daemon did not start listening: %1")
                          .arg(QString::fromLocal8Bit(standardError()));
            return false;
        }
        m_process.waitForReadyRead(int(qMax<qint64>(1, deadline.remainingTime())));
        m_stdout += m_process.readAllStandardOutput();
    }
    return true;
}

bool DemoDaemon::stop(int signalNumber, int timeoutMs)
{
    if (m_process.state() == QProcess::NotRunning) {
        m_error = QStringLiteral("the demo daemon is not running");
        return false;
    }
    ::kill(pid_t(m_process.processId()), signalNumber);
    if (!m_process.waitForFinished(timeoutMs)) {
        m_error = QStringLiteral("the demo daemon ignored signal %1").arg(signalNumber);
        m_process.kill();
        m_process.waitForFinished(timeoutMs);
        return false;
    }
    if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0) {
        m_error = QStringLiteral("the demo daemon exited with %1: %2")
                      .arg(m_process.exitCode())
                      .arg(QString::fromLocal8Bit(standardError()));
        return false;
    }
    if (QFileInfo::exists(m_socketPath)) {
        m_error = QStringLiteral("the demo daemon left its socket behind");
        return false;
    }
    return true;
}

QByteArray DemoDaemon::standardError()
{
    m_stderr += m_process.readAllStandardError();
    return m_stderr;
}
