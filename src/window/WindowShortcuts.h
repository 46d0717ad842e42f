#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>

class QWidget;

// The window's keyboard shortcuts, listed once: the actions on the window, the "Keyboard
// shortcuts" dialog and the tool tips all read this list.
class WindowShortcuts : public QObject
{
    Q_OBJECT

public:
    enum class Id {
        ShowVpn,
        ShowLocations,
        ShowMode,
        ShowSettings,
        ShowAccount,
        Find,
        RefreshLocations,
        CloseWindow,
        Quit,
        CloseDialog,
        ShowShortcuts,
    };

    struct Entry
    {
        Id id;
        QKeySequence keys;
        QString text;
    };

    // Puts an action on the window for each entry it does not handle elsewhere (the close
    // action is the window's own; Escape belongs to each list and dialog).
    explicit WindowShortcuts(QWidget *window);

    // In the order the dialog lists them, texts in the interface language.
    static QList<Entry> entries();
    static QKeySequence keys(Id id);
    // The keys as the desktop writes them ("Ctrl+1"), kept left to right in any language.
    static QString keysText(Id id);
    // "Locations (Ctrl+2)": a control's tool tip that names its shortcut.
    static QString toolTip(const QString &what, Id id);
    // The page a page shortcut shows, or -1.
    static int pageOf(Id id);

Q_SIGNALS:
    void triggered(WindowShortcuts::Id id);
};
