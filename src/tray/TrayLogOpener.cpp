#include "TrayLogOpener.h"

#include "BidiText.h"
#include "TrayLog.h"
#include "TrayMenuText.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "TrayNotifier.h"
#include "TrayRequestIds.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>

namespace {

using Kind = TrayRequestIds::Kind;

} // namespace

TrayLogOpener::TrayLogOpener(AppState *state, ControlWorker *worker, TrayRequestIds *ids,
                             TrayNotifier *notifier)
    : m_state(state)
    , m_worker(worker)
    , m_ids(ids)
    , m_notifier(notifier)
    , m_urlOpener([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{}

void TrayLogOpener::setUrlOpener(std::function<bool(const QUrl &)> opener)
{
    m_urlOpener = std::move(opener);
}

void TrayLogOpener::open()
{
    const quint64 id = m_ids->take(Kind::ConfigPaths);
    QMetaObject::invokeMethod(m_worker, "fetchConfigPaths", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kTrayFetchTimeoutMs));
}

void TrayLogOpener::handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                              const QString &errorMessage)
{
    if (!m_ids->isLatest(Kind::ConfigPaths, requestId))
        return;
    if (!errorMessage.isEmpty()) {
        //: Follows "Error: " when a request to the service failed without a reason. Word it as a
        //: user would understand it: "could not complete the action"
        m_notifier->notifyFailure(errorMessage, TrayMenuText::tr("operation failed"));
        return;
    }
    m_state->setConfigPaths(paths);
    const QString what = TrayMenuText::tr("log directory");
    const QString dir = paths.logDir.trimmed();
    if (dir.isEmpty()) {
        m_notifier->notifyFailure({}, TrayMenuText::tr("missing %1").arg(what));
        return;
    }
    if (!QDir(dir).exists()) {
        m_notifier->notifyFailure(
            {}, TrayMenuText::tr("%1 does not exist: %2").arg(what, isolated(dir)));
        return;
    }
    if (!m_urlOpener || !m_urlOpener(QUrl::fromLocalFile(dir)))
        m_notifier->notifyFailure(
            {}, TrayMenuText::tr("could not open %1: %2").arg(what, isolated(dir)));
}
