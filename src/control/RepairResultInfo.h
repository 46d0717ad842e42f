#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

// Outcome of the three repairs (kill switch, proxy, VPN), one "name: words" line each.
struct RepairResultInfo
{
    bool valid = false;
    QStringList lines;
    QStringList failedLines;

    friend bool operator==(const RepairResultInfo &, const RepairResultInfo &) = default;
};

Q_DECLARE_METATYPE(RepairResultInfo)
