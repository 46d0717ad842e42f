#include "ThemedScrollBar.h"

#include <QPainter>
#include <QStyleOptionSlider>

ThemedScrollBar::ThemedScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void ThemedScrollBar::setHandleColors(const QColor &handle, const QColor &pressed)
{
    if (handle == m_handle && pressed == m_pressed) {
        return;
    }
    m_handle = handle;
    m_pressed = pressed;
    update();
}

QColor ThemedScrollBar::handleColor() const
{
    return m_handle.isValid() ? m_handle : palette().color(QPalette::PlaceholderText);
}

QColor ThemedScrollBar::pressedHandleColor() const
{
    return m_pressed.isValid() ? m_pressed : palette().color(QPalette::Text);
}

QRect ThemedScrollBar::handleRect() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    QRect handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    // A thin handle centred across the bar, so it reads as an overlay rather than a control.
    if (orientation() == Qt::Vertical) {
        const int thickness = qMax(4, width() - 4);
        handle = QRect(handle.x() + (handle.width() - thickness) / 2, handle.y() + 1, thickness,
                       qMax(0, handle.height() - 2));
    } else {
        const int thickness = qMax(4, height() - 4);
        handle = QRect(handle.x() + 1, handle.y() + (handle.height() - thickness) / 2,
                       qMax(0, handle.width() - 2), thickness);
    }
    return handle;
}

void ThemedScrollBar::paintEvent(QPaintEvent *)
{
    if (maximum() <= minimum()) {
        return;
    }
    const QRect handle = handleRect();
    if (handle.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor color = isSliderDown() ? pressedHandleColor() : handleColor();
    if (!isSliderDown() && !underMouse()) {
        color.setAlphaF(color.alphaF() * 0.7f);
    }
    painter.setBrush(color);
    const qreal radius = qMin(handle.width(), handle.height()) / 2.0;
    painter.drawRoundedRect(QRectF(handle), radius, radius);
}
