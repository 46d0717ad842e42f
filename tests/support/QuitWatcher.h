#pragma once

#include <QObject>

#include <functional>

// Counts the application's quit requests. QCoreApplication::quit() does nothing unless the
// event loop runs, so runLoopAround() runs an action inside the application's loop.
class QuitWatcher : public QObject
{
    Q_OBJECT

public:
    QuitWatcher();
    ~QuitWatcher() override;

    int quitRequests() const { return m_quitRequests; }
    // Runs the application's event loop, calls `action` from it, and leaves the loop after.
    static void runLoopAround(const std::function<void()> &action);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_quitRequests = 0;
};
