#pragma once

#include <QFrame>
#include <QList>
#include <QString>

class QButtonGroup;
class QPushButton;

// A row of joined buttons, one per value, of which at most one is checked. Like a switch it
// never checks itself: a click asks for a value and the owner checks what the daemon reports.
class ModeSegmentedBar : public QFrame
{
    Q_OBJECT

public:
    explicit ModeSegmentedBar(const QString &accessibleName, QWidget *parent = nullptr);

    // Appends a segment; the first and last get their rounded ends.
    QPushButton *addSegment(const QString &value, const QString &text,
                            const QString &description = QString());
    void clearSegments();
    void setSegmentText(const QString &value, const QString &text);

    // Checks the segment of this value; an unknown value checks none.
    void setCurrentValue(const QString &value);
    QString currentValue() const;
    QStringList values() const;
    QPushButton *segment(const QString &value) const;

    // The bar sits flush on an editor below it and loses its bottom corners.
    void setAttachedToEditor(bool attached);

Q_SIGNALS:
    void valueRequested(const QString &value);

private:
    void updatePositions();
    // The checked segment's text is bold: room for that, so it never clips.
    static void fitText(QPushButton *button);

    QButtonGroup *m_group;
    QList<QPushButton *> m_buttons;
    QString m_current;
    bool m_attached = false;
};
