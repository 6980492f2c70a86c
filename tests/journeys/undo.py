"""Writes with every key that joins and splits, takes all of it back, does it again, and loses no word on the way."""

import journey
import library

EMPTY = [("textLarge", ""), ("textSmall", "")]
WRITTEN = [("textLarge", "Plan"), ("quote", "Said\nheend"), ("textSmall", "")]
STEPS = 20  # more than there are


def write(pelko):
    pelko.type("Plan")
    pelko.keys("Return")
    pelko.type("> Said")
    pelko.keys("shift+Return")
    pelko.type("he")
    pelko.keys("Return")
    pelko.type("end")
    pelko.keys("Home", "BackSpace")


def wait_page(pelko, expected, what):
    pelko.wait_saved(lambda saved: saved and library.outline(saved[0]) == expected, what)


def undo(pelko):
    pelko.start()
    pelko.keys("ctrl+n")
    pelko.wait_focus_on("Heading")
    write(pelko)
    wait_page(pelko, WRITTEN, "the page as it was written")

    pelko.keys(*["ctrl+z"] * STEPS)
    wait_page(pelko, EMPTY, "the page as it was made")
    pelko.wait_focus_on("Heading")
    pelko.keys(*["ctrl+shift+z"] * STEPS)
    wait_page(pelko, WRITTEN, "the page as it was written, again")
    pelko.wait_focus_on("Quote")
    pelko.type("!")
    wait_page(pelko, [WRITTEN[0], ("quote", "Said\nhe!end"), WRITTEN[2]], "the caret where it was")

    pelko.type("wor")
    pelko.keys("ctrl+n")
    wait_page(pelko, [WRITTEN[0], ("quote", "Said\nhe!worend"), WRITTEN[2]], "half a word of the page before")
    pelko.wait_focus_on("Heading")
    pelko.keys("ctrl+z")
    pelko.type("next")
    pelko.wait_saved(
        lambda saved: [library.outline(page)[0][1] for page in saved] == ["Plan", "next"], "what is done on a page stays on it"
    )
    pelko.close()


journey.run(undo)
