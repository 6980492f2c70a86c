"""A file chooser portal of the journey's own: it answers each request as it was told, or not at all."""

import os
import pathlib
import subprocess
import sys

from desktop import until

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
CHOOSER = "org.freedesktop.portal.FileChooser"
REQUEST = "org.freedesktop.portal.Request"
INTERFACES = f"""<node><interface name="{CHOOSER}">
<method name="OpenFile"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/>
<arg type="o" direction="out"/></method></interface></node>"""


def serve(orders, asked):
    """The process of the portal. It reads its order from a file: empty for no response, or a code and perhaps a file."""
    import gi

    gi.require_version("Gio", "2.0")
    from gi.repository import Gio, GLib

    def called(connection, sender, path, interface, method, parameters, invocation):
        parent, title, options = parameters.unpack()
        handle = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        invocation.return_value(GLib.Variant("(o)", (handle,)))
        order = orders.read_text().split(maxsplit=1)
        if order:
            results = {"uris": GLib.Variant("as", [pathlib.Path(order[1]).as_uri()])} if order[1:] else {}
            response = GLib.Variant("(ua{sv})", (int(order[0]), results))
            connection.emit_signal(sender, handle, REQUEST, "Response", response)
        with open(asked, "a") as told:
            told.write(f"{title}, {parent}\n")

    def ready(connection, name):
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces[0]
        connection.register_object(PATH, interface, called, None, None)

    def named(connection, name):
        asked.touch()

    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, ready, named, None)
    GLib.MainLoop().run()


class Portal:
    def __init__(self, home):
        self.orders = home / "portal-orders"
        self.asked = home / "portal-asked"
        self.tell("")
        self.asked.unlink(missing_ok=True)
        self.process = subprocess.Popen([sys.executable, os.path.abspath(__file__), self.orders, self.asked])
        until(self.asked.exists, "the portal is on the bus")

    def tell(self, order):
        """How the next requests are answered."""
        self.orders.write_text(order)

    def requests(self):
        return self.asked.read_text().splitlines()

    def kill(self):
        self.process.kill()
        self.process.wait()


if __name__ == "__main__":
    serve(*map(pathlib.Path, sys.argv[1:]))
