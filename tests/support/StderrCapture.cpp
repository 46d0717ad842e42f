#include "StderrCapture.h"

#include <cstdio>
#include <unistd.h>

StderrCapture::StderrCapture()
{
    if (!m_file.open()) {
        return;
    }
    std::fflush(stderr);
    m_savedFd = ::dup(STDERR_FILENO);
    ::dup2(m_file.handle(), STDERR_FILENO);
}

StderrCapture::~StderrCapture()
{
    stop();
}

QString StderrCapture::stop()
{
    if (m_savedFd < 0) {
        return QString();
    }
    std::fflush(stderr);
    ::dup2(m_savedFd, STDERR_FILENO);
    ::close(m_savedFd);
    m_savedFd = -1;
    m_file.seek(0);
    return QString::fromUtf8(m_file.readAll());
}
