#pragma once

#include "ShellContext.h"

#include "GUIUpdateDownloadInfo.h"
#include "UpdateInfo.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>

// GUI update checks and the installer download, each on its own worker. Checks are throttled
// through the bookkeeping kept per GUI version; a forced upgrade stops every connect.
class UpdateFlow : public QObject
{
    Q_OBJECT

public:
    using UrlOpener = std::function<bool(const QUrl &)>;

    UpdateFlow(const ShellContext &context, const QString &runningVersion,
               QObject *parent = nullptr);

    void setUrlOpener(UrlOpener opener) { m_openUrl = std::move(opener); }

    // Starts the check timer with at least minDelayMs, or later when the next check is due later.
    void schedule(qint64 minDelayMs);
    void onActivation();
    void check(bool userVisible);
    bool checkInFlight() const;
    bool checkTimerActive() const { return m_checkTimer.isActive(); }
    int checkTimerIntervalMs() const { return m_checkTimer.interval(); }

    bool forceUpgradePending() const { return m_forceUpgradePending; }
    // True, after telling the user why, when a pending forced upgrade must stop a connect.
    bool blocksConnect();

    void startDownload();
    void cancelDownload();
    void pollDownload();
    bool downloadInProgress() const;
    GUIUpdateDownloadInfo download() const { return m_download; }

    void handleUpdateFinished(quint64 requestId, const UpdateInfo &info,
                              const QString &errorMessage);
    void handleDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                const QString &errorMessage);

Q_SIGNALS:
    void updateDialogRequested(bool forced);
    void downloadChanged(const GUIUpdateDownloadInfo &info);

private:
    enum class DownloadRequest { None, Start, Poll, Cancel };

    qint64 dueAtSeconds() const;
    bool updateComplete() const;
    void sendDownloadRequest(DownloadRequest request);
    void armPoll(int delayMs);
    void applyDownload(const GUIUpdateDownloadInfo &info);

    ShellContext m_context;
    QString m_runningVersion;
    QTimer m_checkTimer;
    QTimer m_pollTimer;
    UrlOpener m_openUrl;
    bool m_userVisibleCheck = false;
    bool m_forceUpgradePending = false;
    DownloadRequest m_pendingRequest = DownloadRequest::None;
    bool m_cancelRequested = false;
    bool m_installerOpened = false;
    GUIUpdateDownloadInfo m_download;
};
