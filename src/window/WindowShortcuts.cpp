#include "WindowShortcuts.h"

#include "BidiText.h"

#include <QAction>
#include <QWidget>

namespace {

using Id = WindowShortcuts::Id;

// Keys without a standard key of the desktop are texts, so a language may pick others.
QKeySequence translatedKeys(const char *keys)
{
    return QKeySequence(WindowShortcuts::tr(keys), QKeySequence::PortableText);
}

} // namespace

QList<WindowShortcuts::Entry> WindowShortcuts::entries()
{
    return {
        //: Keyboard shortcut, in Qt's key names: keep it unless the key is awkward to reach
        {Id::ShowVpn, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+1")),
         tr("Show the VPN page")},
        {Id::ShowLocations, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+2")),
         tr("Show the Locations page")},
        {Id::ShowMode, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+3")),
         tr("Show the Mode page")},
        {Id::ShowSettings, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+4")),
         tr("Show the Settings page")},
        {Id::ShowAccount, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+5")),
         tr("Show the Account page")},
        {Id::Find, QKeySequence(QKeySequence::Find),
         tr("Search: the quick connect field on the VPN page, the list on the Locations page")},
        //: Keyboard shortcut, in Qt's key names: keep it unless the key is awkward to reach
        {Id::RefreshLocations, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+R")),
         tr("Refresh locations")},
        {Id::CloseWindow, QKeySequence(QKeySequence::Close),
         tr("Close the window; Tovra stays in the tray")},
        // Not QKeySequence::Quit: some platform themes leave it empty.
        {Id::Quit, translatedKeys(QT_TRANSLATE_NOOP("WindowShortcuts", "Ctrl+Q")),
         tr("Quit Tovra")},
        {Id::CloseDialog, QKeySequence(Qt::Key_Escape), tr("Close a list, menu or dialog")},
        {Id::ShowShortcuts, QKeySequence(QKeySequence::HelpContents),
         tr("Show these keyboard shortcuts")},
    };
}

WindowShortcuts::WindowShortcuts(QWidget *window)
    : QObject(window)
{
    for (const Entry &entry : entries()) {
        if (entry.id == Id::CloseWindow || entry.id == Id::CloseDialog || entry.keys.isEmpty())
            continue;
        auto *action = new QAction(entry.text, window);
        action->setShortcut(entry.keys);
        action->setShortcutContext(Qt::WindowShortcut);
        window->addAction(action);
        const Id id = entry.id;
        connect(action, &QAction::triggered, this, [this, id] { Q_EMIT triggered(id); });
    }
}

QKeySequence WindowShortcuts::keys(Id id)
{
    for (const Entry &entry : entries()) {
        if (entry.id == id)
            return entry.keys;
    }
    return {};
}

QString WindowShortcuts::keysText(Id id)
{
    return isolated(keys(id).toString(QKeySequence::NativeText));
}

QString WindowShortcuts::toolTip(const QString &what, Id id)
{
    const QString shortcut = keysText(id);
    //: A control's tool tip: what it does, then its keyboard shortcut
    return shortcut.isEmpty() ? what : tr("%1 (%2)").arg(what, shortcut);
}

int WindowShortcuts::pageOf(Id id)
{
    switch (id) {
    case Id::ShowVpn:
        return 0;
    case Id::ShowLocations:
        return 1;
    case Id::ShowMode:
        return 2;
    case Id::ShowSettings:
        return 3;
    case Id::ShowAccount:
        return 4;
    default:
        return -1;
    }
}
