#include "LocationItemDelegate.h"

#include "LocationRoles.h"
#include "ThemeColors.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QtMath>

namespace {

constexpr int kRowHeight = 40;
constexpr int kPadding = 12;
constexpr int kGap = 10;
constexpr QSize kFlagSize(24, 16);
constexpr int kStarSide = 18;
constexpr QSize kBarsSize(16, 12);

QColor pick(const QColor &themed, const QColor &fallback)
{
    return themed.isValid() ? themed : fallback;
}

QPainterPath starPath(const QRectF &box)
{
    QPainterPath path;
    const QPointF centre = box.center();
    const qreal outer = qMin(box.width(), box.height()) / 2.0;
    const qreal inner = outer * 0.45;
    for (int i = 0; i < 10; ++i) {
        const qreal radius = i % 2 == 0 ? outer : inner;
        const qreal angle = qDegreesToRadians(-90.0 + i * 36.0);
        const QPointF point(centre.x() + radius * qCos(angle),
                            centre.y() + radius * qSin(angle) + outer * 0.08);
        if (i == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    path.closeSubpath();
    return path;
}

} // namespace

LocationItemDelegate::LocationItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

void LocationItemDelegate::setThemeColors(const ThemeColors &colors)
{
    m_accent = colors.color(ThemeColor::Accent);
    m_warning = colors.color(ThemeColor::Warning);
    m_muted = colors.color(ThemeColor::TextMuted);
    m_subtleFill = colors.color(ThemeColor::SubtleFill);
    m_subtleBorder = colors.color(ThemeColor::SubtleBorder);
    m_hover = colors.color(ThemeColor::SidebarHover);
    m_selected = colors.color(ThemeColor::SidebarSelectedBg);
}

int LocationItemDelegate::barsFor(int signalLevel, int pingMs)
{
    if (signalLevel >= 0) {
        return qBound(0, signalLevel, 4);
    }
    if (pingMs < 0) {
        return 0;
    }
    if (pingMs < 80) {
        return 4;
    }
    if (pingMs < 150) {
        return 3;
    }
    if (pingMs < 250) {
        return 2;
    }
    return 1;
}

QString LocationItemDelegate::pingText(int pingMs)
{
    return pingMs < 0 ? QStringLiteral("\u2014") : tr("%1 ms").arg(pingMs);
}

LocationItemDelegate::RowLayout LocationItemDelegate::rowLayout(const QStyleOptionViewItem &option,
                                                                const QModelIndex &index) const
{
    const QRect area = option.rect.adjusted(kPadding, 0, -kPadding, 0);
    const int midY = area.center().y();
    const bool group = index.data(LocationIsGroupRole).toBool();
    const QFontMetrics metrics(option.font);

    // Laid out left to right from both ends, then mirrored as a whole.
    RowLayout row;
    int left = area.left();
    int right = area.right() + 1;
    row.flag = QRect(QPoint(left, midY - kFlagSize.height() / 2 + 1), kFlagSize);
    left = row.flag.right() + 1 + kGap;
    if (!group) {
        row.star = QRect(right - kStarSide, midY - kStarSide / 2 + 1, kStarSide, kStarSide);
        right = row.star.left() - kGap;
        row.bars =
            QRect(QPoint(right - kBarsSize.width(), midY - kBarsSize.height() / 2 + 1), kBarsSize);
        right = row.bars.left() - 6;
        const int pingWidth = metrics.horizontalAdvance(tr("%1 ms").arg(888));
        row.ping = QRect(right - pingWidth, area.top(), pingWidth, area.height());
        right = row.ping.left() - kGap;
    }
    const QString tier = index.data(LocationTierRole).toString();
    if (!tier.isEmpty()) {
        QFont badgeFont = option.font;
        badgeFont.setPixelSize(10);
        badgeFont.setWeight(QFont::DemiBold);
        const int width = QFontMetrics(badgeFont).horizontalAdvance(tier) + 12;
        row.badge = QRect(right - width, midY - 9 + 1, width, 18);
        right = row.badge.left() - kGap;
    }
    row.name = QRect(left, area.top(), qMax(0, right - left), area.height());

    const Qt::LayoutDirection dir = option.direction;
    for (QRect *rect : {&row.flag, &row.name, &row.badge, &row.ping, &row.bars, &row.star}) {
        if (!rect->isNull()) {
            *rect = QStyle::visualRect(dir, option.rect, *rect);
        }
    }
    return row;
}

QSize LocationItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), kRowHeight));
    return size;
}

void LocationItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QPalette &pal = opt.palette;
    const RowLayout row = rowLayout(opt, index);
    const bool hovered = opt.state & QStyle::State_MouseOver;
    const bool selected = opt.state & QStyle::State_Selected;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(opt.direction);
    if (selected || hovered) {
        const QColor fill = selected ? pick(m_selected, pal.color(QPalette::Highlight))
                                     : pick(m_hover, pal.color(QPalette::AlternateBase));
        painter->setPen(Qt::NoPen);
        painter->setBrush(fill);
        painter->drawRoundedRect(QRectF(opt.rect).adjusted(2, 1, -2, -1), 6, 6);
    }
    if (opt.state & QStyle::State_HasFocus) {
        // The keyboard's row in a focused list: the same ring as every other control.
        painter->setPen(QPen(pick(m_accent, pal.color(QPalette::Highlight)), 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(opt.rect).adjusted(3, 2, -3, -2), 5, 5);
    }

    const QVariant decoration = index.data(Qt::DecorationRole);
    QPixmap flag;
    if (decoration.canConvert<QPixmap>() && decoration.userType() == QMetaType::QPixmap) {
        flag = decoration.value<QPixmap>();
    } else if (decoration.userType() == QMetaType::QIcon) {
        flag = decoration.value<QIcon>().pixmap(kFlagSize, painter->device()->devicePixelRatioF());
    }
    // A row of a tier the plan lacks stays readable but steps back.
    const bool locked = index.data(LocationLockedRole).toBool();
    if (!flag.isNull()) {
        painter->setOpacity(locked ? 0.45 : 1.0);
        painter->drawPixmap(row.flag, flag);
        painter->setOpacity(1.0);
    } else {
        painter->setPen(QPen(pick(m_subtleBorder, pal.color(QPalette::Mid)), 1));
        painter->setBrush(pick(m_subtleFill, pal.color(QPalette::AlternateBase)));
        painter->drawRoundedRect(QRectF(row.flag).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }

    QFont nameFont = opt.font;
    const bool connected = index.data(LocationConnectedRole).toBool();
    if (connected || index.data(LocationIsGroupRole).toBool()) {
        nameFont.setWeight(QFont::DemiBold);
    }
    painter->setFont(nameFont);
    // Names and ping come from the daemon in any script: let their own text pick the reading
    // direction, so "24 ms" stays "24 ms" in a mirrored row.
    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
    const QColor textColor = connected ? pick(m_accent, pal.color(QPalette::Highlight))
                             : locked  ? pick(m_muted, pal.color(QPalette::PlaceholderText))
                                       : pal.color(QPalette::Text);
    painter->setPen(textColor);
    const QString name =
        QFontMetrics(nameFont).elidedText(opt.text, Qt::ElideRight, row.name.width());
    painter->drawText(row.name,
                      int(QStyle::visualAlignment(opt.direction, Qt::AlignLeft) | Qt::AlignVCenter),
                      name);

    const QString tier = index.data(LocationTierRole).toString();
    if (!tier.isEmpty()) {
        paintBadge(painter, row.badge, tier, pal);
    }

    if (!index.data(LocationIsGroupRole).toBool()) {
        const int ping =
            index.data(LocationPingMsRole).isValid() ? index.data(LocationPingMsRole).toInt() : -1;
        const int level = index.data(LocationSignalLevelRole).isValid()
                              ? index.data(LocationSignalLevelRole).toInt()
                              : -1;
        painter->setFont(opt.font);
        painter->setPen(pick(m_muted, pal.color(QPalette::PlaceholderText)));
        painter->drawText(
            row.ping,
            int(QStyle::visualAlignment(opt.direction, Qt::AlignRight) | Qt::AlignVCenter),
            pingText(ping));
        painter->setLayoutDirection(opt.direction);
        paintBars(painter, row.bars, barsFor(level, ping), pal);
        paintStar(painter, row.star, index.data(LocationFavoriteRole).toBool(), hovered, pal);
    }
    painter->restore();
}

void LocationItemDelegate::paintBadge(QPainter *painter, const QRect &rect, const QString &tier,
                                      const QPalette &palette) const
{
    // The paid tier stands out in the accent; the free one stays quiet.
    const bool paid = tier.compare(QLatin1String("SVIP"), Qt::CaseInsensitive) == 0;
    const QColor accent = pick(m_accent, palette.color(QPalette::Highlight));
    QColor fill = paid ? accent : pick(m_subtleFill, palette.color(QPalette::AlternateBase));
    const QColor border = paid ? accent : pick(m_subtleBorder, palette.color(QPalette::Mid));
    painter->setPen(QPen(border, 1));
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    QFont font = painter->font();
    font.setPixelSize(10);
    font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen(paid ? QColor(Qt::white) : pick(m_muted, palette.color(QPalette::Text)));
    painter->drawText(rect, Qt::AlignCenter, tier);
}

void LocationItemDelegate::paintBars(QPainter *painter, const QRect &rect, int bars,
                                     const QPalette &palette) const
{
    const QColor on = bars <= 1 ? pick(m_warning, palette.color(QPalette::Text))
                                : pick(m_accent, palette.color(QPalette::Highlight));
    const QColor off = pick(m_subtleBorder, palette.color(QPalette::Mid));
    painter->setPen(Qt::NoPen);
    const qreal barWidth = 3;
    const qreal step = (rect.width() - barWidth) / 3.0;
    for (int i = 0; i < 4; ++i) {
        const qreal height = rect.height() * (i + 1) / 4.0;
        // Bars grow towards the trailing edge; mirrored rows grow the other way.
        const int slot = painter->layoutDirection() == Qt::RightToLeft ? 3 - i : i;
        const QRectF bar(rect.left() + slot * step, rect.bottom() + 1 - height, barWidth, height);
        painter->setBrush(i < bars ? on : off);
        painter->drawRoundedRect(bar, 1, 1);
    }
}

void LocationItemDelegate::paintStar(QPainter *painter, const QRect &rect, bool favorite,
                                     bool hovered, const QPalette &palette) const
{
    const QPainterPath path = starPath(QRectF(rect).adjusted(1, 1, -1, -1));
    if (favorite) {
        const QColor gold = pick(m_warning, palette.color(QPalette::Highlight));
        painter->setPen(QPen(gold, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(gold);
    } else {
        const QColor outline = hovered ? palette.color(QPalette::Text)
                                       : pick(m_muted, palette.color(QPalette::PlaceholderText));
        painter->setPen(QPen(outline, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
    }
    painter->drawPath(path);
}

bool LocationItemDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                       const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() == QEvent::MouseButtonRelease && !index.data(LocationIsGroupRole).toBool()) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        const RowLayout row = rowLayout(option, index);
        if (mouse->button() == Qt::LeftButton &&
            row.star.adjusted(-4, -4, 4, 4).contains(mouse->position().toPoint())) {
            Q_EMIT favoriteToggleRequested(index.data(LocationNodeIdRole).toString(),
                                           !index.data(LocationFavoriteRole).toBool());
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
