// Pictures of the VPN and Account pages for a person to look at: light, dark and right to left,
// filled from a demo daemon's real answers. Not a test; run by hand:
//   QT_QPA_PLATFORM=offscreen tovra-page-shots OUTPUT_DIR
#include "AppState.h"
#include "ControlEndpoints.h"
#include "ControlMetaTypes.h"
#include "DemoDaemon.h"
#include "GuiPreferences.h"
#include "MainWindow.h"
#include "QuickEntryField.h"
#include "TempXdgDirs.h"
#include "TranslationManager.h"
#include "VpnPage.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>

#include <cstdio>

namespace {

constexpr int kTimeoutMs = 5000;

bool fill(AppState &state, const QString &socket, bool signedIn)
{
    QString error;
    if (signedIn) {
        ControlEndpoints::login(socket, QStringLiteral("demo@tovra.invalid"),
                                QStringLiteral("demo"), true, kTimeoutMs, &error);
        ControlEndpoints::connectNode(socket, QStringLiteral("1001"), kTimeoutMs, &error);
        QElapsedTimer waited;
        waited.start();
        while (ControlEndpoints::fetchStatus(socket, kTimeoutMs).tunnelState !=
                   QLatin1String("connected") &&
               waited.elapsed() < 10000)
            QTest::qWait(100);
        state.setUser(ControlEndpoints::fetchUser(socket, kTimeoutMs));
    } else {
        ControlEndpoints::logout(socket, kTimeoutMs, &error);
        state.clearUser();
    }
    state.setNodes(ControlEndpoints::fetchNodes(socket, false, kTimeoutMs));
    state.setNodeGroups(ControlEndpoints::fetchNodeGroups(socket, kTimeoutMs));
    const RuntimeInfo runtime = ControlEndpoints::fetchStatus(socket, kTimeoutMs, &error);
    state.setRuntime(runtime);
    state.setKillSwitch(runtime.killSwitch);
    return runtime.valid;
}

void shoot(MainWindow &window, const QString &path)
{
    QTest::qWait(50);
    if (!window.grab().save(path))
        std::fprintf(stderr, "could not write %s\n", qPrintable(path));
    else
        std::printf("%s\n", qPrintable(path));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    registerControlMetaTypes();
    // TOVRA_SHOT_LANG=de (any shipped tag) shows the pictures in that language.
    TranslationManager translations;
    if (qEnvironmentVariableIsSet("TOVRA_SHOT_LANG"))
        translations.apply(qEnvironmentVariable("TOVRA_SHOT_LANG"));
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
    QDir().mkpath(out);
    TempXdgDirs dirs;
    DemoDaemon daemon;
    if (!daemon.start()) {
        std::fprintf(stderr, "demo daemon: %s\n", qPrintable(daemon.errorString()));
        return 1;
    }
    for (const bool signedIn : {false, true}) {
        AppState state;
        if (!fill(state, daemon.socketPath(), signedIn))
            return 1;
        for (const char *appearance : {"light", "dark", "rtl"}) {
            const bool rtl = qstrcmp(appearance, "rtl") == 0;
            QApplication::setLayoutDirection(rtl ? Qt::RightToLeft : Qt::LeftToRight);
            GuiPreferences preferences;
            MainWindow window(&state, &preferences);
            window.setAppearancePreference(rtl ? QStringLiteral("light")
                                               : QString::fromLatin1(appearance));
            window.resize(860, 660);
            window.show();
            const QString stem =
                QStringLiteral("%1/%2-%3")
                    .arg(out, QString::fromLatin1(appearance),
                         signedIn ? QStringLiteral("signed-in") : QStringLiteral("signed-out"));
            window.showPage(MainWindow::VpnPageIndex);
            shoot(window, stem + QStringLiteral("-vpn.png"));
            if (signedIn) {
                auto *field = window.findChild<QuickEntryField *>();
                field->setFocus();
                QTest::keyClicks(field, QStringLiteral("ger"));
                QTest::qWait(QuickEntryField::kDebounceMs + 100);
                shoot(window, stem + QStringLiteral("-quick-entry.png"));
                field->clear();
                field->closePopup();
            }
            if (signedIn && !rtl) {
                window.setConnectInProgress(true, QStringLiteral("country:jp"),
                                            QStringLiteral("Japan"));
                shoot(window, stem + QStringLiteral("-connecting.png"));
                window.setConnectInProgress(false, QString(), QString());
            }
            if (!signedIn && !rtl) {
                window.setDaemonUnavailableReason(QStringLiteral("Tovra daemon is not running."));
                shoot(window, stem + QStringLiteral("-unavailable-vpn.png"));
                window.showPage(MainWindow::AccountPageIndex);
                shoot(window, stem + QStringLiteral("-unavailable-account.png"));
                window.setDaemonUnavailableReason(QString());
            }
            window.showPage(MainWindow::AccountPageIndex);
            if (!signedIn) {
                window.findChild<QLineEdit *>(QStringLiteral("TovraAccountUsername"))
                    ->setText(QStringLiteral("demo@tovra.invalid"));
                window.showAccountError(QStringLiteral("Incorrect email or password."));
            }
            shoot(window, stem + QStringLiteral("-account.png"));
        }
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
    return daemon.stop() ? 0 : 1;
}
