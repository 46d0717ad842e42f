#pragma once

#include <QJsonObject>
#include <QString>

// The daemon's language setting: where it comes from ("system" or "user"), the tag, and the
// supported language the tag resolves to.
class LanguageStore
{
public:
    // Returns the refusal text, empty when applied (or when ifSource does not match, in
    // which case nothing changes).
    QString set(const QString &source, const QString &language, const QString &ifSource);

    QString source() const { return m_source; }
    QString language() const { return m_language; }
    QString effectiveLanguage() const;
    QJsonObject json() const;

private:
    QString m_source = QStringLiteral("system");
    QString m_language = QStringLiteral("en");
};
