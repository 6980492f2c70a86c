"""Data files that are no data files: the alert says so, nothing crashes, nothing is overwritten by itself."""

import journey
import library

TITLES = {
    "Something broke. Not your fault. Probably.",
    "That didn't work. Give it a second and try again before we both panic.",
    "Nope. Something went wrong. Try again.",
}
WHOLE = library.as_text()

BROKEN = {
    "nothing at all": b"",
    "cut off": WHOLE.encode()[:-40],
    "somebody else's": b'{"documents":[]}',
    "an unknown space": WHOLE.replace('"space":"ideas"', '"space":"shed"').encode(),
    "half a surrogate": WHOLE.replace("The first page", "\\ud800").encode(),
    "not UTF-8": WHOLE.encode().replace("ü".encode(), b"\xfc"),
    "nested without end": b"[" * 200_000,
    "zeros": bytes(1_000_000),
}


def see_the_alert(pelko, what):
    alert = pelko.wait_alert("Failed to load your documents.")
    assert alert.get_name() in TITLES, f"{what}: {alert.get_name()}"
    pelko.wait_focus_on("Got it")
    pelko.keys("Return")
    pelko.wait_no_alert()


def broken_file(pelko):
    pelko.data_file.parent.mkdir(parents=True)
    for what, content in BROKEN.items():
        pelko.data_file.write_bytes(content)
        pelko.start()
        see_the_alert(pelko, what)
        pelko.close()
        assert pelko.data_file.read_bytes() == content, f"{what}: left as it was"

    pelko.data_file.unlink()
    pelko.data_file.mkdir()
    pelko.start()
    see_the_alert(pelko, "a folder in its place")
    pelko.keys("ctrl+n")
    first = pelko.wait_alert("Save failed: ").get_name()
    assert first in TITLES, first
    pelko.close_and_lose_changes()


journey.run(broken_file)
