"""The folder of the documents is removed, and later replaced, while the program runs: no word is lost by that."""

import ctypes
import shutil
import subprocess

import journey
import library
from desktop import until


def pelko_says(pelko, *arguments):
    done = subprocess.run([pelko.program, *arguments], capture_output=True, text=True, timeout=30)
    return done.returncode, done.stdout, done.stderr


def exchange(one, other):
    """Each folder gets the other's name, in one step."""
    here, exchanges = -100, 2
    renamed = ctypes.CDLL(None).renameat2(here, bytes(one), here, bytes(other), exchanges)
    assert renamed == 0


def texts(saved):
    return [block["content"] for page in saved for block in page["blocks"]]


def removed_folder(pelko):
    pelko.write_library(library.as_text())
    folder = pelko.data_file.parent
    pelko.start()
    pelko.type("typed before")
    pelko.wait_saved(lambda saved: "typed before" in texts(saved), "what was typed")

    folder.rename(folder.with_name("removed"))
    shutil.rmtree(folder.with_name("removed"))
    pelko.wait_saved(lambda saved: "typed before" in texts(saved), "the same, in a new folder")
    until((folder / "instance.socket").exists, "the program listens there")
    assert pelko_says(pelko, "--spark", "from a key") == (0, "", "")
    assert {"typed before", "from a key"} <= set(texts(pelko.saved()))
    assert pelko_says(pelko, "--pomodoro", "status")[0] == 0, "it is the same program that answers"

    restored = folder.with_name("restored")
    restored.mkdir()
    (restored / "data.json").write_text(library.as_text(), encoding="utf-8")
    exchange(restored, folder)
    pelko.wait_saved(lambda saved: {"typed before", "from a key"} <= set(texts(saved)), "all, in the restored folder")

    pelko.close()
    shutil.rmtree(folder)
    folder.write_text("in the way")
    code, output, errors = pelko_says(pelko, "--spark", "no place")
    assert (code, output) == (1, ""), (code, output)
    assert errors.endswith("pelko: Failed to load your documents.\n"), errors


journey.run(removed_folder)
