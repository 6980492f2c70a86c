"""Writes Japanese with fcitx5 and plain letters after it; all of it is in the file."""

import os
import pathlib
import subprocess

import input_methods
import journey
from desktop import shown, until

PROFILE = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=anthy

[Groups/0/Items/0]
Name=keyboard-us
Layout=

[Groups/0/Items/1]
Name=anthy
Layout=

[GroupOrder]
0=Default
"""


def configure():
    profile = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "fcitx5" / "profile"
    profile.parent.mkdir(parents=True)
    profile.write_text(PROFILE)


def state():
    return shown("fcitx5-remote").strip()


def turn(on):
    wanted = "2" if on else "1"

    def is_turned():
        subprocess.run(["fcitx5-remote", "-o" if on else "-c"])
        return state() == wanted

    until(is_turned, "fcitx5 is on" if on else "fcitx5 is off")


def fcitx(pelko):
    configure()
    server = subprocess.Popen(["fcitx5", "--disable=wayland"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        input_methods.wait_on_bus("org.fcitx.Fcitx5")
        input_methods.write_and_quit(pelko, turn, QT_IM_MODULE="fcitx")
    finally:
        server.terminate()
        server.wait()


journey.run(fcitx)
