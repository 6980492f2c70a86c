"""Blocks change places with the mouse and with the keys; a drag that is called off changes nothing."""

import subprocess
import time

import journey
import library
from desktop import until
from journey import screen_reader

WORDS = ["Alpha", "Beta", "Gamma", "Delta", "Epsilon"]
PAGE = {
    "id": library.FIRST_PAGE,
    "space": "work",
    "createdAt": 816000000.25,
    "blocks": [
        {"id": f"22222222-0000-4000-8000-00000000000{row}", "type": "textSmall", "content": word}
        for row, word in enumerate(WORDS)
    ],
}
BESIDE = 60  # left of the text: in the margin


def pointer(*command):
    subprocess.run(["xdotool", *map(str, command)], check=True)


def field(pelko, text):
    return until(
        lambda: next((node for node in pelko.fields() if screen_reader().text_of(node) == text), None),
        f"a field with {text!r}",
    )


def margin_of(pelko, text):
    x, y, _, height = screen_reader().place_of(field(pelko, text))
    return x - BESIDE, y + height // 2


def take(pelko, text):
    pointer("mousemove", "--sync", *margin_of(pelko, text))
    pointer("mousedown", 1)


def carry_to(pelko, text):
    """Moves as a hand does, in steps, until the block that is carried stands where `text` stood."""
    x, y = margin_of(pelko, text)
    place = shown_pointer()
    for step in range(1, 13):
        pointer("mousemove", x, place + (y - place) * step // 12)
        time.sleep(0.02)


def shown_pointer():
    words = subprocess.run(["xdotool", "getmouselocation", "--shell"], capture_output=True, text=True).stdout
    return int(next(line for line in words.split() if line.startswith("Y=")).removeprefix("Y="))


def let_go():
    pointer("mouseup", 1)


def order(pelko):
    """The words as they are read out, when they stand on the screen in the same order."""
    found = [(screen_reader().place_of(node)[1], screen_reader().text_of(node)) for node in pelko.fields()]
    return " ".join(text for _, text in found) if found == sorted(found) else None


def wait_order(pelko, expected):
    until(lambda: order(pelko) == expected, f"the order is {expected}")


def stored(saved):
    return " ".join(block["content"] for block in library.page(saved)["blocks"])


def reorder(pelko):
    pelko.write_library(library.as_text([PAGE]))
    untouched = pelko.data_file.read_bytes()
    pelko.start()

    take(pelko, "Alpha")
    carry_to(pelko, "Gamma")
    wait_order(pelko, "Beta Gamma Alpha Delta Epsilon")
    time.sleep(1.5)
    assert pelko.data_file.read_bytes() == untouched, "nothing is saved before the drop"
    let_go()
    pelko.wait_saved(lambda saved: stored(saved) == "Beta Gamma Alpha Delta Epsilon", "the order of the drop")

    dropped = pelko.data_file.read_bytes()
    take(pelko, "Epsilon")
    carry_to(pelko, "Beta")
    wait_order(pelko, "Epsilon Beta Gamma Alpha Delta")
    pointer("key", "Escape")  # and nothing else: `keys` lets go of the button as well
    let_go()
    wait_order(pelko, "Beta Gamma Alpha Delta Epsilon")
    time.sleep(1.5)
    assert pelko.data_file.read_bytes() == dropped, "a drag that is called off saves nothing"

    pelko.click_into(field(pelko, "Delta"))
    pelko.keys("End", "alt+Up", "alt+Up", "alt+Down", "alt+Up")
    pelko.type("!")
    pelko.wait_saved(
        lambda saved: stored(saved) == "Beta Delta! Gamma Alpha Epsilon", "the order of the keys, the caret kept"
    )
    identifiers = [block["id"] for block in library.page(pelko.saved())["blocks"]]
    assert sorted(identifiers) == sorted(block["id"] for block in PAGE["blocks"])
    pelko.close()


journey.run(reorder)
