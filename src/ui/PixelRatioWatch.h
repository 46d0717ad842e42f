#pragma once

#include <QObject>
#include <QPointer>

class QScreen;
class QWidget;
class QWindow;

// Tells when a window's device pixel ratio really changed: moved to a screen of another ratio,
// or its screen's scale changed. Pictures rendered for the old ratio (tinted icons, flags) are
// rendered again then; a move between screens of one ratio costs nothing.
class PixelRatioWatch : public QObject
{
    Q_OBJECT

public:
    explicit PixelRatioWatch(QWidget *window);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QScreen *screen);
    void check();

    QWidget *m_window;
    QPointer<QWindow> m_handle;
    QPointer<QScreen> m_screen;
    qreal m_ratio;
};
