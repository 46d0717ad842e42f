#include "SettingsFlow.h"

#include "AppState.h"
#include "BidiText.h"
#include "ControlWorker.h"
#include "MainWindow.h"
#include "RequestLedger.h"
#include "SettingsNotes.h"
#include "ShellNotifier.h"
#include "ShellText.h"
#include "ShellWorkers.h"
#include "TovraTrayApp.h"
#include "WindowBusyState.h"
#include "WindowController.h"

using Kind = RequestLedger::Kind;

namespace {

constexpr int kSettingsTimeoutMs = 10000;
constexpr int kRepairTimeoutMs = 30000;
constexpr int kStatusTimeoutMs = 1500;
constexpr int kStatusRetryMs = 5000;

} // namespace

SettingsFlow::SettingsFlow(const ShellContext &context, QObject *parent)
    : QObject(parent)
    , m_context(context)
{
    m_statusRetry.setSingleShot(true);
    m_statusRetry.setInterval(kStatusRetryMs);
    connect(&m_statusRetry, &QTimer::timeout, this, [this] {
        const MainWindow *window = m_context.window->window();
        if (window && window->isVisible() && window->currentPage() == MainWindow::SettingsPageIndex)
            load(Kind::SettingsStatus, "fetchStatus");
    });
}

void SettingsFlow::refreshConfigPaths(bool openLogs)
{
    m_openLogsPending = m_openLogsPending || openLogs;
    if (m_context.ledger->inFlight(Kind::ConfigPaths))
        return;
    const quint64 id = m_context.ledger->issue(Kind::ConfigPaths);
    QMetaObject::invokeMethod(m_context.workers->control(), "fetchConfigPaths",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kSettingsTimeoutMs));
}

void SettingsFlow::handleConfigPaths(quint64 requestId, const ConfigPaths &paths,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::ConfigPaths, requestId))
        return;
    const bool openLogs = m_openLogsPending;
    m_openLogsPending = false;
    const char *failure = QT_TRANSLATE_NOOP("TovraAppShell", "Could not load config paths");
    noteLoad(SettingsNotes::ConfigPaths, errorMessage, failure);
    if (!errorMessage.isEmpty()) {
        // Opening the logs was asked for by hand; a background load only leaves its note.
        if (openLogs)
            m_context.window->showSettingsOperationError(failureText(errorMessage, failure));
        return;
    }
    m_context.state->setConfigPaths(paths);
    if (openLogs)
        m_context.window->openLogDirectory(paths.logDir);
}

void SettingsFlow::setAPIURL(const QString &apiURL)
{
    m_apiURLReset = false;
    const quint64 id = m_context.ledger->issue(Kind::APIURL);
    QMetaObject::invokeMethod(m_context.workers->control(), "setAPIURL", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(QString, apiURL.trimmed()),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::resetAPIURL()
{
    m_apiURLReset = true;
    const quint64 id = m_context.ledger->issue(Kind::APIURL);
    QMetaObject::invokeMethod(m_context.workers->control(), "resetAPIURL", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::handleAPIURL(quint64 requestId, const APIURLConfigInfo &info,
                                const QString &errorMessage)
{
    if (m_context.ledger->accept(Kind::APIURLLoad, requestId)) {
        noteLoad(SettingsNotes::APIURL, errorMessage,
                 QT_TRANSLATE_NOOP("TovraAppShell", "Could not load API URL"));
        if (errorMessage.isEmpty())
            m_context.state->setAPIURLConfig(info);
        return;
    }
    if (!m_context.ledger->accept(Kind::APIURL, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    const bool reset = m_apiURLReset;
    m_apiURLReset = false;
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update API URL")));
        return;
    }
    m_context.state->setAPIURLConfig(info);
    if (reset)
        m_context.notifier->success(ShellText::tr("API URL reset to default"));
    else if (info.validated)
        m_context.notifier->success(ShellText::tr("API URL validated and saved"));
    else // saved all the same: the daemon validates it when it next reaches the service
        m_context.notifier->success(ShellText::tr("API URL saved but not validated"));
}

void SettingsFlow::setAutoConnect(const QString &value)
{
    const quint64 id = m_context.ledger->issue(Kind::AutoConnect);
    QMetaObject::invokeMethod(m_context.workers->control(), "setAutoConnectPreference",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, value),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::handleAutoConnect(quint64 requestId, const AutoConnectConfigInfo &info,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::AutoConnect, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update auto connect")));
        return;
    }
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.autoConnect = info.autoConnect;
    m_context.state->setRuntime(runtime);
}

void SettingsFlow::setProxyListeners(const QString &socksAddress, const QString &httpAddress)
{
    const quint64 id = m_context.ledger->issue(Kind::ProxyListen);
    QMetaObject::invokeMethod(
        m_context.workers->control(), "setProxyListeners", Qt::QueuedConnection, Q_ARG(quint64, id),
        Q_ARG(QString, socksAddress), Q_ARG(QString, httpAddress), Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::handleProxyListen(quint64 requestId, const ProxyListenResultInfo &info,
                                     const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::ProxyListen, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    if (!errorMessage.isEmpty()) {
        m_context.window->setSettingsNote(SettingsNotes::ProxyListen, QString());
        m_context.window->showSettingsOperationError(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell",
                                                        "Could not update proxy listen address")));
        return;
    }
    const QString text = info.appliesOnReconnect
                             ? ShellText::tr("Proxy listen address saved for reconnect")
                             : ShellText::tr("Proxy listen address updated");
    m_context.notifier->success(text);
    m_context.window->setSettingsNote(SettingsNotes::ProxyListen, text);
    RuntimeInfo runtime = m_context.state->runtime();
    runtime.proxyListeners = info.proxyListeners;
    m_context.state->setRuntime(runtime);
}

void SettingsFlow::setSplitDNSLocal(const QStringList &servers)
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSplitDNSLocal",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QStringList, servers),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::setSplitDNSPolicy(const QString &policy)
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "setSplitDNSPolicy",
                              Qt::QueuedConnection, Q_ARG(quint64, id), Q_ARG(QString, policy),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::clearSplitDNSLocal()
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "clearSplitDNSLocal",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::resetSplitDNS()
{
    const quint64 id = m_context.ledger->issue(Kind::SplitDNS);
    QMetaObject::invokeMethod(m_context.workers->control(), "resetSplitDNS", Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, kSettingsTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::handleSplitDNS(quint64 requestId, const SplitDNSInfo &info,
                                  const QString &errorMessage)
{
    if (m_context.ledger->accept(Kind::SplitDNSLoad, requestId)) {
        noteLoad(SettingsNotes::SplitDNS, errorMessage,
                 QT_TRANSLATE_NOOP("TovraAppShell", "Could not load split DNS"));
        if (errorMessage.isEmpty())
            m_context.state->setSplitDNS(info);
        return;
    }
    if (!m_context.ledger->accept(Kind::SplitDNS, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(failureText(
            errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Could not update split DNS")));
        return;
    }
    m_context.state->setSplitDNS(info);
    m_context.notifier->success(ShellText::tr("Split DNS updated"));
}

void SettingsFlow::repairDiagnostics()
{
    if (m_context.ledger->inFlight(Kind::Repair))
        return;
    const quint64 id = m_context.ledger->issue(Kind::Repair);
    QMetaObject::invokeMethod(m_context.workers->control(), "repairDiagnostics",
                              Qt::QueuedConnection, Q_ARG(quint64, id),
                              Q_ARG(int, kRepairTimeoutMs));
    WindowBusyState::showSettingsBusy(m_context);
}

void SettingsFlow::handleRepair(quint64 requestId, const RepairResultInfo &info,
                                const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::Repair, requestId))
        return;
    WindowBusyState::showSettingsBusy(m_context);
    m_context.window->setRepairResult(info);
    if (!errorMessage.isEmpty()) {
        m_context.window->showSettingsOperationError(
            failureText(errorMessage, QT_TRANSLATE_NOOP("TovraAppShell", "Repair failed")));
        return;
    }
    m_context.notifier->success(ShellText::tr("Repair completed"));
    m_context.tray->refreshStatus();
}

void SettingsFlow::refreshSettingsPage()
{
    load(Kind::SettingsStatus, "fetchStatus");
    // A change on its way answers with the fresh record anyway.
    if (!m_context.ledger->inFlight(Kind::KillSwitch))
        load(Kind::KillSwitchLoad, "fetchKillSwitch");
    if (!m_context.ledger->inFlight(Kind::APIURL))
        load(Kind::APIURLLoad, "fetchAPIURLConfig");
    if (!m_context.ledger->inFlight(Kind::Language))
        load(Kind::LanguageLoad, "fetchLanguageConfig");
    if (!m_context.ledger->inFlight(Kind::SplitDNS))
        load(Kind::SplitDNSLoad, "fetchSplitDNS");
    refreshConfigPaths(false);
}

void SettingsFlow::load(Kind kind, const char *method)
{
    if (m_context.ledger->inFlight(kind))
        return;
    const int timeoutMs = kind == Kind::SettingsStatus ? kStatusTimeoutMs : kSettingsTimeoutMs;
    const quint64 id = m_context.ledger->issue(kind);
    QMetaObject::invokeMethod(m_context.workers->control(), method, Qt::QueuedConnection,
                              Q_ARG(quint64, id), Q_ARG(int, timeoutMs));
}

void SettingsFlow::noteLoad(const QString &key, const QString &errorMessage, const char *fallback)
{
    m_context.window->setSettingsNote(
        key, errorMessage.isEmpty() ? QString() : failureText(errorMessage, fallback));
}

bool SettingsFlow::handleKillSwitchLoad(quint64 requestId, const KillSwitchInfo &info,
                                        const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::KillSwitchLoad, requestId))
        return false;
    noteLoad(SettingsNotes::KillSwitch, errorMessage,
             QT_TRANSLATE_NOOP("TovraAppShell", "Could not load kill switch"));
    if (errorMessage.isEmpty())
        m_context.state->setKillSwitch(info);
    return true;
}

bool SettingsFlow::handleStatus(quint64 requestId, const RuntimeInfo &info,
                                const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::SettingsStatus, requestId))
        return false;
    noteLoad(SettingsNotes::Status, errorMessage,
             QT_TRANSLATE_NOOP("TovraAppShell", "Could not reach the Tovra service"));
    if (!errorMessage.isEmpty()) {
        m_statusFailed = true;
        m_statusRetry.start();
        return true;
    }
    m_context.state->setRuntime(info);
    if (m_statusFailed) {
        // Back again: what failed with it is loaded anew.
        m_statusFailed = false;
        refreshSettingsPage();
    }
    return true;
}

bool SettingsFlow::handleLanguageLoad(quint64 requestId, const LanguageConfigInfo &info,
                                      const QString &errorMessage)
{
    if (!m_context.ledger->accept(Kind::LanguageLoad, requestId))
        return false;
    noteLoad(SettingsNotes::Language, errorMessage,
             QT_TRANSLATE_NOOP("TovraAppShell", "Could not load languages"));
    if (errorMessage.isEmpty())
        m_context.state->setLanguageConfig(info);
    return true;
}

void SettingsFlow::noteUpdateCheckStarted()
{
    m_context.window->setSettingsNote(SettingsNotes::UpdateCheck,
                                      ShellText::tr("Checking for updates..."));
}

void SettingsFlow::noteUpdateCheckFinished(const UpdateInfo &info, const QString &errorMessage)
{
    QString text;
    if (!errorMessage.isEmpty())
        text = failureText(errorMessage,
                           QT_TRANSLATE_NOOP("TovraAppShell", "Could not check for updates"));
    else if (info.updateAvailable)
        text = QCoreApplication::translate("TovraAppShell", "Tovra %1 is available")
                   .arg(isolated(info.versionCode));
    else
        text = ShellText::tr("Tovra is up to date");
    m_context.window->setSettingsNote(SettingsNotes::UpdateCheck, text);
}
