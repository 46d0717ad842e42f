#pragma once

#include <QColor>
#include <QScrollBar>

// A scroll bar that paints only a rounded handle in the theme's colours.
class ThemedScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit ThemedScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr);

    // Setting the pair it already has does not repaint.
    void setHandleColors(const QColor &handle, const QColor &pressed);
    QColor handleColor() const;
    QColor pressedHandleColor() const;

    // The handle's rectangle as painted.
    QRect handleRect() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_handle;
    QColor m_pressed;
};
