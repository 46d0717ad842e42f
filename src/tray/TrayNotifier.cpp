#include "TrayNotifier.h"

#include "TrayIcon.h"

#include <QAction>
#include <QCoreApplication>
#include <QSystemTrayIcon>

namespace {

constexpr int kBalloonMs = 2500;

} // namespace

TrayNotifier::TrayNotifier(TrayIcon *icon, QAction *daemonLine)
    : m_icon(icon)
    , m_daemonLine(daemonLine)
{}

void TrayNotifier::notify(const QString &message)
{
    m_lastMessage = message;
    if (m_icon && m_icon->isVisible() && QSystemTrayIcon::supportsMessages())
        m_icon->showMessage(QStringLiteral("Tovra"), message, QSystemTrayIcon::Information,
                            kBalloonMs);
    m_daemonLine->setText(message);
}

void TrayNotifier::notifyFailure(const QString &errorMessage, const QString &fallback)
{
    const QString reason = errorMessage.trimmed().isEmpty() ? fallback : errorMessage.trimmed();
    notify(QCoreApplication::translate("TrayMenuText", "Error: %1").arg(reason));
}
