#pragma once

#include <QWidget>

// Tells a screen reader what changed without moving the focus. Qt 6.8 and later send an
// accessibility announcement; before that an invisible notification changes its name and
// shows again, which screen readers speak as they speak a desktop notification.
class AccessibleAnnouncer : public QWidget
{
    Q_OBJECT

public:
    // Polite waits for the current speech; assertive interrupts it (failures).
    enum class Politeness { Polite, Assertive };
    Q_ENUM(Politeness)

    explicit AccessibleAnnouncer(QWidget *parent);

    void announce(const QString &text, Politeness politeness = Politeness::Polite);
    // What was said last, for a text log or a test.
    QString lastText() const { return m_lastText; }

Q_SIGNALS:
    void announced(const QString &text, AccessibleAnnouncer::Politeness politeness);

private:
    QString m_lastText;
};
