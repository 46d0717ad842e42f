// A second process for the application core tests.
//   acquire <name>: claim the name like a normal launch; the exit code is the result.
//   hold <name>:    claim the name, print "ready", and keep it until "quit" arrives on stdin
//                   (or the process is killed, which leaves a stale socket behind); prints
//                   "activated" for each activation.
//   memlog <text>:  write one diagnostic memory line.
//   stall <ms>:     run the stall monitor as the client does, block the event loop for <ms>
//                   once it runs, then quit after a few more turns of the loop.
#include "GuiMemLog.h"
#include "GuiSingleInstance.h"
#include "GuiStallMonitor.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <thread>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3)
        return 64;
    if (args.at(1) == u"memlog") {
        guiMemLog(args.at(2));
        return 0;
    }
    if (args.at(1) == u"stall") {
        const auto monitor = GuiStallMonitor::fromEnvironment();
        QTimer::singleShot(20, &app, [&] {
            // The deliberate freeze the monitor has to see.
            std::this_thread::sleep_for(std::chrono::milliseconds(args.at(2).toInt()));
            QTimer::singleShot(100, &app, &QCoreApplication::quit);
        });
        return app.exec();
    }
    GuiSingleInstance instance(args.at(2));
    QString error;
    const SingleInstanceResult result = instance.acquire(&error);
    if (args.at(1) == u"acquire")
        return int(result);
    if (result != SingleInstanceResult::Primary) {
        std::fprintf(stderr, "hold failed: %s\n", qPrintable(error));
        return 65;
    }

    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return 66;
    QSocketNotifier notifier(0, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &app, [&] {
        const QByteArray line = input.readLine();
        if (line.isEmpty() || line.trimmed() == "quit")
            app.quit();
    });
    QObject::connect(&instance, &GuiSingleInstance::activateRequested, &app, [] {
        std::fputs("activated\n", stdout);
        std::fflush(stdout);
    });
    std::fputs("ready\n", stdout);
    std::fflush(stdout);
    return app.exec();
}
