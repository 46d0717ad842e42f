#include "UpdateFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "WindowController.h"

#include <QDateTime>
#include <QDesktopServices>

#include <algorithm>

namespace {

constexpr int kCheckTimeoutMs = 20000;
constexpr int kDownloadTimeoutMs = 10000;
constexpr qint64 kRetryAfterAttemptS = 3600;
constexpr qint64 kRecheckAfterSuccessS = 86400;

qint64 nowSeconds()
{
    return QDateTime::currentSecsSinceEpoch();
}

// Transport texts that mean the daemon's answer never arrived, not that it refused.
bool isUnanswered(const QString &error)
{
    return error == QLatin1String("control request timed out") ||
           error == QLatin1String("control request canceled") ||
           error == QLatin1String("invalid control response");
}

bool isActiveState(const QString &state)
{
    return state == QLatin1String("checking") || state == QLatin1String("downloading") ||
           state == QLatin1String("verifying") || state == QLatin1String("canceling");
}

} // namespace

UpdateFlow::UpdateFlow(const ShellContext &context, const QString &runningVersion, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_runningVersion(runningVersion.trimmed())
    , m_openUrl([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{
    m_checkTimer.setSingleShot(true);
    m_pollTimer.setSingleShot(true);
    connect(&m_checkTimer, &QTimer::timeout, this, [this] { check(false); });
    connect(&m_pollTimer, &QTimer::timeout, this, &UpdateFlow::pollDownload);
    m_forceUpgradePending = m_context.preferences->updateBookkeeping(m_runningVersion).forceUpgrade;
}

qint64 UpdateFlow::dueAtSeconds() const
{
    const GuiUpdateBookkeeping bookkeeping =
        m_context.preferences->updateBookkeeping(m_runningVersion);
    if (bookkeeping.lastAttemptAt >= 1)
        return bookkeeping.lastAttemptAt + kRetryAfterAttemptS;
    if (bookkeeping.lastSuccessfulCheckAt >= 1)
        return bookkeeping.lastSuccessfulCheckAt + kRecheckAfterSuccessS;
    return nowSeconds();
}

void UpdateFlow::schedule(qint64 minDelayMs)
{
    if (checkInFlight() || m_runningVersion.isEmpty())
        return;
    const qint64 untilDueMs = std::max<qint64>(0, (dueAtSeconds() - nowSeconds()) * 1000);
    const qint64 delay = std::min<qint64>(std::max(minDelayMs, untilDueMs), 2147483647);
    m_checkTimer.start(int(delay));
}

void UpdateFlow::onActivation()
{
    if (checkInFlight() || m_checkTimer.isActive())
        return;
    if (dueAtSeconds() <= nowSeconds())
        check(false);
    else
        schedule(0);
}

bool UpdateFlow::checkInFlight() const
{
    return m_context.ledger->inFlight(RequestLedger::Kind::UpdateCheck);
}

void UpdateFlow::check(bool userVisible)
{
    m_checkTimer.stop();
    if (m_runningVersion.isEmpty()) {
        if (userVisible)
            m_context.notifier->error(
                shellText(QT_TRANSLATE_NOOP("TovraAppShell", "GUI version is unavailable")));
        return;
    }
    m_userVisibleCheck = m_userVisibleCheck || userVisible;
    if (checkInFlight())
        return;
    GuiUpdateBookkeeping bookkeeping = m_context.preferences->updateBookkeeping(m_runningVersion);
    bookkeeping.lastAttemptAt = nowSeconds();
    m_context.preferences->setUpdateBookkeeping(m_runningVersion, bookkeeping);
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::UpdateCheck);
    QMetaObject::invokeMethod(m_context.workers->updateCheck(), "checkUpdate", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, m_runningVersion),
                              Q_ARG(int, kCheckTimeoutMs));
}

void UpdateFlow::handleUpdateFinished(quint64 requestId, const UpdateInfo &info,
                                      const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::UpdateCheck, requestId))
        return;
    const bool userVisible = m_userVisibleCheck;
    m_userVisibleCheck = false;
    if (!errorMessage.isEmpty()) {
        if (userVisible)
            m_context.notifier->error(failureText(
                errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not check for updates")));
        schedule(0);
        return;
    }
    m_context.state->setUpdate(info);
    GuiUpdateBookkeeping bookkeeping = m_context.preferences->updateBookkeeping(m_runningVersion);
    bookkeeping.lastSuccessfulCheckAt = nowSeconds();
    bookkeeping.forceUpgrade = info.updateAvailable && info.forceUpgrade;
    m_forceUpgradePending = bookkeeping.forceUpgrade;
    if (info.updateAvailable && qint64(info.versionNum) > bookkeeping.lastNotifiedVersionNum) {
        bookkeeping.lastNotifiedAt = nowSeconds();
        bookkeeping.lastNotifiedVersionNum = qint64(info.versionNum);
        Q_EMIT updateDialogRequested(m_forceUpgradePending);
    } else if (info.updateAvailable && (userVisible || m_forceUpgradePending)) {
        Q_EMIT updateDialogRequested(m_forceUpgradePending);
    }
    m_context.preferences->setUpdateBookkeeping(m_runningVersion, bookkeeping);
    if (userVisible && !info.updateAvailable)
        m_context.notifier->success(
            shellText(QT_TRANSLATE_NOOP("TovraAppShell", "Tovra is up to date")));
    schedule(0);
}

bool UpdateFlow::updateComplete() const
{
    const UpdateInfo &update = m_context.state->update();
    return update.valid && update.updateAvailable && !update.versionCode.isEmpty();
}

bool UpdateFlow::blocksConnect()
{
    if (!m_forceUpgradePending)
        return false;
    m_context.window->showOrRaise();
    if (!updateComplete()) {
        check(false);
        m_context.notifier->warning(
            shellText(QT_TRANSLATE_NOOP(
                "TovraAppShell", "A required Tovra update is being checked before connecting.")),
            5000);
    } else {
        Q_EMIT updateDialogRequested(true);
    }
    return true;
}

bool UpdateFlow::downloadInProgress() const
{
    return m_pendingRequest == DownloadRequest::Start ||
           m_pendingRequest == DownloadRequest::Cancel || isActiveState(m_download.state);
}

void UpdateFlow::startDownload()
{
    if (checkInFlight()) {
        m_context.notifier->info(shellText(QT_TRANSLATE_NOOP(
            "TovraAppShell", "Finishing the latest update check before starting the download...")));
        return;
    }
    if (!updateComplete()) {
        m_context.notifier->warning(shellText(QT_TRANSLATE_NOOP(
            "TovraAppShell", "Update information is unavailable. Check for updates again.")));
        return;
    }
    if (downloadInProgress())
        return;
    m_cancelRequested = false;
    m_installerOpened = false;
    sendDownloadRequest(DownloadRequest::Start);
}

void UpdateFlow::cancelDownload()
{
    if (!downloadInProgress())
        return;
    m_cancelRequested = true;
    m_context.notifier->info(shellText(QT_TRANSLATE_NOOP("TovraAppShell", "Canceling...")));
    sendDownloadRequest(DownloadRequest::Cancel);
}

void UpdateFlow::pollDownload()
{
    if (m_pendingRequest != DownloadRequest::None)
        return;
    sendDownloadRequest(DownloadRequest::Poll);
}

void UpdateFlow::sendDownloadRequest(DownloadRequest request)
{
    m_pollTimer.stop();
    m_pendingRequest = request;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::UpdateDownload);
    ControlWorker *worker = m_context.workers->download();
    if (request == DownloadRequest::Start) {
        const UpdateInfo &update = m_context.state->update();
        QMetaObject::invokeMethod(worker, "startGUIUpdateDownload", Qt::QueuedConnection,
                                  Q_ARG(quint64, id), Q_ARG(QString, update.versionCode),
                                  Q_ARG(qint64, qint64(update.versionNum)),
                                  Q_ARG(int, kDownloadTimeoutMs));
    } else {
        const char *method = request == DownloadRequest::Cancel ? "cancelGUIUpdateDownload"
                                                                : "fetchGUIUpdateDownload";
        QMetaObject::invokeMethod(worker, method, Qt::QueuedConnection, Q_ARG(quint64, id),
                                  Q_ARG(int, kDownloadTimeoutMs));
    }
}

void UpdateFlow::armPoll(int delayMs)
{
    m_pollTimer.start(delayMs);
}

void UpdateFlow::handleDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                        const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::UpdateDownload, requestId))
        return;
    const DownloadRequest request = m_pendingRequest;
    m_pendingRequest = DownloadRequest::None;
    if (!errorMessage.isEmpty()) {
        switch (request) {
        case DownloadRequest::Start:
            // Without an answer the daemon may still have started it: look before saying it failed.
            if (isUnanswered(errorMessage)) {
                m_context.notifier->warning(shellText(QT_TRANSLATE_NOOP(
                    "TovraAppShell",
                    "Could not confirm that the download started. Checking its status...")));
                armPoll(2000);
            } else {
                m_context.notifier->error(failureText(
                    errorMessage,
                    QT_TRANSLATE_NOOP("TovraAppShell", "Could not start the update download")));
            }
            break;
        case DownloadRequest::Cancel:
            m_context.notifier->warning(shellText(
                QT_TRANSLATE_NOOP("TovraAppShell", "Could not confirm cancellation. Retrying...")));
            QTimer::singleShot(2000, this, [this] {
                if (m_cancelRequested && m_pendingRequest == DownloadRequest::None)
                    sendDownloadRequest(DownloadRequest::Cancel);
            });
            break;
        default:
            m_context.notifier->warning(shellText(QT_TRANSLATE_NOOP(
                "TovraAppShell", "Could not read download progress. Retrying...")));
            armPoll(2000);
            break;
        }
        return;
    }
    applyDownload(info);
}

void UpdateFlow::applyDownload(const GUIUpdateDownloadInfo &info)
{
    m_download = info;
    Q_EMIT downloadChanged(info);
    const QString &state = info.state;
    if (state == QLatin1String("downloading") || state == QLatin1String("checking") ||
        state == QLatin1String("verifying")) {
        armPoll(500);
        return;
    }
    if (state == QLatin1String("canceling") || state == QLatin1String("queued") ||
        state == QLatin1String("retrying")) {
        armPoll(2000);
        return;
    }
    if (state == QLatin1String("ready")) {
        if (m_cancelRequested) {
            m_cancelRequested = false;
            m_context.notifier->warning(shellText(
                QT_TRANSLATE_NOOP("TovraAppShell", "The download completed before it could be "
                                                   "canceled. The installer was not opened.")));
            return;
        }
        if (m_installerOpened)
            return;
        m_installerOpened = true;
        m_context.notifier->success(shellText(
            QT_TRANSLATE_NOOP("TovraAppShell", "Download complete. Opening the installer...")));
        if (info.localPath.isEmpty() || !m_openUrl(QUrl::fromLocalFile(info.localPath)))
            m_context.notifier->error(shellText(QT_TRANSLATE_NOOP(
                "TovraAppShell",
                "The update was downloaded, but the installer could not be opened.")));
        return;
    }
    if (state == QLatin1String("canceled")) {
        m_cancelRequested = false;
        m_context.notifier->info(
            shellText(QT_TRANSLATE_NOOP("TovraAppShell", "Download canceled.")));
        return;
    }
    if (state == QLatin1String("failed")) {
        if (info.errorCode == QLatin1String("release_mismatch") ||
            info.errorCode == QLatin1String("release_changed"))
            m_context.notifier->error(shellText(QT_TRANSLATE_NOOP(
                "TovraAppShell",
                "The download belongs to a different update release. Check for updates again.")));
        else
            m_context.notifier->error(
                failureText(info.errorMessage,
                            QT_TRANSLATE_NOOP("TovraAppShell", "Could not download the update.")));
    }
}
