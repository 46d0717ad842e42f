// The Tovra desktop client: one tray process per user, restarted to change its language.
#include "AppId.h"
#include "ControlClient.h"
#include "ControlEndpoints.h"
#include "DesktopCommandLine.h"
#include "DesktopCommandSender.h"
#include "FontConfigWarmup.h"
#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "GuiRestartLauncher.h"
#include "GuiRestartScheduler.h"
#include "GuiSingleInstance.h"
#include "GuiStallMonitor.h"
#include "SessionBusWarmup.h"
#include "SingleInstanceClient.h"
#include "TovraAppShell.h"
#include "TranslationManager.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QPointer>
#include <QTimer>

#include <cstdio>

namespace {

const char kRestartShowWindow[] = "--tovra-restart-show-window";
const char kLanguageRestart[] = "--tovra-language-restart";
const char kAutostart[] = "--tovra-autostart";

// Stores the language only when it changed: each store writes and flushes the settings file,
// which on a busy disk holds up the first paint by milliseconds.
void storeLastEffectiveLanguage(GuiPreferences &preferences, const QString &tag)
{
    if (preferences.lastEffectiveLanguage() != tag)
        preferences.setLastEffectiveLanguage(tag);
}

// The interface language is settled before any widget exists; the daemon owns the setting.
QString startupLanguage(const QString &socketPath, GuiPreferences &preferences)
{
    QString error;
    const RuntimeInfo status = ControlEndpoints::fetchStatus(socketPath, 500, &error);
    if (error.isEmpty()) {
        QString tag = status.effectiveLanguage.trimmed();
        if (tag.isEmpty())
            tag = status.language.trimmed();
        if (!tag.isEmpty()) {
            tag = TranslationManager::normalize(tag);
            storeLastEffectiveLanguage(preferences, tag);
            return tag;
        }
    }
    const QString stored = preferences.lastEffectiveLanguage();
    return stored.isEmpty() ? TranslationManager::systemLanguage() : stored;
}

// A desktop action for the running client: needs no display, so scripts and key bindings work
// from anywhere in the session. Its messages follow the last interface language.
int runDesktopCommand(int argc, char *argv[], const DesktopCommandLine &commandLine,
                      const DesktopRequest &launch)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tovra"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tovra"));
    GuiPreferences preferences;
    TranslationManager translations;
    const QString stored = preferences.lastEffectiveLanguage();
    if (!translations.apply(TranslationManager::normalize(
            stored.isEmpty() ? TranslationManager::systemLanguage() : stored)))
        translations.apply(TranslationManager::defaultLanguage());
    const auto fail = [](const QString &message, DesktopAnswer::Result result) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
        return int(result);
    };
    if (commandLine.kind() == DesktopCommandLine::Kind::UsageError)
        return fail(commandLine.error(), DesktopAnswer::Result::UsageError);

    QString error;
    const QString serverPath = GuiSingleInstance::defaultServerPath(&error);
    if (serverPath.isEmpty())
        return fail(QStringLiteral("tovra: ") + error, DesktopAnswer::Result::Failed);
    DesktopRequest request = commandLine.request();
    request.activationToken = launch.activationToken;
    request.startupId = launch.startupId;
    const DesktopAnswer answer =
        DesktopCommandSender(serverPath, QCoreApplication::applicationFilePath()).send(request);
    if (answer.result != DesktopAnswer::Result::Done)
        return fail(answer.message(), answer.result);
    return 0;
}

// Sets the application icon once the first window is on screen. The icon is a 256-pixel picture
// that each window hands to the window manager: set before, it only delays the first paint.
class WindowIconAfterFirstExpose : public QObject
{
public:
    explicit WindowIconAfterFirstExpose(QObject *parent)
        : QObject(parent)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Expose) {
            QCoreApplication::instance()->removeEventFilter(this);
            // After this expose has been painted.
            QTimer::singleShot(0, this, [this] {
                QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app.png")));
                deleteLater();
            });
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

int main(int argc, char *argv[])
{
    // Taken before Qt starts: the X11 plugin removes DESKTOP_STARTUP_ID from the environment.
    const DesktopRequest launch =
        DesktopRequest::fromEnvironment(DesktopRequest::Command::Activate);
    {
        QStringList rawArguments;
        for (int i = 0; i < argc; ++i)
            rawArguments.append(QString::fromLocal8Bit(argv[i]));
        const DesktopCommandLine commandLine = DesktopCommandLine::parse(rawArguments);
        if (commandLine.kind() != DesktopCommandLine::Kind::PlainLaunch)
            return runDesktopCommand(argc, argv, commandLine, launch);
    }

    const FontConfigWarmup fontConfigWarmup; // on another core while the rest starts
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tovra"));
    QApplication::setApplicationVersion(QStringLiteral(TOVRA_VERSION));
    QApplication::setOrganizationName(QStringLiteral("Tovra"));
    // Ties the windows to the installed application entry (the Wayland app id).
    QGuiApplication::setDesktopFileName(QLatin1String(kTovraAppId));
    new WindowIconAfterFirstExpose(&app);
    QApplication::setQuitOnLastWindowClosed(false);

    const QStringList arguments = QApplication::arguments();
    const bool restartShowWindow = arguments.contains(QLatin1String(kRestartShowWindow));
    const bool languageRestart = arguments.contains(QLatin1String(kLanguageRestart));
    const bool autostart = arguments.contains(QLatin1String(kAutostart));

    GuiPreferences preferences;

    if (GuiAutostart::isSupported()) {
        const GuiAutostart loginStartup;
        QString error;
        if (!loginStartup.reconcile(preferences.launchAtLogin(), &error))
            qWarning("failed to reconcile Tovra login startup: %s", qUtf8Printable(error));
        if (autostart && !preferences.launchAtLogin())
            return 0;
    }

    QString instanceError;
    GuiSingleInstance singleInstance(GuiSingleInstance::defaultServerPath(&instanceError));
    // A second launch hands its activation tokens over, so the window may come to the front.
    singleInstance.setOutgoingRequest(launch);
    const SingleInstanceResult instance =
        singleInstance.serverName().isEmpty() ? SingleInstanceResult::Failed
        : restartShowWindow ? singleInstance.waitForPrimary(45000, 100, &instanceError)
                            : singleInstance.acquire(&instanceError);
    if (instance == SingleInstanceResult::ActivatedExisting)
        return 0;
    if (instance == SingleInstanceResult::Failed) {
        qWarning("failed to start Tovra GUI single-instance server: %s",
                 qUtf8Printable(instanceError));
        return 1;
    }

    const SessionBusWarmup sessionBusWarmup; // while the daemon is asked for the language

    const QString socketPath = ControlClient::socketPathFromEnvironment();
    const QString language =
        TranslationManager::normalize(startupLanguage(socketPath, preferences));
    QApplication::setLayoutDirection(TranslationManager::layoutDirection(language));
    TranslationManager translations;
    if (!translations.apply(language))
        translations.apply(TranslationManager::defaultLanguage());
    storeLastEffectiveLanguage(preferences, translations.currentLanguage());

    TovraAppShell shell(nullptr, socketPath, &preferences);
    shell.setCurrentEffectiveLanguage(translations.currentLanguage());
    shell.setLanguageRestartAllowed(!languageRestart);
    shell.setLaunchedByAutostart(autostart);

    GuiRestartScheduler restartScheduler;

    QObject::connect(&singleInstance, &GuiSingleInstance::activateRequested, &shell,
                     &TovraAppShell::activateFromSecondary);
    QObject::connect(&singleInstance, &GuiSingleInstance::commandRequested, &shell,
                     [&shell](const DesktopRequest &request, SingleInstanceClient *client) {
                         shell.runDesktopCommand(
                             request, [client = QPointer(client)](const DesktopAnswer &answer) {
                                 if (client)
                                     client->answer(answer);
                             });
                     });
    QObject::connect(&shell, &TovraAppShell::restartRequested, &restartScheduler, [&] {
        restartScheduler.schedule(
            700, [] { return launchGuiRestart(); },
            [&shell] {
                qWarning("failed to restart Tovra GUI");
                shell.handleGUIRestartFailed();
            },
            [] { QCoreApplication::exit(0); });
    });
    // exit(), not quit(): quit() asks the windows to close first, and one that hides to the tray
    // refuses, which would keep the process alive.
    QObject::connect(
        &shell, &TovraAppShell::exitRequested, &app, [] { QCoreApplication::exit(0); },
        Qt::QueuedConnection);

    shell.start();

    if (restartShowWindow) {
        QTimer::singleShot(0, &shell, &TovraAppShell::activateFromSecondary);
        QTimer::singleShot(0, &shell, &TovraAppShell::refreshLocationsAfterGUIRestart);
    }

    // "TOVRA_GUI_STALL_MS" turns on the freeze report users can attach to a bug; off, it costs
    // nothing.
    const std::unique_ptr<GuiStallMonitor> stallMonitor = GuiStallMonitor::fromEnvironment();

    const int exitCode = QApplication::exec();
    shell.shutdown();
    return exitCode;
}
