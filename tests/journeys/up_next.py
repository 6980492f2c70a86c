"""Keeps appointments in the desktop's calendar; the panel tells what comes next, anew each time it opens."""

import datetime

import evolution
import journey
import library
from journey import screen_reader


def clock(moment):
    return f"{moment:%I:%M %p}".lstrip("0")


def told(pelko):
    """What the card tells, from top to bottom."""
    card = pelko.wait_for("UP NEXT")
    top = screen_reader().place_of(card)[1]
    below = [node for node in pelko.nodes() if screen_reader().place_of(node)[1] > top and node.get_name()]
    rows = [node.get_name() for node in below if node.get_name().endswith((" AM", " PM"))]
    return rows


def look(pelko, *expected):
    pelko.click(pelko.wait_for("Tasks"))
    pelko.wait_for("UP NEXT")
    for name in expected:
        pelko.wait_for(name)
    pelko.stand_still()


def close(pelko):
    pelko.click(pelko.wait_for("Hide"))
    pelko.wait_gone("UP NEXT")


def up_next(pelko):
    calendar = evolution.Calendar()
    now = datetime.datetime.now(datetime.timezone.utc).replace(second=0, microsecond=0)
    hour = datetime.timedelta(hours=1)
    pelko.write_library(library.as_text(library.LIBRARY))
    pelko.start()
    look(pelko, "Nothing scheduled")
    close(pelko)

    calendar.add("walk", now - hour, now + hour, "SUMMARY:Walk, without the phone")
    calendar.add("far", now + 25 * hour, now + 26 * hour, "SUMMARY:Tomorrow")
    calendar.add("late", now + 5 * hour, now + 6 * hour, "SUMMARY:Late")
    calendar.add("blank", now + 2 * hour, now + 3 * hour)
    calendar.add("tea", now - 47 * hour, now - 46 * hour, "SUMMARY:Tea with Ines", "RRULE:FREQ=DAILY")
    expected = [
        f"Walk, without the phone, {clock(now - hour)}",
        f"Tea with Ines, {clock(now + hour)}",
        f"Untitled, {clock(now + 2 * hour)}",
    ]
    look(pelko, *expected)
    assert told(pelko) == expected, told(pelko)
    pelko.wait_for("4")
    close(pelko)

    calendar.remove("tea")
    look(pelko, expected[0], expected[2], f"Late, {clock(now + 5 * hour)}")
    assert not pelko.find(expected[1])
    pelko.close()


journey.run(up_next, services=evolution.SERVICES)
