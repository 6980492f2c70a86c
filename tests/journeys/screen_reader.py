"""Sees a program as a screen reader does: names, roles, states, texts and press actions."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Role = Atspi.Role
State = Atspi.StateType

BUTTONS = {Role.PUSH_BUTTON, Role.PUSH_BUTTON_MENU, Role.TOGGLE_BUTTON}
FIELDS = {Role.TEXT, Role.ENTRY, Role.PARAGRAPH}


def application(process_id):
    """The root of a process's tree, or None while it has not said hello."""
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()  # no main loop runs here that would tell of newcomers
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        try:
            if child and child.get_process_id() == process_id:
                return child
        except GLib.Error:
            continue
    return None


def walk(node):
    """Every node below, in tree order. Nodes that die meanwhile are left out."""
    try:
        node.clear_cache()
        yield node
        for index in range(node.get_child_count()):
            child = node.get_child_at_index(index)
            if child:
                yield from walk(child)
    except GLib.Error:
        return


def alive(question):
    """A question about a node whose answer is no when the node has gone meanwhile."""

    def asked(*arguments):
        try:
            return question(*arguments)
        except GLib.Error:
            return False

    return asked


@alive
def is_showing(node):
    states = node.get_state_set()
    return states.contains(State.SHOWING) and states.contains(State.VISIBLE)


@alive
def is_called(node, name, roles):
    return (name is None or node.get_name() == name) and (roles is None or node.get_role() in roles)


@alive
def is_checked(node):
    return node.get_state_set().contains(State.CHECKED)


@alive
def is_selected(node):
    return node.get_state_set().contains(State.SELECTED)


@alive
def is_focused(node):
    return node.get_state_set().contains(State.FOCUSED)


@alive
def text_of(node):
    """What stands in a text field."""
    return Atspi.Text.get_text(node, 0, -1) if node.get_text_iface() else None


def place_of(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


def centre_of(node):
    x, y, width, height = place_of(node)
    return x + width // 2, y + height // 2


def actions_of(node):
    if not node.get_action_iface():
        return []
    return [Atspi.Action.get_action_name(node, index) for index in range(Atspi.Action.get_n_actions(node))]


def press(node):
    """Does what a screen reader does when its user activates a control."""
    names = actions_of(node)
    wanted = next((name for name in ("Press", "Toggle", "press", "toggle", "click") if name in names), None)
    assert wanted, f"{describe(node)} has no press action, only {names}"
    Atspi.Action.do_action(node, names.index(wanted))


def describe(node):
    return f"{node.get_role_name()} “{node.get_name()}”"


def outline(root):
    """The tree as indented lines, kept when a journey fails."""
    lines = []

    def add(node, depth):
        try:
            mark = "" if is_showing(node) else " (hidden)"
            text = text_of(node)
            lines.append("  " * depth + describe(node) + (f" = {text!r}" if text else "") + mark)
            for index in range(node.get_child_count()):
                child = node.get_child_at_index(index)
                if child:
                    add(child, depth + 1)
        except GLib.Error as error:
            lines.append("  " * depth + str(error))

    add(root, 0)
    return "\n".join(lines)
