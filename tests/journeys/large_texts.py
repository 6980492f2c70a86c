"""Measures how long large texts keep the window from answering, with the real program in a real window.

Usage: large_texts.py PROGRAM [CASE...]. A thread asks the running program for the state of its pomodoro every few
milliseconds; the longest wait for an answer is what is told.
"""

import json
import os
import pathlib
import random
import socket
import subprocess
import sys
import threading
import time
import uuid

import journey
from desktop import until

WORDS = "the quick brown fox jumps over a lazy dog while nine small ducks swim in autumn rain".split()
ANSWER = 120  # seconds
QUICK = 0.1
KEYS = ("x", "BackSpace", "Down", "End", "ctrl+End", "y", "ctrl+z", "Return", "Prior", "ctrl+a", "ctrl+c", "Right")


class Watch:
    """Keeps the longest wait for an answer of the window's thread."""

    def __init__(self, folder):
        self.socket = str(folder / "instance.socket")
        self.longest = 0
        self.asked = None
        threading.Thread(target=self.ask_on, daemon=True).start()

    def ask_on(self):
        while True:
            self.asked = time.monotonic()
            try:
                self.ask()
                self.longest = max(self.longest, time.monotonic() - self.asked)
            except OSError:
                pass  # not started yet, or ended
            self.asked = None
            time.sleep(0.005)

    def ask(self):
        with socket.socket(socket.AF_UNIX) as question:
            question.settimeout(ANSWER)
            question.connect(self.socket)
            question.sendall(b"\0--pomodoro\0status\0")
            question.shutdown(socket.SHUT_WR)
            while question.recv(4096):
                pass

    def wait_until_quick(self, seconds=1.0):
        """Waits until answers come quickly for so long; returns the longest wait since the last time, in seconds."""
        quick_since = time.monotonic()
        while time.monotonic() - quick_since < seconds:
            asked = self.asked
            if asked and time.monotonic() - asked > QUICK:
                quick_since = time.monotonic()
            time.sleep(0.02)
        longest, self.longest = self.longest, 0
        return longest


def words(size):
    lot = random.Random(3)
    return " ".join(lot.choice(WORDS) for _ in range(size // 3))[:size]


def lines(count):
    one = words(4000)
    return "\n".join(one[place * 7 % 3900 :][:50] for place in range(count))


def block(kind, content="", **more):
    return {"id": str(uuid.uuid4()).upper(), "type": kind, "content": content, **more}


def library(*blocks):
    page = {"id": str(uuid.uuid4()).upper(), "space": "work", "createdAt": 785000000.25, "blocks": list(blocks)}
    return json.dumps([page])


def checklist(count):
    todos = [{"id": str(uuid.uuid4()).upper(), "text": words(40), "done": False} for _ in range(count)]
    return block("sticky", todos=todos)


SHOWN = {
    "megabyte of words": lambda: block("textSmall", words(1_000_000)),
    "200 KB without a space": lambda: block("textSmall", "abcdefghij" * 20_000),
    "megabyte without a space": lambda: block("textSmall", "abcdefghij" * 100_000),
    "20,000 lines": lambda: block("textSmall", lines(20_000)),
    "100,000 lines": lambda: block("textSmall", lines(100_000)),
    "checklist of 5,000": lambda: checklist(5_000),
}
PASTED = {
    "paste of a megabyte of words": lambda: words(1_000_000),
    "paste of 20,000 lines": lambda: lines(20_000),
    "paste of 300,000 lines": lambda: lines(300_000),
    "paste of a megabyte without a space": lambda: "abcdefghij" * 100_000,
}

IN_A_LINE = "megabyte in the search field"


def tell(case, what, seconds):
    print(f"{case:32} {what:12} {seconds * 1000:8.0f} ms", flush=True)


def resident_megabytes(pelko):
    status = pathlib.Path(f"/proc/{pelko.process.pid}/status").read_text()
    return int(status.split("VmRSS:")[1].split()[0]) // 1024


def open_library(pelko, text):
    pelko.write_library(text)
    watch = Watch(pelko.data_home / "Pelko")
    # A text that is read out is read anew with every change.
    pelko.launch(QT_LINUX_ACCESSIBILITY_ALWAYS_ON=None)
    until(lambda: watch.longest > 0, "the program answers", ANSWER)
    time.sleep(3)
    return watch


def press(pelko, watch, case, key):
    pelko.keys(key)
    tell(case, key, watch.wait_until_quick())


def click_text():
    subprocess.run(["xdotool", "mousemove", "640", "420", "click", "1"], check=True)


def show(pelko, case, make):
    watch = open_library(pelko, library(block("textLarge", "Title"), make()))
    tell(case, "start", watch.wait_until_quick())
    click_text()
    tell(case, "click", watch.wait_until_quick())
    for key in KEYS:
        press(pelko, watch, case, key)
    pelko.keys("ctrl+k")
    watch.wait_until_quick()
    pelko.type("duck")
    tell(case, "search", watch.wait_until_quick())
    began = time.monotonic()
    subprocess.run([pelko.program, "--export", str(pelko.data_home / case)], check=True, capture_output=True)
    tell(case, "--export", time.monotonic() - began)
    print(f"{case:32} {'memory':12} {resident_megabytes(pelko):8} MB", flush=True)


def page_to_paste_into(pelko, text):
    watch = open_library(pelko, library(block("textLarge", "Title"), block("textSmall", "")))
    owner = subprocess.Popen(["xclip", "-selection", "clipboard", "-in"], stdin=subprocess.PIPE)
    owner.communicate(text.encode())
    click_text()
    watch.wait_until_quick()
    return watch


def paste_into_the_search_field(pelko, case):
    watch = page_to_paste_into(pelko, words(1_000_000))
    pelko.keys("ctrl+k")
    watch.wait_until_quick()
    for key in ("ctrl+v", "x", "BackSpace", "Home", "x", "ctrl+a", "Delete", "ctrl+z"):
        press(pelko, watch, case, key)


def paste(pelko, case, make):
    watch = page_to_paste_into(pelko, make())
    press(pelko, watch, case, "ctrl+v")
    for key in ("x", "BackSpace", "ctrl+Home", "ctrl+End", "ctrl+z"):
        press(pelko, watch, case, key)


def measure(pelko):
    for case in sys.argv[2:] or [*SHOWN, *PASTED, IN_A_LINE]:
        if case in SHOWN:
            show(pelko, case, SHOWN[case])
        elif case == IN_A_LINE:
            paste_into_the_search_field(pelko, case)
        else:
            paste(pelko, case, PASTED[case])
        pelko.end()


journey.run(measure)
