#include "LanguageFlow.h"

#include "AppState.h"
#include "ControlWorker.h"
#include "GuiPreferences.h"
#include "RequestLedger.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TranslationManager.h"
#include "WindowController.h"

#include <algorithm>

using Kind = RequestLedger::Kind;

namespace {

constexpr int kSyncTimeoutMs = 1500;
constexpr int kLanguageTimeoutMs = 10000;

} // namespace

LanguageFlow::LanguageFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
    , m_systemLanguage([] { return TranslationManager::systemLanguage(); })
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &LanguageFlow::checkSystemLanguage);
}

void LanguageFlow::setCurrentLanguage(const QString &tag)
{
    m_currentLanguage = TranslationManager::normalize(tag);
}

bool LanguageFlow::syncInFlight() const
{
    return m_context.ledger->inFlight(Kind::LanguageSync);
}

void LanguageFlow::setLanguage(const QString &source, const QString &language)
{
    const quint64 id = m_context.ledger->issue(Kind::Language);
    QMetaObject::invokeMethod(m_context.workers->control(), "setLanguage", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, source), Q_ARG(QString, language),
                              Q_ARG(int, kLanguageTimeoutMs));
}

void LanguageFlow::checkSystemLanguage()
{
    if (syncInFlight())
        return;
    const RuntimeInfo &runtime = m_context.state->runtime();
    if (!runtime.valid) {
        // No status yet: look again later, backing off up to half a minute. Answers that come
        // in meanwhile leave a pending retry alone, so only the retries themselves back off.
        if (!m_retryTimer.isActive()) {
            m_retryTimer.start(m_retryDelayMs);
            m_retryDelayMs = std::min(m_retryDelayMs * 2, kMaxRetryDelayMs);
        }
        return;
    }
    const QString systemTag = TranslationManager::normalize(m_systemLanguage());
    if (runtime.languageSource.trimmed() != QLatin1String("system") ||
        systemTag == TranslationManager::normalize(runtime.language)) {
        m_retryDelayMs = kFirstRetryDelayMs;
        m_retryTimer.stop();
        return;
    }
    m_retryTimer.stop();
    // Applied by the daemon only while its source is still "system", so a user's own choice that
    // raced this request is never overwritten.
    const quint64 id = m_context.ledger->issue(Kind::LanguageSync);
    QMetaObject::invokeMethod(m_context.workers->control(), "setLanguageIfSource",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(QString, QStringLiteral("system")), Q_ARG(QString, systemTag),
                              Q_ARG(QString, QStringLiteral("system")), Q_ARG(int, kSyncTimeoutMs));
}

void LanguageFlow::handleLanguage(quint64 requestId, const LanguageConfigInfo &info,
                                  const QString &errorMessage)
{
    const bool sync = m_context.ledger->isLatest(Kind::LanguageSync, requestId);
    if (!m_context.ledger->accept(sync ? Kind::LanguageSync : Kind::Language, requestId))
        return;
    if (!errorMessage.isEmpty()) {
        if (!sync)
            m_context.window->showSettingsOperationError(failureText(
                errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update language")));
        return;
    }
    m_context.state->setLanguageConfig(info);
    followEffectiveLanguage(info.effectiveLanguage);
}

void LanguageFlow::followEffectiveLanguage(const QString &effectiveLanguage)
{
    const QString tag = TranslationManager::normalize(effectiveLanguage.trimmed());
    if (tag.isEmpty() || tag == m_currentLanguage)
        return;
    m_context.preferences->setLastEffectiveLanguage(tag);
    if (!m_restartAllowed || m_restartRequested)
        return;
    m_restartRequested = true;
    m_context.notifier->info(ShellText::tr("Restarting Tovra to apply the interface language."));
    Q_EMIT restartRequested();
}

void LanguageFlow::handleRestartFailed()
{
    // The flag stays set: one failed automatic restart is not tried again.
    m_context.notifier->error(
        ShellText::tr("Could not restart Tovra. Please restart the app manually."));
}
