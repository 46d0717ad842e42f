#include "NotificationHost.h"

#include "AccessibleAnnouncer.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int kAreaMargin = 20;
constexpr int kMaxWidth = 460;

void repolish(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

NotificationHost::NotificationHost(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_message(new QLabel(this))
    , m_close(new QToolButton(this))
    , m_timer(new QTimer(this))
    , m_announcer(new AccessibleAnnouncer(this))
{
    setObjectName(QStringLiteral("TovraNotificationHost"));
    setProperty("tovraNotificationKind", QStringLiteral("info"));
    setAttribute(Qt::WA_StyledBackground, true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 8, 6);

    m_icon->setObjectName(QStringLiteral("TovraNotificationIcon"));
    m_icon->setAlignment(Qt::AlignCenter);
    m_icon->hide();

    m_message->setObjectName(QStringLiteral("TovraNotificationMessage"));
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_close->setObjectName(QStringLiteral("TovraNotificationClose"));
    m_close->setText(QStringLiteral("\u00D7"));
    m_close->setToolTip(tr("Dismiss notification"));
    m_close->setAccessibleName(tr("Dismiss notification"));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::StrongFocus);

    layout->addWidget(m_icon, 0, Qt::AlignVCenter);
    layout->addWidget(m_message, 1, Qt::AlignVCenter);
    layout->addWidget(m_close, 0, Qt::AlignTop);

    m_timer->setSingleShot(true);
    connect(m_close, &QToolButton::clicked, this, &NotificationHost::dismiss);
    connect(m_timer, &QTimer::timeout, this, &NotificationHost::dismiss);
    hide();
}

QString NotificationHost::kind() const
{
    return property("tovraNotificationKind").toString();
}

QString NotificationHost::normalizedKind(const QString &kind)
{
    const QString word = kind.trimmed().toLower();
    if (word == QLatin1String("error") || word == QLatin1String("success") ||
        word == QLatin1String("warning")) {
        return word;
    }
    return QStringLiteral("info");
}

QString NotificationHost::glyphForKind(const QString &kind)
{
    if (kind == QLatin1String("success")) {
        return QStringLiteral("\u2713");
    }
    if (kind == QLatin1String("warning")) {
        return QStringLiteral("!");
    }
    if (kind == QLatin1String("error")) {
        return QStringLiteral("\u2715");
    }
    return QString();
}

void NotificationHost::showMessage(const QString &text, const QString &kind, int durationMs)
{
    const QString message = text.trimmed();
    if (message.isEmpty()) {
        return;
    }
    m_message->setText(message);
    setAccessibleName(tr("Notification: %1").arg(message));

    const QString normalized = normalizedKind(kind);
    setProperty("tovraNotificationKind", normalized);
    // The icon's colour rule selects on the host's property, so both need a fresh polish.
    repolish(this);
    repolish(m_icon);

    // A square as tall as a line of the message, measured in the font the style sheet gives
    // it, which is only known once the message label is polished.
    m_message->ensurePolished();
    const int side = m_message->fontMetrics().height();
    m_icon->setFixedSize(side, side);

    const QString glyph = glyphForKind(normalized);
    m_icon->setText(glyph);
    m_icon->setVisible(!glyph.isEmpty());

    if (durationMs > 0) {
        m_timer->start(durationMs);
    } else {
        m_timer->stop();
    }
    show();
    raise();
    // Read out as it appears; an error interrupts whatever is being read.
    m_announcer->announce(message, normalized == QLatin1String("error")
                                       ? AccessibleAnnouncer::Politeness::Assertive
                                       : AccessibleAnnouncer::Politeness::Polite);
}

void NotificationHost::dismiss()
{
    m_timer->stop();
    hide();
}

int NotificationHost::fitWidth(int maximumWidth)
{
    const int limit = qMax(1, maximumWidth);
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    m_message->setWordWrap(false);
    adjustSize();
    const int oneLine = sizeHint().width();
    const int chosen = oneLine <= 1 ? 1 : qMin(limit, oneLine);
    m_message->setWordWrap(limit < oneLine);
    setFixedWidth(chosen);
    return chosen;
}

int NotificationHost::fittedHeight(int width) const
{
    // The widget's own height for width counts the frame's border around the layout too; the
    // layout's alone would cut the last wrapped line's descenders.
    return hasHeightForWidth() ? heightForWidth(width) : sizeHint().height();
}

void NotificationHost::placeIn(const QRect &area)
{
    const int availableWidth = area.width() - 2 * kAreaMargin;
    const int availableHeight = area.height() - 2 * kAreaMargin;
    if (availableWidth <= 0 || availableHeight <= 0) {
        return;
    }
    const int w = fitWidth(qMin(availableWidth, kMaxWidth));
    const int h = qMin(fittedHeight(w), availableHeight);
    int x = area.left() + kAreaMargin;
    if (availableWidth - w > 1) {
        x += (availableWidth - w) / 2;
    }
    const int bottom = area.top() + area.height() - kAreaMargin;
    setGeometry(x, bottom - h, w, h);
    raise();
}
