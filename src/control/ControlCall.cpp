#include "ControlCall.h"

#include "ControlClient.h"

#include <QJsonDocument>

ControlCall::ControlCall(const QString &socketPath, int timeoutMs, QString *errorOut, Cancel cancel)
    : m_socketPath(socketPath)
    , m_timeoutMs(timeoutMs)
    , m_errorOut(errorOut)
    , m_cancel(cancel)
{}

ControlResponse ControlCall::exchange(const char *method, const QString &path,
                                      const QByteArray &body, QString *error) const
{
    return ControlClient::exchange(m_socketPath, QByteArray(method), path, body, m_timeoutMs, error,
                                   m_cancel);
}

bool ControlCall::fetch(const char *method, const QString &path, const QByteArray &body,
                        QByteArray *answer, QString *error) const
{
    const ControlResponse response = exchange(method, path, body, error);
    if (!ControlClient::isSuccess(response)) {
        ControlClient::applyResponseError(response, error);
        return false;
    }
    *answer = response.body;
    return true;
}

void ControlCall::report(const QString &error) const
{
    if (m_errorOut)
        *m_errorOut = error;
}

QByteArray ControlCall::json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
