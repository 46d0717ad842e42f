#include "DemoOptions.h"
#include "DemoServer.h"
#include "DemoService.h"
#include "SignalWatcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tovra-demo-daemon"));
    QCoreApplication::setApplicationVersion(QLatin1String(DemoService::DaemonVersion));

    DemoOptions options;
    if (!DemoOptions::parse(app, &options))
        return 2;

    std::unique_ptr<QTemporaryDir> temporary;
    QString root = options.dataDir;
    if (root.isEmpty()) {
        temporary = std::make_unique<QTemporaryDir>(QDir::tempPath() +
                                                    QStringLiteral("/tovra-demo-data-XXXXXX"));
        if (!temporary->isValid()) {
            QTextStream(stderr) << "tovra-demo-daemon: cannot create a data directory" << Qt::endl;
            return 1;
        }
        root = temporary->path();
    } else if (!QDir().mkpath(root)) {
        QTextStream(stderr) << "tovra-demo-daemon: cannot create " << root << Qt::endl;
        return 1;
    }

    SignalWatcher signals;
    DemoService service(options, root);
    DemoServer server(options, service);
    QString error;
    if (!server.listen(&error)) {
        QTextStream(stderr) << "tovra-demo-daemon: " << error << Qt::endl;
        return 1;
    }
    QObject::connect(
        &signals, &SignalWatcher::terminationRequested, &app, [&service](int signalNumber) {
            service.log().write(QStringLiteral("stopping on signal %1").arg(signalNumber));
            QCoreApplication::quit();
        });
    QTextStream(stdout) << "listening on " << options.socketPath << Qt::endl;
    const int code = QCoreApplication::exec();
    server.close();
    return code;
}
