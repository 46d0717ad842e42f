#pragma once

#include <QFile>
#include <QString>

// The daemon's log file: one line per answered request.
class RequestLog
{
public:
    explicit RequestLog(const QString &path);

    void write(const QString &line);
    QString path() const { return m_file.fileName(); }

private:
    QFile m_file;
};
