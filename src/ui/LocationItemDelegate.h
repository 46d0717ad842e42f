#pragma once

#include <QColor>
#include <QHash>
#include <QPixmap>
#include <QStyledItemDelegate>

class ThemeColors;

// Paints a location row: flag, name, the mark of the connection, lock, tier badge, ping as text
// and signal bars, favourite star. A click on the star asks for the opposite favourite state;
// the model decides.
class LocationItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    struct RowLayout
    {
        QRect flag;
        QRect name;
        QRect lock; // locked rows only
        QRect badge;
        QRect ping;
        QRect bars;
        QRect star;
    };

    explicit LocationItemDelegate(QObject *parent = nullptr);

    void setThemeColors(const ThemeColors &colors);
    // A tree paints the hover and selection itself, across its branch column too (see
    // paintRowBackground); a list leaves them to the delegate.
    void setPaintsRowBackground(bool paints) { m_paintsRowBackground = paints; }
    void paintRowBackground(QPainter *painter, const QRect &row, bool selected, bool hovered,
                            bool focused, const QPalette &palette) const;

    // Geometry of one row, mirrored for right-to-left.
    RowLayout rowLayout(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    // Bars shown for a row: the signal level when known, else graded from the ping; 0 unknown.
    static int barsFor(int signalLevel, int pingMs);
    static QString pingText(int pingMs);
    // The favourite star in box: filled while favourite, else its outline.
    static void drawStar(QPainter *painter, const QRectF &box, bool favorite, const QColor &color);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

Q_SIGNALS:
    void favoriteToggleRequested(const QString &nodeId, bool favorite);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    // The flag of a region for this pixel ratio, kept here so that a row costs one lookup.
    QPixmap flagFor(const QString &region, qreal ratio) const;
    void paintLock(QPainter *painter, const QRect &rect, const QPalette &palette) const;
    void paintBadge(QPainter *painter, const QRect &rect, const QString &tier,
                    const QPalette &palette) const;
    void paintBars(QPainter *painter, const QRect &rect, int bars, const QPalette &palette) const;
    void paintStar(QPainter *painter, const QRect &rect, bool favorite, bool hovered,
                   const QPalette &palette) const;

    QColor m_accent;
    QColor m_accentText;
    QColor m_focusRing;
    int m_focusWidth = 2;
    QColor m_warning;
    QColor m_muted;
    QColor m_subtleFill;
    QColor m_subtleBorder;
    QColor m_hover;
    QColor m_selected;
    bool m_paintsRowBackground = true;
    mutable QHash<QString, QPixmap> m_flags;
    mutable qreal m_flagsRatio = 0;
};
