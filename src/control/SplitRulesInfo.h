#pragma once

#include <QByteArray>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

// The split rule files and their items, keyed by rule kind.
struct SplitRulesInfo
{
    bool valid = false;
    QString dir;
    QMap<QString, QString> files;
    QMap<QString, QStringList> rules;

    static SplitRulesInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const SplitRulesInfo &, const SplitRulesInfo &) = default;
};

Q_DECLARE_METATYPE(SplitRulesInfo)
