#pragma once

#include <QMetaType>
#include <QString>

// One entry of the recent locations list, as persisted.
struct RecentLocation
{
    QString id;
    QString label;
    QString flagCode;

    friend bool operator==(const RecentLocation &, const RecentLocation &) = default;
};

Q_DECLARE_METATYPE(RecentLocation)
