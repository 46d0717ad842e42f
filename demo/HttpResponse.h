#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>

// One answer of the daemon, written as HTTP/1.1 with "Connection: close".
struct HttpResponse
{
    int status = 200;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;

    static HttpResponse json(const QJsonObject &object, int status = 200);
    static HttpResponse error(int status, const QString &message);

    // Content-Length framing.
    QByteArray head(qsizetype contentLength) const;
    QByteArray serialize() const;
    // Chunked framing, with a chunk extension and a trailer so that clients meet both.
    QByteArray serializeChunked() const;
};
