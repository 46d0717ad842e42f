#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ControlWorker;

// The three control workers, each on a thread of its own: ordinary requests, update checks and
// the update download, so that neither update path ever waits behind an ordinary request.
class ShellWorkers : public QObject
{
    Q_OBJECT

public:
    explicit ShellWorkers(const QString &socketPath, QObject *parent = nullptr);
    ~ShellWorkers() override;

    ControlWorker *control() const { return m_control; }
    ControlWorker *updateCheck() const { return m_updateCheck; }
    ControlWorker *download() const { return m_download; }

    // Stops every worker, ends the threads and waits: 2000 ms each, then once more up to
    // 31000 ms, longer than the 30 s default exchange time-out. Idempotent.
    void shutdown();
    bool isShutDown() const { return m_shutDown; }

private:
    ControlWorker *startWorker(QThread *thread, const QString &socketPath, const char *name);

    QThread m_controlThread;
    QThread m_updateCheckThread;
    QThread m_downloadThread;
    ControlWorker *m_control = nullptr;
    ControlWorker *m_updateCheck = nullptr;
    ControlWorker *m_download = nullptr;
    bool m_shutDown = false;
};
