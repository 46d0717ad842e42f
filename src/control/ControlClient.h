#pragma once

#include "ControlResponse.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QString>

#include <atomic>

// The blocking HTTP/1.1 client of the daemon's control socket: one request per connection, time
// limits checked in 250 ms slices, a cancel flag another thread may set. Worker threads only.
class ControlClient
{
public:
    static constexpr int kWaitSliceMs = 250;
    static constexpr int kDefaultTimeoutMs = 30000;

    static QString defaultSocketPath();
    static QByteArray controlVersion();
    // The path to use when nobody chose one: TOVRA_CONTROL_SOCKET when set and not blank,
    // else the default path.
    static QString socketPathFromEnvironment();

    static QByteArray buildRequest(const QByteArray &method, const QString &path,
                                   const QByteArray &body);

    static ControlResponse exchange(const QString &socketPath, const QByteArray &method,
                                    const QString &path, const QByteArray &body, int timeoutMs,
                                    QString *errorOut = nullptr,
                                    const std::atomic_bool *cancelFlag = nullptr);

    static QString connectionErrorText(QLocalSocket::LocalSocketError error,
                                       const QString &errorString);
    static QString responseErrorText(const ControlResponse &response);
    static void applyResponseError(const ControlResponse &response, QString *errorOut);
    static bool isSuccess(const ControlResponse &response);
};
