"""Presses random keys, clicks and drags in the real window, then ends the program by a signal and reads its file.

Usage: random_keys.py PROGRAM [SECONDS [SEED]]. The same seed presses the same keys, though not at the same moments.
"""

import json
import random
import signal
import subprocess
import sys
import time
import uuid

import journey
from desktop import until
from journey import screen_reader

KEYS = """Left Right Up Down Home End Prior Next ctrl+Home ctrl+End ctrl+Left ctrl+Right shift+Left shift+Right shift+Up
    shift+Down shift+Prior shift+Next shift+ctrl+Home shift+ctrl+End Return Return shift+Return BackSpace BackSpace Delete
    ctrl+BackSpace ctrl+Delete Tab shift+Tab ctrl+a ctrl+c ctrl+x ctrl+v ctrl+z ctrl+z ctrl+shift+z alt+Up alt+Down
    Escape ctrl+1 ctrl+2 ctrl+2 ctrl+3 ctrl+k ctrl+t ctrl+shift+f space""".split()
WORDS = ["word ", "a", "# ", "> ", "```", "---", "[] ", "Zoë ", "two words ", "1234"]
# Of the window, without the strip with its buttons that close and hide it.
TOP, MARGIN = 70, 30
MARK = "the last words"


def text_block(kind, content):
    return {"id": str(uuid.uuid4()).upper(), "type": kind, "content": content}


def checklist(*texts):
    entries = [{"id": str(uuid.uuid4()).upper(), "text": text, "done": False} for text in texts]
    return {**text_block("sticky", ""), "todos": entries}


def library():
    """A page of all kinds of blocks whose checklists scroll out of sight, and one more."""
    blocks = [text_block("textLarge", "At random"), checklist("one", "two", "three")]
    blocks += [text_block("textSmall", f"Paragraph {number} of many.") for number in range(30)]
    blocks += [text_block("quote", "said he"), text_block("code", "a\n\tb\nc"), text_block("divider", "")]
    blocks += [text_block("image", ""), checklist("four", "five"), text_block("textSmall", "The end.")]
    return [page(blocks), page([text_block("textLarge", "Another"), text_block("textSmall", "page")])]


def page(blocks):
    return {"id": str(uuid.uuid4()).upper(), "space": "work", "blocks": blocks, "createdAt": 700000000}


def place(lot, frame):
    x, y, width, height = frame
    return str(lot.randint(x + MARGIN, x + width - MARGIN)), str(lot.randint(y + TOP, y + height - MARGIN))


def action(lot, frame):
    """The arguments of xdotool for one thing to do."""
    kind = lot.random()
    if kind < 0.3:
        return ["type", "--delay", "12", "--", lot.choice(WORDS)]
    if kind < 0.75:
        return ["key", "--clearmodifiers", lot.choice(KEYS)]
    if kind < 0.85:
        return ["mousemove", *place(lot, frame), "click", lot.choice(["1", "1", "1", "4", "5"])]
    if kind < 0.92:
        return ["mousemove", *place(lot, frame), "click", "--repeat", "8", "--delay", "8", lot.choice(["4", "5"])]
    return ["mousemove", *place(lot, frame), "mousedown", "1", "mousemove", *place(lot, frame), "mouseup", "1"]


def frame_of(pelko):
    """Where the window stands; one that was dragged away is put back."""
    subprocess.run(["xdotool", "windowmove", pelko.window(), "100", "80"])
    time.sleep(0.2)
    told = journey.shown("xdotool", "getwindowgeometry", "--shell", pelko.window())
    values = dict(line.split("=") for line in told.split())
    return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def press_at_random(pelko, seconds, seed):
    lot = random.Random(seed)
    done = []
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if len(done) % 25 == 0:
            frame = frame_of(pelko)
        done.append(action(lot, frame))
        subprocess.run(["xdotool", *done[-1]], check=True)
        time.sleep(0.02)
        if pelko.process.poll() is not None:
            told = "\n".join("    " + " ".join(words) for words in done[-40:])
            raise AssertionError(f"Pelko ended with {pelko.process.returncode} after {len(done)} actions:\n{told}")
    print(f"seed {seed}: {len(done)} actions")


def end_in_mid_word(pelko):
    """What was typed last is in the file of a program that was asked to end."""
    pelko.keys("Escape", "Escape", "Escape", "ctrl+2")
    frame_of(pelko)
    pelko.stand_still()
    if pelko.find("Start Writing"):
        pelko.click(pelko.button("Start Writing"))
    pelko.click(pelko.button("Body"))
    until(lambda: (field := pelko.focused()) and screen_reader().text_of(field) == "", "an empty block has the focus")
    pelko.type(MARK)
    pelko.process.send_signal(signal.SIGTERM)
    pelko.process.wait(timeout=30)
    pages = json.loads(pelko.data_file.read_bytes())
    assert any(block["content"] == MARK for page in pages for block in page["blocks"]), "the last words are not saved"


def at_random(pelko):
    seconds = float(sys.argv[2]) if len(sys.argv) > 2 else 20
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.SystemRandom().randrange(1_000_000)
    print(f"seed {seed}", flush=True)
    pelko.write_library(json.dumps(library()))
    pelko.start()
    press_at_random(pelko, seconds, seed)
    end_in_mid_word(pelko)


journey.run(at_random)
