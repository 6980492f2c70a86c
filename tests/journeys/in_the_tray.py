"""The item in the tray: start and pause, the panel, a tray that is killed and comes back, the closed window."""

import signal

import journey
from desktop import until
from journey import screen_reader
from tray import Tray


def timer_by_menu(pelko, tray):
    assert list(tray.rows().values()) == ["Open Pelko", "Start", "Reset", "-", "Quit"]
    assert tray.property("XAyatanaLabel") == ""
    tray.choose("Start")
    until(lambda: tray.property("XAyatanaLabel").startswith("24:5"), "the label counts")
    assert "of focus left" in tray.property("ToolTip")[2]
    assert list(tray.rows().values())[1] == "Pause"
    tray.choose("Pause")
    until(lambda: tray.property("XAyatanaLabel") == "", "the label is empty")
    tray.click("SecondaryActivate", 0, 0)
    until(lambda: tray.property("XAyatanaLabel") != "", "the middle button starts")
    tray.choose("Reset")
    until(lambda: tray.property("ToolTip")[2] == "Ready for 25:00 of focus", "the timer is reset")


def panel_at_the_item(pelko, tray):
    tray.click("Activate", 1390, 5)
    field = pelko.wait_for("Capture a spark", screen_reader().FIELDS)
    x, y, width, _ = screen_reader().place_of(field)
    assert 1092 <= x and x + width <= 1400 and y < 500, "the panel is in the corner, inside the screen"
    pelko.wait_focus_on("Capture a spark")
    tray.click("Activate", 1390, 5)
    pelko.wait_gone("Capture a spark")
    tray.click("Activate", 1390, 5)
    pelko.wait_focus_on("Capture a spark")
    pelko.keys("Escape")
    pelko.wait_gone("Capture a spark")


def restarted_tray(pelko, tray, process):
    process.send_signal(signal.SIGKILL)
    process.wait()
    pelko.wait_for("Timer", screen_reader().BUTTONS)  # in the window, as long as there is no tray
    process = Tray.start()
    tray.wait_item()
    pelko.wait_gone("Timer", screen_reader().BUTTONS)
    return process


def closed_window(pelko, tray, process):
    tray.choose("Start")
    pelko.keys("alt+F4")
    until(lambda: not pelko.window(), "the window is closed")
    before = until(lambda: tray.property("XAyatanaLabel"), "the timer runs")
    until(lambda: tray.property("XAyatanaLabel") != before, "and goes on")
    tray.choose("Open Pelko")
    until(pelko.has_focus, "the window is back")
    pelko.keys("alt+F4")
    until(lambda: not pelko.window(), "the window is closed")
    process.kill()
    process.wait()
    until(pelko.window, "without a tray the window comes back")


def in_the_tray(pelko):
    process = Tray.start()
    try:
        pelko.start()
        tray = Tray(pelko)
        tray.wait_item()
        pelko.wait_gone("Timer", screen_reader().BUTTONS)
        timer_by_menu(pelko, tray)
        panel_at_the_item(pelko, tray)
        process = restarted_tray(pelko, tray, process)
        closed_window(pelko, tray, process)
        pelko.close()
        process = Tray.start()
        pelko.start()
        tray = Tray(pelko)
        tray.wait_item()
        tray.choose("Quit")
        assert pelko.process.wait(timeout=30) == 0
    finally:
        process.kill()
        process.wait()


journey.run(in_the_tray)
