#include "PrivateSessionBus.h"

#include <QStandardPaths>

PrivateSessionBus::PrivateSessionBus() = default;

PrivateSessionBus::~PrivateSessionBus()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished(3000)) {
            m_process.kill();
            m_process.waitForFinished(3000);
        }
    }
}

bool PrivateSessionBus::start()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (program.isEmpty()) {
        return false;
    }
    m_process.setProgram(program);
    m_process.setArguments({QStringLiteral("--session"), QStringLiteral("--nofork"),
                            QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start();
    if (!m_process.waitForStarted(5000)) {
        return false;
    }
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(5000)) {
            return false;
        }
    }
    m_address = QString::fromUtf8(m_process.readLine()).trimmed();
    return !m_address.isEmpty();
}
