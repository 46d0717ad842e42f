#pragma once

#include <QChar>
#include <QGuiApplication>
#include <QString>

// A value with a direction of its own (a version such as "2.8.0-demo", a location name, an
// address, a path) set into a translated sentence. In a right-to-left interface the
// bidirectional algorithm would reorder its parts against the sentence ("demo-2.8.0"); a
// first-strong isolate keeps it whole. A left-to-right interface gets the value unchanged.
inline QString isolated(const QString &value)
{
    if (value.isEmpty() || !QGuiApplication::isRightToLeft())
        return value;
    return QChar(0x2068) + value + QChar(0x2069);
}
