#include "HttpResponse.h"

#include <QJsonDocument>

namespace {

QByteArray reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 409:
        return "Conflict";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

QByteArray statusAndHeaders(const HttpResponse &response)
{
    QByteArray out = "HTTP/1.1 " + QByteArray::number(response.status) + ' ' +
                     reasonPhrase(response.status) + "\r\n";
    if (!response.body.isEmpty())
        out += "Content-Type: application/json\r\n";
    for (const auto &header : response.headers)
        out += header.first + ": " + header.second + "\r\n";
    out += "Connection: close\r\n";
    return out;
}

} // namespace

HttpResponse HttpResponse::json(const QJsonObject &object, int status)
{
    HttpResponse response;
    response.status = status;
    response.body = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return response;
}

HttpResponse HttpResponse::error(int status, const QString &message)
{
    return json(QJsonObject{{QStringLiteral("error"), message}}, status);
}

QByteArray HttpResponse::head(qsizetype contentLength) const
{
    return statusAndHeaders(*this) + "Content-Length: " + QByteArray::number(contentLength) +
           "\r\n\r\n";
}

QByteArray HttpResponse::serialize() const
{
    return head(body.size()) + body;
}

QByteArray HttpResponse::serializeChunked() const
{
    QByteArray out = statusAndHeaders(*this) + "Transfer-Encoding: chunked\r\n\r\n";
    constexpr qsizetype ChunkSize = 61; // odd, so that chunk edges fall inside JSON tokens
    for (qsizetype at = 0; at < body.size(); at += ChunkSize) {
        const QByteArray chunk = body.mid(at, ChunkSize);
        out += QByteArray::number(chunk.size(), 16);
        if (at == 0)
            out += ";tovra-demo=first";
        out += "\r\n" + chunk + "\r\n";
    }
    out += "0\r\nX-Tovra-Demo-Trailer: end\r\n\r\n";
    return out;
}
