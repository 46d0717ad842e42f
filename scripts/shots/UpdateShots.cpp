// Writes every phase of the update dialog, offered and required, as PNGs for a person to look
// at: tovra-update-shots DIR LOOK [SUFFIX] writes DIR/LOOK-update-PHASE[-forced][SUFFIX].png.
// LOOK is light, dark, rtl or dark-rtl; TOVRA_SHOT_LANG picks the language.
// scripts/window-screenshots.sh runs it with QT_QPA_PLATFORM=offscreen.

#include "ControlMetaTypes.h"
#include "ThemeEngine.h"
#include "TranslationManager.h"
#include "UpdateDialog.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

GUIUpdateDownloadInfo download(const QString &state, qint64 done, qint64 total)
{
    GUIUpdateDownloadInfo info;
    info.valid = true;
    info.state = state;
    info.bytesDownloaded = done;
    info.bytesTotal = total;
    return info;
}

// Brings the dialog into the phase a step names, as the update flow would.
void drive(UpdateDialog *dialog, const QString &step)
{
    if (step == u"offer")
        dialog->showOffer();
    else if (step == u"preparing")
        dialog->showPreparing();
    else if (step == u"downloading")
        dialog->setDownload(download(step, 1100000, 2220609));
    else if (step == u"canceling")
        dialog->showCanceling();
    else if (step == u"failed-retry")
        dialog->showFailure(u"Could not download the update."_s, UpdateDialog::Remedy::Retry,
                            u"disk full"_s);
    else if (step == u"failed-link")
        dialog->showFailure(u"Could not start the update download"_s,
                            UpdateDialog::Remedy::OpenLink);
    else
        dialog->setDownload(download(step, 2220609, 2220609));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    registerControlMetaTypes();
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        qWarning("usage: tovra-update-shots DIR LOOK [SUFFIX]");
        return 2;
    }
    const QString look = args.at(2);
    TranslationManager translations;
    if (qEnvironmentVariableIsSet("TOVRA_SHOT_LANG"))
        translations.apply(qEnvironmentVariable("TOVRA_SHOT_LANG"));
    QDir().mkpath(args.at(1));
    const ThemeColors colors =
        ThemeEngine::buildColors(look.startsWith(u"dark"_s) ? Appearance::Dark : Appearance::Light);

    UpdateInfo offer;
    offer.valid = true;
    offer.updateAvailable = true;
    offer.versionCode = u"0.3.0"_s;
    offer.versionNum = 3000;
    offer.changeLog = {u"Locations load faster."_s, u"Kill Switch shows lockdown."_s};
    int failures = 0;
    for (const bool forced : {false, true}) {
        for (const QString &step : {u"offer"_s, u"preparing"_s, u"queued"_s, u"downloading"_s,
                                    u"retrying"_s, u"verifying"_s, u"canceling"_s, u"canceled"_s,
                                    u"ready"_s, u"failed-retry"_s, u"failed-link"_s}) {
            UpdateDialog dialog;
            dialog.setLayoutDirection(look.endsWith(u"rtl"_s) ? Qt::RightToLeft : Qt::LeftToRight);
            dialog.setOffer(offer, u"0.1.0"_s, forced);
            drive(&dialog, step);
            ThemeEngine::applyToWindow(&dialog, colors);
            dialog.show();
            QCoreApplication::processEvents();
            dialog.adjustSize();
            QCoreApplication::processEvents();
            const QString name = look + u"-update-"_s + step + (forced ? u"-forced"_s : QString()) +
                                 args.value(3) + u".png"_s;
            if (!dialog.grab().save(QDir(args.at(1)).filePath(name))) {
                qWarning("could not write %s", qPrintable(name));
                ++failures;
            }
        }
    }
    return failures == 0 ? 0 : 1;
}
