#pragma once

#include "ControlResponse.h"

#include <QByteArray>

// Parses a buffered HTTP/1.1 response. "Not complete" covers both "needs more bytes" and "can
// never parse"; the difference only shows once the stream has ended.
class ControlResponseParser
{
public:
    static bool parse(const QByteArray &buffer, bool endOfStream, ControlResponse *out);

private:
    static bool parseChunked(const QByteArray &buffer, qsizetype start, QByteArray *body);
};
