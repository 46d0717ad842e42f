#pragma once

#include "GUIUpdateDownloadInfo.h"
#include "UpdateInfo.h"

#include <QDialog>

class AccessibleAnnouncer;
class QLabel;
class QProgressBar;
class QPushButton;
class QTextBrowser;

// The GUI update offer and the progress of its download. It keeps only its phase and what it
// shows; the shell passes the offer and the download records in and takes the intents out.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Phase {
        Offer,
        Preparing,
        Downloading,
        // The daemon starts the download over after a network error.
        Retrying,
        Verifying,
        Canceling,
        Canceled,
        Ready,
        Failed
    };
    // What a failed download offers as the way forward.
    enum class Remedy { Retry, OpenLink, RetryOrOpenLink };

    explicit UpdateDialog(QWidget *parent = nullptr);

    // The texts of the offer; the phase stays as it is.
    void setOffer(const UpdateInfo &info, const QString &currentVersion, bool forced);
    bool forced() const { return m_forced; }

    void showOffer();
    void showPreparing();
    // Follows the daemon's download state; "failed" and "idle" are the caller's to word.
    void setDownload(const GUIUpdateDownloadInfo &info);
    void showCanceling();
    void showFailure(const QString &message, Remedy remedy, const QString &detail = QString());
    // A passing word under the current phase ("info" or "error"); an empty text clears it.
    void showNotice(const QString &text, const QString &kind);

    Phase phase() const { return m_phase; }
    QString statusText() const;
    QString messageText() const;

    // "%1 MB" with one decimal, in the interface's locale.
    static QString megabytes(qint64 bytes);

Q_SIGNALS:
    void downloadRequested();
    void cancelDownloadRequested();
    void hideUpdateRequested();
    void openDownloadLinkRequested();
    void exitRequested();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    AccessibleAnnouncer *announcer();
    void build();
    void setPhase(Phase phase);
    void setStatus(const QString &text, int progressPermille, bool progressVisible);
    void setMessage(const QString &text, const QString &role, const QString &detail = QString());
    void applyButtons();
    void focusStepForward();
    // The release notes start where the layout starts, whatever language they are in.
    void alignNotes();
    static void setButton(QPushButton *button, const QString &text, const QString &toolTip);

    Phase m_phase = Phase::Offer;
    Remedy m_remedy = Remedy::Retry;
    bool m_forced = false;

    QLabel *m_heading = nullptr;
    QLabel *m_versions = nullptr;
    QLabel *m_forcedText = nullptr;
    QLabel *m_notesTitle = nullptr;
    QTextBrowser *m_notes = nullptr;
    QLabel *m_status = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_message = nullptr;
    AccessibleAnnouncer *m_announcer = nullptr;
    QLabel *m_detail = nullptr;
    QPushButton *m_hideUpdate = nullptr;
    QPushButton *m_notNow = nullptr;
    QPushButton *m_exit = nullptr;
    QPushButton *m_background = nullptr;
    QPushButton *m_openLink = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_download = nullptr;
    QPushButton *m_primary = nullptr; // the default button of the phase, if any
};
