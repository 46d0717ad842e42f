#pragma once

#include "ShellContext.h"

#include "LanguageConfigInfo.h"
#include "RuntimeInfo.h"

#include <QObject>
#include <QTimer>

#include <functional>

// The interface language: the settings change, telling a daemon that follows the desktop which
// language the desktop uses (retrying with back-off while no status is known), and the restart
// that applies a new language, asked for at most once per process.
class LanguageFlow : public QObject
{
    Q_OBJECT

public:
    static constexpr int kFirstRetryDelayMs = 1000;
    static constexpr int kMaxRetryDelayMs = 30000;

    explicit LanguageFlow(const ShellContext &context, QObject *parent = nullptr);

    void setCurrentLanguage(const QString &tag);
    QString currentLanguage() const { return m_currentLanguage; }
    void setRestartAllowed(bool allowed) { m_restartAllowed = allowed; }
    bool hasRequestedRestart() const { return m_restartRequested; }
    // The desktop's language; replaceable so tests need not change the process locale.
    void setSystemLanguageSource(std::function<QString()> source)
    {
        m_systemLanguage = std::move(source);
    }

    void setLanguage(const QString &source, const QString &language);
    // Runs on every status and connect answer, failed or unchanged ones too, and on retries.
    void checkSystemLanguage();
    // Restarts when the daemon's effective language differs from the one in use.
    void followEffectiveLanguage(const QString &effectiveLanguage);
    void handleRestartFailed();

    int retryDelayMs() const { return m_retryDelayMs; }
    bool retryTimerActive() const { return m_retryTimer.isActive(); }
    int retryTimerIntervalMs() const { return m_retryTimer.interval(); }
    bool syncInFlight() const;

    void handleLanguage(quint64 requestId, const LanguageConfigInfo &info,
                        const QString &errorMessage);

Q_SIGNALS:
    void restartRequested();

private:
    ShellContext m_context;
    QTimer m_retryTimer;
    int m_retryDelayMs = kFirstRetryDelayMs;
    QString m_currentLanguage;
    bool m_restartAllowed = true;
    bool m_restartRequested = false;
    std::function<QString()> m_systemLanguage;
};
