#include "TranslationManager.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTranslator>

namespace {

QSet<QString> tagSet(const char *spaceSeparated)
{
    const QStringList tags = QString::fromLatin1(spaceSeparated).split(u' ', Qt::SkipEmptyParts);
    return QSet<QString>(tags.cbegin(), tags.cend());
}

const QSet<QString> &regionalTags()
{
    static const QSet<QString> tags =
        tagSet("ar-ae ar-eg ar-sa de-at de-ch en-au en-ca en-gb en-in en-nz en-us es-419 es-ar "
               "es-cl es-co es-mx es-pe fr-be fr-ca fr-ch nl-be pt-br pt-pt zh-hans zh-hant "
               "zh-hk zh-mo");
    return tags;
}

const QSet<QString> &baseLanguages()
{
    static const QSet<QString> tags =
        tagSet("ar az be bg ca cs cy da de el en es et eu fa fi fil fr gl he hi hr hu hy id it "
               "ja ka kk km ko ky lo lt lv mk ml mn ms my nb ne nl pa pl pt ro ru sk sl sq sr "
               "sv sw th tr uk vi");
    return tags;
}

bool isAsciiLetters(const QString &part)
{
    for (const QChar c : part) {
        if (!((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z')))
            return false;
    }
    return true;
}

QString languagePart(const QString &tag)
{
    return tag.section(u'-', 0, 0).toLower();
}

bool isEnglish(const QString &tag)
{
    const QString lower = tag.toLower();
    return lower == u"en" || lower.startsWith(u"en-");
}

} // namespace

TranslationManager::TranslationManager(QObject *parent)
    : QObject(parent)
    , m_translator(new QTranslator(this))
{}

TranslationManager::~TranslationManager()
{
    removeTranslator();
}

QString TranslationManager::defaultLanguage()
{
    return QStringLiteral("en-US");
}

QString TranslationManager::normalize(const QString &tag)
{
    QString text = tag.trimmed();
    // Desktop locale names carry an encoding or modifier ("de_DE.UTF-8", "ca_ES@valencia") that
    // is no part of a language tag.
    const qsizetype suffix = text.indexOf(QRegularExpression(QStringLiteral("[.@]")));
    if (suffix >= 0)
        text.truncate(suffix);
    text.replace(u'_', u'-');
    const QStringList parts = text.split(u'-', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return {};

    QStringList cased;
    cased.reserve(parts.size());
    cased.append(parts.first().toLower());
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const QString &part = parts.at(i);
        if (part.size() == 4 && isAsciiLetters(part))
            cased.append(part.left(1).toUpper() + part.mid(1).toLower());
        else if (part.size() == 2 && isAsciiLetters(part))
            cased.append(part.toUpper());
        else
            cased.append(part);
    }
    const QString joined = cased.join(u'-');
    const QString lower = joined.toLower();

    if (lower == u"zh" || lower == u"zh-cn" || lower == u"zh-hans-cn" || lower == u"zh-sg")
        return QStringLiteral("zh-Hans");
    if (lower == u"zh-tw" || lower == u"zh-hant-tw")
        return QStringLiteral("zh-Hant");
    if (regionalTags().contains(lower))
        return joined;
    if (baseLanguages().contains(cased.first()))
        return cased.first();
    // A language the program does not list is kept as written (cased) rather than replaced:
    // the daemon may know it, and applying it simply falls back to English.
    return joined;
}

Qt::LayoutDirection TranslationManager::layoutDirection(const QString &tag)
{
    const QString language = languagePart(tag.trimmed());
    if (language == u"ar" || language == u"fa" || language == u"he" || language == u"ur")
        return Qt::RightToLeft;
    if (language.isEmpty())
        return Qt::LeftToRight;
    return QLocale(language).textDirection();
}

QString TranslationManager::systemLanguage()
{
    const QLocale system = QLocale::system();
    // The "C" and "POSIX" locales name no language; the desktop then reads in English.
    if (system.language() == QLocale::C)
        return defaultLanguage();
    const QStringList uiLanguages = system.uiLanguages();
    const QString tag = normalize(uiLanguages.isEmpty() ? system.name() : uiLanguages.first());
    return tag.isEmpty() ? defaultLanguage() : tag;
}

bool TranslationManager::apply(const QString &tag)
{
    if (!QCoreApplication::instance())
        return false;
    // An empty tag means no preference, which is the default language.
    const QString normalized = tag.trimmed().isEmpty() ? defaultLanguage() : normalize(tag);
    removeTranslator();

    if (isEnglish(normalized)) {
        m_current = normalized;
        return true;
    }

    const QString resource =
        QStringLiteral(":/i18n/tovra_%1.qm").arg(QString(normalized).replace(u'-', u'_'));
    if (!m_translator->load(resource)) {
        m_current = defaultLanguage();
        return false;
    }
    // installTranslator() keeps even a translator it reports as failed (an empty one), so it
    // is always removed again before the next apply.
    m_installed = true;
    if (!QCoreApplication::installTranslator(m_translator)) {
        removeTranslator();
        m_current = defaultLanguage();
        return false;
    }
    m_current = normalized;
    return true;
}

QString TranslationManager::currentLanguage() const
{
    return m_current.isEmpty() ? defaultLanguage() : m_current;
}

void TranslationManager::removeTranslator()
{
    if (m_installed && QCoreApplication::instance())
        QCoreApplication::removeTranslator(m_translator);
    m_installed = false;
}
