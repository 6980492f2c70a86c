"""What the journeys with input methods share: words in two scripts, written in every kind of text of a page."""

from desktop import shown, until
from journey import screen_reader

WORD = "日本"
PLAIN = " is plain"
TEXT = WORD + PLAIN
COMPOSED_KEYS = "kana"
COMPOSED = "かな"
PAGE = [("textLarge", TEXT), ("textSmall", TEXT), ("sticky", [TEXT, TEXT]), ("textSmall", "")]


def wait_on_bus(name):
    """Waits for a service without having the bus start another one."""
    ask = ["dbus-send", "--print-reply", "--dest=org.freedesktop.DBus", "/", "org.freedesktop.DBus.NameHasOwner"]
    until(lambda: "true" in shown(*ask, f"string:{name}"), f"{name} is on the bus")


def word_in_focused_field(pelko):
    """Whether the word is committed: the text of a field is without what is still being composed."""
    field = pelko.focused()
    return field and screen_reader().text_of(field) == WORD


def write_word(pelko, turn):
    """Writes the word with the input method, then plain letters without it.

    An input method that is turned off throws away the keys that it has not answered yet, and ibus-anthy commits
    nothing where Return comes before its conversion is shown.
    """
    turn(True)
    pelko.type("nihon")
    pelko.keys("space")
    pelko.stand_still()
    pelko.keys("Return")
    until(lambda: word_in_focused_field(pelko), "the word is in its field")
    turn(False)
    # An input method answers each key over the bus. On a busy machine one key can pass another there.
    pelko.type(PLAIN, milliseconds=120)


def write_page(pelko, turn):
    """Heading, body and the entries of a checklist; each Return after the first belongs to the page again."""
    write_word(pelko, turn)
    pelko.keys("Return")
    write_word(pelko, turn)
    pelko.keys("Return")
    pelko.type("[] ")
    write_word(pelko, turn)
    pelko.keys("Return")
    write_word(pelko, turn)


def texts_of(block):
    return [entry["text"] for entry in block["todos"]] if block["type"] == "sticky" else block["content"]


def entries(saved):
    return [entry["text"] for entry in saved[0]["blocks"][2]["todos"]]


def compose(pelko, turn):
    turn(True)
    pelko.type(COMPOSED_KEYS)
    pelko.stand_still()


def outline(page):
    return [(block["type"], texts_of(block)) for block in page["blocks"]]


def write_and_quit(pelko, turn, **environment):
    pelko.start(**environment)
    pelko.keys("ctrl+n")
    pelko.wait_focus_on("Heading")
    write_page(pelko, turn)
    pelko.wait_saved(lambda saved: saved and outline(saved[0]) == PAGE, "the page")
    compose(pelko, turn)
    # A click elsewhere ends a composition too: what it shows is kept, once.
    pelko.click(pelko.find("Heading"))
    pelko.wait_saved(lambda saved: entries(saved) == [TEXT, TEXT + COMPOSED], "what was composed in an entry")
    pelko.keys("ctrl+End")
    compose(pelko, turn)
    # Quit in the middle of a composition.
    pelko.close()
    assert entries(pelko.saved()) == [TEXT, TEXT + COMPOSED], pelko.saved()
    assert texts_of(pelko.saved()[0]["blocks"][-1]) == COMPOSED, pelko.saved()
