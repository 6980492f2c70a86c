"""Menu, spaces, focus mode, full screen and the sheet of keys, by keyboard alone; last the window that is reopened."""

import pathlib
import subprocess

import journey
import library
from desktop import shown, until
from journey import screen_reader, shown_pixels
from tray import Tray

DESKTOP_FILE = pathlib.Path(__file__).parents[2] / "packaging/app.pelko.Pelko.desktop"


def window_title(pelko):
    return shown("xdotool", "getwindowname", pelko.window()).strip()


def size(pelko):
    lines = shown("xdotool", "getwindowgeometry", "--shell", pelko.window()).splitlines()
    return [int(line.split("=")[1]) for line in lines if line.startswith(("WIDTH", "HEIGHT"))]


def furniture(pelko):
    wanted = ("Menu", "Close", "Divider")
    return [name for name in wanted if pelko.find(name, screen_reader().BUTTONS)]


def identity_of_the_window(pelko):
    """By its class a task switcher finds the desktop file, and with it the name and the icon."""
    window_class = shown("xprop", "-id", pelko.window(), "WM_CLASS").split('"')[-2]
    assert f"StartupWMClass={window_class}" in DESKTOP_FILE.read_text().splitlines(), window_class
    assert "not found" not in shown("xprop", "-id", pelko.window(), "_NET_WM_ICON")


def walk_down_to(pelko, name):
    for _ in range(20):
        pelko.keys("Down")
        pelko.stand_still()
        if pelko.focused().get_name() == name:
            return
    raise AssertionError(f"the arrow keys do not lead to “{name}”")


def spaces_by_menu_and_key(pelko):
    pelko.keys("ctrl+3", "ctrl+n")
    pelko.wait_saved(lambda saved: [page["space"] for page in saved] == ["journal"], "a page in journal")
    pelko.keys("F10")
    pelko.wait_for("Journal")
    walk_down_to(pelko, "Work")
    pelko.keys("Return")
    pelko.wait_for("Start Writing")
    pelko.keys("ctrl+n")
    pelko.wait_saved(lambda saved: [page["space"] for page in saved] == ["journal", "work"], "a page in work")
    pelko.wait_focus_on("Heading")


def focus_mode(pelko):
    pelko.type("A quiet hour")
    pelko.keys("Left", "Left")
    pelko.wait_saved(lambda saved: library.outline(saved[1])[0][1] == "A quiet hour", "the heading")
    until(lambda: window_title(pelko) == "A quiet hour – Pelko", "the window is named after the page")
    subprocess.run(["xdotool", "mousemove", "--sync", "1399", "999"], check=True)
    pelko.stand_still()
    before = shown_pixels()

    pelko.keys("ctrl+t")
    pelko.wait_for("Add task")
    pelko.keys("ctrl+shift+f")
    until(lambda: not furniture(pelko), "everything but the page is gone")
    pelko.wait_gone("Add task")
    pelko.stand_still()
    during = shown_pixels()
    assert sum(a != b for a, b in zip(before, during)) > len(before) // 200, "it looks different"
    pelko.wait_focus_on("Heading")
    pelko.type("x")
    pelko.keys("F10")
    pelko.wait_for("Focus mode")
    pelko.keys("Escape")
    pelko.wait_gone("Focus mode")
    assert "Divider" not in furniture(pelko), "Escape was for the menu"

    pelko.keys("F11")
    until(lambda: size(pelko) == [1400, 1000], "the window fills the screen")
    assert "Divider" not in furniture(pelko), "full screen leaves focus mode alone"
    pelko.keys("Escape")
    until(lambda: len(furniture(pelko)) == 3, "everything is back")
    pelko.wait_for("Add task")
    pelko.keys("ctrl+t")
    pelko.wait_gone("Add task")
    assert size(pelko) == [1400, 1000], "focus mode leaves full screen alone"
    pelko.keys("F11")
    until(lambda: size(pelko) == [1100, 750], "the window has its size again")
    pelko.wait_focus_on("Heading")
    pelko.type("y")
    pelko.wait_saved(lambda saved: library.outline(saved[1])[0][1] == "A quiet hoxyur", "the caret where it was")


def way_around(pelko):
    pelko.keys("ctrl+k")
    pelko.wait_for("Go to", {screen_reader().Role.DIALOG})
    pelko.keys("ctrl+k")
    pelko.wait_gone("Go to", {screen_reader().Role.DIALOG})
    pelko.wait_focus_on("Heading")


def choose(pelko, command):
    pelko.keys("F10")
    pelko.wait_for(command)
    walk_down_to(pelko, command)
    pelko.keys("Return")
    pelko.wait_gone(command)
    pelko.wait_focus_on("Heading")


def editing_by_menu(pelko):
    def heading_is(text):
        pelko.wait_saved(lambda saved: library.outline(saved[1])[0][1] == text, f"the heading “{text}”")

    pelko.keys("End")
    pelko.type("!")
    heading_is("A quiet hoxyur!")
    choose(pelko, "Undo")
    heading_is("A quiet hoxyur")
    choose(pelko, "Redo")
    heading_is("A quiet hoxyur!")
    choose(pelko, "Select All")
    choose(pelko, "Cut")
    heading_is("")
    choose(pelko, "Paste")
    heading_is("A quiet hoxyur!")


def sheet_of_keys(pelko):
    pelko.keys("ctrl+slash")
    pelko.wait_for("Focus mode, Ctrl+Shift+F")
    pelko.wait_for("Undo, Ctrl+Z")
    pelko.wait_focus_on("Close")
    pelko.keys("Escape")
    pelko.wait_gone("Undo, Ctrl+Z")
    pelko.wait_focus_on("Heading")


def pomodoro(pelko):
    for way_out in ("Escape", "ctrl+p"):
        pelko.keys("ctrl+p")
        pelko.wait_focus_on("Capture a spark")
        pelko.type("half a thought")
        pelko.keys(way_out)
        pelko.wait_gone("Capture a spark")
        until(pelko.has_focus, "the window has the keyboard again")


def reopened_window(pelko):
    tray = Tray(pelko)
    tray.wait_item()
    pelko.keys("alt+F4")
    until(lambda: not pelko.window(), "the window is closed")
    tray.choose("Open Pelko")
    until(pelko.has_focus, "the window is back")
    pelko.wait_focus_on("Heading")


def commands(pelko):
    process = Tray.start()
    try:
        pelko.start()
        identity_of_the_window(pelko)
        spaces_by_menu_and_key(pelko)
        focus_mode(pelko)
        way_around(pelko)
        editing_by_menu(pelko)
        sheet_of_keys(pelko)
        pomodoro(pelko)
        reopened_window(pelko)
        pelko.keys("ctrl+q")
        assert pelko.process.wait(timeout=30) == 0
    finally:
        process.kill()
        process.wait()


journey.run(commands)
