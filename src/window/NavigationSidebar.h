#pragma once

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

private:
    QList<QToolButton *> m_buttons;
    QButtonGroup *m_group;
};
