#include "ShellNotifier.h"

#include "GuiTextLog.h"
#include "MainWindow.h"
#include "TovraTrayApp.h"
#include "TrayIcon.h"
#include "WindowController.h"

#include <QSystemTrayIcon>

namespace {

QSystemTrayIcon::MessageIcon trayIconFor(const QString &kind)
{
    if (kind == QLatin1String("error"))
        return QSystemTrayIcon::Critical;
    if (kind == QLatin1String("warning"))
        return QSystemTrayIcon::Warning;
    return QSystemTrayIcon::Information;
}

} // namespace

ShellNotifier::ShellNotifier(WindowController *window, TovraTrayApp *tray, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_tray(tray)
{}

void ShellNotifier::post(const QString &text, const QString &kind, int durationMs)
{
    if (text.trimmed().isEmpty())
        return;
    m_lastText = text;
    m_lastKind = kind;
    const MainWindow *window = m_window->window();
    TrayIcon *icon = m_tray->trayIcon();
    if (window && window->isVisible())
        m_window->showNotification(text, kind, durationMs);
    else if (icon && icon->isVisible() && QSystemTrayIcon::supportsMessages())
        icon->showMessage(QStringLiteral("Tovra"), text, trayIconFor(kind), durationMs);
    else // no window on screen and no balloon to show: the log is the last place to look
        qInfo("tovra: %s: %s", qUtf8Printable(kind), qUtf8Printable(text));
    guiTextLog("notice", kind + QStringLiteral(": ") + text, false);
    Q_EMIT posted(text, kind);
}
