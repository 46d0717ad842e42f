#pragma once

#include "ShellContext.h"

#include "GUIUpdateDownloadInfo.h"
#include "UpdateDialog.h"
#include "UpdateInfo.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>

// The installer download that the daemon runs: start, poll, cancel, the daemon's error codes in
// the user's words, and opening the verified installer with the desktop. Progress goes to the
// update dialog; while the dialog is hidden, what the user must hear goes to the notifier.
class UpdateDownloadFlow : public QObject
{
    Q_OBJECT

public:
    using UrlOpener = std::function<bool(const QUrl &)>;

    static constexpr int kFastPollMs = 500;
    static constexpr int kSlowPollMs = 2000;
    // Unanswered polls or cancels in a row before the flow stops and asks the user.
    static constexpr int kMaxFailures = 3;

    using DialogSource = std::function<UpdateDialog *()>;

    UpdateDownloadFlow(const ShellContext &context, DialogSource dialog, QObject *parent = nullptr);

    void setUrlOpener(UrlOpener opener) { m_openUrl = std::move(opener); }

    // The daemon is told which GUI asks (runningVersion) and which release it expects.
    void start(const UpdateInfo &offer, const QString &runningVersion);
    void cancel();
    void poll();
    bool inProgress() const;
    bool pollActive() const { return m_pollTimer.isActive(); }
    int pollIntervalMs() const { return m_pollTimer.interval(); }
    GUIUpdateDownloadInfo download() const { return m_download; }

    // A verified installer of this offer is already on disk.
    bool readyFor(const UpdateInfo &offer) const;
    void openInstaller();
    void openDownloadLink(const UpdateInfo &offer);
    static QUrl downloadLink(const UpdateInfo &offer);

    void handleFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                        const QString &errorMessage);
    // In the dialog while it is on screen, else as a notification.
    void tell(const QString &text, const QString &kind);

Q_SIGNALS:
    void downloadChanged(const GUIUpdateDownloadInfo &info);
    // The daemon's download belongs to another release: the offer must be checked again.
    void releaseChanged();

private:
    enum class Request { None, Start, Poll, Cancel };

    UpdateDialog *dialog() const;
    void send(Request request);
    void armPoll(int delayMs);
    void handleError(Request request, const QString &errorMessage);
    void apply(Request request, const GUIUpdateDownloadInfo &info);
    void applyFailed(const GUIUpdateDownloadInfo &info);
    void fail(const QString &message, UpdateDialog::Remedy remedy,
              const QString &detail = QString());

    ShellContext m_context;
    DialogSource m_dialog;
    QTimer m_pollTimer;
    QTimer m_cancelRetryTimer;
    UrlOpener m_openUrl;
    Request m_pending = Request::None;
    bool m_cancelRequested = false;
    bool m_installerOpened = false;
    bool m_tracking = false; // a download of ours is believed to be under way
    int m_failures = 0;
    UpdateInfo m_offer;
    QString m_runningVersion;
    GUIUpdateDownloadInfo m_download;
};
