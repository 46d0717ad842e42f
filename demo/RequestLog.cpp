#include "RequestLog.h"

#include <QDateTime>

RequestLog::RequestLog(const QString &path)
    : m_file(path)
{
    if (!m_file.open(QIODevice::Append | QIODevice::Text))
        qWarning("tovra-demo-daemon: cannot open log %s", qPrintable(path));
}

void RequestLog::write(const QString &line)
{
    if (!m_file.isOpen())
        return;
    m_file.write((QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs) + QLatin1Char(' ') +
                  line + QLatin1Char('\n'))
                     .toUtf8());
    m_file.flush();
}
