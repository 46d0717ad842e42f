#include "ToggleSwitch.h"

#include "AccessibleControl.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr qreal kTrackWidth = 46;
constexpr qreal kTrackHeight = 26;
constexpr qreal kInset = 3;
constexpr qreal kThumbDiameter = kTrackHeight - 2 * kInset;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget *parent)
    : QAbstractButton(parent)
{
    AccessibleControl::attach(this, QAccessible::CheckBox);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

QSize ToggleSwitch::sizeHint() const
{
    return QSize(46, 26);
}

QSize ToggleSwitch::minimumSizeHint() const
{
    return QSize(46, 26);
}

QRectF ToggleSwitch::trackRect() const
{
    return QRectF((width() - kTrackWidth) / 2.0, (height() - kTrackHeight) / 2.0, kTrackWidth,
                  kTrackHeight);
}

QRectF ToggleSwitch::thumbRect() const
{
    const QRectF track = trackRect();
    const bool onRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const qreal x = onRight ? track.right() - kInset - kThumbDiameter : track.left() + kInset;
    return QRectF(x, track.top() + kInset, kThumbDiameter, kThumbDiameter);
}

bool ToggleSwitch::hitButton(const QPoint &pos) const
{
    return rect().contains(pos);
}

void ToggleSwitch::nextCheckState()
{
    Q_EMIT toggleRequested(!isChecked());
}

void ToggleSwitch::keyPressEvent(QKeyEvent *event)
{
    // Space is handled by the button; Return and Enter act on the focused switch too.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        event->accept();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

QColor ToggleSwitch::themeColor(const char *property, const QColor &fallback) const
{
    const QVariant value = property ? this->property(property) : QVariant();
    const QColor color = value.value<QColor>();
    return color.isValid() ? color : fallback;
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QPalette &pal = palette();
    QColor track = isChecked()
                       ? themeColor("tovraSwitchCheckedTrack", pal.color(QPalette::Highlight))
                       : themeColor("tovraSwitchUncheckedTrack", pal.color(QPalette::Mid));
    QColor thumb = themeColor("tovraSwitchThumb", pal.color(QPalette::Base));
    // Unset only outside the theme; a faint shadow keeps a white thumb visible on light tracks.
    QColor thumbBorder = themeColor("tovraSwitchThumbBorder", QColor(0, 0, 0, 70));
    const QColor focus = themeColor("tovraSwitchFocus", pal.color(QPalette::Highlight));

    if (!isEnabled()) {
        track.setAlpha(85);
        thumb.setAlpha(150);
        thumbBorder.setAlpha(thumbBorder.alpha() / 2);
    }

    const QRectF trackArea = trackRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(track);
    painter.drawRoundedRect(trackArea, kTrackHeight / 2, kTrackHeight / 2);

    painter.setBrush(thumb);
    if (thumbBorder.alpha() > 0) {
        painter.setPen(QPen(thumbBorder, 1));
    }
    painter.drawEllipse(thumbRect());

    if (hasFocus()) {
        const QVariant asked = property("tovraSwitchFocusWidth");
        const qreal width = asked.isValid() ? asked.toInt() : 2;
        const QRectF ring = trackArea.adjusted(-width / 2, -width / 2, width / 2, width / 2);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(focus, width));
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
}
