#pragma once

#include <QString>
#include <QTemporaryFile>

// Sends the process's standard error into a temporary file until stopped, for tests of
// diagnostics written straight to the stream.
class StderrCapture
{
public:
    StderrCapture();
    ~StderrCapture();
    StderrCapture(const StderrCapture &) = delete;
    StderrCapture &operator=(const StderrCapture &) = delete;

    // Restores standard error and returns everything written meanwhile.
    QString stop();

private:
    QTemporaryFile m_file;
    int m_savedFd = -1;
};
