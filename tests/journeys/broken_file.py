"""Data files that are no data files: the alert says so, nothing crashes, nothing is overwritten by itself."""

import journey
import library
from desktop import until
from journey import screen_reader

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
    pelko.wait_for("Failed to load your documents.")
    assert TITLES & {node.get_name() for node in pelko.nodes()}, screen_reader().outline(pelko.root)
    until(lambda: pelko.focused() and pelko.focused().get_name() == "Got it", f"the focus is on “Got it” ({what})")
    pelko.keys("Return")
    pelko.wait_gone("Failed to load your documents.")


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
    until(
        lambda: any(node.get_name().startswith("Save failed: ") for node in pelko.nodes()),
        "the failed save is told",
    )
    pelko.close()


journey.run(broken_file)
