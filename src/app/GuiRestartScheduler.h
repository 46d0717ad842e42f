#pragma once

#include <QObject>

#include <functional>

// Starts at most one replacement process at a time, after a delay.
class GuiRestartScheduler : public QObject
{
    Q_OBJECT

public:
    explicit GuiRestartScheduler(QObject *parent = nullptr);

    bool isPending() const { return m_pending; }

    // Ignored while a restart is pending. A failed launch makes the scheduler ready again; a
    // successful one leaves it pending, since the process is about to quit.
    void schedule(int delayMs, std::function<bool()> launch, std::function<void()> onFailure = {},
                  std::function<void()> onSuccess = {});

private:
    bool m_pending = false;
};
