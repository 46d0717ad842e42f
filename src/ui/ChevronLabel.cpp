#include "ChevronLabel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

constexpr int kChevronBox = 16;
constexpr int kGap = 6;

} // namespace

ChevronLabel::ChevronLabel(const QString &text, QWidget *parent)
    : QAbstractButton(parent)
{
    setText(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ChevronLabel::setChevron(Chevron chevron)
{
    if (m_chevron != chevron) {
        m_chevron = chevron;
        update();
    }
}

QSize ChevronLabel::sizeHint() const
{
    const QMargins m = contentsMargins();
    const int height = qMax(fontMetrics().height(), kChevronBox) + 8;
    return QSize(fontMetrics().horizontalAdvance(text()) + kGap + kChevronBox + m.left() +
                     m.right() + 4,
                 height + m.top() + m.bottom());
}

QSize ChevronLabel::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("M\u2026")) + kGap +
                      kChevronBox + contentsMargins().left() + contentsMargins().right();
    return QSize(qMin(hint.width(), width), hint.height());
}

QRect ChevronLabel::chevronRect() const
{
    const QRect area = contentsRect().adjusted(2, 0, -2, 0);
    const QRect box(area.right() - kChevronBox + 1, area.center().y() - kChevronBox / 2 + 1,
                    kChevronBox, kChevronBox);
    return QStyle::visualRect(layoutDirection(), rect(), box);
}

QRect ChevronLabel::textRect() const
{
    const QRect area = contentsRect().adjusted(2, 0, -2, 0);
    const QRect box = area.adjusted(0, 0, -(kChevronBox + kGap), 0);
    return QStyle::visualRect(layoutDirection(), rect(), box);
}

QString ChevronLabel::displayedText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, qMax(0, textRect().width()));
}

void ChevronLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPalette &pal = palette();
    style()->drawItemText(
        &painter, textRect(),
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter), pal,
        isEnabled(), displayedText(), QPalette::WindowText);

    // Drawn as a stroke rather than a glyph so it matches the icon set at any font.
    const QRectF box = QRectF(chevronRect()).adjusted(4, 4, -4, -4);
    QPainterPath path;
    if (m_chevron == Chevron::Down) {
        path.moveTo(box.left(), box.top() + box.height() * 0.3);
        path.lineTo(box.center().x(), box.top() + box.height() * 0.75);
        path.lineTo(box.right(), box.top() + box.height() * 0.3);
    } else {
        const bool rtl = layoutDirection() == Qt::RightToLeft;
        const qreal back = rtl ? box.right() - box.width() * 0.25 : box.left() + box.width() * 0.25;
        const qreal tip = rtl ? box.left() + box.width() * 0.25 : box.right() - box.width() * 0.25;
        path.moveTo(back, box.top());
        path.lineTo(tip, box.center().y());
        path.lineTo(back, box.bottom());
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color =
        pal.color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                  underMouse() || hasFocus() ? QPalette::WindowText : QPalette::PlaceholderText);
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);

    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void ChevronLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        event->accept();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}
