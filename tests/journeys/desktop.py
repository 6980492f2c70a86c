"""A desktop of its own for one journey: display, window manager, session bus and folders, all gone afterwards.

`journey.py` is started twice. The outer process makes the folders and the display and starts the inner one under
`dbus-run-session`, so that bus, window manager and program share one environment from the beginning.

What is installed for the user's own desktop must not take part: the bus can start only the services that the journey
names, and of the system's shared data there is only what the tools of a journey cannot do without.
"""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time


INSTALLED_SERVICES = pathlib.Path("/usr/share/dbus-1/services")
ACCESSIBILITY = ["org.a11y.Bus"]  # the tests read the window over it
# Settings schemas are for the calendar server, themes for the window manager.
SHARED_DATA = ("glib-2.0", "themes", "mime")
BUS = """<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><servicedir>{services}</servicedir>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy>{limits}</busconfig>
"""
# Those of an ordinary session bus; the daemon's own are for the bus of the system.
LIMITS = {
    "max_incoming_bytes": 1000000000,
    "max_outgoing_bytes": 1000000000,
    "max_message_size": 1000000000,
    "service_start_timeout": 120000,
    "max_replies_per_connection": 50000,
    "max_match_rules_per_connection": 50000,
}


class Late(AssertionError):
    """Something expected did not happen before its deadline."""


def until(condition, what, seconds=30):
    """Asks ten times a second until `condition` returns something true, and returns that."""
    deadline = time.monotonic() + seconds
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > deadline:
            raise Late(f"after {seconds} s still not: {what}")
        time.sleep(0.1)


def start_display():
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", "1400x1000x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[write],
        stderr=subprocess.DEVNULL,
    )
    os.close(write)
    with os.fdopen(read) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise RuntimeError("Xvfb did not start")
    return server, f":{number}"


def are_installed(services):
    return all((INSTALLED_SERVICES / f"{name}.service").exists() for name in services)


def write_bus_configuration(home, services):
    """Returns the configuration file of a session bus that can start these installed services only."""
    folder = home / "services"
    folder.mkdir()
    for name in services:
        (folder / f"{name}.service").symlink_to(INSTALLED_SERVICES / f"{name}.service")
    file = home / "session.conf"
    limits = "".join(f'<limit name="{name}">{value}</limit>' for name, value in LIMITS.items())
    file.write_text(BUS.format(services=folder, limits=limits))
    return file


def share(home):
    """Returns a folder of shared data that stands in for those of the system."""
    folder = home / "share"
    folder.mkdir()
    for name in SHARED_DATA:
        (folder / name).symlink_to(pathlib.Path("/usr/share") / name)
    return folder


def environment(home, display):
    """Only what the program needs: nothing of the developer's own desktop reaches it."""
    variables = {
        "XDG_DATA_HOME": str(home / "data"),
        "XDG_CONFIG_HOME": str(home / "config"),
        "XDG_CACHE_HOME": str(home / "cache"),
        "XDG_RUNTIME_DIR": str(home / "run"),
    }
    for folder in variables.values():
        os.makedirs(folder, mode=0o700)
    passed_on = ("PATH", "ASAN_OPTIONS", "PELKO_TRACES", "QT_QUICK_BACKEND")
    kept = {name: os.environ[name] for name in passed_on if name in os.environ}
    return {
        **kept,
        **variables,
        "XDG_DATA_DIRS": str(share(home)),
        "XDG_CONFIG_DIRS": str(home / "config"),
        "GSETTINGS_BACKEND": "memory",
        "HOME": str(home),
        "DISPLAY": display,
        "LANG": "C.UTF-8",
        "LC_ALL": "C.UTF-8",
        "QT_QPA_PLATFORM": "xcb",
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        "NO_AT_BRIDGE": "0",
        "PELKO_JOURNEY": str(home),
        "PYTHONDONTWRITEBYTECODE": "1",
    }


def run_on_own_desktop(services):
    """The outer process: runs this same script again on a fresh desktop and returns its exit code."""
    with tempfile.TemporaryDirectory(prefix="pelko-journey-") as folder:
        home = pathlib.Path(folder)
        server, display = start_display()
        try:
            bus = write_bus_configuration(home, [*ACCESSIBILITY, *services])
            session = subprocess.Popen(
                ["dbus-run-session", f"--config-file={bus}", "--", sys.executable, *sys.argv],
                env=environment(home, display),
                start_new_session=True,
            )
            try:
                return session.wait(timeout=600)
            finally:
                end_group(session.pid)
                unmount_below(folder)
        finally:
            server.terminate()
            server.wait()


def unmount_below(folder):
    """The document portal mounts a folder in the runtime directory, and may not have unmounted it yet when it ends."""
    for line in pathlib.Path("/proc/self/mounts").read_text().splitlines():
        place = line.split()[1]
        if place.startswith(f"{folder}/"):
            subprocess.run(["fusermount3", "-u", "-z", place], stderr=subprocess.DEVNULL)


def end_group(leader):
    try:
        os.killpg(leader, signal.SIGTERM)
    except ProcessLookupError:
        pass


def start_window_manager():
    """Returns once it manages windows: one that is shown while it is still taking over can stay unmapped."""
    # The first key of all can get lost while everybody learns of the keyboard that it comes from.
    subprocess.run(["xdotool", "key", "shift"], check=True)
    ready = pathlib.Path(os.environ["PELKO_JOURNEY"]) / "managed"
    manager = subprocess.Popen(
        ["openbox", "--sm-disable", "--startup", f"touch {ready}"],
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    until(ready.exists, "the window manager manages windows")
    return manager


def shown(*command):
    """What a command writes to standard output."""
    return subprocess.run(command, capture_output=True, text=True).stdout
