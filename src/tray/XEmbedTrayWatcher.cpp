#include "XEmbedTrayWatcher.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>

namespace {

std::uint32_t internAtom(xcb_connection_t *connection, const QByteArray &name)
{
    xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData()),
        nullptr);
    const std::uint32_t atom = reply ? reply->atom : 0;
    std::free(reply);
    return atom;
}

// The screen of DISPLAY (":0.1" is screen 1), whose selection the tray manager owns.
QByteArray selectionName()
{
    const QByteArray display = qgetenv("DISPLAY");
    const qsizetype dot = display.lastIndexOf('.');
    const qsizetype colon = display.lastIndexOf(':');
    const QByteArray screen = dot > colon ? display.mid(dot + 1) : QByteArrayLiteral("0");
    return QByteArrayLiteral("_NET_SYSTEM_TRAY_S") + screen;
}

} // namespace

XEmbedTrayWatcher::XEmbedTrayWatcher(QObject *parent)
    : QObject(parent)
{}

XEmbedTrayWatcher::~XEmbedTrayWatcher()
{
    if (m_connection)
        QCoreApplication::instance()->removeNativeEventFilter(this);
}

void XEmbedTrayWatcher::start()
{
    // Only on X11 itself: other platforms (offscreen among them) may still offer an X11
    // interface, without a connection behind it.
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (m_connection || !x11 || QGuiApplication::platformName() != QLatin1String("xcb") ||
        !x11->connection())
        return;
    m_connection = x11->connection();
    m_selection = internAtom(m_connection, selectionName());
    m_manager = internAtom(m_connection, QByteArrayLiteral("MANAGER"));
    // Qt listens on the root window for the manager's announcement already.
    QCoreApplication::instance()->installNativeEventFilter(this);
    recheck();
}

void XEmbedTrayWatcher::recheck()
{
    xcb_get_selection_owner_reply_t *reply = xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr);
    const std::uint32_t owner = reply ? reply->owner : 0;
    std::free(reply);
    if (owner) {
        // Its DestroyNotify tells when this manager goes; it may be gone already, which the
        // checked request swallows instead of logging an X error.
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        std::free(xcb_request_check(
            m_connection,
            xcb_change_window_attributes_checked(m_connection, owner, XCB_CW_EVENT_MASK, &mask)));
    }
    const bool wasPresent = present();
    m_owner = owner;
    if (present() != wasPresent)
        Q_EMIT presentChanged(present());
}

bool XEmbedTrayWatcher::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE: {
        const auto *announcement = static_cast<const xcb_client_message_event_t *>(message);
        if (announcement->type == m_manager && announcement->data.data32[1] == m_selection)
            recheck();
        break;
    }
    case XCB_DESTROY_NOTIFY:
        if (static_cast<const xcb_destroy_notify_event_t *>(message)->window == m_owner)
            recheck();
        break;
    default:
        break;
    }
    return false;
}
