"""However the program is ended, short of being killed, the words of the last moment are in the file."""

import os
import signal
import subprocess

import desktop
import journey
import library
from desktop import until
from journey import screen_reader
from session_manager import SessionManager
from tray import Tray


def words_in(saved):
    return [block["content"] for page in saved for block in page["blocks"]]


def type_at_the_end(pelko, word):
    """Types and waits until the window has taken the last letter, which is sooner than the next save."""
    field = until(pelko.focused, "a field has the focus")
    pelko.type(word)
    until(lambda: word in screen_reader().text_of(field), "the word is in its field")


def ended_with(pelko, word, code=0):
    assert pelko.process.wait(timeout=30) == code, f"{word}: ended with {pelko.process.returncode}"
    assert any(word in text for text in words_in(pelko.saved())), f"{word}: lost"
    pelko.root = None


def by_keys(pelko):
    for keys, word in (("ctrl+q", "quit"), ("alt+F4", "closed")):
        pelko.start()
        type_at_the_end(pelko, word)
        pelko.keys(keys)
        ended_with(pelko, word)


def by_signals(pelko):
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        pelko.start()
        word = number.name.lower()
        type_at_the_end(pelko, word)
        pelko.process.send_signal(number)
        ended_with(pelko, word)


def by_the_tray(pelko):
    process = Tray.start()
    try:
        pelko.start()
        tray = Tray(pelko)
        tray.wait_item()
        type_at_the_end(pelko, "tray")
        tray.choose("Quit")
        ended_with(pelko, "tray")
    finally:
        process.kill()
        process.wait()


def by_the_end_of_the_session(pelko):
    manager = SessionManager()
    pelko.launch(SESSION_MANAGER=manager.address)
    manager.serve(lambda: manager.registered)
    pelko.root = until(pelko.on_the_bus, "the program is on the bus", 60)
    until(pelko.has_focus, "the window has the focus")
    pelko.stand_still()
    type_at_the_end(pelko, "session")
    manager.end_session()
    manager.serve(lambda: pelko.process.poll() is not None)
    assert manager.saved
    ended_with(pelko, "session")


def by_a_display_that_goes_away(pelko):
    server, display = desktop.start_display()
    own_display = os.environ["DISPLAY"]
    os.environ["DISPLAY"] = display
    try:
        manager = subprocess.Popen(["openbox", "--sm-disable"], stderr=subprocess.DEVNULL)
        pelko.start()
        type_at_the_end(pelko, "display")
        server.kill()
        server.wait()
        ended_with(pelko, "display", code=1)
        manager.wait()
    finally:
        os.environ["DISPLAY"] = own_display
    # The last is said of Qt's own threads, which nobody waits for when Qt ends the process.
    expected = ("X11 connection", "XIO", "QThreadStorage")
    words = journey.complaints(pelko.errors.read_text())
    assert all(any(phrase in line for phrase in expected) for line in words), words
    pelko.errors.unlink()


def orderly_ends(pelko):
    pelko.write_library(library.as_text())
    by_keys(pelko)
    by_signals(pelko)
    by_the_tray(pelko)
    by_the_end_of_the_session(pelko)
    by_a_display_that_goes_away(pelko)


journey.run(orderly_ends)
