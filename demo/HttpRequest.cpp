#include "HttpRequest.h"

#include <QList>

namespace {

// Requests are a few hundred bytes; anything this large is not a control client.
constexpr qsizetype MaxRequestBytes = 4 * 1024 * 1024;

} // namespace

HttpRequest::State HttpRequest::malformed(const QString &error)
{
    m_error = error;
    return State::Malformed;
}

HttpRequest::State HttpRequest::feed(const QByteArray &buffer)
{
    if (buffer.size() > MaxRequestBytes)
        return malformed(QStringLiteral("request too large"));
    const qsizetype end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return State::Incomplete;

    const QList<QByteArray> lines = buffer.left(end).split('\n');
    const QList<QByteArray> requestLine = lines.first().trimmed().split(' ');
    if (requestLine.size() != 3 || !requestLine.at(2).startsWith("HTTP/1."))
        return malformed(QStringLiteral("malformed request line"));
    m_method = requestLine.at(0);
    m_target = requestLine.at(1);
    if (!m_target.startsWith('/'))
        return malformed(QStringLiteral("request target must be a path"));
    const QString target = QString::fromUtf8(m_target);
    const qsizetype question = target.indexOf(QLatin1Char('?'));
    m_path = question < 0 ? target : target.left(question);
    m_query = question < 0 ? QString() : target.mid(question + 1);

    m_headers.clear();
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        const qsizetype colon = line.indexOf(':');
        if (colon < 1)
            return malformed(QStringLiteral("malformed header line"));
        m_headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
    }
    if (m_headers.value("transfer-encoding").toLower().contains("chunked"))
        return malformed(QStringLiteral("chunked request bodies are not accepted"));

    qsizetype length = 0;
    if (m_headers.contains("content-length")) {
        bool ok = false;
        length = m_headers.value("content-length").toLongLong(&ok);
        if (!ok || length < 0)
            return malformed(QStringLiteral("invalid Content-Length"));
    }
    const qsizetype bodyStart = end + 4;
    if (buffer.size() - bodyStart < length)
        return State::Incomplete;
    m_body = buffer.mid(bodyStart, length);
    return State::Complete;
}
