#pragma once

#include <QColor>
#include <QPersistentModelIndex>
#include <QPushButton>

class ThemeColors;

// The star of the current location row as a control of its own, beside the page's actions: the
// same request as the row's star, Space on the row and the row's menu, so that the keyboard and
// assistive technology reach it through an ordinary button press. Its star, name and tool tip
// follow the row as the service last answered: a click only asks, and a refused change reads as
// unchanged. Disabled while no location row (a group, or nothing) is current.
class LocationsFavoriteButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LocationsFavoriteButton(QWidget *parent = nullptr);

    void setRow(const QModelIndex &index);
    // Reads the row again, after its data or the model changed.
    void refresh();
    void applyTheme(const ThemeColors &colors);

Q_SIGNALS:
    void favoriteRequested(QString nodeID, bool favorite);

private:
    void renderIcon();

    QPersistentModelIndex m_row;
    QColor m_favorite;
    QColor m_outline;
    QColor m_disabled;
    bool m_rowFavorite = false;
};
