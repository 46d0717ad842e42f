#include "UpdateDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

namespace {

UpdateInfo offer(const QStringList &changeLog = {QStringLiteral("Faster <b>lists</b>")})
{
    UpdateInfo info;
    info.valid = true;
    info.updateAvailable = true;
    info.versionCode = QStringLiteral("0.3.0");
    info.versionNum = 3000;
    info.changeLog = changeLog;
    return info;
}

GUIUpdateDownloadInfo download(const QString &state, qint64 done, qint64 total)
{
    GUIUpdateDownloadInfo info;
    info.valid = true;
    info.state = state;
    info.bytesDownloaded = done;
    info.bytesTotal = total;
    return info;
}

QString visibleButtons(const UpdateDialog &dialog)
{
    QStringList names;
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        if (button->isVisibleTo(&dialog))
            names << button->text() + (button->isEnabled() ? QString() : QStringLiteral("(off)"));
    }
    return names.join(QLatin1Char('|'));
}

void drive(UpdateDialog *dialog, const QString &step)
{
    if (step == QLatin1String("offer"))
        dialog->showOffer();
    else if (step == QLatin1String("preparing"))
        dialog->showPreparing();
    else if (step == QLatin1String("downloading"))
        dialog->setDownload(download(step, 1100000, 2220609));
    else if (step == QLatin1String("downloading, size unknown"))
        dialog->setDownload(download(QStringLiteral("downloading"), 4096, 0));
    else if (step == QLatin1String("failed, retry"))
        dialog->showFailure(QStringLiteral("Could not download the update."),
                            UpdateDialog::Remedy::Retry, QStringLiteral("disk full"));
    else if (step == QLatin1String("failed, link"))
        dialog->showFailure(QStringLiteral("Could not start the update download"),
                            UpdateDialog::Remedy::OpenLink);
    else
        dialog->setDownload(download(step, 2220609, 2220609));
}

} // namespace

// The dialog's phases as the user meets them: which way forward each one offers, and its words.
class TestUpdateDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void phases_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<bool>("forced");
        QTest::addColumn<UpdateDialog::Phase>("phase");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("buttons");

        using P = UpdateDialog::Phase;
        QTest::addRow("offer") << "offer" << false << P::Offer << ""
                               << "Hide this update|Not Now|Download in Background|Download Update";
        QTest::addRow("offer, forced") << "offer" << true << P::Offer << ""
                                       << "Exit Tovra|Download Update";
        QTest::addRow("preparing")
            << "preparing" << false << P::Preparing << "Preparing the download..."
            << "Download in Background|Cancel Download";
        QTest::addRow("queued") << "queued" << false << P::Preparing << "Preparing the download..."
                                << "Download in Background|Cancel Download";
        QTest::addRow("downloading")
            << "downloading" << false << P::Downloading << "Downloading 1.1 MB of 2.2 MB"
            << "Download in Background|Cancel Download";
        QTest::addRow("downloading, size unknown")
            << "downloading, size unknown" << false << P::Downloading << "Downloading update..."
            << "Download in Background|Cancel Download";
        QTest::addRow("verifying")
            << "verifying" << false << P::Verifying << "Verifying the download..."
            << "Download in Background|Cancel Download";
        QTest::addRow("ready") << "ready" << false << P::Ready
                               << "Download complete. Opening the installer..."
                               << "Not Now|Opening Installer...(off)";
        QTest::addRow("failed, retry") << "failed, retry" << false << P::Failed << ""
                                       << "Not Now|Retry Download";
        QTest::addRow("failed, link, forced") << "failed, link" << true << P::Failed << ""
                                              << "Exit Tovra|Open Download Link";
    }

    void phases()
    {
        QFETCH(QString, step);
        QFETCH(bool, forced);
        QFETCH(UpdateDialog::Phase, phase);
        QFETCH(QString, status);
        QFETCH(QString, buttons);

        UpdateDialog dialog;
        dialog.setOffer(offer(), QStringLiteral("0.1.0"), forced);
        drive(&dialog, step);
        QCOMPARE(dialog.phase(), phase);
        QCOMPARE(dialog.statusText(), status);
        QCOMPARE(visibleButtons(dialog), buttons);
        // Enter always presses an enabled step forward, never a hidden one.
        for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
            if (button->isDefault())
                QVERIFY(button->isVisibleTo(&dialog) && button->isEnabled());
            QVERIFY(!button->accessibleName().isEmpty() || !button->isVisibleTo(&dialog));
        }
    }

    void offerTexts_data()
    {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("available");
        QTest::addColumn<QStringList>("changeLog");
        QTest::addColumn<bool>("forced");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("versions");
        QTest::addColumn<QString>("notes");

        QTest::addRow("ordinary") << "0.1.0"
                                  << "0.3.0"
                                  << QStringList{QStringLiteral("Faster <b>lists</b>"),
                                                 QStringLiteral(" ")}
                                  << false << "A new Tovra update is available"
                                  << "Current version: 0.1.0\nAvailable version: 0.3.0"
                                  << "\u2022 Faster <b>lists</b>";
        QTest::addRow("required, nothing known")
            << ""
            << "" << QStringList{} << true << "A required update is available"
            << "Current version: Unknown\nAvailable version: Latest"
            << "Release notes are unavailable.";
    }

    void offerTexts()
    {
        QFETCH(QString, current);
        QFETCH(QString, available);
        QFETCH(QStringList, changeLog);
        QFETCH(bool, forced);
        QFETCH(QString, heading);
        QFETCH(QString, versions);
        QFETCH(QString, notes);

        UpdateDialog dialog;
        UpdateInfo info = offer(changeLog);
        info.versionCode = available;
        dialog.setOffer(info, current, forced);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("TovraUpdateHeading"))->text(), heading);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("TovraUpdateVersions"))->text(),
                 versions);
        // Change-log lines are the daemon's text, never markup.
        QCOMPARE(dialog.findChild<QTextBrowser *>()->toPlainText().trimmed(), notes);
        const QLabel *forcedText = dialog.findChild<QLabel *>(QStringLiteral("TovraUpdateForced"));
        QCOMPARE(forcedText->isVisibleTo(&dialog), forced);
    }

    void buttonsEmitIntents()
    {
        UpdateDialog dialog;
        dialog.setOffer(offer(), QStringLiteral("0.1.0"), false);
        dialog.show();
        QSignalSpy download(&dialog, &UpdateDialog::downloadRequested);
        QSignalSpy hideUpdate(&dialog, &UpdateDialog::hideUpdateRequested);
        // Download in Background starts the download and steps aside.
        dialog.findChild<QPushButton *>(QStringLiteral("TovraUpdateBackground"))->click();
        QCOMPARE(download.count(), 1);
        QVERIFY(!dialog.isVisible());
        // Under way the same button only hides: a second download is never asked for.
        dialog.showPreparing();
        dialog.show();
        dialog.findChild<QPushButton *>(QStringLiteral("TovraUpdateBackground"))->click();
        QCOMPARE(download.count(), 1);
        QVERIFY(!dialog.isVisible());

        dialog.showOffer();
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(download.count(), 2);
        dialog.findChild<QPushButton *>(QStringLiteral("TovraUpdateHide"))->click();
        QCOMPARE(hideUpdate.count(), 1);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(TestUpdateDialog)
#include "TestUpdateDialog.moc"
