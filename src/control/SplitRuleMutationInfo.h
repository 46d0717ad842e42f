#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

// The outcome of a split rule import.
struct SplitRuleMutationInfo
{
    bool valid = false;
    QString kind;
    bool changed = false;
    int count = 0;
    QString file;
    bool runtimeReloaded = false;

    static SplitRuleMutationInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const SplitRuleMutationInfo &, const SplitRuleMutationInfo &) = default;
};

Q_DECLARE_METATYPE(SplitRuleMutationInfo)
