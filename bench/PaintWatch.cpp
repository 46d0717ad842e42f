// Start-up to first paint, seen from the X server: starts a program detached, then reads one
// screen pixel every 2 ms until it is no longer the empty root's black, and prints
// "<milliseconds> <pid>". The watcher is up before the program starts, so its own start-up is
// not counted, and the client and the bare app are measured the same way.
// Usage: tovra-bench-paintwatch X Y TIMEOUT_MS PROGRAM [ARGS...]
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <cstdio>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() < 5) {
        std::fputs("usage: tovra-bench-paintwatch X Y TIMEOUT_MS PROGRAM [ARGS...]\n", stderr);
        return 2;
    }
    const int x = args.at(1).toInt();
    const int y = args.at(2).toInt();
    const int timeoutMs = args.at(3).toInt();
    QScreen *screen = QGuiApplication::primaryScreen();
    const auto pixel = [&] { return screen->grabWindow(0, x, y, 1, 1).toImage().pixel(0, 0); };
    const QRgb empty = pixel();

    QElapsedTimer clock;
    clock.start();
    qint64 pid = 0;
    // The program's output must not hold the caller's pipe open after this watcher exits.
    QProcess program;
    program.setProgram(args.at(4));
    program.setArguments(args.mid(5));
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
    if (!program.startDetached(&pid)) {
        std::fprintf(stderr, "could not start %s\n", qPrintable(args.at(4)));
        return 1;
    }
    while (pixel() == empty) {
        if (clock.elapsed() > timeoutMs) {
            std::printf("timeout %lld\n", static_cast<long long>(pid));
            return 1;
        }
        QThread::msleep(2);
    }
    std::printf("%lld %lld\n", static_cast<long long>(clock.elapsed()),
                static_cast<long long>(pid));
    return 0;
}
