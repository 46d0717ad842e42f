#pragma once

#include "ConfigPaths.h"

#include <QString>
#include <QUrl>

#include <functional>

class AppState;
class ControlWorker;
class TrayNotifier;
class TrayRequestIds;

// "Open Logs": asks the daemon where its log directory is and hands that to the desktop's
// opener; every way this can fail ends in a message.
class TrayLogOpener
{
public:
    TrayLogOpener(AppState *state, ControlWorker *worker, TrayRequestIds *ids,
                  TrayNotifier *notifier);

    // Defaults to the desktop's own opener.
    void setUrlOpener(std::function<bool(const QUrl &)> opener);

    void open();
    void handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                   const QString &errorMessage);

private:
    AppState *m_state;
    ControlWorker *m_worker;
    TrayRequestIds *m_ids;
    TrayNotifier *m_notifier;
    std::function<bool(const QUrl &)> m_urlOpener;
};
