#include "UpdateDialog.h"

#include "AccessibleAnnouncer.h"
#include "BidiText.h"
#include "TovraDialogTitleBarThemer.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextOption>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kProgressRange = 1000;

bool isActive(UpdateDialog::Phase phase)
{
    return phase == UpdateDialog::Phase::Preparing || phase == UpdateDialog::Phase::Downloading ||
           phase == UpdateDialog::Phase::Retrying || phase == UpdateDialog::Phase::Verifying ||
           phase == UpdateDialog::Phase::Canceling;
}

QLabel *makeLabel(const char *objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton *makeButton(const char *objectName, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    // Never squeezed below its text: the row wraps the dialog's width around the buttons.
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    return button;
}

} // namespace

UpdateDialog::UpdateDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("TovraUpdateDialog"));
    setWindowTitle(tr("Tovra Update"));
    build();
    TovraDialogTitleBarThemer::attach(this);
    setPhase(Phase::Offer);
}

void UpdateDialog::build()
{
    m_heading = makeLabel("TovraUpdateHeading", this);
    m_versions = makeLabel("TovraUpdateVersions", this);
    m_forcedText = makeLabel("TovraUpdateForced", this);
    m_forcedText->setText(tr("Tovra must be updated before you can connect. Download the "
                             "installer or exit Tovra."));
    m_forcedText->hide();
    m_notesTitle = makeLabel("TovraUpdateNotesTitle", this);
    m_notesTitle->setText(tr("What's New"));
    m_notes = new QTextBrowser(this);
    m_notes->setObjectName(QStringLiteral("TovraUpdateNotes"));
    m_notes->setOpenLinks(false);
    m_notes->setAccessibleName(tr("What's New"));
    m_notes->setFocusPolicy(Qt::StrongFocus);
    m_notes->setTabChangesFocus(true);
    // Sets the dialog's width; the layout widens it further when the buttons need more.
    m_notes->setMinimumWidth(460);
    m_notes->setMaximumHeight(150); // a long change log scrolls rather than growing the dialog
    m_notesTitle->setBuddy(m_notes);

    m_status = makeLabel("TovraUpdateStatus", this);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("TovraUpdateProgress"));
    m_progress->setAccessibleName(tr("Download progress"));
    m_progress->setTextVisible(false);
    m_message = makeLabel("TovraUpdateMessage", this);
    m_detail = makeLabel("TovraUpdateDetail", this);
    m_detail->setProperty("tovraRole", QStringLiteral("muted"));

    m_hideUpdate = makeButton("TovraUpdateHide", this);
    //: Button (shown as a link) that stops offering this update
    setButton(m_hideUpdate, tr("Hide this update"), QString());
    m_notNow = makeButton("TovraUpdateNotNow", this);
    //: Button that closes the dialog and keeps the update for later
    setButton(m_notNow, tr("Not Now"), QString());
    m_exit = makeButton("TovraUpdateExit", this);
    //: Button that quits Tovra when the update is required
    setButton(m_exit, tr("Exit Tovra"), tr("Exit Tovra without updating"));
    m_background = makeButton("TovraUpdateBackground", this);
    m_openLink = makeButton("TovraUpdateOpenLink", this);
    //: Button that opens the installer download page in the browser
    setButton(m_openLink, tr("Open Download Link"), tr("Open the Tovra update download link"));
    m_cancel = makeButton("TovraUpdateCancel", this);
    m_download = makeButton("TovraUpdateDownload", this);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_hideUpdate);
    buttons->addStretch(1);
    for (QPushButton *button : {m_exit, m_notNow, m_background, m_openLink, m_cancel, m_download})
        buttons->addWidget(button);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(m_heading);
    layout->addWidget(m_versions);
    layout->addWidget(m_forcedText);
    layout->addSpacing(4);
    layout->addWidget(m_notesTitle);
    layout->addWidget(m_notes, 1);
    layout->addSpacing(4);
    layout->addWidget(m_status);
    layout->addWidget(m_progress);
    layout->addWidget(m_message);
    layout->addWidget(m_detail);
    layout->addSpacing(6);
    layout->addLayout(buttons);

    connect(m_download, &QPushButton::clicked, this, &UpdateDialog::downloadRequested);
    connect(m_background, &QPushButton::clicked, this, [this] {
        // Offered: step aside and start. Under way: only step aside. Aside first, so that what
        // the start has to say goes where the user now is, not into a dialog about to hide.
        const bool start = m_phase == Phase::Offer;
        hide();
        if (start)
            Q_EMIT downloadRequested();
    });
    connect(m_cancel, &QPushButton::clicked, this, &UpdateDialog::cancelDownloadRequested);
    connect(m_openLink, &QPushButton::clicked, this, &UpdateDialog::openDownloadLinkRequested);
    connect(m_notNow, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_exit, &QPushButton::clicked, this, &UpdateDialog::exitRequested);
    connect(m_hideUpdate, &QPushButton::clicked, this, [this] {
        Q_EMIT hideUpdateRequested();
        hide();
    });
}

void UpdateDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    focusStepForward();
}

void UpdateDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        alignNotes();
}

void UpdateDialog::alignNotes()
{
    QTextOption option = m_notes->document()->defaultTextOption();
    option.setAlignment(Qt::AlignAbsolute | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    m_notes->document()->setDefaultTextOption(option);
}

void UpdateDialog::focusStepForward()
{
    // Keyboard users land on the step forward, not in the release notes.
    for (QPushButton *button : {m_primary, m_background, m_notNow, m_exit}) {
        if (button && button->isVisibleTo(this) && button->isEnabled()) {
            button->setFocus(Qt::OtherFocusReason);
            break;
        }
    }
}

void UpdateDialog::setButton(QPushButton *button, const QString &text, const QString &toolTip)
{
    button->setText(text);
    button->setAccessibleName(text);
    button->setToolTip(toolTip);
    button->setAccessibleDescription(toolTip);
}

void UpdateDialog::setOffer(const UpdateInfo &info, const QString &currentVersion, bool forced)
{
    m_forced = forced;
    m_heading->setText(forced ? tr("A required update is available")
                              : tr("A new Tovra update is available"));
    m_heading->setAccessibleName(m_heading->text());
    const QString current =
        currentVersion.trimmed().isEmpty() ? tr("Unknown") : currentVersion.trimmed();
    const QString available =
        info.versionCode.trimmed().isEmpty() ? tr("Latest") : info.versionCode.trimmed();
    m_versions->setText(tr("Current version: %1\nAvailable version: %2")
                            .arg(isolated(current), isolated(available)));
    m_forcedText->setVisible(forced);

    // The daemon's lines as plain text, never as markup.
    QStringList entries;
    for (const QString &line : info.changeLog) {
        if (!line.trimmed().isEmpty())
            entries << QStringLiteral("\u2022 ") + line.trimmed();
    }
    m_notes->setPlainText(entries.isEmpty() ? tr("Release notes are unavailable.")
                                            : entries.join(QLatin1Char('\n')));
    alignNotes();
    applyButtons();
}

void UpdateDialog::showOffer()
{
    setPhase(Phase::Offer);
}

void UpdateDialog::showPreparing()
{
    setPhase(Phase::Preparing);
}

void UpdateDialog::showCanceling()
{
    setPhase(Phase::Canceling);
}

void UpdateDialog::setDownload(const GUIUpdateDownloadInfo &info)
{
    const QString &state = info.state;
    if (state == QLatin1String("queued") || state == QLatin1String("checking")) {
        setPhase(Phase::Preparing);
    } else if (state == QLatin1String("retrying")) {
        setPhase(Phase::Retrying);
        // What went wrong, in the daemon's words, under the progress.
        setMessage(QString(), QString(), info.errorMessage);
    } else if (state == QLatin1String("downloading")) {
        m_phase = Phase::Downloading;
        setMessage(QString(), QString());
        if (info.bytesTotal > 0) {
            const qint64 done = std::clamp<qint64>(info.bytesDownloaded, 0, info.bytesTotal);
            setStatus(tr("Downloading %1 of %2").arg(megabytes(done), megabytes(info.bytesTotal)),
                      int(done * kProgressRange / info.bytesTotal), true);
        } else {
            // Without a size there is nothing to measure against: say so and keep moving.
            setStatus(tr("Downloading update..."), -1, true);
        }
        applyButtons();
    } else if (state == QLatin1String("verifying")) {
        setPhase(Phase::Verifying);
    } else if (state == QLatin1String("canceling")) {
        setPhase(Phase::Canceling);
    } else if (state == QLatin1String("canceled")) {
        setPhase(Phase::Canceled);
    } else if (state == QLatin1String("ready")) {
        setPhase(Phase::Ready);
    }
}

void UpdateDialog::showFailure(const QString &message, Remedy remedy, const QString &detail)
{
    m_remedy = remedy;
    setPhase(Phase::Failed);
    setMessage(message, QStringLiteral("error"), detail);
}

void UpdateDialog::showNotice(const QString &text, const QString &kind)
{
    setMessage(text,
               kind == QLatin1String("error") ? QStringLiteral("error") : QStringLiteral("muted"));
}

QString UpdateDialog::statusText() const
{
    return m_status->isVisibleTo(this) ? m_status->text() : QString();
}

QString UpdateDialog::messageText() const
{
    return m_message->isVisibleTo(this) ? m_message->text() : QString();
}

QString UpdateDialog::megabytes(qint64 bytes)
{
    return tr("%1 MB").arg(QLocale().toString(double(bytes) / 1e6, 'f', 1));
}

void UpdateDialog::setPhase(Phase phase)
{
    m_phase = phase;
    setMessage(QString(), QString());
    switch (phase) {
    case Phase::Offer:
    case Phase::Failed:
        setStatus(QString(), 0, false);
        break;
    case Phase::Preparing:
        setStatus(tr("Preparing the download..."), -1, true);
        break;
    case Phase::Downloading:
        setStatus(tr("Downloading update..."), -1, true);
        break;
    case Phase::Retrying:
        setStatus(tr("Retrying the download..."), -1, true);
        break;
    case Phase::Verifying:
        setStatus(tr("Verifying the download..."), kProgressRange, true);
        break;
    case Phase::Canceling:
        setStatus(tr("Canceling the download..."), -1, true);
        break;
    case Phase::Canceled:
        setStatus(tr("Download canceled."), 0, false);
        break;
    case Phase::Ready:
        setStatus(tr("Download complete. Opening the installer..."), kProgressRange, true);
        break;
    }
    // The end of a download is news for someone not looking at the dialog.
    if (phase == Phase::Ready || phase == Phase::Canceled)
        announcer()->announce(m_status->text());
    applyButtons();
    // The button that had focus may be gone in the new phase.
    if (isVisible())
        focusStepForward();
}

AccessibleAnnouncer *UpdateDialog::announcer()
{
    if (!m_announcer)
        m_announcer = new AccessibleAnnouncer(this);
    return m_announcer;
}

void UpdateDialog::setStatus(const QString &text, int progressPermille, bool progressVisible)
{
    m_status->setText(text);
    m_status->setVisible(!text.isEmpty());
    m_progress->setVisible(progressVisible);
    if (progressPermille < 0) {
        m_progress->setRange(0, 0); // busy: moving without a measure
    } else {
        m_progress->setRange(0, kProgressRange);
        m_progress->setValue(progressPermille);
    }
    m_progress->setAccessibleDescription(text);
}

void UpdateDialog::setMessage(const QString &text, const QString &role, const QString &detail)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    if (m_message->property("tovraRole").toString() != role) {
        m_message->setProperty("tovraRole", role);
        m_message->style()->unpolish(m_message);
        m_message->style()->polish(m_message);
    }
    if (role == QLatin1String("error"))
        announcer()->announce(text, AccessibleAnnouncer::Politeness::Assertive);
    const bool showDetail = !detail.trimmed().isEmpty() && detail.trimmed() != text;
    m_detail->setText(showDetail ? detail.trimmed() : QString());
    m_detail->setVisible(showDetail);
}

void UpdateDialog::applyButtons()
{
    const bool active = isActive(m_phase);
    const bool offer = m_phase == Phase::Offer;
    m_hideUpdate->setVisible(offer && !m_forced);
    m_notNow->setVisible(!m_forced && !active);
    m_exit->setVisible(m_forced);
    m_background->setVisible((offer && !m_forced) || active);
    //: Button that hides the dialog while the installer downloads
    setButton(m_background, tr("Download in Background"),
              offer ? tr("Download the latest installer without interrupting your current "
                         "session.")
                    : tr("Hide this window while the update downloads"));
    m_openLink->setVisible(m_phase == Phase::Failed && m_remedy != Remedy::Retry);
    m_cancel->setVisible(active);
    m_cancel->setEnabled(m_phase != Phase::Canceling);
    if (m_phase == Phase::Canceling)
        //: Button while the download is being cancelled
        setButton(m_cancel, tr("Canceling..."), tr("Cancel the update download"));
    else
        //: Button
        setButton(m_cancel, tr("Cancel Download"), tr("Cancel the update download"));

    const bool retry =
        m_phase == Phase::Canceled || (m_phase == Phase::Failed && m_remedy != Remedy::OpenLink);
    m_download->setVisible(offer || retry || m_phase == Phase::Ready);
    m_download->setEnabled(m_phase != Phase::Ready);
    if (m_phase == Phase::Ready)
        //: Button while the downloaded installer opens
        setButton(m_download, tr("Opening Installer..."), QString());
    else if (retry)
        //: Button
        setButton(m_download, tr("Retry Download"), tr("Retry the update download"));
    else
        //: Button that downloads and opens the installer
        setButton(m_download, tr("Download Update"), tr("Download and install the Tovra update"));

    // Enter presses the step forward that is on offer.
    m_primary = nullptr;
    for (QPushButton *button : {m_download, m_openLink, m_cancel}) {
        if (!m_primary && button->isVisibleTo(this) && button->isEnabled())
            m_primary = button;
    }
    for (QPushButton *button : {m_download, m_openLink, m_cancel})
        button->setDefault(button == m_primary);
}
