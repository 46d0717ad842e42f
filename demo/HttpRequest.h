#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

// One request as read from a control connection. Header names are lower-cased.
class HttpRequest
{
public:
    enum class State { Incomplete, Complete, Malformed };

    // Parses what has arrived so far; a request is whole once its header block ended and
    // Content-Length bytes of body followed.
    State feed(const QByteArray &buffer);

    QByteArray method() const { return m_method; }
    // The path without its query.
    QString path() const { return m_path; }
    QString query() const { return m_query; }
    QByteArray target() const { return m_target; }
    QByteArray header(const QByteArray &lowerName) const { return m_headers.value(lowerName); }
    bool hasHeader(const QByteArray &lowerName) const { return m_headers.contains(lowerName); }
    QByteArray body() const { return m_body; }
    QString error() const { return m_error; }

private:
    State malformed(const QString &error);

    QByteArray m_method;
    QByteArray m_target;
    QString m_path;
    QString m_query;
    QHash<QByteArray, QByteArray> m_headers;
    QByteArray m_body;
    QString m_error;
};
