#include "SplitRuleValidator.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QStringView>
#include <QUrl>

SplitRuleValidator::Result SplitRuleValidator::validate(const QString &content, int problemLimit)
{
    Result result;
    int number = 0;
    for (const QStringView line : QStringView(content).split(u'\n')) {
        ++number;
        const QString trimmed = line.trimmed().toString();
        if (!isContentLine(trimmed))
            continue;
        ++result.rules;
        if (isRule(trimmed))
            continue;
        ++result.badLines;
        if (result.problems.size() < problemLimit)
            result.problems.append({number, trimmed});
    }
    return result;
}

bool SplitRuleValidator::isContentLine(const QString &trimmedLine)
{
    return !trimmedLine.isEmpty() && !trimmedLine.startsWith(u'#');
}

int SplitRuleValidator::ruleCount(const QString &content)
{
    int count = 0;
    for (const QStringView line : QStringView(content).split(u'\n')) {
        const QStringView trimmed = line.trimmed();
        if (!trimmed.isEmpty() && !trimmed.startsWith(u'#'))
            ++count;
    }
    return count;
}

bool SplitRuleValidator::isRule(const QString &line)
{
    const QString text = line.trimmed();
    if (text.isEmpty())
        return false;
    int maxPrefix = 0;
    return isAddress(text, &maxPrefix) || isCidr(text) || isDomain(text);
}

bool SplitRuleValidator::isAddress(const QString &text, int *maxPrefix)
{
    // Dotted quads only: the lenient forms ("10.1", "167772161") are not what a rule means.
    static const QRegularExpression ipv4(
        QStringLiteral("^(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)(\\.(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?"
                       "\\d)){3}$"));
    if (ipv4.match(text).hasMatch()) {
        *maxPrefix = 32;
        return true;
    }
    if (!text.contains(u':') || text.contains(u'%'))
        return false;
    QHostAddress address;
    if (!address.setAddress(text) || address.protocol() != QAbstractSocket::IPv6Protocol)
        return false;
    *maxPrefix = 128;
    return true;
}

bool SplitRuleValidator::isCidr(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0 || slash != text.lastIndexOf(u'/'))
        return false;
    int maxPrefix = 0;
    if (!isAddress(text.left(slash), &maxPrefix))
        return false;
    const QString prefix = text.mid(slash + 1);
    static const QRegularExpression digits(QStringLiteral("^\\d{1,3}$"));
    if (!digits.match(prefix).hasMatch())
        return false;
    return prefix.toInt() <= maxPrefix;
}

bool SplitRuleValidator::isDomain(const QString &text)
{
    QString name = text;
    // "*.example.org" and ".example.org" both mean the domain and everything below it.
    bool wildcard = false;
    if (name.startsWith(QLatin1String("*."))) {
        name.remove(0, 2);
        wildcard = true;
    } else if (name.startsWith(u'.')) {
        name.remove(0, 1);
        wildcard = true;
    }
    if (name.endsWith(u'.'))
        name.chop(1);
    // Internationalised names are checked in their ASCII form.
    const QString ascii = QString::fromLatin1(QUrl::toAce(name)).toLower();
    if (ascii.isEmpty() || ascii.size() > 253)
        return false;
    static const QRegularExpression label(
        QStringLiteral("^[a-z0-9_](?:[a-z0-9_-]{0,61}[a-z0-9_])?$"));
    const QStringList labels = ascii.split(u'.');
    // A bare word is more likely a typo than a top-level domain, unless marked as a suffix.
    if (labels.size() < 2 && !wildcard)
        return false;
    for (const QString &part : labels) {
        if (!label.match(part).hasMatch())
            return false;
    }
    // "1.2.3.999" is a mistyped address, not a domain.
    static const QRegularExpression numeric(QStringLiteral("^\\d+$"));
    return !numeric.match(labels.last()).hasMatch();
}
