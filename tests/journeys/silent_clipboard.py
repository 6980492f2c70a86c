"""A program that owns the clipboard and hangs does not stop the window: what is typed after the paste comes at once, and
pasting works again when that program does."""

import signal
import subprocess
import time

import journey

LIMIT = 1.0  # seconds; Qt alone waits five


def copy_elsewhere(text):
    """Another program owns clipboard and primary selection; it is returned."""
    owners = []
    for selection in ("clipboard", "primary"):
        owner = subprocess.Popen(["xclip", "-quiet", "-selection", selection, "-in"], stdin=subprocess.PIPE)
        owner.stdin.write(text.encode())
        owner.stdin.close()
        owners.append(owner)
    time.sleep(0.5)
    return owners


def longest_silence(pelko, action):
    """How long the window's thread answers nobody while something is done, in seconds."""
    action()
    began = time.monotonic()
    subprocess.run([pelko.program, "--pomodoro", "status"], check=True, capture_output=True)
    return time.monotonic() - began


def bodies(pages):
    return [block["content"] for block in pages[0]["blocks"] if block["type"] == "textSmall"]


def silent_clipboard(pelko):
    pelko.start()
    pelko.keys("ctrl+n")
    pelko.wait_focus_on("Heading")
    pelko.type("Title")
    pelko.keys("Return")
    pelko.type("before ")
    owners = copy_elsewhere("pasted")
    try:
        type_around_paste(pelko, owners)
    finally:
        for owner in owners:
            owner.kill()
            owner.wait()


def type_around_paste(pelko, owners):
    for owner in owners:
        owner.send_signal(signal.SIGSTOP)
    silence = longest_silence(pelko, lambda: pelko.keys("ctrl+v"))
    assert silence < LIMIT, f"the window stood still for {silence:.1f} s"
    pelko.type("after ")
    pelko.wait_saved(lambda pages: bodies(pages)[0] == "before after ", "what was typed after the paste")
    for owner in owners:
        owner.send_signal(signal.SIGCONT)
    pelko.keys("ctrl+v")
    pelko.wait_saved(lambda pages: bodies(pages)[0] == "before after pasted", "what was pasted then")


journey.run(silent_clipboard)
