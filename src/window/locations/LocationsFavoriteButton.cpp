#include "LocationsFavoriteButton.h"

#include "AccessibleControl.h"
#include "BidiText.h"
#include "LocationItemDelegate.h"
#include "LocationRoles.h"
#include "ThemeColors.h"

#include <QIcon>
#include <QPainter>

namespace {

constexpr int kStarSide = 16; // as the refresh button's icon

} // namespace

LocationsFavoriteButton::LocationsFavoriteButton(QWidget *parent)
    : QPushButton(parent)
{
    AccessibleControl::attach(this, QAccessible::Button);
    setObjectName(QStringLiteral("TovraLocationsFavorite"));
    setIconSize(QSize(kStarSide, kStarSide));
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QPushButton::clicked, this, [this] {
        if (m_row.isValid() && !m_row.data(LocationIsGroupRole).toBool())
            Q_EMIT favoriteRequested(m_row.data(LocationNodeIdRole).toString(), !m_rowFavorite);
    });
    refresh();
}

void LocationsFavoriteButton::setRow(const QModelIndex &index)
{
    m_row = index;
    refresh();
}

void LocationsFavoriteButton::refresh()
{
    const bool usable = m_row.isValid() && !m_row.data(LocationIsGroupRole).toBool();
    const bool favorite = usable && m_row.data(LocationFavoriteRole).toBool();
    const QString location = isolated(m_row.data(Qt::DisplayRole).toString());
    QString name = favorite ? tr("Remove from favourites") : tr("Add to favourites");
    QString tip = !usable    ? tr("Select a location in the list to star it")
                  : favorite ? tr("Remove %1 from favourites").arg(location)
                             : tr("Add %1 to favourites").arg(location);
    if (name != accessibleName())
        setAccessibleName(name);
    setToolTip(tip);
    setEnabled(usable);
    if (favorite != m_rowFavorite || icon().isNull()) {
        m_rowFavorite = favorite;
        renderIcon();
    }
}

void LocationsFavoriteButton::applyTheme(const ThemeColors &colors)
{
    m_favorite = colors.color(ThemeColor::Warning);
    m_outline = colors.color(ThemeColor::TextPrimary);
    m_disabled = colors.color(ThemeColor::DisabledText);
    renderIcon();
}

void LocationsFavoriteButton::renderIcon()
{
    // The row's own star, filled while the row is a favourite.
    const qreal ratio = devicePixelRatioF();
    const auto star = [&](const QColor &color) {
        QPixmap pixmap(QSize(kStarSide, kStarSide) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        LocationItemDelegate::drawStar(&painter, QRectF(0, 0, kStarSide, kStarSide), m_rowFavorite,
                                       color);
        return pixmap;
    };
    QIcon icon;
    icon.addPixmap(star(m_rowFavorite ? m_favorite : m_outline), QIcon::Normal);
    icon.addPixmap(star(m_disabled), QIcon::Disabled);
    setIcon(icon);
}
