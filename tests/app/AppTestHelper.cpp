// A second process for the application core tests.
//   acquire <name>: claim the name like a normal launch, handing over this process's
//                   activation tokens; the exit code is the result.
//   old <name>:     a client from before answers: takes each connection's bytes, hangs up,
//                   prints "activated"; prints "ready" first and runs until killed.
//   hold <name>:    claim the name, print "ready", and keep it until "quit" arrives on stdin
//                   (or the process is killed, which leaves a stale socket behind); prints
//                   "activated" for each activation.
//   memlog <text>:  write one diagnostic memory line.
//   stall <ms>:     run the stall monitor as the client does, block the event loop for <ms>
//                   once it runs, then quit after a few more turns of the loop.
#include "DesktopRequest.h"
#include "GuiMemLog.h"
#include "GuiSingleInstance.h"
#include "GuiStallMonitor.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
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
    if (args.at(1) == u"old") {
        QLocalServer server;
        if (!server.listen(args.at(2)))
            return 65;
        QObject::connect(&server, &QLocalServer::newConnection, &app, [&server] {
            while (QLocalSocket *connection = server.nextPendingConnection()) {
                connection->readAll();
                connection->disconnectFromServer();
                connection->deleteLater();
                std::fputs("activated\n", stdout);
                std::fflush(stdout);
            }
        });
        std::fputs("ready\n", stdout);
        std::fflush(stdout);
        return app.exec();
    }
    GuiSingleInstance instance(args.at(2));
    instance.setOutgoingRequest(DesktopRequest::fromEnvironment(DesktopRequest::Command::Activate));
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
