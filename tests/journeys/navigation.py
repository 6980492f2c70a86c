"""By keyboard alone: a page in each space, the limit, from space to space, find, open, delete and rather not."""

import journey
from desktop import until
from journey import screen_reader

LIMIT = "You've got 5 docs in this space. Archive one first. Constraints breed creativity."


def titles(saved, space):
    return [page["blocks"][0]["content"] for page in saved if page["space"] == space]


def open_overlay(pelko):
    pelko.keys("ctrl+k")
    pelko.wait_focus_on("Find")


def chosen(pelko):
    """What the search field reads out of the chosen row."""
    field = pelko.wait_focus_on("Find")
    return field.get_description()


def wait_chosen(pelko, beginning):
    until(lambda: chosen(pelko).startswith(beginning), f"“{beginning}” is chosen")


def wait_page(pelko, title):
    until(
        lambda: any(screen_reader().text_of(field) == title for field in pelko.fields()),
        f"the page “{title}” is shown",
    )


def write_page(pelko, title):
    """The new page has the caret in its empty heading."""
    until(lambda: pelko.focused() and pelko.focused().get_role() in screen_reader().FIELDS, "a field has the caret")
    pelko.type(title)
    pelko.wait_saved(lambda saved: any(title in titles(saved, page["space"]) for page in saved), title)


def a_page_in_each_space(pelko):
    pelko.keys("ctrl+n")
    write_page(pelko, "Work one")
    pelko.keys("ctrl+1")
    pelko.wait_focus_on("Start Writing")
    pelko.keys("Return")
    write_page(pelko, "Idea of kettles")
    # The last one from within the navigation, where its row is chosen while the space is empty.
    open_overlay(pelko)
    pelko.keys("ctrl+3")
    pelko.wait_for("No pages in Journal yet")
    pelko.keys("Return")
    pelko.wait_gone("Find")
    write_page(pelko, "Journal one")
    saved = pelko.saved()
    assert titles(saved, "work") == ["Work one"], saved
    assert titles(saved, "ideas") == ["Idea of kettles"], saved
    assert titles(saved, "journal") == ["Journal one"], saved


def five_is_the_limit(pelko):
    for number in range(2, 6):
        pelko.keys("ctrl+n")
        write_page(pelko, f"Journal {number}")
    open_overlay(pelko)
    pelko.wait_for("New Document", screen_reader().BUTTONS)
    pelko.keys("Page_Down", "Page_Down")
    wait_chosen(pelko, "New Document, no places left in Journal")
    pelko.keys("Return")
    pelko.wait_alert(LIMIT)
    pelko.keys("Return")
    pelko.wait_no_alert()
    # The limit does not close the navigation: here a place can be made.
    pelko.wait_focus_on("Find")
    assert len(titles(pelko.saved(), "journal")) == 5
    pelko.keys("Escape")
    pelko.wait_gone("Find")


def find_and_open(pelko):
    open_overlay(pelko)
    pelko.type("kettle")
    pelko.wait_for("1 hit, all spaces")
    wait_chosen(pelko, "Idea of kettles")
    pelko.keys("Return")
    pelko.wait_gone("Find")
    wait_page(pelko, "Idea of kettles")


def rather_not(pelko):
    open_overlay(pelko)
    pelko.keys("Delete")
    pelko.wait_focus_on("Nah")
    assert pelko.alert().get_name() == "Delete “Idea of kettles” for good?"
    pelko.keys("Return")
    pelko.wait_focus_on("Find")
    assert titles(pelko.saved(), "ideas") == ["Idea of kettles"]


def delete(pelko):
    pelko.keys("Delete")
    pelko.wait_focus_on("Nah")
    pelko.keys("Tab")
    pelko.wait_focus_on("Delete")
    pelko.keys("Return")
    pelko.wait_saved(lambda saved: titles(saved, "ideas") == [], "the idea is gone")
    pelko.wait_for("No pages in Ideas yet")
    pelko.wait_focus_on("Find")
    pelko.keys("ctrl+2")
    wait_chosen(pelko, "Work one")
    # The key that opened it closes it, and the page has the keyboard again.
    pelko.keys("ctrl+k")
    pelko.wait_gone("Find")
    wait_page(pelko, "Work one")


def the_caret_comes_back(pelko):
    # The page was opened under the navigation; its empty block has waited for the focus.
    until(lambda: pelko.focused() and pelko.focused().get_role() in screen_reader().FIELDS, "a field has the caret")
    pelko.type("one three")
    pelko.keys("Left", "Left", "Left", "Left", "Left")
    open_overlay(pelko)
    pelko.keys("Escape")
    pelko.wait_gone("Find")
    pelko.type("two ")
    pelko.wait_saved(
        lambda saved: any("one two three" in block["content"] for page in saved for block in page["blocks"]),
        "the words stand where the caret was",
    )


def navigation(pelko):
    pelko.start()
    a_page_in_each_space(pelko)
    five_is_the_limit(pelko)
    find_and_open(pelko)
    rather_not(pelko)
    delete(pelko)
    the_caret_comes_back(pelko)
    pelko.close()


journey.run(navigation)
