#include "ControlClient.h"

#include "ControlResponseParser.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>

namespace {

const char kCanceled[] = "control request canceled";
const char kTimedOut[] = "control request timed out";
const char kInvalidResponse[] = "invalid control response";

// Milliseconds to wait in one slice before the deadline; 0 once less than 1 ms remains.
int sliceUntil(const QElapsedTimer &clock, qint64 deadlineMs)
{
    const qint64 remaining = deadlineMs - clock.elapsed();
    if (remaining < 1)
        return 0;
    return int(std::min<qint64>(remaining, ControlClient::kWaitSliceMs));
}

// QIODevice reports "Unknown error" when nothing went wrong; that is not a message.
QString socketErrorString(const QLocalSocket &socket)
{
    if (socket.error() == QLocalSocket::UnknownSocketError)
        return QString();
    return socket.errorString();
}

ControlResponse fail(QString *errorOut, const QString &message)
{
    if (errorOut)
        *errorOut = message;
    return ControlResponse();
}

} // namespace

QString ControlClient::defaultSocketPath()
{
    return QStringLiteral("/run/tovracli/control.sock");
}

QByteArray ControlClient::controlVersion()
{
    return QByteArrayLiteral("1");
}

QString ControlClient::socketPathFromEnvironment()
{
    const QString overridePath = qEnvironmentVariable("TOVRA_CONTROL_SOCKET");
    if (!overridePath.trimmed().isEmpty())
        return overridePath;
    return defaultSocketPath();
}

QByteArray ControlClient::buildRequest(const QByteArray &method, const QString &path,
                                       const QByteArray &body)
{
    QByteArray request;
    request.reserve(160 + body.size());
    request += method + ' ' + path.toUtf8() + " HTTP/1.1\r\n";
    request += "Host: tovra\r\n";
    request += "X-Tovra-Control-Version: " + controlVersion() + "\r\n";
    request += "Connection: close\r\n";
    if (!body.isEmpty()) {
        request += "Content-Type: application/json\r\n";
        request += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
    }
    request += "\r\n";
    request += body;
    return request;
}

ControlResponse ControlClient::exchange(const QString &socketPath, const QByteArray &method,
                                        const QString &path, const QByteArray &body, int timeoutMs,
                                        QString *errorOut, const std::atomic_bool *cancelFlag)
{
    QElapsedTimer clock;
    clock.start();
    const qint64 effectiveTimeout = timeoutMs > 0 ? timeoutMs : kDefaultTimeoutMs;
    const auto canceled = [cancelFlag] {
        return cancelFlag && cancelFlag->load(std::memory_order_relaxed);
    };

    QLocalSocket socket;
    socket.connectToServer(socketPath, QIODevice::ReadWrite);
    for (;;) {
        if (canceled())
            return fail(errorOut, QString::fromLatin1(kCanceled));
        if (clock.elapsed() >= effectiveTimeout)
            return fail(errorOut, connectionErrorText(socket.error(), socketErrorString(socket)));
        if (socket.state() == QLocalSocket::ConnectedState)
            break;
        if (socket.state() != QLocalSocket::ConnectingState)
            return fail(errorOut, connectionErrorText(socket.error(), socketErrorString(socket)));
        if (socket.waitForConnected(sliceUntil(clock, effectiveTimeout)))
            break;
    }

    const QByteArray request = buildRequest(method, path, body);
    const auto writeFailed = [&] {
        return fail(errorOut, canceled() ? QString::fromLatin1(kCanceled) : socket.errorString());
    };
    if (socket.write(request) != request.size())
        return writeFailed();
    while (socket.bytesToWrite() > 0) {
        if (canceled() || clock.elapsed() >= effectiveTimeout)
            break;
        if (!socket.waitForBytesWritten(sliceUntil(clock, effectiveTimeout)) &&
            socket.state() != QLocalSocket::ConnectedState)
            return writeFailed();
    }
    if (socket.bytesToWrite() > 0)
        return writeFailed();

    // The read phase has a deadline only when the caller asked for one.
    const bool readDeadline = timeoutMs > 0;
    QByteArray buffer;
    ControlResponse response;
    for (;;) {
        bool leave = false;
        while (socket.bytesAvailable() == 0) {
            if (canceled() || socket.state() != QLocalSocket::ConnectedState ||
                (readDeadline && clock.elapsed() >= timeoutMs)) {
                leave = true;
                break;
            }
            socket.waitForReadyRead(readDeadline ? sliceUntil(clock, timeoutMs) : kWaitSliceMs);
        }
        if (leave)
            break;
        buffer += socket.readAll();
        if (ControlResponseParser::parse(buffer, false, &response) && !canceled())
            return response;
    }

    // A response framed by the close is complete only once the daemon really closed; a deadline
    // or a cancel is not the end of its stream.
    buffer += socket.readAll();
    const bool endOfStream = socket.state() != QLocalSocket::ConnectedState;
    if (ControlResponseParser::parse(buffer, endOfStream, &response) && !canceled())
        return response;

    if (canceled())
        return fail(errorOut, QString::fromLatin1(kCanceled));
    if (readDeadline && clock.elapsed() >= timeoutMs)
        return fail(errorOut, QString::fromLatin1(kTimedOut));
    const QString socketError = socketErrorString(socket);
    return fail(errorOut,
                socketError.isEmpty() ? QString::fromLatin1(kInvalidResponse) : socketError);
}

QString ControlClient::connectionErrorText(QLocalSocket::LocalSocketError error,
                                           const QString &errorString)
{
    switch (error) {
    case QLocalSocket::ConnectionRefusedError:
    case QLocalSocket::ServerNotFoundError:
        return QCoreApplication::translate("ControlClient", "Tovra daemon is not running.");
    case QLocalSocket::SocketAccessError:
        return QCoreApplication::translate("ControlClient",
                                           "Tovra daemon access denied. Add this user to the "
                                           "tovracli group, then sign out and back in.");
    default:
        break;
    }
    const QString trimmed = errorString.trimmed();
    if (!trimmed.isEmpty())
        return trimmed;
    return QCoreApplication::translate("ControlClient", "Could not connect to Tovra daemon.");
}

QString ControlClient::responseErrorText(const ControlResponse &response)
{
    QString candidate;
    const QJsonDocument document = QJsonDocument::fromJson(response.body);
    if (document.isObject()) {
        const QJsonObject object = document.object();
        for (const char *key : {"error", "message", "last_error"}) {
            const QJsonValue value = object.value(QLatin1String(key));
            if (value.isString() && !value.toString().isEmpty()) {
                candidate = value.toString();
                break;
            }
        }
    }
    if (candidate.isEmpty())
        candidate = QString::fromUtf8(response.body).trimmed();
    if (!candidate.isEmpty())
        return candidate;
    if (response.statusCode < 1)
        return QStringLiteral("control request failed");
    return QStringLiteral("control request failed with HTTP %1").arg(response.statusCode);
}

void ControlClient::applyResponseError(const ControlResponse &response, QString *errorOut)
{
    if (!errorOut)
        return;
    if (response.statusCode == 0 && !errorOut->isEmpty())
        return;
    *errorOut = responseErrorText(response);
}

bool ControlClient::isSuccess(const ControlResponse &response)
{
    return response.statusCode >= 200 && response.statusCode <= 299;
}
