#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget *parent)
    : ElidedLabel(QString(), parent)
{}

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setTextFormat(Qt::PlainText);
    setWordWrap(false);
}

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    if (m_elideMode == mode) {
        return;
    }
    m_elideMode = mode;
    update();
}

int ElidedLabel::textWidth() const
{
    return contentsRect().width();
}

QRect ElidedLabel::textRect() const
{
    return contentsRect();
}

QString ElidedLabel::displayedText() const
{
    return fontMetrics().elidedText(text(), m_elideMode, qMax(0, textWidth()));
}

bool ElidedLabel::isElided() const
{
    return displayedText() != text();
}

QSize ElidedLabel::minimumSizeHint() const
{
    // Room for an ellipsis and a letter or two; the rest is negotiable.
    const QSize hint = QLabel::minimumSizeHint();
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("M\u2026")) +
                      contentsMargins().left() + contentsMargins().right();
    return QSize(qMin(hint.width(), width), hint.height());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const Qt::Alignment align = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, textRect(), int(align | Qt::AlignVCenter), palette(),
                          isEnabled(), displayedText(), foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    // The owner's own tool tip wins; otherwise a cut text offers itself in full.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isElided()) {
        auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}
