// tovra-ctl: asks the daemon one thing and prints its answer, for diagnostics and scripts.
#include "ControlClient.h"
#include "CtlOperations.h"
#include "PasswordInput.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode { Success = 0, Failure = 1, UsageError = 2 };

void write(FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

QString usageText()
{
    return QStringLiteral(
               "Usage: tovra-ctl [--socket PATH] [--timeout MS] <operation> [arguments...]\n"
               "       tovra-ctl [--socket PATH] [--timeout MS] raw METHOD PATH [BODY]\n"
               "       tovra-ctl help\n"
               "\n"
               "The socket defaults to $TOVRA_CONTROL_SOCKET when set, else %1.\n"
               "The time-out defaults to 5000 ms. Booleans are true or false; lists are\n"
               "comma-separated; setMode takes the mode as a JSON object.\n"
               "login reads the password from standard input when it is given as -, and asks\n"
               "for it without echo on a terminal when it is left out (login USER [REMEMBER]):\n"
               "a password on the command line is visible to every local user.\n"
               "\n"
               "Operations:\n")
               .arg(ControlClient::defaultSocketPath()) +
           CtlOperations::helpText();
}

int usage(const QString &problem)
{
    if (!problem.isEmpty())
        write(stderr, "tovra-ctl: " + problem.toUtf8() + "\n");
    write(stderr, usageText().toUtf8());
    return UsageError;
}

int fail(const QString &error)
{
    write(stderr, error.toUtf8() + "\n");
    return Failure;
}

int runRaw(const CtlOperations::Context &context, const QStringList &arguments)
{
    if (arguments.size() < 2 || arguments.size() > 3)
        return usage(QStringLiteral("raw takes METHOD PATH [BODY]"));
    QString error;
    const ControlResponse response =
        ControlClient::exchange(context.socketPath, arguments.at(0).toUtf8(), arguments.at(1),
                                arguments.value(2).toUtf8(), context.timeoutMs, &error);
    if (response.statusCode == 0)
        return fail(error.isEmpty() ? ControlClient::responseErrorText(response) : error);
    QList<QByteArray> names = response.headers.keys();
    std::sort(names.begin(), names.end());
    QByteArray out = QByteArray::number(response.statusCode) + '\n';
    for (const QByteArray &name : names)
        out += name + ": " + response.headers.value(name) + '\n';
    out += '\n' + response.body;
    write(stdout, out);
    return Success;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QStringList arguments = app.arguments().mid(1);

    CtlOperations::Context context;
    context.socketPath = ControlClient::socketPathFromEnvironment();
    while (!arguments.isEmpty() && arguments.constFirst().startsWith(QLatin1String("--"))) {
        const QString option = arguments.takeFirst();
        if (option == QLatin1String("--help"))
            return write(stdout, usageText().toUtf8()), Success;
        if (arguments.isEmpty())
            return usage(option + QStringLiteral(" needs a value"));
        const QString value = arguments.takeFirst();
        if (option == QLatin1String("--socket")) {
            if (value.trimmed().isEmpty())
                return usage(QStringLiteral("--socket needs a path"));
            context.socketPath = value;
        } else if (option == QLatin1String("--timeout")) {
            bool ok = false;
            context.timeoutMs = value.toInt(&ok);
            if (!ok)
                return usage(QStringLiteral("--timeout needs a whole number of milliseconds"));
        } else {
            return usage(QStringLiteral("unknown option ") + option);
        }
    }
    if (arguments.isEmpty())
        return usage(QStringLiteral("no operation given"));

    const QString name = arguments.takeFirst();
    if (name == QLatin1String("help")) {
        write(stdout, usageText().toUtf8());
        return Success;
    }
    if (name == QLatin1String("raw"))
        return runRaw(context, arguments);

    const CtlOperations::Operation *operation = CtlOperations::find(name);
    if (!operation)
        return usage(QStringLiteral("unknown operation ") + name);
    if (name == QLatin1String("login") && !arguments.isEmpty()) {
        const QString problem = PasswordInput::resolveLoginArguments(&arguments, stdin);
        if (!problem.isEmpty())
            return usage(problem);
    }
    const QString problem = CtlOperations::checkArguments(*operation, arguments);
    if (!problem.isEmpty())
        return usage(problem);

    QString error;
    const QJsonObject record = operation->run(context, arguments, &error);
    if (!error.isEmpty())
        return fail(error);
    write(stdout, QJsonDocument(record).toJson(QJsonDocument::Indented));
    return Success;
}
