"""A disk without room: the save is reported, the old file stays whole, and what was written stays on the page."""

import contextlib
import resource
import signal
import subprocess

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
        pelko.type("Words without room")
        alert = pelko.wait_alert("Save failed: ")
        assert len(alert.get_description()) > len("Save failed: "), "the system's own words follow"
        pelko.keys("Return")
        pelko.wait_no_alert()
        assert pelko.data_file.read_bytes() == before, "the old file is whole"
        assert "Words without room" in [screen_reader().text_of(node) for node in pelko.fields()]

        if mounted:
            room.unlink()
            pelko.type(" until now")
            pelko.wait_saved(
                lambda saved: ("textSmall", "Words without room until now") in library.outline(library.page(saved)),
                "the words, once there is room",
            )
            names = {path.name for path in pelko.data_file.parent.iterdir()}
            assert names - {"instance.lock", "instance.socket"} == {"data.json"}, "nothing is left behind"
        pelko.close()


journey.run(full_disk)
