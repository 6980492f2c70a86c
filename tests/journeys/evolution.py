"""The desktop's calendar as another program would write it: over the session bus of the journey."""

from gi.repository import Gio, GLib

SERVER = "org.gnome.evolution.dataserver."
SERVICES = [SERVER + name for name in ("Sources5", "Calendar8", "AddressBook10")]


class Calendar:
    """The calendar that every new user of the server has."""

    def __init__(self):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        factory = "/org/gnome/evolution/dataserver/CalendarFactory"
        opened = self.call(f"{SERVER}Calendar8", factory, "CalendarFactory", "OpenCalendar", "(s)", "system-calendar")
        self.path, self.name = opened.unpack()
        self.ask("Open")

    def call(self, name, path, interface, method, form=None, *arguments):
        given = GLib.Variant(form, arguments) if form else None
        return self.bus.call_sync(name, path, SERVER + interface, method, given, None, 0, 60000, None)

    def ask(self, method, form=None, *arguments):
        return self.call(self.name, self.path, "Calendar", method, form, *arguments)

    def add(self, uid, start, end, *lines):
        form = "%Y%m%dT%H%M%SZ"
        event = "\r\n".join(
            ["BEGIN:VEVENT", f"UID:{uid}", f"DTSTART:{start:{form}}", f"DTEND:{end:{form}}", *lines, "END:VEVENT", ""]
        )
        self.ask("CreateObjects", "(asu)", [event], 0)

    def remove(self, uid):
        self.ask("RemoveObjects", "(a(ss)su)", [(uid, "")], "all", 0)
