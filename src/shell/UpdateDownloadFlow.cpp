#include "UpdateDownloadFlow.h"

#include "ControlWorker.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "WindowController.h"

#include <QDesktopServices>
#include <QFileInfo>

namespace {

constexpr int kRequestTimeoutMs = 10000;

// Shown by the update dialog, so translated in its context.
class UpdateDialogText
{
    Q_DECLARE_TR_FUNCTIONS(UpdateDialog)
};

// Transport texts that mean the daemon's answer never arrived, not that it refused.
bool isUnanswered(const QString &error)
{
    return error == QLatin1String("control request timed out") ||
           error == QLatin1String("control request canceled") ||
           error == QLatin1String("invalid control response");
}

bool isActiveState(const QString &state)
{
    return state == QLatin1String("queued") || state == QLatin1String("checking") ||
           state == QLatin1String("downloading") || state == QLatin1String("verifying") ||
           state == QLatin1String("retrying") || state == QLatin1String("canceling");
}

bool isWebLink(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

UpdateDownloadFlow::UpdateDownloadFlow(const ShellContext &context, DialogSource dialog,
                                       QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_dialog(std::move(dialog))
    , m_openUrl([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{
    m_pollTimer.setSingleShot(true);
    m_cancelRetryTimer.setSingleShot(true);
    connect(&m_pollTimer, &QTimer::timeout, this, &UpdateDownloadFlow::poll);
    connect(&m_cancelRetryTimer, &QTimer::timeout, this, [this] {
        if (m_cancelRequested && m_pending == Request::None)
            send(Request::Cancel);
    });
}

UpdateDialog *UpdateDownloadFlow::dialog() const
{
    return m_dialog();
}

bool UpdateDownloadFlow::inProgress() const
{
    return m_pending == Request::Start || m_pending == Request::Cancel ||
           isActiveState(m_download.state);
}

void UpdateDownloadFlow::start(const UpdateInfo &offer, const QString &runningVersion)
{
    if (inProgress())
        return;
    m_offer = offer;
    m_runningVersion = runningVersion;
    m_cancelRequested = false;
    m_installerOpened = false;
    m_failures = 0;
    m_tracking = true;
    dialog()->showPreparing();
    send(Request::Start);
}

void UpdateDownloadFlow::cancel()
{
    if (!inProgress() || m_cancelRequested)
        return;
    m_cancelRequested = true;
    m_failures = 0;
    dialog()->showCanceling();
    tell(ShellText::tr("Canceling..."), QStringLiteral("info"));
    send(Request::Cancel);
}

void UpdateDownloadFlow::poll()
{
    if (m_pending != Request::None)
        return; // the answer on its way re-arms the poll
    send(Request::Poll);
}

void UpdateDownloadFlow::send(Request request)
{
    m_pollTimer.stop();
    m_cancelRetryTimer.stop();
    m_pending = request;
    const quint64 id = m_context.ledger->issue(RequestLedger::Kind::UpdateDownload);
    ControlWorker *worker = m_context.workers->download();
    if (request == Request::Start) {
        QMetaObject::invokeMethod(worker, "startGUIUpdateDownload", Qt::QueuedConnection,
                                  Q_ARG(quint64, id), Q_ARG(QString, m_runningVersion),
                                  Q_ARG(qint64, qint64(m_offer.versionNum)),
                                  Q_ARG(int, kRequestTimeoutMs));
        return;
    }
    const char *method =
        request == Request::Cancel ? "cancelGUIUpdateDownload" : "fetchGUIUpdateDownload";
    QMetaObject::invokeMethod(worker, method, Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kRequestTimeoutMs));
}

void UpdateDownloadFlow::armPoll(int delayMs)
{
    m_pollTimer.start(delayMs);
}

void UpdateDownloadFlow::handleFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                        const QString &errorMessage)
{
    if (!m_context.ledger->accept(RequestLedger::Kind::UpdateDownload, requestId))
        return;
    const Request request = m_pending;
    m_pending = Request::None;
    if (!errorMessage.isEmpty())
        handleError(request, errorMessage);
    else
        apply(request, info);
}

void UpdateDownloadFlow::handleError(Request request, const QString &errorMessage)
{
    if (request == Request::Start && !isUnanswered(errorMessage)) {
        // A daemon without the download endpoint answers 404: only the browser can help then.
        const bool unsupported = errorMessage.endsWith(QLatin1String("HTTP 404"));
        m_tracking = false;
        fail(ShellText::tr("Could not start the update download"),
             unsupported ? UpdateDialog::Remedy::OpenLink : UpdateDialog::Remedy::RetryOrOpenLink,
             errorMessage);
        return;
    }
    if (++m_failures >= kMaxFailures) {
        m_tracking = false;
        m_cancelRequested = false;
        m_download = GUIUpdateDownloadInfo();
        fail(UpdateDialogText::tr("Could not read the update download status."),
             UpdateDialog::Remedy::Retry, errorMessage);
        return;
    }
    switch (request) {
    case Request::Start:
        // Without an answer the daemon may still have started it: look before saying it failed.
        tell(ShellText::tr("Could not confirm that the download started. Checking its status..."),
             QStringLiteral("warning"));
        armPoll(kSlowPollMs);
        break;
    case Request::Cancel:
        tell(ShellText::tr("Could not confirm cancellation. Retrying..."),
             QStringLiteral("warning"));
        m_cancelRetryTimer.start(kSlowPollMs);
        break;
    default:
        tell(ShellText::tr("Could not read download progress. Retrying..."),
             QStringLiteral("warning"));
        armPoll(kSlowPollMs);
        break;
    }
}

void UpdateDownloadFlow::apply(Request request, const GUIUpdateDownloadInfo &info)
{
    m_failures = 0;
    const bool wasTracking = m_tracking;
    m_download = info;
    Q_EMIT downloadChanged(info);
    const QString &state = info.state;

    // The daemon works on another release than the one offered: nothing of it is ours to open.
    const qint64 offered = qint64(m_offer.versionNum);
    if (wasTracking && offered > 0 && info.versionNum > 0 && info.versionNum != offered &&
        (isActiveState(state) || state == QLatin1String("ready"))) {
        m_tracking = false;
        m_cancelRequested = false;
        fail(ShellText::tr("The download belongs to a different "
                           "update release. Check for updates "
                           "again."),
             UpdateDialog::Remedy::Retry);
        Q_EMIT releaseChanged();
        return;
    }

    if (isActiveState(state)) {
        m_tracking = true;
        if (!(m_cancelRequested && state != QLatin1String("canceling")))
            dialog()->setDownload(info);
        // Bytes move quickly; a cancel or a retry goes at the daemon's pace.
        const bool slow = state == QLatin1String("canceling") || state == QLatin1String("retrying");
        armPoll(slow ? kSlowPollMs : kFastPollMs);
        return;
    }
    m_tracking = false;
    if (state == QLatin1String("ready")) {
        if (m_cancelRequested) {
            m_cancelRequested = false;
            dialog()->showOffer();
            tell(ShellText::tr("The download completed before it could be "
                               "canceled. The installer was not opened."),
                 QStringLiteral("warning"));
            return;
        }
        if (!wasTracking || m_installerOpened)
            return; // an old download found by a poll is not opened behind the user's back
        dialog()->setDownload(info);
        openInstaller();
        return;
    }
    if (state == QLatin1String("canceled")) {
        m_cancelRequested = false;
        dialog()->setDownload(info);
        if (!dialog()->isVisible())
            tell(UpdateDialogText::tr("Download canceled."), QStringLiteral("info"));
        return;
    }
    if (state == QLatin1String("failed")) {
        m_cancelRequested = false;
        if (wasTracking || request != Request::Poll)
            applyFailed(info);
        return;
    }
    // "idle": the daemon knows of no download; after a restart of the daemon ours is gone.
    if (wasTracking || request == Request::Start) {
        m_cancelRequested = false;
        fail(UpdateDialogText::tr("Could not download the update."), UpdateDialog::Remedy::Retry);
    }
}

void UpdateDownloadFlow::applyFailed(const GUIUpdateDownloadInfo &info)
{
    const QString &code = info.errorCode;
    if (code == QLatin1String("release_mismatch") || code == QLatin1String("release_changed")) {
        fail(ShellText::tr("The download belongs to a different "
                           "update release. Check for updates "
                           "again."),
             UpdateDialog::Remedy::Retry, info.errorMessage);
        Q_EMIT releaseChanged();
    } else if (code == QLatin1String("no_update_available")) {
        fail(ShellText::tr("Update information is unavailable. Check for updates again."),
             UpdateDialog::Remedy::Retry, info.errorMessage);
        Q_EMIT releaseChanged();
    } else if (code == QLatin1String("download_not_supported")) {
        fail(ShellText::tr("Could not start the update download"), UpdateDialog::Remedy::OpenLink,
             info.errorMessage);
    } else {
        // "integrity_metadata_unavailable" and anything new: the daemon's words as the detail,
        // the browser as the way round.
        fail(UpdateDialogText::tr("Could not download the update."),
             UpdateDialog::Remedy::RetryOrOpenLink, info.errorMessage);
    }
}

void UpdateDownloadFlow::fail(const QString &message, UpdateDialog::Remedy remedy,
                              const QString &detail)
{
    m_pollTimer.stop();
    m_cancelRetryTimer.stop();
    dialog()->showFailure(message, remedy, detail);
    // A download left to run in the background comes back with the way forward.
    m_context.window->showUpdateDialog();
}

void UpdateDownloadFlow::tell(const QString &text, const QString &kind)
{
    if (dialog()->isVisible())
        dialog()->showNotice(text, kind);
    else
        m_context.notifier->post(text, kind);
}

bool UpdateDownloadFlow::readyFor(const UpdateInfo &offer) const
{
    return m_download.state == QLatin1String("ready") && !m_download.localPath.isEmpty() &&
           qint64(offer.versionNum) > 0 && m_download.versionNum == qint64(offer.versionNum) &&
           QFileInfo::exists(m_download.localPath);
}

void UpdateDownloadFlow::openInstaller()
{
    const QString path = m_download.localPath;
    if (!path.isEmpty() && QFileInfo::exists(path) && m_openUrl(QUrl::fromLocalFile(path))) {
        m_installerOpened = true;
        m_context.notifier->success(
            UpdateDialogText::tr("Download complete. Opening the installer..."));
        // The installer has the stage now; a later look at the dialog starts from the offer.
        m_context.window->hideUpdateDialog();
        dialog()->showOffer();
        return;
    }
    fail(ShellText::tr("The update was downloaded, but the installer could not be opened."),
         UpdateDialog::Remedy::OpenLink, path);
}

QUrl UpdateDownloadFlow::downloadLink(const UpdateInfo &offer)
{
    const QString recommended = offer.recommended.trimmed().toLower();
    QStringList candidates;
    if (recommended == QLatin1String("arm64"))
        candidates << offer.arm64DownloadLink;
    else if (recommended == QLatin1String("amd64"))
        candidates << offer.amd64DownloadLink;
    candidates << offer.universalDownloadLink << offer.artifactURL;
    for (const QString &candidate : std::as_const(candidates)) {
        const QUrl url(candidate.trimmed(), QUrl::StrictMode);
        if (isWebLink(url))
            return url;
    }
    return {};
}

void UpdateDownloadFlow::openDownloadLink(const UpdateInfo &offer)
{
    const QUrl link = downloadLink(offer);
    if (!link.isValid()) {
        tell(UpdateDialogText::tr("The download link is unavailable."), QStringLiteral("error"));
    } else if (!m_openUrl(link)) {
        tell(UpdateDialogText::tr("Could not open the update download link."),
             QStringLiteral("error"));
    } else {
        tell(UpdateDialogText::tr("The download link opened in your browser. Tovra "
                                  "will not run the installer automatically."),
             QStringLiteral("info"));
    }
}
