"""Opens the real GTK file chooser for an export, where it is installed, and closes it with Escape."""

import os
import pathlib
import subprocess
import sys

import desktop
import journey
import library
from desktop import shown, until

SERVICES = [
    "org.freedesktop.portal.Desktop",
    "org.freedesktop.portal.Documents",
    "org.freedesktop.impl.portal.PermissionStore",
    "org.freedesktop.impl.portal.desktop.gtk",
]
PORTALS = pathlib.Path("/usr/share/xdg-desktop-portal/portals")
SKIPPED = 77


def dialogs():
    return shown("xdotool", "search", "--onlyvisible", "--name", "^Export to a folder$").split()


def open_dialog(pelko):
    pelko.keys("ctrl+e")
    dialog = until(dialogs, "the dialog is shown", 60)[0]
    until(lambda: shown("xdotool", "getwindowfocus").strip() == dialog, "the dialog has the focus")


def cancel_dialog(pelko):
    pelko.keys("Escape")
    until(lambda: not dialogs(), "the dialog has gone")
    until(pelko.has_focus, "the window has the focus again")


def portal_gtk(pelko):
    pelko.write_library(library.as_text())
    pelko.start()

    open_dialog(pelko)
    cancel_dialog(pelko)
    pelko.stand_still()
    assert not pelko.alert(), "Escape is no failure"
    pelko.close()


def choose_gtk():
    """The portal would take whatever back end is installed; this session has only this one."""
    folder = pathlib.Path(os.environ["PELKO_JOURNEY"]) / "portals"
    folder.mkdir()
    (folder / "gtk.portal").symlink_to(PORTALS / "gtk.portal")
    (folder / "portals.conf").write_text("[preferred]\ndefault=gtk\n")
    os.environ["XDG_DESKTOP_PORTAL_DIR"] = str(folder)
    os.environ["XDG_CURRENT_DESKTOP"] = "gtk"
    subprocess.run(
        ["dbus-update-activation-environment", "XDG_DESKTOP_PORTAL_DIR", "XDG_CURRENT_DESKTOP", "DISPLAY"], check=True
    )


if not desktop.are_installed(SERVICES):
    print("xdg-desktop-portal-gtk is not installed")
    sys.exit(SKIPPED)
if "PELKO_JOURNEY" in os.environ:
    choose_gtk()
journey.run(portal_gtk, services=SERVICES)
