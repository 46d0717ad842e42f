#include "DiagnosticsRepair.h"

#include "ControlCall.h"
#include "ControlClient.h"
#include "JsonRead.h"

#include <QJsonObject>
#include <QStringList>

namespace {

// The daemon's words about one repair: "result", "state" and "reason", the non-empty ones.
QString repairWords(const QByteArray &body)
{
    const QJsonObject object = JsonRead::parseObject(body).value_or(QJsonObject());
    QStringList words;
    for (const char *key : {"result", "state", "reason"}) {
        const QString word = JsonRead::text(object, QLatin1String(key));
        if (!word.isEmpty())
            words.append(word);
    }
    return words.isEmpty() ? QStringLiteral("ok") : words.join(QStringLiteral(", "));
}

} // namespace

RepairResultInfo DiagnosticsRepair::run(const QString &socketPath, int timeoutMs, QString *errorOut,
                                        const std::atomic_bool *cancel)
{
    struct Repair
    {
        const char *name;
        const char *path;
        QByteArray body;
    };
    const Repair repairs[] = {
        {"kill-switch", "/v1/kill-switch/repair", QByteArrayLiteral("{}")},
        {"proxy", "/v1/proxy/repair", QByteArrayLiteral("{\"force\":false}")},
        {"vpn", "/v1/vpn/repair", QByteArrayLiteral("{}")},
    };

    const ControlCall call(socketPath, timeoutMs, errorOut, cancel);
    RepairResultInfo info;
    QString transportError;
    for (const Repair &repair : repairs) {
        QString error;
        const ControlResponse response =
            call.exchange("POST", QString::fromLatin1(repair.path), repair.body, &error);
        const QString name = QString::fromLatin1(repair.name);
        if (ControlClient::isSuccess(response)) {
            info.valid = true;
            info.lines.append(QStringLiteral("%1: %2").arg(name, repairWords(response.body)));
            continue;
        }
        ControlClient::applyResponseError(response, &error);
        const QString line = QStringLiteral("%1: %2").arg(name, error);
        info.lines.append(line);
        info.failedLines.append(line);
        if (response.statusCode == 0) {
            // Unreachable or canceled: the remaining repairs would fail the same way.
            transportError = error;
            break;
        }
    }
    call.report(transportError.isEmpty() ? info.failedLines.join(QLatin1Char('\n'))
                                         : transportError);
    return info;
}
