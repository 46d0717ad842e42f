// A second process for the application core tests.
//   acquire <name>: claim the name like a normal launch; the exit code is the result.
//   hold <name>:    claim the name, print "ready", and keep it until "quit" arrives on stdin
//                   (or the process is killed, which leaves a stale socket behind); prints
//                   "activated" for each activation.
//   memlog <text>:  write one diagnostic memory line.
#include "GuiMemLog.h"
#include "GuiSingleInstance.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <cstdio>

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
