"""What every journey uses: Pelko started for real, driven by keys and pointer, read as a screen reader reads it.

A journey is a script that ends with `journey.run(function)`; the function is given a `Pelko` that is not started yet.
"""

import json
import os
import pathlib
import signal
import subprocess
import sys
import time
import traceback

import desktop
from desktop import shown, until


# What Qt says of the desktop, not of the program: no installed face can shape a script; the journey's screen reader
# asked for something that has gone since it last looked.
HARMLESS = ("OpenType support missing for", "qt.accessibility.atspi: Could not find accessible on path")


UNSAVED = "Your last changes are not saved."


class Pelko:
    """The program with its folders on the journey's own desktop."""

    def __init__(self, program, home):
        self.program = program
        self.data_home = pathlib.Path(os.environ["XDG_DATA_HOME"])
        self.data_file = self.data_home / "Pelko" / "data.json"
        self.errors = home / "errors.txt"
        self.process = None
        self.root = None

    # Starting and ending

    def write_library(self, text):
        self.data_file.parent.mkdir(parents=True, exist_ok=True)
        self.data_file.write_text(text, encoding="utf-8")

    def start(self, *arguments, **changes):
        """Starts the program and waits until its window has the focus and the launch card has gone."""
        self.launch(*arguments, **changes)
        self.root = until(self.on_the_bus, "the program is on the bus", 60)
        until(self.window, "the window is shown", 60)
        until(self.has_focus, "the window has the focus")
        corner = self.wait_for("Close", screen_reader().BUTTONS)
        until(lambda: colours_at(corner) > 1, "the launch card fades")
        self.stand_still()

    def on_the_bus(self):
        assert self.process.poll() is None, f"Pelko ended with {self.process.returncode} while starting"
        return screen_reader().application(self.process.pid)

    def launch(self, *arguments, before=None, **changes):
        """Starts the program in a changed environment; `before` runs in the new process ahead of it."""
        environment = {**os.environ, **changes}
        environment = {name: value for name, value in environment.items() if value is not None}
        with open(self.errors, "ab") as errors:
            self.process = subprocess.Popen(
                [self.program, *arguments],
                env=environment,
                stderr=errors,
                preexec_fn=before,
                restore_signals=before is None,
            )

    def close_and_lose_changes(self):
        """Closes the window while the last save has failed, and agrees to lose what it did not save."""
        self.keys("alt+F4")
        until(lambda: self.alert() and self.alert().get_name() == UNSAVED, "the program asks")
        self.wait_focus_on("Stay")
        self.keys("Tab")
        self.wait_focus_on("Quit and lose them")
        self.keys("Return")
        self.wait_end()

    def close(self):
        """Closes the window as a user does and waits for the end."""
        self.keys("alt+F4")
        self.wait_end()

    def wait_end(self):
        code = self.process.wait(timeout=30)
        assert code == 0, f"Pelko ended with {code}"
        self.root = None

    def end(self):
        if self.process and self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()

    # The window

    def window(self):
        """The window's id once it is mapped."""
        found = shown("xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)).split()
        return found[0] if found else None

    def has_focus(self):
        return shown("xdotool", "getwindowfocus").strip() == self.window()

    def stand_still(self, seconds=30):
        """Waits until two pictures taken a moment apart are nearly the same; a caret and a flame may move."""

        def is_still():
            before = shown_pixels()
            time.sleep(0.25)
            after = shown_pixels()
            differing = sum(1 for a, b in zip(before, after) if a != b)
            return len(before) == len(after) and differing < len(before) // 100

        until(is_still, "the window stands still", seconds)

    # UserInput

    def keys(self, *combinations):
        subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "40", *combinations], check=True)

    def type(self, text, milliseconds=25):
        subprocess.run(["xdotool", "type", "--delay", str(milliseconds), "--", text], check=True)

    def point_at(self, node):
        x, y = screen_reader().centre_of(node)
        subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y)], check=True)

    def click(self, node, button=1):
        self.point_at(node)
        subprocess.run(["xdotool", "click", str(button)], check=True)

    def click_into(self, field):
        """Clicks a field and waits for its focus: a busy window manager passes a click on later than the next key."""
        self.click(field)
        until(lambda: screen_reader().is_focused(field), "the clicked field has the focus")

    def wheel_down(self, notches=3):
        subprocess.run(["xdotool", "click", "--repeat", str(notches), "--delay", "30", "5"], check=True)

    # Eyes

    def nodes(self):
        """Everything on show, in tree order."""
        return [node for node in screen_reader().walk(self.root) if screen_reader().is_showing(node)]

    def find_all(self, name=None, roles=None):
        return [node for node in self.nodes() if screen_reader().is_called(node, name, roles)]

    def find(self, name=None, roles=None):
        found = self.find_all(name, roles)
        return found[0] if found else None

    def wait_for(self, name, roles=None, seconds=30):
        return until(lambda: self.find(name, roles), f"“{name}” is on show", seconds)

    def wait_gone(self, name, roles=None, seconds=30):
        until(lambda: not self.find(name, roles), f"“{name}” has gone", seconds)

    def button(self, name):
        return self.wait_for(name, screen_reader().BUTTONS)

    def alert(self):
        """The alert on show; its name is the title, its description the message."""
        return self.find(roles={screen_reader().Role.ALERT})

    def wait_alert(self, message):
        """Waits for an alert whose message begins so, with the focus inside, and returns it."""
        alert = until(
            lambda: (found := self.alert()) and found.get_description().startswith(message) and found,
            f"an alert says “{message}”",
        )
        inside = screen_reader().walk
        until(lambda: any(map(screen_reader().is_focused, inside(alert))), "something in the alert has the focus")
        return alert

    def wait_focus_on(self, name):
        return until(
            lambda: (found := self.focused()) and found.get_name() == name and found, f"the focus is on “{name}”"
        )

    def wait_no_alert(self):
        until(lambda: not self.alert(), "the alert has gone")

    def fields(self):
        return self.find_all(roles=screen_reader().FIELDS)

    def focused(self):
        """The control that has the focus: a group says so as well when one of its members has it."""
        holders = [node for node in self.nodes() if screen_reader().is_focused(node)]
        return holders[-1] if holders else None

    # The file

    def saved(self):
        """The data file as Python's own JSON reader sees it; None while there is none."""
        return json.loads(self.data_file.read_bytes()) if self.data_file.exists() else None

    def wait_saved(self, condition, what, seconds=30):
        return until(lambda: self.saved() is not None and condition(self.saved()), f"saved: {what}", seconds)


def shown_pixels():
    return subprocess.run(
        ["import", "-silent", "-window", "root", "-resize", "25%", "-depth", "6", "gray:-"], capture_output=True
    ).stdout


def colours_at(node):
    """How many colours the place of a control shows: one alone while something covers it."""
    x, y, width, height = screen_reader().place_of(node)
    crop = f"{width}x{height}+{x}+{y}"
    return int(shown("import", "-silent", "-window", "root", "-crop", crop, "-format", "%k", "info:-") or 0)


def screen_reader():
    # Imported late: the library looks for its bus at once, and that bus exists on the inner desktop only.
    import screen_reader as eyes

    return eyes


def keep_traces(pelko, name):
    """What helps to understand a failure: the screen, the tree, the file and the words on standard error."""
    folder = pathlib.Path(os.environ.get("PELKO_TRACES", f"/tmp/pelko-journeys/{name}"))
    folder.mkdir(parents=True, exist_ok=True)
    subprocess.run(["import", "-silent", "-window", "root", str(folder / "screen.png")])
    if pelko.root:
        (folder / "tree.txt").write_text(screen_reader().outline(pelko.root))
    if pelko.data_file.is_file():
        (folder / "data.json").write_bytes(pelko.data_file.read_bytes())
    if pelko.errors.exists():
        words = pelko.errors.read_text(errors="replace")
        print("\n".join(complaints(words)), file=sys.stderr)
    print(f"Traces are in {folder.resolve()}", file=sys.stderr)


def complaints(words):
    return [line for line in words.splitlines() if not any(phrase in line for phrase in HARMLESS)]


def run(journey, services=()):
    """Runs a journey on a desktop of its own; the script's argument is the program.

    `services` are the names of installed services that the bus of that desktop may start.
    """
    home = os.environ.get("PELKO_JOURNEY")
    if home is None:
        sys.exit(desktop.run_on_own_desktop(services))
    manager = desktop.start_window_manager()
    pelko = Pelko(sys.argv[1], pathlib.Path(home))
    code = 0
    try:
        journey(pelko)
        quiet(pelko)
    except Exception:
        traceback.print_exc()
        keep_traces(pelko, pathlib.Path(sys.argv[0]).stem)
        code = 1
    finally:
        pelko.end()
        manager.terminate()
        manager.wait()
    sys.exit(code)


def quiet(pelko):
    """A program that complains on standard error has something wrong with it."""
    words = pelko.errors.read_text(errors="replace") if pelko.errors.exists() else ""
    assert not complaints(words), "Pelko wrote to standard error:\n" + "\n".join(complaints(words))
