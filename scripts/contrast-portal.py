#!/usr/bin/python3
"""A desktop portal that answers only the appearance settings, for pictures of the window in high
contrast: run it on a private session bus; it serves org.freedesktop.portal.Settings with
color-scheme 0 (no preference) and contrast 1 (higher), through ReadOne and Read.
Usage: DBUS_SESSION_BUS_ADDRESS=... scripts/contrast-portal.py [CONTRAST]"""
import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
XML = f"""<node><interface name="{INTERFACE}">
  <method name="ReadOne"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
VALUES = {("org.freedesktop.appearance", "color-scheme"): 0,
          ("org.freedesktop.appearance", "contrast"): int(sys.argv[1]) if len(sys.argv) > 1 else 1}


def on_call(connection, sender, path, interface, method, parameters, invocation):
    key = tuple(parameters.unpack())
    if key not in VALUES:
        invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound",
                                     "Requested setting not found")
        return
    value = GLib.Variant("u", VALUES[key])
    # Read wraps the value in one more variant than ReadOne does.
    if method == "Read":
        value = GLib.Variant("v", value)
    invocation.return_value(GLib.Variant("(v)", (value,)))


bus = Gio.bus_get_sync(Gio.BusType.SESSION)
info = Gio.DBusNodeInfo.new_for_xml(XML).interfaces[0]
bus.register_object(PATH, info, on_call, None, None)
Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
GLib.MainLoop().run()
