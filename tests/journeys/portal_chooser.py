"""Exports through the desktop's file chooser: a choice, a cancelled and a closed dialog, none at all, one that dies."""

import pathlib

import journey
import library
from desktop import until
from journey import screen_reader
from portal import Portal


def ask(pelko, portal, order):
    """Presses Ctrl+E and waits until the portal has answered so."""
    before = len(portal.requests())
    portal.tell(order)
    pelko.keys("ctrl+e")
    until(lambda: len(portal.requests()) == before + 1, f"the portal is asked, told “{order}”")


def shown_texts(pelko):
    return [screen_reader().text_of(field) for field in pelko.fields()]


def portal_chooser(pelko):
    home = pathlib.Path(pelko.errors).parent
    shelf = home / "Shelf"
    shelf.mkdir()
    portal = Portal(home)
    pelko.write_library(library.as_text())
    pelko.start()

    for quiet_end in ("1", "2", "9"):
        ask(pelko, portal, quiet_end)
        pelko.stand_still()
        assert not pelko.alert(), f"a dialog that ends with {quiet_end} is no failure"
    ask(pelko, portal, f"0 {shelf}")
    pelko.wait_alert("1 page in “Shelf”.")
    pelko.keys("Return")
    pelko.wait_no_alert()
    assert [path.name for path in shelf.iterdir()] == ["The first page.md"]
    assert portal.requests()[0].startswith("Export to a folder, x11:"), portal.requests()

    # No answer ever: the page can be written on meanwhile.
    ask(pelko, portal, "")
    pelko.type("Waiting")
    until(lambda: any("Waiting" in text for text in shown_texts(pelko)), "the words are on the page")
    portal.kill()
    pelko.wait_alert("Export failed: The file chooser came to an unexpected end. Nothing was left behind.")
    pelko.keys("Return")
    pelko.wait_no_alert()

    pelko.keys("ctrl+e")
    pelko.wait_for("Export to a folder")
    pelko.keys("Escape")
    pelko.wait_gone("Export to a folder")
    pelko.close()


journey.run(portal_chooser)
