#include "ControlResponseParser.h"

#include <QList>

#include <optional>

bool ControlResponseParser::parse(const QByteArray &buffer, bool endOfStream, ControlResponse *out)
{
    const qsizetype headerEnd = buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return false;

    const QByteArray headerBlock = buffer.left(headerEnd);
    const qsizetype firstLineEnd = headerBlock.indexOf("\r\n");
    const QByteArray statusLine = firstLineEnd < 0 ? headerBlock : headerBlock.left(firstLineEnd);
    const QList<QByteArray> statusParts = statusLine.split(' ');
    if (statusParts.size() < 2)
        return false;
    bool statusOk = false;
    const int status = statusParts.at(1).toInt(&statusOk, 10);
    if (!statusOk)
        return false;

    std::optional<qint64> contentLength;
    bool chunked = false;
    QHash<QByteArray, QByteArray> headers;
    const QList<QByteArray> lines = headerBlock.split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        const QByteArray lower = line.toLower();
        if (lower.startsWith("content-length:")) {
            bool ok = false;
            const qint64 length = lower.mid(15).trimmed().toLongLong(&ok, 10);
            // A negative length cannot frame anything; treat it like one that does not parse.
            contentLength = (ok && length >= 0) ? std::optional<qint64>(length) : std::nullopt;
            continue;
        }
        if (lower.startsWith("transfer-encoding:") && lower.mid(18).contains("chunked"))
            chunked = true;
        const qsizetype colon = line.indexOf(':');
        if (colon < 1)
            continue;
        headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
    }

    const qsizetype bodyStart = headerEnd + 4;
    QByteArray body;
    if (chunked) {
        if (!parseChunked(buffer, bodyStart, &body))
            return false;
    } else if (contentLength) {
        if (buffer.size() - bodyStart < *contentLength)
            return false;
        body = buffer.mid(bodyStart, *contentLength);
    } else {
        if (!endOfStream)
            return false;
        body = buffer.mid(bodyStart);
    }

    out->statusCode = status;
    out->body = body;
    out->headers = headers;
    return true;
}

bool ControlResponseParser::parseChunked(const QByteArray &buffer, qsizetype start,
                                         QByteArray *body)
{
    qsizetype pos = start;
    for (;;) {
        const qsizetype lineEnd = buffer.indexOf("\r\n", pos);
        if (lineEnd < 0)
            return false;
        QByteArray sizeText = buffer.mid(pos, lineEnd - pos);
        const qsizetype semicolon = sizeText.indexOf(';');
        if (semicolon >= 0)
            sizeText.truncate(semicolon);
        sizeText = sizeText.trimmed();
        bool ok = false;
        const qint64 size = sizeText.toLongLong(&ok, 16);
        if (!ok || size < 0 || size > 2147483647)
            return false;
        pos = lineEnd + 2;

        if (size == 0) {
            // Trailer lines are skipped up to the empty line that ends the message.
            for (;;) {
                const qsizetype trailerEnd = buffer.indexOf("\r\n", pos);
                if (trailerEnd < 0)
                    return false;
                if (trailerEnd == pos)
                    return true;
                pos = trailerEnd + 2;
            }
        }

        if (buffer.size() - pos < size + 2)
            return false;
        body->append(buffer.constData() + pos, size);
        if (buffer.at(pos + size) != '\r' || buffer.at(pos + size + 1) != '\n')
            return false;
        pos += size + 2;
    }
}
