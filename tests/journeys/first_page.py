"""Opens a library, writes with every typing shortcut, adds every kind of block, ticks, deletes, finds it all again."""

import json
import time

import journey
import library
from desktop import until
from journey import screen_reader

REFERENCE_DATE = 978307200  # 2001-01-01 in seconds since 1970


def write_with_shortcuts(pelko):
    # On opening, the focus goes to the first empty text.
    wait_focus(pelko, "Body", "")
    pelko.type("First words / and a slash")
    pelko.keys("Return")
    pelko.type("# A heading")
    pelko.keys("Return")
    pelko.type("> Somebody said")
    pelko.keys("Return")
    pelko.type("```x = 1")
    pelko.keys("Return")
    pelko.type("---")
    wait_focus(pelko, "Body", "")
    pelko.type("[] Tick me")


def use_the_bar(pelko):
    add(pelko, "Body", "[ ] Leave me")
    for kind, text in [("Heading", "Big"), ("Body", "Small"), ("Quote", "Delete me"), ("Code", "and me")]:
        add(pelko, kind, text)
    for kind in ("Divider", "Image", "Checklist"):
        pelko.click(pelko.button(kind))
        pelko.stand_still()


def add(pelko, kind, text):
    pelko.click(pelko.button(kind))
    wait_focus(pelko, kind, "")
    pelko.type(text)


def wait_focus(pelko, name, text):
    def has_it():
        node = pelko.focused()
        return node and node.get_name() == name and screen_reader().text_of(node) == text

    until(has_it, f"the focus is in “{name}” with {text!r}")


def tick(pelko, name):
    box = pelko.wait_for(name, {screen_reader().Role.CHECK_BOX})
    assert not screen_reader().is_checked(box)
    pelko.click(box)
    until(
        lambda: screen_reader().is_checked(pelko.find(name, {screen_reader().Role.CHECK_BOX})),
        f"“{name}” is ticked",
    )


def field_with(pelko, text):
    return until(
        lambda: next((node for node in pelko.fields() if screen_reader().text_of(node) == text), None),
        f"a field with {text!r}",
    )


def delete_by_button(pelko, text):
    pelko.point_at(field_with(pelko, text))
    pelko.click(pelko.button("Delete"))
    until(lambda: text not in texts(pelko), f"{text!r} is deleted")


def delete_by_menu(pelko, text):
    pelko.click(field_with(pelko, text), button=3)
    pelko.click(pelko.wait_for("Delete Block"))
    until(lambda: text not in texts(pelko), f"{text!r} is deleted")


def texts(pelko):
    return [screen_reader().text_of(node) for node in pelko.fields()]


EXPECTED = [
    ("textLarge", "The first page"),
    ("textSmall", library.SCRIPTS),
    ("textSmall", "First words / and a slash"),
    ("textLarge", "A heading"),
    ("quote", "Somebody said"),
    ("code", "x = 1"),
    ("divider", ""),
    ("sticky", "", [("Tick me", True)]),
    ("sticky", "", [("Leave me", False)]),
    ("textLarge", "Big"),
    ("textSmall", "Small"),
    ("divider", ""),
    ("image", ""),
    ("sticky", "", [("", False)]),
]


def check_file(pelko, started):
    pelko.wait_saved(lambda saved: library.outline(library.page(saved)) == EXPECTED, "the page as it was written")
    saved = pelko.saved()
    before = library.canonical(library.LIBRARY)
    assert saved[0] == before[0] and saved[2] == before[2], "the other documents are untouched"
    page, old = library.page(saved), library.page(before)
    assert {**page, "blocks": 0, "updatedAt": 0} == {**old, "blocks": 0, "updatedAt": 0}
    assert started <= page["updatedAt"] + REFERENCE_DATE <= time.time()
    assert page["blocks"][:2] == old["blocks"][:2]
    assert page["blocks"][2]["id"] == old["blocks"][2]["id"]
    identifiers = [block["id"] for block in page["blocks"]]
    assert len(set(identifiers)) == len(identifiers) and all(name == name.upper() for name in identifiers)
    assert all(set(block) <= {"id", "type", "content", "todos"} for block in page["blocks"])
    raw = pelko.data_file.read_text(encoding="utf-8")
    assert "\\/ and a slash" in raw and "\n" not in raw and ": " not in raw.replace(json.dumps(": "), "")
    assert pelko.data_file.stat().st_mode & 0o777 == 0o644, "the file keeps its mode"


def read_whole_page(pelko):
    """Every text and tick on the page, gathered while scrolling from its beginning to its end."""
    seen, ticked = set(), set()
    pelko.point_at(pelko.fields()[0])
    for _ in range(12):
        seen |= {screen_reader().text_of(node) for node in pelko.fields()}
        boxes = pelko.find_all(roles={screen_reader().Role.CHECK_BOX})
        ticked |= {(box.get_name(), screen_reader().is_checked(box)) for box in boxes}
        pelko.wheel_down()
        pelko.stand_still()
    return seen, ticked


def first_page(pelko):
    pelko.write_library(library.as_text())
    pelko.data_file.chmod(0o644)
    started = time.time()
    pelko.start()
    write_with_shortcuts(pelko)
    tick(pelko, "Tick me")
    use_the_bar(pelko)
    delete_by_button(pelko, "Delete me")
    delete_by_menu(pelko, "and me")
    check_file(pelko, started)
    pelko.close()

    kept = pelko.data_file.read_bytes()
    pelko.start()
    seen, ticked = read_whole_page(pelko)
    assert {"The first page", library.SCRIPTS, "x = 1", "Somebody said", "Big", "Small", "Leave me"} <= seen, seen
    assert {("Tick me", True), ("Leave me", False)} <= ticked, ticked
    pelko.close()
    assert pelko.data_file.read_bytes() == kept, "reading alone writes nothing"


journey.run(first_page)
