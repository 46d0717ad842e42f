#!/usr/bin/python3
"""A StatusNotifierItem watcher that answers nonsense, for the client's fault tests: it owns the
watcher's bus name, answers every call with a lone string, whatever was asked, and announces a
new host twenty times a second."""
from gi.repository import Gio, GLib

NAME = "org.kde.StatusNotifierWatcher"
PATH = "/StatusNotifierWatcher"


def answer_garbage(connection, message, incoming):
    if incoming and message.get_message_type() == Gio.DBusMessageType.METHOD_CALL \
            and message.get_path() == PATH:
        reply = Gio.DBusMessage.new_method_reply(message)
        reply.set_body(GLib.Variant("(s)", ("garbage",)))
        connection.send_message(reply, Gio.DBusSendMessageFlags.NONE)
        return None
    return message


def announce(connection):
    connection.emit_signal(None, PATH, NAME, "StatusNotifierHostRegistered", None)
    return True


bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.add_filter(answer_garbage)
bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
              "RequestName", GLib.Variant("(su)", (NAME, 4)), None, Gio.DBusCallFlags.NONE, -1)
GLib.timeout_add(50, announce, bus)
GLib.MainLoop().run()
