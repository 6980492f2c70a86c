"""A disk without room: the save is reported, the old file stays whole, and what was written stays on the page."""

import contextlib
import resource
import signal
import subprocess
import time

import journey
import library
from journey import screen_reader

SIZE = 512 * 1024


@contextlib.contextmanager
def small_disk(folder):
    """A disk of half a megabyte mounted at the folder; False where this process may not mount one."""
    folder.mkdir(parents=True)
    mount = ["mount", "-t", "tmpfs", "-o", f"size={SIZE},mode=700", "pelko-journey", str(folder)]
    mounted = subprocess.run(mount, stderr=subprocess.DEVNULL).returncode == 0
    try:
        yield mounted
    finally:
        if mounted:
            subprocess.run(["umount", "-l", str(folder)], check=True)


def limit_file_size():
    """The next best thing: writing beyond this many bytes fails, as it does on a full disk."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (2000, 2000))


def told_once(pelko):
    pelko.wait_for("Not saved")
    pelko.type(".")
    time.sleep(2)
    assert not pelko.alert(), "the same failure is not told twice"


def asks_before_it_loses_words(pelko):
    pelko.keys("ctrl+q")
    alert = pelko.wait_alert("Save failed: ")
    assert alert.get_name() == journey.UNSAVED
    pelko.wait_focus_on("Stay")
    pelko.keys("Return")
    pelko.wait_no_alert()
    assert pelko.process.poll() is None


def full_disk(pelko):
    with small_disk(pelko.data_file.parent) as mounted:
        pelko.write_library(library.as_text())
        before = pelko.data_file.read_bytes()
        if mounted:
            room = pelko.data_file.parent / "filling"
            with contextlib.suppress(OSError), open(room, "wb", buffering=0) as filling:
                while True:
                    filling.write(bytes(4096))
            pelko.start()
        else:
            pelko.start(before=limit_file_size)
        text = "Words without room: the alert comes up while they are typed, and takes none of their letters"
        pelko.type(text)
        alert = pelko.wait_alert("Save failed: ")
        assert len(alert.get_description()) > len("Save failed: "), "the system's own words follow"
        pelko.keys("Return")
        pelko.wait_no_alert()
        assert pelko.data_file.read_bytes() == before, "the old file is whole"
        assert text in [screen_reader().text_of(node) for node in pelko.fields()]
        told_once(pelko)
        asks_before_it_loses_words(pelko)

        if mounted:
            room.unlink()
            pelko.keys("ctrl+s")
            pelko.wait_saved(
                lambda saved: ("textSmall", text + ".") in library.outline(library.page(saved)),
                "the words, once there is room",
            )
            pelko.wait_gone("Not saved")
            names = {path.name for path in pelko.data_file.parent.iterdir()}
            assert names - {"instance.lock", "instance.socket"} == {"data.json"}, "nothing is left behind"
            pelko.close()
        else:
            pelko.close_and_lose_changes()


journey.run(full_disk)
