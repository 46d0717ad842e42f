#include "LocationItemDelegate.h"

#include "Countries.h"
#include "LocationRoles.h"
#include "ThemeColors.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QtMath>

#include <cmath>

namespace {

constexpr int kRowHeight = 40;
constexpr int kPadding = 12;
constexpr int kGap = 10;
constexpr QSize kFlagSize(24, 16);
constexpr int kStarSide = 18;
constexpr QSize kBarsSize(16, 12);
constexpr QSize kLockSize(12, 14);
constexpr int kMarkSide = 8;

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

// Draws a picture made for the device's pixel ratio onto whole device pixels, so that it is
// copied rather than resampled (at 125 % a logical pixel starts mid-pixel).
void drawOnPixelGrid(QPainter *painter, const QRect &rect, const QPixmap &pixmap)
{
    const QTransform toDevice = painter->deviceTransform();
    if (toDevice.type() > QTransform::TxScale) {
        painter->drawPixmap(rect, pixmap);
        return;
    }
    const QPointF corner = toDevice.map(QPointF(rect.topLeft()));
    painter->drawPixmap(
        toDevice.inverted().map(QPointF(std::round(corner.x()), std::round(corner.y()))), pixmap);
}

} // namespace

LocationItemDelegate::LocationItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

void LocationItemDelegate::setThemeColors(const ThemeColors &colors)
{
    m_accent = colors.color(ThemeColor::Accent);
    // The accent is made for fills; text in green takes the shade made for text.
    m_accentText = colors.color(ThemeColor::SidebarSelectedText);
    m_focusRing = colors.color(ThemeColor::FocusRing);
    m_focusWidth = colors.focusWidth();
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
    // The lock reads with the badge beside it: locked, and the plan that opens it.
    if (index.data(LocationLockedRole).toBool()) {
        row.lock =
            QRect(QPoint(right - kLockSize.width(), midY - kLockSize.height() / 2), kLockSize);
        right = row.lock.left() - 6;
    }
    row.name = QRect(left, area.top(), qMax(0, right - left), area.height());

    const Qt::LayoutDirection dir = option.direction;
    for (QRect *rect :
         {&row.flag, &row.name, &row.lock, &row.badge, &row.ping, &row.bars, &row.star}) {
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
    // Only the name is read of the standard roles: the flag comes made for the screen below.
    QStyleOptionViewItem opt = option;
    opt.text = index.data(Qt::DisplayRole).toString();
    const QPalette &pal = opt.palette;
    const RowLayout row = rowLayout(opt, index);
    const bool hovered = opt.state & QStyle::State_MouseOver;
    const bool selected = opt.state & QStyle::State_Selected;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(opt.direction);
    if (m_paintsRowBackground)
        paintRowBackground(painter, opt.rect, selected, hovered,
                           opt.state.testFlag(QStyle::State_HasFocus), pal);

    const qreal ratio = painter->device()->devicePixelRatioF();
    const QString region = index.data(LocationRegionRole).toString();
    QPixmap flag;
    if (!region.isEmpty()) {
        flag = flagFor(region, ratio);
    } else {
        const QVariant decoration = index.data(Qt::DecorationRole);
        if (decoration.userType() == QMetaType::QPixmap)
            flag = decoration.value<QPixmap>();
        else if (decoration.userType() == QMetaType::QIcon)
            flag = decoration.value<QIcon>().pixmap(kFlagSize, ratio);
    }
    // A row of a tier the plan lacks stays readable but steps back; its lock says why.
    const bool locked = index.data(LocationLockedRole).toBool();
    if (!flag.isNull()) {
        painter->setOpacity(locked ? 0.45 : 1.0);
        drawOnPixelGrid(painter, row.flag, flag);
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
    const QColor textColor = connected ? pick(m_accentText, pal.color(QPalette::Highlight))
                             : locked  ? pick(m_muted, pal.color(QPalette::PlaceholderText))
                                       : pal.color(QPalette::Text);
    painter->setPen(textColor);
    // The connection's mark follows the name: a dot in the accent, on the node and on every
    // group above it, so that a folded tree still shows where the tunnel is.
    QRect nameRect = row.name;
    if (connected)
        nameRect.setWidth(qMax(0, nameRect.width() - kMarkSide - kGap));
    if (connected && opt.direction == Qt::RightToLeft)
        nameRect.moveRight(row.name.right());
    const QFontMetrics nameMetrics(nameFont);
    const QString name = nameMetrics.elidedText(opt.text, Qt::ElideRight, nameRect.width());
    painter->drawText(nameRect,
                      int(QStyle::visualAlignment(opt.direction, Qt::AlignLeft) | Qt::AlignVCenter),
                      name);
    if (connected) {
        const int gap = nameMetrics.horizontalAdvance(name) + kGap;
        QRectF mark(0, nameRect.center().y() - kMarkSide / 2.0 + 1, kMarkSide, kMarkSide);
        mark.moveLeft(opt.direction == Qt::RightToLeft ? nameRect.right() + 1 - gap - kMarkSide
                                                       : nameRect.left() + gap);
        painter->setPen(Qt::NoPen);
        painter->setBrush(pick(m_accent, pal.color(QPalette::Highlight)));
        painter->drawEllipse(mark);
    }

    if (locked)
        paintLock(painter, row.lock, pal);
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

QPixmap LocationItemDelegate::flagFor(const QString &region, qreal ratio) const
{
    if (ratio != m_flagsRatio) {
        m_flags.clear();
        m_flagsRatio = ratio;
    }
    auto found = m_flags.constFind(region);
    if (found == m_flags.cend())
        found = m_flags.insert(region, countryFlag(region, ratio));
    return found.value();
}

void LocationItemDelegate::paintRowBackground(QPainter *painter, const QRect &row, bool selected,
                                              bool hovered, bool focused,
                                              const QPalette &palette) const
{
    if (!selected && !hovered && !focused)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (selected || hovered) {
        const QColor fill = selected ? pick(m_selected, palette.color(QPalette::Highlight))
                                     : pick(m_hover, palette.color(QPalette::AlternateBase));
        painter->setPen(Qt::NoPen);
        painter->setBrush(fill);
        painter->drawRoundedRect(QRectF(row).adjusted(2, 1, -2, -1), 6, 6);
    }
    if (focused) {
        // The keyboard's row in a focused list: the same ring as every other control.
        painter->setPen(QPen(pick(m_focusRing, palette.color(QPalette::Highlight)), m_focusWidth));
        painter->setBrush(Qt::NoBrush);
        const qreal inset = 2 + m_focusWidth / 2.0;
        painter->drawRoundedRect(QRectF(row).adjusted(inset, inset - 1, -inset, 1 - inset), 5, 5);
    }
    painter->restore();
}

void LocationItemDelegate::paintLock(QPainter *painter, const QRect &rect,
                                     const QPalette &palette) const
{
    // A padlock drawn as lines, sharp at any pixel ratio: a body and its shackle.
    const QRectF box(rect);
    const qreal unit = box.width() / 12.0;
    const QRectF body(box.left(), box.top() + 6 * unit, box.width(), 8 * unit);
    QPainterPath shackle;
    shackle.moveTo(box.left() + 3 * unit, body.top());
    shackle.lineTo(box.left() + 3 * unit, box.top() + 3.5 * unit);
    shackle.arcTo(QRectF(box.left() + 3 * unit, box.top() + 0.5 * unit, 6 * unit, 6 * unit), 180,
                  -180);
    shackle.lineTo(box.left() + 9 * unit, body.top());
    const QColor colour = pick(m_muted, palette.color(QPalette::PlaceholderText));
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, 1.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(shackle);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawRoundedRect(body, 2 * unit, 2 * unit);
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
    const QColor outline = hovered ? palette.color(QPalette::Text)
                                   : pick(m_muted, palette.color(QPalette::PlaceholderText));
    drawStar(painter, rect, favorite,
             favorite ? pick(m_warning, palette.color(QPalette::Highlight)) : outline);
}

void LocationItemDelegate::drawStar(QPainter *painter, const QRectF &box, bool favorite,
                                    const QColor &color)
{
    painter->setPen(QPen(color, favorite ? 1.2 : 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(favorite ? QBrush(color) : QBrush(Qt::NoBrush));
    painter->drawPath(starPath(box.adjusted(1, 1, -1, -1)));
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
