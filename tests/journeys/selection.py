"""Selects over blocks with the pointer and with keys; another program reads what was copied; what is cut is gone."""

import subprocess

import journey
import library
from desktop import until
from journey import screen_reader

BLOCKS = [
    ("textLarge", "The plan"),
    ("textSmall", "First of all, tea."),
    ("divider", ""),
    ("quote", "Said who"),
    ("code", "x = 1"),
    ("textSmall", "The end"),
]


def plan():
    page = dict(library.LIBRARY[1])
    page["blocks"] = [
        {"id": f"22222222-0000-4000-8000-00000000001{index}", "type": kind, "content": content}
        for index, (kind, content) in enumerate(BLOCKS)
    ]
    return page


def field_with(pelko, text):
    return until(
        lambda: next((node for node in pelko.fields() if screen_reader().text_of(node) == text), None),
        f"a field with {text!r}",
    )


def left_of(node):
    x, y, _, height = screen_reader().place_of(node)
    return x + 1, y + height // 2


def point(place):
    subprocess.run(["xdotool", "mousemove", "--sync", str(place[0]), str(place[1])], check=True)


def drag(start, end):
    point(start)
    subprocess.run(["xdotool", "mousedown", "1"], check=True)
    point(((start[0] + end[0]) // 2, (start[1] + end[1]) // 2))
    point(end)
    subprocess.run(["xdotool", "mouseup", "1"], check=True)


def clipboard(form):
    """What another program gets that asks for this form."""
    return subprocess.run(
        ["xclip", "-selection", "clipboard", "-target", form, "-out"], capture_output=True, timeout=20
    ).stdout.decode()


def wait_clipboard(form, text):
    until(lambda: clipboard(form) == text, f"the clipboard holds {text!r} as {form}")


def texts(pelko):
    # Lines of one text are paragraphs to a screen reader.
    return [screen_reader().text_of(node).replace("\u2029", "\n") for node in pelko.fields()]


def wait_texts(pelko, expected):
    until(lambda: texts(pelko) == expected, f"the page says {expected}, not {texts(pelko)}")


def selection(pelko):
    pelko.write_library(library.as_text([library.LIBRARY[0], plan()]))
    pelko.start()

    drag(left_of(field_with(pelko, "First of all, tea.")), left_of(field_with(pelko, "The end")))
    pelko.keys("ctrl+c")
    wait_clipboard("UTF8_STRING", "First of all, tea.\n---\nSaid who\nx = 1\n")
    wait_clipboard("text/markdown", "First of all, tea.\n\n---\n\n> Said who\n\n```\nx = 1\n```")

    pelko.keys("ctrl+x")
    wait_texts(pelko, ["The plan", "The end"])
    pelko.keys("ctrl+v")
    wait_texts(pelko, ["The plan", "First of all, tea.", "---\nSaid who\nx = 1\nThe end"])

    pelko.click_into(field_with(pelko, "The plan"))
    pelko.keys("End", "shift+Down", "shift+End")
    pelko.type("!")
    wait_texts(pelko, ["The plan!", "---\nSaid who\nx = 1\nThe end"])
    pelko.keys("Down", "End")
    pelko.type("?")
    wait_texts(pelko, ["The plan!", "---?\nSaid who\nx = 1\nThe end"])

    pelko.keys("ctrl+a", "ctrl+a", "Delete")
    pelko.type("Anew")
    pelko.wait_saved(
        lambda saved: library.outline(library.page(saved)) == [("textLarge", "Anew")], "only the new heading"
    )
    pelko.close()


journey.run(selection)
