#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// The running client's one-line answer to a request: a result word and an optional
// percent-encoded detail ("ok", "busy", "failed detail=Could%20not%20connect").
// The launching process turns it into its exit code and, on failure, one line on stderr.
struct DesktopAnswer
{
    Q_DECLARE_TR_FUNCTIONS(DesktopAnswer)

public:
    // The values are the exit codes of the launching process.
    enum class Result {
        Done = 0,
        Failed = 1,
        UsageError = 2,
        UnknownLocation = 3,
        Busy = 4,
        SignedOut = 5,
        NotInPlan = 6,
    };

    Result result = Result::Done;
    // For a failure the daemon's or the client's own words, for a location the text asked for.
    QString detail;

    QByteArray encode() const;
    // False when the line is no answer at all.
    static bool parse(const QByteArray &line, DesktopAnswer *out);
    int exitCode() const { return int(result); }
    // The line for stderr, translated; empty for success.
    QString message() const;
};
