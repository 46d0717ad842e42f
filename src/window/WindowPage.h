#pragma once

#include "ThemeColors.h"

#include <QWidget>

class AppState;
class QLabel;
class QVBoxLayout;

// What every page of the main window shares: a heading, a muted intro line and the hooks the
// window calls to redraw it from the state store and to push a new theme.
class WindowPage : public QWidget
{
    Q_OBJECT

public:
    WindowPage(const QString &objectName, const QString &heading, const QString &intro,
               QWidget *parent = nullptr);

    // Copies what the page shows from the store; pages that show nothing yet keep their frame.
    virtual void refresh(const AppState &state);
    // Painted parts of a page read their colours from here.
    virtual void applyTheme(const ThemeColors &colors);

    const ThemeColors &themeColors() const { return m_colors; }
    QString heading() const;

protected:
    // Adds a widget below the intro line, above the closing stretch.
    void addContent(QWidget *widget);
    // Re-reads the style sheet rules of a widget whose dynamic property changed.
    static void repolish(QWidget *widget);

private:
    QVBoxLayout *m_body;
    QLabel *m_heading;
    ThemeColors m_colors;
};
