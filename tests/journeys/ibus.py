"""Writes Japanese with ibus and plain letters after it; all of it is in the file."""

import os
import pathlib
import subprocess

import input_methods
import journey
from desktop import shown, until

HIRAGANA = """[org/freedesktop/ibus/engine/anthy/common]
input-mode=0
"""


def configure():
    settings = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "glib-2.0" / "settings" / "keyfile"
    settings.parent.mkdir(parents=True)
    settings.write_text(HIRAGANA)


def start():
    """The engine is a script for the system's own Python."""
    search = "/usr/bin:" + os.environ["PATH"]
    return subprocess.Popen(
        ["ibus-daemon", "--panel=disable", "--emoji-extension=disable", "--cache=refresh"],
        env={**os.environ, "PATH": search, "GSETTINGS_BACKEND": "keyfile"},
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )


def turn(on):
    wanted = "anthy" if on else "xkb:us::eng"

    def is_turned():
        subprocess.run(["ibus", "engine", wanted], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return shown("ibus", "engine").strip() == wanted

    until(is_turned, f"ibus has the engine {wanted}")


def ibus(pelko):
    configure()
    server = start()
    try:
        until(lambda: shown("ibus", "address").startswith("unix:"), "ibus answers")
        input_methods.write_and_quit(pelko, turn, QT_IM_MODULE="ibus")
    finally:
        server.terminate()
        server.wait()


journey.run(ibus)
