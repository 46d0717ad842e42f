#pragma once

#include <QByteArray>
#include <QHash>

// The result of one exchange with the daemon. statusCode 0 means no complete response came back.
struct ControlResponse
{
    int statusCode = 0;
    QByteArray body;
    QHash<QByteArray, QByteArray> headers; // lower-cased names; never "content-length"
};
