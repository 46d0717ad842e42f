#include "DemoOptions.h"

#include "AccountStore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <unistd.h>

namespace {

const char *const HelpText =
    R"(A stand-in for the Tovra daemon: answers the control interface on a Unix
socket with a believable, stateful simulation, and injects faults on request.

Sign in with demo@tovra.invalid / demo (SVIP plan, every location) or
free@tovra.invalid / demo (Free plan, FREE locations only).

Fault injection (PATH is a request path without query, such as /v1/status;
"*" matches every path; each fault option may be repeated):
  --fail PATH=STATUS[:BODY]  answer PATH with STATUS and BODY (default body
                             {"error":"demo failure injected for PATH"})
  --truncate PATH            close the connection in the middle of the body
  --hang PATH                read the request and never answer
  --garbage PATH             answer with bytes that are not HTTP, then close
  --chunked                  chunked transfer encoding for every answer
  --latency MS               wait MS before every answer
  --incompatible             speak control version 2: 409 to every request
  --no-kill-switch-mode      an older daemon: plain 404 for /v1/kill-switch/mode

Load (for benchmarks):
  --catalog-size N           a generated catalogue of N nodes over the same cities

Prints "listening on PATH" once ready; SIGINT or SIGTERM stop it cleanly.)";

QSet<QString> pathSet(const QStringList &values)
{
    return QSet<QString>(values.cbegin(), values.cend());
}

bool parseFailure(const QString &spec, QString *path, DemoOptions::Failure *failure)
{
    const qsizetype equals = spec.indexOf(QLatin1Char('='));
    if (equals < 1)
        return false;
    *path = spec.left(equals);
    const QString rest = spec.mid(equals + 1);
    const qsizetype colon = rest.indexOf(QLatin1Char(':'));
    bool ok = false;
    failure->status = (colon < 0 ? rest : rest.left(colon)).toInt(&ok);
    if (!ok || failure->status < 100 || failure->status > 599)
        return false;
    failure->body = colon < 0 ? QByteArray() : rest.mid(colon + 1).toUtf8();
    return true;
}

} // namespace

QString DemoOptions::defaultSocketPath()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QDir(runtime).exists())
        return runtime + QStringLiteral("/tovra-demo/control.sock");
    return QStringLiteral("/tmp/tovra-demo-%1/control.sock").arg(getuid());
}

bool DemoOptions::parse(const QCoreApplication &app, DemoOptions *options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(HelpText));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption socket(
        QStringLiteral("socket"),
        QStringLiteral("Listen on PATH (default %1).").arg(defaultSocketPath()),
        QStringLiteral("PATH"));
    const QCommandLineOption dataDir(
        QStringLiteral("data-dir"),
        QStringLiteral("Keep config, logs and downloads in DIR (default: a temporary directory "
                       "removed at exit)."),
        QStringLiteral("DIR"));
    const QCommandLineOption vendorHost(
        QStringLiteral("vendor-host"),
        QStringLiteral("Host of the purchase and download links (default %1).")
            .arg(QStringLiteral(TOVRA_VENDOR_HOST)),
        QStringLiteral("HOST"), QStringLiteral(TOVRA_VENDOR_HOST));
    const QCommandLineOption latency(QStringLiteral("latency"),
                                     QStringLiteral("Wait MS before every answer."),
                                     QStringLiteral("MS"), QStringLiteral("0"));
    const QCommandLineOption connectMs(
        QStringLiteral("connect-ms"),
        QStringLiteral("Time from \"connecting\" to \"connected\" (default 1500)."),
        QStringLiteral("MS"), QStringLiteral("1500"));
    const QCommandLineOption catalogSize(
        QStringLiteral("catalog-size"),
        QStringLiteral("Generate N nodes over the same cities instead of the 154 fixed ones."),
        QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption fail(QStringLiteral("fail"),
                                  QStringLiteral("Answer PATH with STATUS and BODY."),
                                  QStringLiteral("PATH=STATUS[:BODY]"));
    const QCommandLineOption truncate(QStringLiteral("truncate"),
                                      QStringLiteral("Close in the middle of PATH's body."),
                                      QStringLiteral("PATH"));
    const QCommandLineOption hang(QStringLiteral("hang"),
                                  QStringLiteral("Never answer PATH; keep the connection open."),
                                  QStringLiteral("PATH"));
    const QCommandLineOption garbage(QStringLiteral("garbage"),
                                     QStringLiteral("Answer PATH with bytes that are not HTTP."),
                                     QStringLiteral("PATH"));
    const QCommandLineOption chunked(QStringLiteral("chunked"),
                                     QStringLiteral("Chunked transfer encoding for every answer."));
    const QCommandLineOption incompatible(
        QStringLiteral("incompatible"),
        QStringLiteral("Speak control version 2: 409 to every request."));
    const QCommandLineOption noKillSwitchMode(
        QStringLiteral("no-kill-switch-mode"),
        QStringLiteral("Behave like an older daemon without /v1/kill-switch/mode."));
    const QCommandLineOption lockdown(QStringLiteral("lockdown"),
                                      QStringLiteral("Start with the kill switch in lockdown."));
    const QCommandLineOption forceUpgrade(
        QStringLiteral("force-upgrade"),
        QStringLiteral("Offer the GUI update as a required upgrade."));
    const QCommandLineOption remembered(
        QStringLiteral("remembered"),
        QStringLiteral("Start with ACCOUNT's remembered session, reported as \"cached\"."),
        QStringLiteral("ACCOUNT"));
    const QCommandLineOption flakyDownload(
        QStringLiteral("flaky-download"),
        QStringLiteral("Break the update download once halfway; it is retried (\"retrying\")."));
    parser.addOptions({socket, dataDir, vendorHost, latency, connectMs, fail, truncate, hang,
                       garbage, chunked, incompatible, noKillSwitchMode, lockdown, forceUpgrade,
                       flakyDownload, remembered, catalogSize});
    parser.process(app);

    QTextStream err(stderr);
    if (!parser.positionalArguments().isEmpty()) {
        err << "tovra-demo-daemon: unexpected argument " << parser.positionalArguments().first()
            << Qt::endl;
        return false;
    }
    options->socketPath = parser.isSet(socket) ? parser.value(socket) : defaultSocketPath();
    options->dataDir = parser.value(dataDir);
    options->vendorHost = parser.value(vendorHost).trimmed();
    bool ok = false;
    options->latencyMs = parser.value(latency).toInt(&ok);
    if (!ok || options->latencyMs < 0) {
        err << "tovra-demo-daemon: --latency needs a number of milliseconds" << Qt::endl;
        return false;
    }
    options->connectMs = parser.value(connectMs).toInt(&ok);
    if (!ok || options->connectMs < 0) {
        err << "tovra-demo-daemon: --connect-ms needs a number of milliseconds" << Qt::endl;
        return false;
    }
    options->catalogSize = parser.value(catalogSize).toInt(&ok);
    if (!ok || options->catalogSize < 0 || options->catalogSize > 1000000) {
        err << "tovra-demo-daemon: --catalog-size needs a number of nodes up to 1000000"
            << Qt::endl;
        return false;
    }
    if (options->vendorHost.isEmpty() || options->vendorHost.contains(QLatin1Char('/'))) {
        err << "tovra-demo-daemon: --vendor-host needs a host name" << Qt::endl;
        return false;
    }
    const QStringList failSpecs = parser.values(fail);
    for (const QString &spec : failSpecs) {
        QString path;
        Failure failure;
        if (!parseFailure(spec, &path, &failure)) {
            err << "tovra-demo-daemon: --fail needs PATH=STATUS[:BODY], got " << spec << Qt::endl;
            return false;
        }
        options->failures.insert(path, failure);
    }
    options->truncatePaths = pathSet(parser.values(truncate));
    options->hangPaths = pathSet(parser.values(hang));
    options->garbagePaths = pathSet(parser.values(garbage));
    options->chunked = parser.isSet(chunked);
    options->incompatible = parser.isSet(incompatible);
    options->noKillSwitchMode = parser.isSet(noKillSwitchMode);
    options->lockdown = parser.isSet(lockdown);
    options->forceUpgrade = parser.isSet(forceUpgrade);
    options->flakyDownload = parser.isSet(flakyDownload);
    options->rememberedAccount = parser.value(remembered).trimmed();
    if (parser.isSet(remembered) && !AccountStore::knows(options->rememberedAccount)) {
        err << "tovra-demo-daemon: --remembered needs one of the demo accounts" << Qt::endl;
        return false;
    }
    return true;
}

const DemoOptions::Failure *DemoOptions::failureFor(const QString &path) const
{
    auto it = failures.constFind(path);
    if (it == failures.cend())
        it = failures.constFind(QStringLiteral("*"));
    return it == failures.cend() ? nullptr : &it.value();
}

bool DemoOptions::matches(const QSet<QString> &paths, const QString &path)
{
    return paths.contains(path) || paths.contains(QStringLiteral("*"));
}
