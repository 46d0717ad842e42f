#pragma once

#include <QFrame>

class AccessibleAnnouncer;
class QLabel;
class QTimer;
class QToolButton;

// One short message at a time near the bottom of the page area; a new one replaces the old.
class NotificationHost : public QFrame
{
    Q_OBJECT

public:
    explicit NotificationHost(QWidget *parent = nullptr);

    void showMessage(const QString &text, const QString &kind, int durationMs);
    void dismiss();
    int fitWidth(int maximumWidth);
    // The height the host needs at `width`: wrapped when the layout wraps, else its hint.
    int fittedHeight(int width) const;

    // Places the host centred along the bottom of `area` (in parent coordinates); leaves it
    // where it is when the area is too small.
    void placeIn(const QRect &area);

    QString kind() const;
    static QString normalizedKind(const QString &kind);
    static QString glyphForKind(const QString &kind);

private:
    QLabel *m_icon = nullptr;
    QLabel *m_message = nullptr;
    QToolButton *m_close = nullptr;
    QTimer *m_timer = nullptr;
    AccessibleAnnouncer *m_announcer = nullptr;
};
