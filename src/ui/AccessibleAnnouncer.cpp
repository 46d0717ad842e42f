#include "AccessibleAnnouncer.h"

#include "AccessibleControl.h"

#include <QAccessible>

AccessibleAnnouncer::AccessibleAnnouncer(QWidget *parent)
    : QWidget(parent)
{
    AccessibleControl::setRole(this, QAccessible::Notification);
    setObjectName(QStringLiteral("TovraAnnouncer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    // Present for assistive technology, but taking no room and painting nothing.
    setGeometry(0, 0, 0, 0);
}

void AccessibleAnnouncer::announce(const QString &text, Politeness politeness)
{
    const QString message = text.simplified();
    if (message.isEmpty())
        return;
    m_lastText = message;
    // The same words again are still news: clear the name so that it changes.
    if (accessibleName() == message)
        setAccessibleName(QString());
    setAccessibleName(message);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, message);
    event.setPoliteness(politeness == Politeness::Assertive
                            ? QAccessible::AnnouncementPoliteness::Assertive
                            : QAccessible::AnnouncementPoliteness::Polite);
    QAccessible::updateAccessibility(&event);
#else
    // A notification that shows is spoken with its name.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
#endif
    Q_EMIT announced(message, politeness);
}
