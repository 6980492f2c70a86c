"""What is written is for its writer only: it is in the data file and nowhere else, also after a crash."""

import os
import resource
import signal
import stat

import journey
import library
from desktop import until

WORD = "Zugvogelherbst"


def allow_core_files():
    resource.setrlimit(resource.RLIMIT_CORE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))


def files_with_the_word(folder):
    found = []
    for path in folder.rglob("*"):
        if path.is_file() and not path.is_symlink():
            bytes_of = path.read_bytes()
            if WORD.encode() in bytes_of or WORD.encode("utf-16-le") in bytes_of:
                found.append(path)
    return found


def privacy(pelko):
    home = pelko.data_home.parent
    temporary = home / "tmp"
    temporary.mkdir()
    os.chdir(temporary)  # where a core file would go
    pelko.write_library(library.as_text())
    os.chmod(pelko.data_file, 0o600)
    pelko.start(before=allow_core_files, TMPDIR=str(temporary))
    pelko.type(WORD)
    pelko.wait_saved(lambda saved: WORD in str(saved), "the word")
    assert files_with_the_word(home) == [pelko.data_file]
    assert stat.S_IMODE(pelko.data_file.stat().st_mode) == 0o600

    pelko.type(" once more")
    pelko.process.send_signal(signal.SIGABRT)
    until(lambda: pelko.process.poll() is not None, "the program has crashed")
    pelko.root = None
    assert files_with_the_word(home) == [pelko.data_file]


journey.run(privacy)
