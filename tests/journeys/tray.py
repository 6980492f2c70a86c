"""A tray of the journey's own: the list of items, as a desktop keeps it, and the one who shows them."""

import os
import subprocess
import sys

from desktop import until

WATCHER = "org.kde.StatusNotifierWatcher"
INTERFACE = f"""<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
</interface></node>"""


def serve():
    """The process of the tray: it lives until it is killed."""
    import gi

    gi.require_version("Gio", "2.0")
    from gi.repository import Gio, GLib

    items = []

    def called(connection, sender, path, interface, method, parameters, invocation):
        items.append(parameters.unpack()[0])
        invocation.return_value(None)

    def read(connection, sender, path, interface, name):
        if name == "IsStatusNotifierHostRegistered":
            return GLib.Variant("b", True)
        return GLib.Variant("as", items)

    def ready(connection, name):
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        connection.register_object("/StatusNotifierWatcher", interface, called, read, None)

    Gio.bus_own_name(Gio.BusType.SESSION, WATCHER, Gio.BusNameOwnerFlags.NONE, ready, None, None)
    GLib.MainLoop().run()


class Tray:
    """What a user sees and does in the tray, through the bus."""

    def __init__(self, pelko):
        import gi

        gi.require_version("Gio", "2.0")
        from gi.repository import Gio, GLib

        self.glib = GLib
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.item = f"org.kde.StatusNotifierItem-{pelko.process.pid}-1"

    @staticmethod
    def start():
        return subprocess.Popen([sys.executable, os.path.abspath(__file__)])

    def call(self, service, path, interface, method, signature="()", *arguments):
        variant = self.glib.Variant(signature, arguments)
        return self.bus.call_sync(service, path, interface, method, variant, None, 0, 5000, None).unpack()

    def read(self, service, path, interface, name):
        try:
            properties = "org.freedesktop.DBus.Properties"
            return self.call(service, path, properties, "Get", "(ss)", interface, name)[0]
        except self.glib.Error:
            return None

    def wait_item(self):
        until(
            lambda: self.item in (self.read(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisteredStatusNotifierItems") or []),
            "the item is in the tray",
        )

    def property(self, name):
        return self.read(self.item, "/StatusNotifierItem", "org.kde.StatusNotifierItem", name)

    def click(self, method, x, y):
        self.call(self.item, "/StatusNotifierItem", "org.kde.StatusNotifierItem", method, "(ii)", x, y)

    def rows(self):
        """The menu as label by number."""
        menu = self.call(self.item, "/MenuBar", "com.canonical.dbusmenu", "GetLayout", "(iias)", 0, -1, [])
        return {child[0]: child[1].get("label", "-") for child in menu[1][2]}

    def choose(self, label):
        number = next(number for number, text in self.rows().items() if text == label)
        data = self.glib.Variant("s", "")
        self.call(self.item, "/MenuBar", "com.canonical.dbusmenu", "Event", "(isvu)", number, "clicked", data, 0)


if __name__ == "__main__":
    serve()
