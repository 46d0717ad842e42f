#include "GuiRestartScheduler.h"

#include <QTimer>

GuiRestartScheduler::GuiRestartScheduler(QObject *parent)
    : QObject(parent)
{}

void GuiRestartScheduler::schedule(int delayMs, std::function<bool()> launch,
                                   std::function<void()> onFailure, std::function<void()> onSuccess)
{
    if (m_pending)
        return;
    m_pending = true;
    QTimer::singleShot(qMax(delayMs, 0), this,
                       [this, launch = std::move(launch), onFailure = std::move(onFailure),
                        onSuccess = std::move(onSuccess)] {
                           const bool launched = launch && launch();
                           if (!launched) {
                               m_pending = false;
                               if (onFailure)
                                   onFailure();
                           } else if (onSuccess) {
                               onSuccess();
                           }
                       });
}
