#pragma once

#include "ControlResponse.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <atomic>

// One exchange with the daemon's control socket, turned into its record: a 2xx answer goes to
// the record's parser, anything else becomes the worded error and the default record. The error
// text is always written, empty on success. Blocking: worker threads only.
class ControlCall
{
public:
    using Cancel = const std::atomic_bool *;
    template<typename Record>
    using Parser = Record (*)(const QByteArray &body, QString *errorOut);

    ControlCall(const QString &socketPath, int timeoutMs, QString *errorOut, Cancel cancel);

    template<typename Record>
    Record get(const QString &path, Parser<Record> parse) const
    {
        return send("GET", path, QByteArray(), parse);
    }
    template<typename Record>
    Record post(const QString &path, const QJsonObject &body, Parser<Record> parse) const
    {
        return send("POST", path, json(body), parse);
    }
    template<typename Record>
    Record remove(const QString &path, Parser<Record> parse) const
    {
        return send("DELETE", path, QByteArray(), parse);
    }

    // The bare answer, for the endpoints that read more than a 2xx body.
    ControlResponse exchange(const char *method, const QString &path, const QByteArray &body,
                             QString *error) const;
    // Hands the error text (empty on success) to the caller.
    void report(const QString &error) const;

    // A request body in the compact form the daemon expects.
    static QByteArray json(const QJsonObject &object);

private:
    template<typename Record>
    Record send(const char *method, const QString &path, const QByteArray &body,
                Parser<Record> parse) const;
    // The body of a 2xx answer; false, with the error worded, for anything else.
    bool fetch(const char *method, const QString &path, const QByteArray &body, QByteArray *answer,
               QString *error) const;

    QString m_socketPath;
    int m_timeoutMs;
    QString *m_errorOut;
    Cancel m_cancel;
};

template<typename Record>
Record ControlCall::send(const char *method, const QString &path, const QByteArray &body,
                         Parser<Record> parse) const
{
    QString error;
    QByteArray answer;
    if (!fetch(method, path, body, &answer, &error)) {
        report(error);
        return Record();
    }
    Record record = parse(answer, &error);
    report(error);
    return record;
}
