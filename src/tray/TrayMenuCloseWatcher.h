#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QMenu;
class QTimer;

// After the main menu hides, waits until no popup is active and none of the watched menus is
// visible any more (a submenu may outlive its parent's hide), then reports the menu closed.
class TrayMenuCloseWatcher : public QObject
{
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 250;

    // Null menus (absent in the flat layout) are skipped.
    TrayMenuCloseWatcher(QMenu *mainMenu, const QList<QMenu *> &watched, QObject *parent = nullptr);

    bool isWatching() const;

Q_SIGNALS:
    void menuOpened();
    void menuClosed();

private:
    void check();
    bool anyShown() const;

    QPointer<QMenu> m_mainMenu;
    QList<QPointer<QMenu>> m_watched;
    QTimer *m_timer;
    bool m_open = false;
};
