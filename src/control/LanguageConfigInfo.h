#pragma once

#include "LanguageEntry.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The daemon's language configuration.
struct LanguageConfigInfo
{
    bool valid = false;
    QString source;
    QString language;
    QString effectiveLanguage;
    QList<LanguageEntry> supportedLanguages;

    static LanguageConfigInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const LanguageConfigInfo &, const LanguageConfigInfo &) = default;
};

Q_DECLARE_METATYPE(LanguageConfigInfo)
