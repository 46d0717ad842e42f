#pragma once

#include "ShellContext.h"

#include "GUIUpdateDownloadInfo.h"
#include "UpdateInfo.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>

class UpdateDialog;
class UpdateDownloadFlow;

// GUI update checks on their own worker, the offer in the update dialog, and the gate that a
// required update puts before every connect. Checks are throttled through the bookkeeping kept
// per GUI version; the download itself is UpdateDownloadFlow's.
class UpdateFlow : public QObject
{
    Q_OBJECT

public:
    using UrlOpener = std::function<bool(const QUrl &)>;
    using Clock = std::function<qint64()>; // seconds since the epoch

    UpdateFlow(const ShellContext &context, const QString &runningVersion,
               QObject *parent = nullptr);

    // Opens the installer and the download link; the desktop's opener unless replaced.
    void setUrlOpener(UrlOpener opener);
    void setClock(Clock clock) { m_clock = std::move(clock); }

    // Starts the check timer with at least minDelayMs, or later when the next check is due later.
    void schedule(qint64 minDelayMs);
    // A pending required update is checked at once, whatever the throttle says: its dialog must
    // be on screen before anything connects. Otherwise schedule(minDelayMs).
    void scheduleAtStart(qint64 minDelayMs);
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
    // "Hide this update": the offered version stays quiet until a newer one appears.
    void muteOffer();
    void openDownloadLink();
    bool downloadInProgress() const;
    GUIUpdateDownloadInfo download() const;
    UpdateDownloadFlow *downloadFlow() const { return m_download; }

    void handleUpdateFinished(quint64 requestId, const UpdateInfo &info,
                              const QString &errorMessage);
    void handleDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                const QString &errorMessage);

Q_SIGNALS:
    // The offer is on screen (forced: the required variant).
    void updateDialogShown(bool forced);
    void downloadChanged(const GUIUpdateDownloadInfo &info);

private:
    UpdateDialog *dialog();
    qint64 now() const { return m_clock(); }
    qint64 dueAtSeconds() const;
    bool updateComplete() const;
    // Puts the offer in the dialog and shows it; true when it really is on screen.
    bool presentOffer(bool forced);
    void downloadAfterCheck(bool checked);

    ShellContext m_context;
    QString m_runningVersion;
    QTimer m_checkTimer;
    Clock m_clock;
    UpdateDownloadFlow *m_download;
    QPointer<UpdateDialog> m_wiredDialog;
    bool m_userVisibleCheck = false;
    bool m_forceUpgradePending = false;
    bool m_downloadAfterCheck = false;
    bool m_recheckBeforeDownload = false;
};
