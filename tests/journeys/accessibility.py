"""The window as a screen reader and a keyboard find it: names, roles, press actions, and Tab to every control."""

import journey
import library
from desktop import until
from journey import screen_reader

MOST_STEPS = 80


def controls(pelko):
    eyes = screen_reader()
    roles = eyes.BUTTONS | eyes.FIELDS | {eyes.Role.CHECK_BOX, eyes.Role.PAGE_TAB}
    return pelko.find_all(roles=roles)


def everything_has_name_and_role(pelko):
    eyes = screen_reader()
    for node in pelko.nodes():
        assert node.get_role() not in {eyes.Role.INVALID, eyes.Role.UNKNOWN}, eyes.describe(node)
    for node in controls(pelko):
        assert node.get_name().strip(), f"a {node.get_role_name()} has no name:\n{eyes.outline(pelko.root)}"


def buttons_can_be_pressed(pelko):
    eyes = screen_reader()
    for node in pelko.find_all(roles=eyes.BUTTONS | {eyes.Role.CHECK_BOX, eyes.Role.PAGE_TAB}):
        assert "Press" in eyes.actions_of(node), f"{eyes.describe(node)} has {eyes.actions_of(node)}"


def identity(node):
    return node.get_role_name(), node.get_name(), screen_reader().centre_of(node)


def tab_reaches_all(pelko):
    pelko.point_at(pelko.button("Close"))  # what the pointer alone brings up is not walked to
    wanted = {identity(node)[:2] for node in controls(pelko)}
    reached = []
    for _ in range(MOST_STEPS):
        in_code = bool(reached) and reached[-1] == ("text", "Code")
        pelko.keys("ctrl+Tab" if in_code else "Tab")  # in code, Tab indents
        node = until(pelko.focused, "something has the focus")
        if reached and identity(node)[:2] == reached[0] and wanted <= set(reached):
            break
        reached.append(identity(node)[:2])
    missing = wanted - set(reached)
    assert not missing, f"Tab does not reach {missing}, only {reached}"


def text_fields_say_what_they_are(pelko):
    eyes = screen_reader()
    empty = next(node for node in pelko.fields() if node.get_name() == "Heading" and not eyes.text_of(node))
    assert empty.get_description() == "Start writing...", empty.get_description()


def press_actions_do_the_work(pelko):
    eyes = screen_reader()
    box = pelko.wait_for("Water the plants", {eyes.Role.CHECK_BOX})
    eyes.press(box)
    until(lambda: eyes.is_checked(pelko.find("Water the plants", {eyes.Role.CHECK_BOX})), "the box is ticked")
    eyes.press(pelko.button("Heading"))
    pelko.wait_saved(lambda saved: library.outline(saved[0])[-1] == ("textLarge", ""), "a heading was added")


def the_way_around_is_worked_by_press_actions(pelko):
    eyes = screen_reader()
    eyes.press(pelko.button("Go to"))
    pelko.wait_focus_on("Find")
    everything_has_name_and_role(pelko)
    buttons_can_be_pressed(pelko)
    tabs = {eyes.Role.PAGE_TAB}
    assert pelko.find("Spaces", {eyes.Role.PAGE_TAB_LIST}), "the spaces are a list of tabs"
    eyes.press(pelko.wait_for("Ideas", tabs))
    pelko.wait_for("No pages in Ideas yet")
    assert [tab.get_name() for tab in pelko.find_all(roles=tabs) if eyes.is_selected(tab)] == ["Ideas"]
    eyes.press(pelko.wait_for("Work", tabs))
    row = until(lambda: pelko.find(roles={eyes.Role.LIST_ITEM}), "the page is in the list")
    assert row.get_name().startswith("Untitled, "), row.get_name()
    assert pelko.focused().get_description() == row.get_name(), "the field reads out what is chosen"
    eyes.press(row)
    pelko.wait_gone("Find")


PAGE = [
    {
        "id": "44444444-0000-4000-8000-000000000000",
        "space": "work",
        "createdAt": 1.5,
        "blocks": [
            {"id": "44444444-0000-4000-8000-000000000001", "type": "textLarge", "content": ""},
            {"id": "44444444-0000-4000-8000-000000000002", "type": "textSmall", "content": "Some words"},
            {"id": "44444444-0000-4000-8000-000000000003", "type": "quote", "content": "A quote"},
            {"id": "44444444-0000-4000-8000-000000000004", "type": "code", "content": "code()"},
            {
                "id": "44444444-0000-4000-8000-000000000005",
                "type": "sticky",
                "content": "",
                "todos": [
                    {"id": "44444444-0000-4000-8000-000000000006", "text": "Water the plants", "done": False},
                    {"id": "44444444-0000-4000-8000-000000000007", "text": "", "done": False},
                ],
            },
        ],
    }
]


def accessibility(pelko):
    pelko.start()
    everything_has_name_and_role(pelko)
    buttons_can_be_pressed(pelko)
    tab_reaches_all(pelko)
    pelko.close()

    pelko.write_library(library.as_text(PAGE))
    pelko.start()
    everything_has_name_and_role(pelko)
    text_fields_say_what_they_are(pelko)
    buttons_can_be_pressed(pelko)
    tab_reaches_all(pelko)
    press_actions_do_the_work(pelko)
    the_way_around_is_worked_by_press_actions(pelko)
    pelko.close()


journey.run(accessibility)
