#include "ShellWorkers.h"

#include "ControlMetaTypes.h"
#include "ControlWorker.h"

ShellWorkers::ShellWorkers(const QString &socketPath, QObject *parent)
    : QObject(parent)
{
    registerControlMetaTypes();
    m_control = startWorker(&m_controlThread, socketPath, "tovra-control");
    m_updateCheck = startWorker(&m_updateCheckThread, socketPath, "tovra-update-check");
    m_download = startWorker(&m_downloadThread, socketPath, "tovra-update-download");
}

ShellWorkers::~ShellWorkers()
{
    shutdown();
}

ControlWorker *ShellWorkers::startWorker(QThread *thread, const QString &socketPath,
                                         const char *name)
{
    thread->setObjectName(QString::fromLatin1(name));
    auto *worker = new ControlWorker(socketPath);
    worker->moveToThread(thread);
    connect(thread, &QThread::finished, worker, &QObject::deleteLater);
    thread->start();
    return worker;
}

void ShellWorkers::shutdown()
{
    if (m_shutDown)
        return;
    m_shutDown = true;
    QThread *threads[] = {&m_controlThread, &m_updateCheckThread, &m_downloadThread};
    for (ControlWorker *worker : {m_control, m_updateCheck, m_download})
        worker->stop();
    for (QThread *thread : threads)
        thread->quit();
    for (QThread *thread : threads) {
        if (!thread->wait(2000))
            thread->wait(31000);
    }
}
