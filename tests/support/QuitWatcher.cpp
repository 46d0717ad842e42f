#include "QuitWatcher.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

QuitWatcher::QuitWatcher()
{
    QCoreApplication::instance()->installEventFilter(this);
}

QuitWatcher::~QuitWatcher()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

void QuitWatcher::runLoopAround(const std::function<void()> &action)
{
    QTimer::singleShot(0, QCoreApplication::instance(), [action] {
        action();
        QCoreApplication::exit(0);
    });
    QCoreApplication::exec();
}

bool QuitWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit) {
        ++m_quitRequests;
    }
    return QObject::eventFilter(watched, event);
}
