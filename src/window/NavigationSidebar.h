#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

class QButtonGroup;
class QToolButton;
class ThemeColors;

// The column of page buttons on the left of the main window; the last one sits at the bottom.
class NavigationSidebar : public QWidget
{
    Q_OBJECT

public:
    explicit NavigationSidebar(QWidget *parent = nullptr);

    int count() const { return int(m_buttons.size()); }
    QToolButton *button(int index) const;
    // The entry's text, which is also the page title.
    QString entryText(int index) const;
    void setCurrentIndex(int index);
    int currentIndex() const;

    // Renders each entry's icon again in the theme's colours.
    void applyTheme(const ThemeColors &colors);

Q_SIGNALS:
    void pageRequested(int index);

protected:
    // Swaps in the hover tint: the style draws a raised button's icon in its normal mode even
    // under the mouse, so the active pixmap alone would never show.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QToolButton *> m_buttons;
    QList<QIcon> m_icons;
    QList<QIcon> m_hoverIcons;
    QButtonGroup *m_group;
};
