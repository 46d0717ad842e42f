#include "LanguageStore.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace {

struct Language
{
    const char *code;
    const char *name;
};

const Language Supported[] = {
    {"en", "English"}, {"de", "Deutsch"},       {"fr", "Français"},
    {"es", "Español"}, {"it", "Italiano"},      {"pt-BR", "Português (Brasil)"},
    {"ru", "Русский"}, {"tr", "Türkçe"},        {"ja", "日本語"},
    {"ko", "한국어"},  {"zh-Hans", "简体中文"}, {"zh-Hant", "繁體中文"},
    {"ar", "العربية"}, {"fa", "فارسی"},
};

// "de_DE.UTF-8" and "de-de" both become "de-DE".
QString normalised(const QString &tag)
{
    QString cleaned = tag.trimmed();
    cleaned = cleaned.left(
        cleaned.indexOf(QLatin1Char('.')) < 0 ? cleaned.size() : cleaned.indexOf(QLatin1Char('.')));
    cleaned.replace(QLatin1Char('_'), QLatin1Char('-'));
    const QStringList parts = cleaned.split(QLatin1Char('-'));
    QString result = parts.first().toLower();
    for (qsizetype i = 1; i < parts.size(); ++i)
        result +=
            QLatin1Char('-') + (parts.at(i).size() == 2 ? parts.at(i).toUpper() : parts.at(i));
    return result;
}

} // namespace

QString LanguageStore::set(const QString &source, const QString &language, const QString &ifSource)
{
    if (source != QLatin1String("system") && source != QLatin1String("user"))
        return QStringLiteral("language source must be \"system\" or \"user\"");
    static const QRegularExpression tagPattern(
        QStringLiteral("^[A-Za-z]{2,3}([-_][A-Za-z0-9]{2,8})*(\\.[A-Za-z0-9-]+)?$"));
    if (!language.isEmpty() && !tagPattern.match(language.trimmed()).hasMatch())
        return QStringLiteral("invalid language tag \"%1\"").arg(language);
    if (source == QLatin1String("user") && language.isEmpty())
        return QStringLiteral("a user language needs a language tag");
    if (!ifSource.isEmpty() && ifSource != m_source)
        return {};
    m_source = source;
    if (!language.isEmpty())
        m_language = normalised(language);
    return {};
}

QString LanguageStore::effectiveLanguage() const
{
    const QString base = m_language.section(QLatin1Char('-'), 0, 0);
    // Chinese resolves by script; the region only hints at it.
    if (base == QLatin1String("zh")) {
        static const QRegularExpression traditional(QStringLiteral("-(Hant|TW|HK|MO)\\b"));
        return traditional.match(m_language).hasMatch() ? QStringLiteral("zh-Hant")
                                                        : QStringLiteral("zh-Hans");
    }
    QString fallback;
    for (const Language &entry : Supported) {
        const QString code = QString::fromLatin1(entry.code);
        if (code == m_language)
            return code;
        if (fallback.isEmpty() && code.section(QLatin1Char('-'), 0, 0) == base)
            fallback = code;
    }
    return fallback.isEmpty() ? QStringLiteral("en") : fallback;
}

QJsonObject LanguageStore::json() const
{
    QJsonArray supported;
    for (const Language &entry : Supported) {
        supported.append(QJsonObject{{QStringLiteral("code"), QString::fromLatin1(entry.code)},
                                     {QStringLiteral("name"), QString::fromUtf8(entry.name)}});
    }
    return {{QStringLiteral("source"), m_source},
            {QStringLiteral("language"), m_language},
            {QStringLiteral("effective_language"), effectiveLanguage()},
            {QStringLiteral("supported_languages"), supported}};
}
