"""Sparks from the panel and from the command line, the pomodoro by its words, one instance for one data folder."""

import socket
import subprocess

import journey
from desktop import shown, until
from journey import screen_reader


def pelko_says(pelko, *arguments):
    done = subprocess.run([pelko.program, *arguments], capture_output=True, text=True, timeout=30)
    return done.returncode, done.stdout, done.stderr


def spark_texts(pelko):
    return [page["blocks"][0]["content"] for page in pelko.saved() or [] if page["space"] == "ideas"]


def open_panel(pelko):
    pelko.click(pelko.button("Timer"))
    pelko.wait_focus_on("Capture a spark")


def capture_by_panel(pelko, text):
    pelko.type(text)
    pelko.keys("Return")
    pelko.wait_for(text)
    pelko.wait_focus_on("Capture a spark")


def without_a_window(pelko):
    assert pelko_says(pelko, "--spark", "  straight into the file ") == (0, "", "")
    assert spark_texts(pelko) == ["straight into the file"]
    assert pelko_says(pelko, "--spark", " \n ")[0] == 2
    assert pelko_says(pelko, "--pomodoro", "status") == (1, "", "pelko: Pelko is not running.\n")
    kept = pelko.data_file.read_bytes()
    pelko.data_file.write_bytes(b"[not json")
    assert pelko_says(pelko, "--spark", "lost?") == (1, "", "pelko: Failed to load your documents.\n")
    assert pelko.data_file.read_bytes() == b"[not json", "what cannot be read is not written over"
    pelko.data_file.write_bytes(kept)


def version_without_the_other(pelko):
    """Even beside a program that listens and never answers."""
    address = pelko.data_file.parent / "instance.socket"
    with socket.socket(socket.AF_UNIX) as other:
        other.bind(str(address))
        other.listen()
        other.setblocking(False)
        for option in ("--version", "--help"):
            assert pelko_says(pelko, option)[0] == 0
        try:
            assert not other.accept(), "the other Pelko was asked"
        except BlockingIOError:
            pass
    address.unlink()


def sparks_of_both_kinds(pelko):
    open_panel(pelko)
    pelko.type("half a thought")
    pelko.keys("Escape")
    pelko.wait_gone("Capture a spark")
    open_panel(pelko)
    capture_by_panel(pelko, "first from the panel")
    assert pelko_says(pelko, "--spark", "first from a key") == (0, "", "")
    pelko.wait_for("first from a key")
    capture_by_panel(pelko, "second from the panel")
    assert pelko_says(pelko, "--spark=second from a key") == (0, "", "")
    assert spark_texts(pelko) == [
        "straight into the file",
        "first from the panel",
        "first from a key",
        "second from the panel",
        "second from a key",
    ]
    pelko.wait_for("Recent sparks: 5")
    pelko.wait_gone("straight into the file")  # four cards


def copy_and_delete(pelko):
    pelko.click(pelko.wait_for("first from the panel"), button=3)
    pelko.click(pelko.wait_for("Copy"))
    until(
        lambda: shown("xclip", "-selection", "clipboard", "-out") == "first from the panel",
        "another program can paste the spark",
    )
    pelko.click(pelko.wait_for("second from a key"), button=3)
    pelko.click(pelko.wait_for("Delete"))
    pelko.wait_for("Recent sparks: 4")
    pelko.wait_saved(lambda saved: "second from a key" not in spark_texts(pelko), "the spark is gone")
    # What is copied stays when the panel closes.
    pelko.keys("Escape")
    pelko.wait_gone("Capture a spark")
    assert shown("xclip", "-selection", "clipboard", "-out") == "first from the panel"


def pomodoro_by_words(pelko):
    assert pelko_says(pelko, "--pomodoro", "status") == (0, "focus 25:00 paused\n", "")
    assert pelko_says(pelko, "--pomodoro", "start") == (0, "", "")
    until(lambda: "24:5" in pelko_says(pelko, "--pomodoro", "status")[1], "the timer counts")
    assert pelko_says(pelko, "--pomodoro", "pause") == (0, "", "")
    pelko.wait_for("Timer", screen_reader().BUTTONS)
    assert pelko_says(pelko, "--pomodoro", "reset") == (0, "", "")
    assert pelko_says(pelko, "--pomodoro", "status") == (0, "focus 25:00 paused\n", "")


def second_start_raises(pelko):
    other = subprocess.Popen(["xmessage", "-center", "in the way"])
    try:
        until(lambda: not pelko.has_focus(), "another window has the focus")
        assert pelko_says(pelko) == (0, "", "")
        until(pelko.has_focus, "the window has the focus again")
    finally:
        other.kill()
        other.wait()


def sparks(pelko):
    without_a_window(pelko)
    version_without_the_other(pelko)
    pelko.start()
    sparks_of_both_kinds(pelko)
    copy_and_delete(pelko)
    pomodoro_by_words(pelko)
    second_start_raises(pelko)
    pelko.close()


journey.run(sparks)
