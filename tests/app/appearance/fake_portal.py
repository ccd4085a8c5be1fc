"""A stand-in for the desktop's settings portal on a private session bus:
Read answers color-scheme 1 (prefer dark) wrapped twice in variants, as
older portals do; once Read was answered, SettingChanged announces 0 (no
preference) after a short while."""

from gi.repository import Gio, GLib

PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
XML = f"""<node><interface name='{INTERFACE}'>
<method name='Read'><arg type='s' direction='in'/><arg type='s' direction='in'/>
<arg type='v' direction='out'/></method>
<signal name='SettingChanged'><arg type='s'/><arg type='s'/><arg type='v'/></signal>
</interface></node>"""


def main():
    interface = Gio.DBusNodeInfo.new_for_xml(XML).interfaces[0]

    def announce(connection):
        value = GLib.Variant("(ssv)", ("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 0)))
        connection.emit_signal(None, PATH, INTERFACE, "SettingChanged", value)
        return False

    def call(connection, sender, path, iface, method, params, invocation):
        group, key = params.unpack()
        if (group, key) != ("org.freedesktop.appearance", "color-scheme"):
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "unknown setting")
            return
        invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", 1)),)))
        GLib.timeout_add(300, announce, connection)

    def acquired(connection, name):
        connection.register_object(PATH, interface, call, None, None)
        print("ready", flush=True)

    Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.portal.Desktop", 0, None, acquired, None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
