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
    // The state store's records, as the pages draw from them.
    enum class Record : unsigned {
        Runtime = 1u << 0,
        User = 1u << 1,
        Nodes = 1u << 2,
        NodeGroups = 1u << 3,
        RefreshCooldown = 1u << 4,
        KillSwitch = 1u << 5,
        SplitRules = 1u << 6,
        ConfigPaths = 1u << 7,
        Version = 1u << 8,
        APIURLConfig = 1u << 9,
        LanguageConfig = 1u << 10,
        Update = 1u << 11,
        SplitDNS = 1u << 12,
    };
    Q_DECLARE_FLAGS(Records, Record)

    WindowPage(const QString &objectName, const QString &heading, const QString &intro,
               QWidget *parent = nullptr);

    // Copies what the page shows from the store; pages that show nothing yet keep their frame.
    virtual void refresh(const AppState &state);
    // Every record refresh() reads: a change of any of them redraws the page, of no other.
    virtual Records reads() const;
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

Q_DECLARE_OPERATORS_FOR_FLAGS(WindowPage::Records)
