#pragma once

#include <QList>
#include <QString>

// What a custom split rule list may hold: one domain, IP address or CIDR range per line, with
// "#" comment lines and blank lines in between.
class SplitRuleValidator
{
public:
    struct Problem
    {
        int line = 0; // 1-based
        QString text; // the line as written, trimmed
    };

    struct Result
    {
        QList<Problem> problems; // the first bad lines, at most the limit asked for
        int badLines = 0;        // every bad line, also those past the limit
        int rules = 0;           // lines that are neither blank nor comments
    };

    static Result validate(const QString &content, int problemLimit);
    static bool isRule(const QString &line);
    // Neither blank nor a comment.
    static bool isContentLine(const QString &trimmedLine);
    static int ruleCount(const QString &content);

private:
    static bool isDomain(const QString &text);
    static bool isAddress(const QString &text, int *maxPrefix);
    static bool isCidr(const QString &text);
};
