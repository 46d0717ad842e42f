#include "UpdateFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "UpdateDialog.h"
#include "UpdateDownloadFlow.h"
#include "UpdateNoticePolicy.h"
#include "WindowController.h"

#include <QDateTime>

#include <algorithm>

namespace {

constexpr int kCheckTimeoutMs = 20000;
constexpr qint64 kRetryAfterAttemptS = 3600;
constexpr qint64 kRecheckAfterSuccessS = 86400;

} // namespace

UpdateFlow::UpdateFlow(const ShellContext &context, const QString &runningVersion, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_runningVersion(runningVersion.trimmed())
    , m_clock([] { return QDateTime::currentSecsSinceEpoch(); })
    , m_download(new UpdateDownloadFlow(
          context, [this] { return dialog(); }, this))
{
    m_checkTimer.setSingleShot(true);
    connect(&m_checkTimer, &QTimer::timeout, this, [this] { check(false); });
    connect(m_download, &UpdateDownloadFlow::downloadChanged, this, &UpdateFlow::downloadChanged);
    // The next download must start from a fresh offer.
    connect(m_download, &UpdateDownloadFlow::releaseChanged, this,
            [this] { m_recheckBeforeDownload = true; });
    m_forceUpgradePending = m_context.preferences->updateBookkeeping(m_runningVersion).forceUpgrade;
}

UpdateDialog *UpdateFlow::dialog()
{
    // Made on first use, so that a start without an offer builds no dialog.
    UpdateDialog *dialog = m_context.window->updateDialog();
    if (m_wiredDialog != dialog) {
        m_wiredDialog = dialog;
        connect(dialog, &UpdateDialog::hideUpdateRequested, this, &UpdateFlow::muteOffer);
        connect(dialog, &UpdateDialog::openDownloadLinkRequested, this,
                &UpdateFlow::openDownloadLink);
    }
    return dialog;
}

void UpdateFlow::setUrlOpener(UrlOpener opener)
{
    m_download->setUrlOpener(std::move(opener));
}

qint64 UpdateFlow::dueAtSeconds() const
{
    const GuiUpdateBookkeeping bookkeeping =
        m_context.preferences->updateBookkeeping(m_runningVersion);
    if (bookkeeping.lastAttemptAt >= 1)
        return bookkeeping.lastAttemptAt + kRetryAfterAttemptS;
    if (bookkeeping.lastSuccessfulCheckAt >= 1)
        return bookkeeping.lastSuccessfulCheckAt + kRecheckAfterSuccessS;
    return now();
}

void UpdateFlow::schedule(qint64 minDelayMs)
{
    if (checkInFlight() || m_runningVersion.isEmpty())
        return;
    const qint64 untilDueMs = std::max<qint64>(0, (dueAtSeconds() - now()) * 1000);
    const qint64 delay = std::min<qint64>(std::max(minDelayMs, untilDueMs), 2147483647);
    m_checkTimer.start(int(delay));
}

void UpdateFlow::scheduleAtStart(qint64 minDelayMs)
{
    if (m_forceUpgradePending && !m_runningVersion.isEmpty() && !checkInFlight())
        m_checkTimer.start(0);
    else
        schedule(minDelayMs);
}

void UpdateFlow::onActivation()
{
    if (checkInFlight() || m_checkTimer.isActive())
        return;
    if (dueAtSeconds() <= now())
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
            m_context.notifier->error(ShellText::tr("GUI version is unavailable"));
        return;
    }
    m_userVisibleCheck = m_userVisibleCheck || userVisible;
    if (checkInFlight())
        return;
    GuiUpdateBookkeeping bookkeeping = m_context.preferences->updateBookkeeping(m_runningVersion);
    bookkeeping.lastAttemptAt = now();
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
        const QString text = failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not check for updates"));
        if (m_downloadAfterCheck) {
            m_downloadAfterCheck = false;
            m_recheckBeforeDownload = true;
            dialog()->showFailure(text, UpdateDialog::Remedy::Retry);
        } else if (userVisible) {
            m_context.notifier->error(text);
        }
        schedule(0);
        return;
    }
    m_context.state->setUpdate(info);
    GuiUpdateBookkeeping bookkeeping = m_context.preferences->updateBookkeeping(m_runningVersion);
    bookkeeping.lastSuccessfulCheckAt = now();
    bookkeeping.forceUpgrade = info.updateAvailable && info.forceUpgrade;
    m_forceUpgradePending = bookkeeping.forceUpgrade;
    m_context.preferences->setUpdateBookkeeping(m_runningVersion, bookkeeping);

    if (m_downloadAfterCheck) {
        downloadAfterCheck(info.updateAvailable);
    } else if (info.updateAvailable) {
        const qint64 version = qint64(info.versionNum);
        const auto verdict = UpdateNoticePolicy::decide(bookkeeping, version, m_forceUpgradePending,
                                                        userVisible, now());
        // Only an offer that reached the screen counts as told.
        if (verdict == UpdateNoticePolicy::Verdict::Show && presentOffer(m_forceUpgradePending)) {
            UpdateNoticePolicy::recordShown(&bookkeeping, version, now());
            m_context.preferences->setUpdateBookkeeping(m_runningVersion, bookkeeping);
        }
    } else if (userVisible) {
        m_context.notifier->success(ShellText::tr("Tovra is up to date"));
    }
    schedule(0);
}

void UpdateFlow::downloadAfterCheck(bool available)
{
    m_downloadAfterCheck = false;
    UpdateDialog *dialog = this->dialog();
    dialog->setOffer(m_context.state->update(), m_runningVersion, m_forceUpgradePending);
    if (!available) {
        m_context.window->hideUpdateDialog();
        dialog->showOffer();
        m_context.notifier->success(ShellText::tr("Tovra is up to date"));
        return;
    }
    startDownload();
}

bool UpdateFlow::updateComplete() const
{
    const UpdateInfo &update = m_context.state->update();
    return update.valid && update.updateAvailable && !update.versionCode.isEmpty();
}

bool UpdateFlow::presentOffer(bool forced)
{
    UpdateDialog *dialog = this->dialog();
    dialog->setOffer(m_context.state->update(), m_runningVersion, forced);
    // A download under way keeps showing its progress; anything else starts from the offer.
    if (!m_download->inProgress() && !m_downloadAfterCheck)
        dialog->showOffer();
    m_context.window->showUpdateDialog();
    if (!dialog->isVisible())
        return false;
    Q_EMIT updateDialogShown(forced);
    return true;
}

bool UpdateFlow::blocksConnect()
{
    if (!m_forceUpgradePending)
        return false;
    m_context.window->showOrRaise();
    if (!updateComplete()) {
        check(false);
        // Without its own version the GUI cannot ask for the update: no check is on its way.
        m_context.notifier->warning(
            checkInFlight()
                ? ShellText::tr("A required Tovra update is being checked before connecting.")
                : ShellText::tr("A required Tovra update must be installed before connecting."),
            5000);
    } else {
        presentOffer(true);
    }
    return true;
}

bool UpdateFlow::downloadInProgress() const
{
    return m_download->inProgress();
}

GUIUpdateDownloadInfo UpdateFlow::download() const
{
    return m_download->download();
}

void UpdateFlow::startDownload()
{
    UpdateDialog *dialog = this->dialog();
    if (m_download->inProgress())
        return;
    if (checkInFlight()) {
        // Wait for the check to land, then go on with the offer it brings.
        m_downloadAfterCheck = true;
        dialog->showPreparing();
        m_download->tell(ShellText::tr("Finishing the latest update check before starting the "
                                       "download..."),
                         QStringLiteral("info"));
        return;
    }
    if (m_recheckBeforeDownload) {
        m_recheckBeforeDownload = false;
        m_downloadAfterCheck = true;
        dialog->showPreparing();
        check(false);
        return;
    }
    if (!updateComplete()) {
        m_recheckBeforeDownload = true;
        const QString text =
            ShellText::tr("Update information is unavailable. Check for updates again.");
        dialog->showFailure(text, UpdateDialog::Remedy::Retry);
        if (!dialog->isVisible())
            m_context.notifier->warning(text);
        return;
    }
    const UpdateInfo &offer = m_context.state->update();
    // The verified installer of this very release is already here: open it again.
    if (m_download->readyFor(offer)) {
        m_download->openInstaller();
        return;
    }
    m_download->start(offer, m_runningVersion);
}

void UpdateFlow::cancelDownload()
{
    if (m_downloadAfterCheck) {
        m_downloadAfterCheck = false;
        dialog()->showOffer();
        return;
    }
    m_download->cancel();
}

void UpdateFlow::pollDownload()
{
    m_download->poll();
}

void UpdateFlow::muteOffer()
{
    const UpdateInfo &offer = m_context.state->update();
    if (!offer.valid || !offer.updateAvailable || offer.forceUpgrade)
        return;
    GuiUpdateBookkeeping bookkeeping = m_context.preferences->updateBookkeeping(m_runningVersion);
    UpdateNoticePolicy::mute(&bookkeeping, qint64(offer.versionNum));
    m_context.preferences->setUpdateBookkeeping(m_runningVersion, bookkeeping);
}

void UpdateFlow::openDownloadLink()
{
    m_download->openDownloadLink(m_context.state->update());
}

void UpdateFlow::handleDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                        const QString &errorMessage)
{
    m_download->handleFinished(requestId, info, errorMessage);
}
