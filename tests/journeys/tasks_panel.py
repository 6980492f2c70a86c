"""Ticks, deletes and adds tasks in the panel; the file and the page beside it follow."""

import journey
import library
from desktop import until
from journey import screen_reader

OPEN = "33333333-0000-4000-8000-000000000001"
OTHER = "33333333-0000-4000-8000-000000000002"


def page(identifier, space, title, tasks):
    stem = identifier[:-1]
    todos = [{"id": f"{stem}{9 - index}", "text": text, "done": done} for index, (text, done) in enumerate(tasks)]
    return {
        "id": identifier,
        "space": space,
        "createdAt": 780000000.5,
        "blocks": [
            {"id": f"{identifier[:-2]}a{identifier[-1]}", "type": "textLarge", "content": title},
            {"id": f"{identifier[:-2]}b{identifier[-1]}", "type": "sticky", "content": "", "todos": todos},
        ],
    }


def packing_and_spring():
    packing = page(OPEN, "work", "Packing list", [("Wool socks", False), ("Two pens", True)])
    spring = page(OTHER, "journal", "Spring issue", [("Cover photo", False)])
    for todo in spring["blocks"][1]["todos"]:
        todo["id"] = todo["id"].replace("33333333", "44444444")
    return [packing, spring]


def left_edge_of_panel(pelko):
    return screen_reader().place_of(pelko.wait_for("Tasks panel", {screen_reader().Role.PANEL}))[0]


def in_panel(pelko, name):
    """The control of that name in the panel; the page has one too."""
    edge = left_edge_of_panel(pelko)
    return until(
        lambda: next((node for node in pelko.find_all(name) if screen_reader().place_of(node)[0] >= edge), None),
        f"“{name}” is in the panel",
    )


def ticks_on_page(pelko, name):
    edge = left_edge_of_panel(pelko)
    on_page = [
        node
        for node in pelko.find_all(name, {screen_reader().Role.CHECK_BOX})
        if screen_reader().place_of(node)[0] < edge
    ]
    return [screen_reader().is_checked(node) for node in on_page]


def tasks_of(documents, identifier):
    blocks = library.page(documents, identifier)["blocks"]
    return [(todo["text"], todo["done"]) for todo in blocks[1]["todos"]]


def open_panel(pelko):
    pelko.click(pelko.wait_for("Tasks"))
    pelko.wait_for("Add task")
    pelko.wait_for("Hide")
    pelko.wait_for("4 of 500 words")
    pelko.wait_for("Streak: 1 day")
    pelko.wait_for("PACKING LIST")
    pelko.wait_for("SPRING ISSUE")
    pelko.stand_still()


def tick(pelko):
    pelko.click(in_panel(pelko, "Wool socks"))
    pelko.wait_saved(lambda saved: tasks_of(saved, OPEN)[0] == ("Wool socks", True), "a tick")
    until(lambda: ticks_on_page(pelko, "Wool socks") == [True], "the page shows the tick")
    pelko.click(in_panel(pelko, "Cover photo"))
    pelko.wait_saved(lambda saved: tasks_of(saved, OTHER) == [("Cover photo", True)], "a tick on another page")
    screen_reader().press(in_panel(pelko, "Cover photo"))
    pelko.wait_saved(lambda saved: tasks_of(saved, OTHER) == [("Cover photo", False)], "a tick taken back")


def delete(pelko):
    pelko.click(in_panel(pelko, "Delete Two pens"))
    pelko.wait_saved(lambda saved: tasks_of(saved, OPEN) == [("Wool socks", True)], "a deletion")
    pelko.wait_gone("Two pens")


def add(pelko):
    pelko.click_into(pelko.wait_for("Add task"))
    pelko.type("Call the printer")
    pelko.keys("Return")
    pelko.wait_saved(lambda saved: tasks_of(saved, OPEN)[1:] == [("Call the printer", False)], "a new task")
    until(lambda: ticks_on_page(pelko, "Call the printer") == [False], "the page has the new task")
    pelko.keys("space", "Return")
    pelko.type("Tea")
    pelko.keys("Return")
    pelko.wait_saved(lambda saved: tasks_of(saved, OPEN)[2:] == [(" Tea", False)], "blanks are kept, and no task alone")


def close(pelko):
    pelko.keys("Escape")
    pelko.click(pelko.wait_for("Hide"))
    pelko.wait_gone("Add task")
    pelko.wait_for("Tasks")


def preferences(pelko):
    file = pelko.data_home.parent / "config" / "Pelko" / "Pelko.ini"
    assert "pelko.currentStreak=1\n" in file.read_text(), file.read_text()


def tasks_panel(pelko):
    pelko.write_library(library.as_text(packing_and_spring()))
    pelko.start()
    open_panel(pelko)
    tick(pelko)
    delete(pelko)
    add(pelko)
    close(pelko)
    preferences(pelko)
    pelko.close()


journey.run(tasks_panel)
